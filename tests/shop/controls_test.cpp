// The controls of the shop as it is designed, before anything is loaded.
#include <gtest/gtest.h>

#include "shop/shop.h"
#include "tests/departments/looks.h"
#include "tests/support/world.h"

namespace brolgan::test {
namespace {

const Lines kZoneCaptions = {
    "Jaskinia małych", "Jama średnich", "Pieczara niekiepych", "Galeria mocniejszych", "Huta Zła", "Niszczyciele",
    "Twardziele",      "Mocarze",       "Nadmocarze",          "PonadNadMocarze",      "Pandoria", "Tron Królów"};

Lines zoneLooks() {
  Lines all;
  for (std::size_t i = 0; i < kZoneCaptions.size(); ++i) {
    all.push_back(look("Frame5", "button", "w" + std::to_string(i + 1), kZoneCaptions[i]));
  }
  return all;
}

Lines ownLooks() {
  return joined({arrayLooks("form", "picture", "pics", {"", "", "", "", ""}),
                 {look("form", "label", "Label1", "Sklep"), look("form", "label", "Label2", "Pozostało punktów :"),
                  look("form", "label", "Ile_jeszcze", "16"), look("form", "label", "Label15", "Tura numer:"),
                  look("form", "label", "Tura", "1"),
                  look("form", "label", "Label14", "Towar raz kupiony nie podlega zwrotowi !!!"),
                  look("form", "text", "Imie", "Kosiarz"), look("form", "button", "Heroshow", ""),
                  look("form", "text", "Plik", ""), look("Frame5", "button", "Save", "Tak, Koniec")},
                 arrayLooks("fstat", "label", "akt", {"50", "50", "50"}),
                 arrayLooks("fbron", "label", "Label6",
                            {"Nazwa", "Obrażenia", "Cena", "Opis", "Opis", "Cena", "Obrażenia", "Nazwa"}),
                 arrayLooks("Frame4", "label", "Speccena", {"7", "1", "9", "2"}),
                 zoneLooks()});
}

class ShopDesign : public ::testing::Test {
 protected:
  World world;
  CTsklep screen{world.runtime};
};

TEST_F(ShopDesign, HasEveryControlUnderItsNameInItsFrameWithItsCaption) {
  EXPECT_EQ(missingFrom(joined({departmentLooks(), ownLooks()}), looksOf(screen)), Lines());
}

TEST_F(ShopDesign, HasNoControlBesidesSoNoSaleNoMinusAndNoSeventhPlus) {
  EXPECT_EQ(missingFrom(looksOf(screen), joined({departmentLooks(), ownLooks()})), Lines());
}

TEST_F(ShopDesign, IsCalledShopWithATrailingBlank) { EXPECT_EQ(screen.Caption, "Sklep "); }

TEST_F(ShopDesign, HidesTheFileNameAndTheLeavingButton) {
  EXPECT_EQ(sorted(hiddenControls(screen)), Lines({"Plik", "Save"}));
}

TEST_F(ShopDesign, DisablesTheFiveGoodsThatCannotBeHadAndTheLeavingButton) {
  EXPECT_EQ(sorted(disabledControls(screen)),
            Lines({"Czarn(4)", "Czarn(5)", "Czarn(8)", "Save", "Spec(1)", "Spec(3)"}));
}

TEST_F(ShopDesign, DrawsNothingRed) { EXPECT_EQ(colouredControls(screen, Colour::red), Lines()); }

TEST_F(ShopDesign, DrawsTheCurrentValuesTheBoardSpellsAndTheirLegendGreen) {
  EXPECT_EQ(sorted(colouredControls(screen, Colour::green)),
            Lines({"Label12", "Label13(4)", "Label13(5)", "Label13(8)", "akt(0)", "akt(1)", "akt(2)"}));
}

TEST_F(ShopDesign, LocksTheNameAndTheFileAndKeepsTheNameFromTheKeyboard) {
  EXPECT_TRUE(screen.Imie.Locked);
  EXPECT_FALSE(screen.Imie.TabStop);
  EXPECT_TRUE(screen.Plik.Locked);
}

TEST_F(ShopDesign, HasEachPictureInItsOwnBoxAndOnTheButtonOfTheSheet) {
  EXPECT_EQ(screen.pics[0].Picture, "szyld.png");
  EXPECT_EQ(screen.pics[1].Picture, "stragan-czary.jpg");
  EXPECT_EQ(screen.pics[2].Picture, "stragan-bron.jpg");
  EXPECT_EQ(screen.pics[3].Picture, "stragan-cechy.jpg");
  EXPECT_EQ(screen.pics[4].Picture, "lampa.png");
  EXPECT_STREQ(screen.Heroshow.Picture, "arkusz.png");
}

TEST_F(ShopDesign, KeepsTheZonesInTheirOrder) {
  Lines zones;
  for (const ControlEntry& entry : screen.controls().entries()) {
    if (entry.name.starts_with('w') && entry.index < 0) zones.push_back(entry.name);
  }

  EXPECT_EQ(zones, Lines({"w1", "w2", "w3", "w4", "w5", "w6", "w7", "w8", "w9", "w10", "w11", "w12"}));
}

TEST_F(ShopDesign, HasItsToolTipsAndNoOthers) {
  std::map<std::string, std::string> expected = departmentTips();
  expected["Spec(0)"] = "Cena 7. Zwiększa obrażenia zadawane przez granat o 8";
  expected["Spec(2)"] = "Cena 9. Każde trafienie z broni palnej zmniejsza pancerz przeciwnika o k3";

  EXPECT_EQ(toolTips(screen), expected);
}

}  // namespace
}  // namespace brolgan::test
