// One widget for one control: makes it, keeps it like the control, and passes on what a person
// does with it. Holds no rule of the game.
#pragma once

#include <QWidget>
#include <functional>

#include "flow/stage/form.h"

namespace brolgan::desktop {

class PictureStore;

// What a person does with a control; the window knows which control it was.
struct Gestures {
  std::function<void()> click;
  std::function<void(int)> select;
  std::function<void(const QString&)> type;
};

// Makes the widget of a control as a child of parent. Null for a control that is never seen.
QWidget* makeWidget(const ControlEntry& entry, QWidget* parent, PictureStore& pictures, const Gestures& gestures);

// Changes what differs between the widget and its control. Raises no gesture.
void mirror(const ControlEntry& entry, QWidget& widget);

}  // namespace brolgan::desktop
