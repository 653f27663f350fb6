// Where the controls of each screen lie, how large its window is and where it opens. A layout places
// the widgets of a window and gives them their typefaces, in units; it neither adds nor changes what
// they say or do.
#pragma once

#include <QSize>
#include <string>
#include <vector>

namespace brolgan::desktop {

class FormWindow;
class PictureStore;

// Where a window opens for the first time.
enum class Place {
  top,     // at the upper edge; stays behind the others
  bottom,  // at the lower edge, so that it does not hide what is at the top
  turn,    // around the window whose place it takes
  beside,  // beside the window that opened it
};

// The largest window, in units.
inline constexpr QSize kLargestWindow(1340, 716);

struct ScreenLayout {
  void (*layOut)(FormWindow& window);
  QSize size;  // of the window, in units
  Place place;
  // Controls that a window which opens beside this one leaves in sight.
  std::vector<const char*> keptClear = {};
  // Controls of the form that are never seen.
  std::vector<const char*> unseen = {};
  // Whether the page shrinks with a window that is too small, rather than scroll.
  bool shrinks = false;

  // Screens that take turns stand in each other's place and share one size.
  [[nodiscard]] bool takesTurns() const { return place == Place::turn; }
};

// The layout of the form called name. Throws std::logic_error when there is none.
const ScreenLayout& screenLayout(const std::string& name);

// Begins to decode the two title pictures, for a screen of so many device pixels to a pixel.
void prepareTitle(PictureStore& pictures, qreal ratio);

void layOutTitle(FormWindow& window);
void layOutSetup(FormWindow& window);
void layOutCreation(FormWindow& window);
void layOutShop(FormWindow& window);
void layOutPreparation(FormWindow& window);
void layOutFight(FormWindow& window);
void layOutSheet(FormWindow& window);

}  // namespace brolgan::desktop
