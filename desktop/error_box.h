// The one message box of the game: what it says of an error, and the box itself.
#pragma once

#include <QString>
#include <exception>

namespace brolgan::desktop {

// A run-time error of the game in its own words, with the folder where its file was looked for; a
// player's folder that is of no use, likewise; everything else is an internal error.
QString errorText(const std::exception_ptr& error);

// Shows the box until its button is pressed.
void showErrorBox(const QString& text);

}  // namespace brolgan::desktop
