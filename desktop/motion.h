// Short movements that let a blow be felt. They are drawn and nothing else: no widget changes its place,
// nothing waits for them, and a window at rest draws nothing.
#pragma once

class QWidget;

namespace brolgan::desktop {

// How long a movement takes at most, in milliseconds.
inline constexpr int kMovementMs = 180;

// Lets a widget slide into its place from the right.
void slideIn(QWidget& widget);
// Lets a widget flinch where it stands.
void flinch(QWidget& widget);

}  // namespace brolgan::desktop
