// The controls of the creation screen as it is designed, before anything is loaded.
#include <gtest/gtest.h>

#include "creation/creation.h"
#include "tests/departments/looks.h"
#include "tests/support/world.h"

namespace brolgan::test {
namespace {

const Lines kClassNames = {"Wojownik",    "Strzelec",   "Czarownik",
                           "Wiedźmin",    "Awanturnik", "Satrapa",
                           "Berserker",   "Ryzykant",   "Zabobonny mnich zakonny",
                           "Złota rączka"};

const char* const kAdvice =
    "Ceny przy tworzeniu bohatera są zazwyczaj niższe od sklepowych. Cechy kosztują w sklepie 2 punkty, moździerz 7, "
    "zasysacz 9. Ceny broni i czarów nie zmieniają się. Po wybraniu klasy bohatera nie będziesz już mógł jej zmienić "
    "do końca gry. Wcielenia możesz kupić tylko teraz. W sklepie nie zawsze znajduje się to, czego potrzebujesz - "
    "często trzeba na to poczekać...";

Lines ownLooks() {
  return joined({arrayLooks("form", "picture", "pics", {"", "", ""}),
                 {look("form", "label", "Label1", "Tworzenie bohatera"),
                  look("form", "label", "Label2", "Pozostało punktów :"), look("form", "label", "Ile_jeszcze", "16"),
                  look("form", "text", "Imie", "Kosiarz"), look("form", "label", "Label15", kAdvice),
                  look("form", "frame", "Frame6", ""), look("Frame6", "label", "Label14", "Klasa bohatera")},
                 arrayLooks("Frame6", "option", "Klasa", kClassNames),
                 arrayLooks("fstat", "button", "PLUS", {"+"}, 6),
                 arrayLooks("fstat", "button", "MINUS", repeated(7, {"--"})),
                 arrayLooks("fbron", "label", "Label6",
                            {"Nazwa", "Obrażenia", "Cena", "Opis", "Nazwa", "Obrażenia", "Cena", "Opis"}),
                 {look("fbron", "button", "Sprzedajww", "Sprzedaj"), look("fbron", "button", "Sprzedajss", "Sprzedaj")},
                 arrayLooks("Frame4", "button", "MINUS", {"--", "--"}, 7),
                 arrayLooks("Frame4", "label", "Speccena", {"1", "1", "1", "2"}),
                 arrayLooks("Frame5", "label", "Label4", {"Zapisywanie"}, 3),
                 {look("Frame5", "text", "Plik", "hero.boh"), look("Frame5", "button", "Save", "Zapisz")}});
}

class CreationDesign : public ::testing::Test {
 protected:
  World world;
  CTmhero screen{world.runtime};
};

TEST_F(CreationDesign, HasEveryControlUnderItsNameInItsFrameWithItsCaption) {
  const Lines expected = joined({departmentLooks(), ownLooks()});

  EXPECT_EQ(missingFrom(expected, looksOf(screen)), Lines());
}

TEST_F(CreationDesign, HasNoControlBesides) {
  const Lines expected = joined({departmentLooks(), ownLooks()});

  EXPECT_EQ(missingFrom(looksOf(screen), expected), Lines());
}

TEST_F(CreationDesign, IsCalledAfterTheMakingOfAHero) { EXPECT_EQ(screen.Caption, "Tworzenie bohatera"); }

TEST_F(CreationDesign, HasEachPictureInItsOwnBox) {
  EXPECT_EQ(screen.pics[0].Picture, "tworz-miecz.png");
  EXPECT_EQ(screen.pics[1].Picture, "tworz-ksiega.png");
  EXPECT_EQ(screen.pics[2].Picture, "tworz-kufel.png");
}

TEST_F(CreationDesign, HidesTheFileNameAlone) { EXPECT_EQ(hiddenControls(screen), Lines({"Plik"})); }

TEST_F(CreationDesign, DisablesTheFiveGoodsThatCannotBeHad) {
  EXPECT_EQ(disabledControls(screen), Lines({"Czarn(4)", "Czarn(5)", "Czarn(8)", "Spec(1)", "Spec(3)"}));
}

TEST_F(CreationDesign, DrawsTheFirstStepOfEachLadderRedAndNothingElse) {
  EXPECT_EQ(colouredControls(screen, Colour::red),
            Lines({"stat1(0)", "stat2(0)", "stat3(0)", "stat4(0)", "stat5(0)", "stat6(0)", "stat7(0)"}));
}

TEST_F(CreationDesign, DrawsTheBoardSpellsAndTheirLegendGreen) {
  EXPECT_EQ(colouredControls(screen, Colour::green), Lines({"Label13(4)", "Label13(5)", "Label13(8)", "Label12"}));
}

TEST_F(CreationDesign, SelectsTheFirstClassAlone) {
  for (int i = 0; i < kClasses; ++i) EXPECT_EQ(screen.Klasa[static_cast<std::size_t>(i)].Value, i == 0) << i;
}

TEST_F(CreationDesign, LeavesTheNameFreeToBeTyped) {
  EXPECT_FALSE(screen.Imie.Locked);
  EXPECT_TRUE(screen.Imie.TabStop);
}

std::map<std::string, std::string> classTips() {
  return {{"Klasa(0)", "Wojownik zaczyna posiadając 45% bonus do broni o zasięgu bezpośrednim"},
          {"Klasa(1)", "Strzelec zaczyna posiadając 55% bonus do broni strzeleckich"},
          {"Klasa(2)",
           "Czarownik regeneruje ilosć many (1-3) zależną od jego współczynnika regeneracji w każdej rundzie walki"},
          {"Klasa(3)", "Wiedźmin zadaje w walce wręcz dodatkowe (1-10) zależne od jego szybkości"},
          {"Klasa(4)", "Awanturnik zdobywa o 45% więcej punktów za pokonane stwory"},
          {"Klasa(5)", "Satrapa rozpoczyna grę posiadając dodatkowe 4 punkty rozwoju"},
          {"Klasa(6)",
           "Berserker nie może rzucać czarów podczas walki. Brońmi do walki wręcz atakuje dwukrotnie podczas walki"},
          {"Klasa(7)",
           "Uzyskujesz 3 razy więcej punktów rozwoju za zabite potory, jednak wszystkie niewydane przepadają po "
           "wyjściu ze sklepu"},
          {"Klasa(8)", "Mnich odzyskuje maxa zycia i many po zakończeniu walki"},
          {"Klasa(9)", "Złota rączka uzyskuje bonus +5 do obrażeń zadawanych każdym typem broni"}};
}

TEST_F(CreationDesign, HasItsToolTipsAndNoOthers) {
  std::map<std::string, std::string> expected = departmentTips();
  expected.merge(classTips());
  expected["Spec(0)"] = "Cena 1. Zwiększa obrażenia zadawane przez granat o 8";
  expected["Spec(2)"] = "Cena 1. Każde trafienie z broni palnej zmniejsza pancerz przeciwnika o 1k3";

  EXPECT_EQ(toolTips(screen), expected);
}

}  // namespace
}  // namespace brolgan::test
