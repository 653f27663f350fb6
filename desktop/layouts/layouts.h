// Where the controls of each screen lie. A layout places the widgets of a window and gives them
// their typefaces; it neither adds nor changes what they say or do.
#pragma once

#include <QtGlobal>
#include <string>

namespace brolgan::desktop {

class FormWindow;
class PictureStore;

// Lays the window of the form called name out.
void layOut(const std::string& name, FormWindow& window);

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
