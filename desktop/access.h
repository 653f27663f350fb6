// What the windows tell a screen reader beyond what the widgets tell by themselves: names with their
// values, goods as things that are checked or not, and the blows as they fall.
#pragma once

#include <string>

#include "flow/stage/form.h"

class QWidget;

namespace brolgan::desktop {

// Makes labels that can be checked known as such. Once for the program.
void installAccess();

// Keeps the spoken name and the checked state of a widget like its control.
void tell(const std::string& screen, const ControlEntry& entry, QWidget& widget);

// Says the name of a widget now, if it can be seen: it is told as a notice that appears.
void announce(QWidget& widget);

}  // namespace brolgan::desktop
