// What the creation screen and the shop do alike: their lists, the remarks on a weapon, and buying.
#include "departments/development_form.h"

#include <gtest/gtest.h>

#include "rules/development.h"
#include "tests/departments/looks.h"
#include "tests/departments/screens.h"

namespace brolgan::test {
namespace {

const Kostka kOneDie = {1, 4, 1, 0};

class BothScreens : public ::testing::TestWithParam<const char*>, public Screen {
 protected:
  BothScreens() : Screen(GetParam()) {}

  void openWith(const Weapons& melee, const Weapons& ranged, int points = 50) {
    world.write(kWeaponsFile, catalogueLines(melee, ranged));
    open(points);
  }
  // Opens with one weapon on the ranged list and clicks it.
  std::string remarkOn(const Weapon& ranged) {
    openWith({}, {ranged});
    pick("Lbronss", 0);
    return caption("BSopis");
  }
};

INSTANTIATE_TEST_SUITE_P(Screens, BothScreens, ::testing::Values("CTmhero", "CTsklep"),
                         [](const auto& screen) { return std::string(screen.param); });

TEST_P(BothScreens, ListBothKindsOfWeaponsInTheOrderOfTheFile) {
  open(12);

  EXPECT_EQ(world.rows(form, "LBronww"), Lines({"Nóż", "Okuty kij", "Laska", "Magustaffi", "Rózgacz", "Tasak", "Miecz",
                                                "Kordelas Chaosu", "Rysik Ślusarski", "Oczożłop"}));
  EXPECT_EQ(world.rows(form, "Lbronss"), Lines({"Łuk", "Pistolet", "Strzelba", "Karabin", "Działo", "Marker",
                                                "MultiBleed", "Intrusion Rifle", "Reaper Cannon", "UltiGun"}));
}

TEST_P(BothScreens, HaveNoRowsForACountOfZero) {
  openWith({}, {});

  EXPECT_TRUE(world.rows(form, "LBronww").empty());
  EXPECT_TRUE(world.rows(form, "Lbronss").empty());
}

TEST_P(BothScreens, IgnoreWhatFollowsTheLastRangedWeapon) {
  world.write(kWeaponsFile, joined({catalogueLines(), {"a word", "32768", ""}}));
  open(12);

  EXPECT_EQ(world.rows(form, "Lbronss").size(), 10U);
}

TEST_P(BothScreens, ShowADetailedMeleeWeaponAtAClick) {
  open(12);
  pick("LBronww", 4);

  EXPECT_EQ(caption("BWnazwa"), "Rózgacz");
  EXPECT_EQ(caption("BWdmg"), "2k6+ 3");
  EXPECT_EQ(caption("BWcena"), "7");
  EXPECT_EQ(caption("BWopis"), "Można rzucać czary i atakować tą bronią. ");
  EXPECT_FALSE(isRed("BWnazwa"));
  EXPECT_EQ(caption("BSnazwa"), "bron1");
}

TEST_P(BothScreens, ShowADetailedRangedWeaponAtAClick) {
  open(12);
  pick("Lbronss", 8);

  EXPECT_EQ(caption("BSnazwa"), "Reaper Cannon");
  EXPECT_EQ(caption("BSdmg"), " 3k 8");
  EXPECT_EQ(caption("BScena"), "14");
  EXPECT_EQ(caption("BSopis"), "Zadaje wszystkim przeciwnikom. ");
  EXPECT_FALSE(isRed("BSnazwa"));
  EXPECT_EQ(caption("BWnazwa"), "bron1");
}

TEST_P(BothScreens, ColourTheNameOfAnOwnedWeaponRedAndOfTheNextPlainAgain) {
  open(12);

  pick("LBronww", 0);
  EXPECT_TRUE(isRed("BWnazwa"));
  pick("LBronww", 1);
  EXPECT_EQ(world.colour(form, "BWnazwa"), Colour::buttonText);
  pick("Lbronss", 0);
  EXPECT_TRUE(isRed("BSnazwa"));
  pick("Lbronss", 1);
  EXPECT_EQ(world.colour(form, "BSnazwa"), Colour::buttonText);
}

TEST_P(BothScreens, MakeTheRemarkAnewAtEachClick) {
  open(12);

  pick("LBronww", 1);
  pick("LBronww", 0);
  EXPECT_EQ(caption("BWopis"), "");
  pick("Lbronss", 5);
  EXPECT_EQ(caption("BSopis"), "Przenoszenie ognia. ");
  pick("Lbronss", 0);
  EXPECT_EQ(caption("BSopis"), "");
}

TEST_P(BothScreens, RemarkOnFireFirstAndOnAllOpponentsSecond) {
  EXPECT_EQ(remarkOn({"Broń", {1, 8, 3, 2}, 11, "1", 2}), "Przenoszenie ognia. Zadaje wszystkim przeciwnikom. ");
}

TEST_P(BothScreens, RemarkOnNothingForOtherNumbersOfFireAndSpread) {
  EXPECT_EQ(remarkOn({"Broń", {1, 8, 3, 2}, 11, "2", 1}), "");
}

TEST_P(BothScreens, RemarkOnNothingForNegativeFireAndSpread) {
  EXPECT_EQ(remarkOn({"Broń", {1, 8, 3, 2}, 11, "-1", -2}), "");
}

TEST_P(BothScreens, ShowAnEmptyDamageTextForAWeaponWithoutDice) {
  openWith({{"Kij", {1, 6, 0, 3}, 1, "False"}}, {{"Proca", {1, 6, 0, 3}}});
  pick("LBronww", 0);
  pick("Lbronss", 0);

  EXPECT_EQ(caption("BWdmg"), "");
  EXPECT_EQ(caption("BSdmg"), "");
}

TEST_P(BothScreens, ShowNoPlusForAWeaponWithoutAnAddition) {
  openWith({{"Kij", {1, 6, 2, 0}, 1, "False"}}, {{"Proca", {1, 30, 2, -1}}});
  pick("LBronww", 0);
  pick("Lbronss", 0);

  EXPECT_EQ(caption("BWdmg"), " 2k 6");
  EXPECT_EQ(caption("BSdmg"), " 2k 30");
}

TEST_P(BothScreens, DoNotTakeTheFlagTrueInSmallLetters) {
  openWith({{"Mała", kOneDie, 1, "true"},
            {"Duża", kOneDie, 1, "TRUE"},
            {"Liczba", kOneDie, 1, "1"},
            {"Dobra", kOneDie, 1, "True"}},
           {});
  Lines remarks;
  for (int row = 0; row < 4; ++row) {
    pick("LBronww", row);
    remarks.push_back(caption("BWopis"));
  }

  EXPECT_EQ(remarks, Lines({"", "", "", "Można rzucać czary i atakować tą bronią. "}));
}

TEST_P(BothScreens, FindTheFirstOfTwoMeleeWeaponsOfOneNameAndBuyIt) {
  openWith({{"Nóż", kOneDie, 1, "False"}, {"Miecz", kOneDie, 4, "False"}, {"Miecz", {1, 6, 2, 0}, 9, "True"}}, {}, 20);
  pick("LBronww", 2);

  EXPECT_EQ(caption("BWcena"), "4");
  EXPECT_EQ(caption("BWdmg"), " 1k 4");
  EXPECT_EQ(caption("BWopis"), "");
  press("Kupww");
  EXPECT_EQ(points(), "16");
  press("Kupww");
  EXPECT_EQ(points(), "16");
}

TEST_P(BothScreens, FindTheFirstOfTwoRangedWeaponsOfOneNameAndBuyIt) {
  openWith({}, {{"Łuk"}, {"Proca", kOneDie, 4}, {"Proca", {1, 6, 2, 0}, 9}}, 20);
  pick("Lbronss", 2);

  EXPECT_EQ(caption("BScena"), "4");
  press("Kupss");
  EXPECT_EQ(points(), "16");
  pick("Lbronss", 1);
  EXPECT_TRUE(isRed("BSnazwa"));
}

TEST_P(BothScreens, PassOverAClickOnARowWithoutAName) {
  openWith({{"Nóż", kOneDie, 1, "False"}, {"Miecz", kOneDie, 4, "False"}, {"", kOneDie, 9, "False"}}, {{""}});
  pick("LBronww", 1);
  pick("LBronww", 2);
  pick("Lbronss", 0);

  EXPECT_EQ(caption("BWnazwa"), "Miecz");
  EXPECT_EQ(caption("BWcena"), "4");
  EXPECT_EQ(caption("BSnazwa"), "bron1");
}

TEST_P(BothScreens, CutANameAtItsCommaUnlessItIsQuoted) {
  world.write(kWeaponsFile, {"1", "\"Nóż, ostry\"", "noz.wav", "1", "4", "1", "0", "False", "0", "1", "0"});
  open(12);

  EXPECT_EQ(world.rows(form, "LBronww"), Lines({"Nóż, ostry"}));
}

TEST_P(BothScreens, ShiftTheCatalogueByACommaInAName) {
  world.write(kWeaponsFile, {"1", "Nóż, ostry", "7", "4", "1", "0", "False", "0", "1", "0"});
  open(12);
  pick("LBronww", 0);

  EXPECT_EQ(world.rows(form, "LBronww"), Lines({"Nóż"}));
  EXPECT_EQ(caption("BWdmg"), " 1k 4");
}

TEST_P(BothScreens, ListAnEleventhMeleeWeaponButEndOnAClickOnIt) {
  Weapons melee = meleeWeapons();
  melee.push_back({"Jedenasta", {1, 6, 2, 0}, 3, "False"});
  openWith(melee, rangedWeapons());

  EXPECT_EQ(world.rows(form, "LBronww").size(), 11U);
  EXPECT_EQ(errorOf([this] { world.selectRow(form, "LBronww", 10); }), 9);
  EXPECT_EQ(caption("BWnazwa"), "Jedenasta");
  EXPECT_EQ(caption("BWcena"), "3");
}

TEST_P(BothScreens, ListAnEleventhRangedWeaponButEndOnAClickOnIt) {
  Weapons ranged = rangedWeapons();
  ranged.push_back({"Jedenasta", {1, 6, 2, 0}, 3});
  openWith(meleeWeapons(), ranged);

  EXPECT_EQ(world.rows(form, "Lbronss").size(), 11U);
  EXPECT_EQ(errorOf([this] { world.selectRow(form, "Lbronss", 10); }), 9);
  EXPECT_EQ(caption("BSnazwa"), "Jedenasta");
}

TEST_P(BothScreens, EndOnATwelfthWeaponOfEitherKindAndNameTheFile) {
  const Weapons twelve(12, Weapon{"Broń", kOneDie, 1, "False"});
  const std::string wording = "Błąd wykonania 9: Indeks poza zakresem\nPlik: bron.cfg\n";

  const std::string melee = errorTextOf([&] { openWith(twelve, {}); });
  EXPECT_EQ(melee.rfind(wording, 0), 0U) << melee;
  world.runtime.Unload(form);
  const std::string ranged = errorTextOf([&] { openWith({}, twelve); });
  EXPECT_EQ(ranged.rfind(wording, 0), 0U) << ranged;
}

TEST_P(BothScreens, EndWhenTheCatalogueIsMissing) {
  world.files.contents.erase(kWeaponsFile);

  EXPECT_EQ(errorTextOf([this] { open(12); }), "Błąd wykonania 53: Nie znaleziono pliku\nPlik: bron.cfg");
}

TEST_P(BothScreens, EndWhenTheCatalogueStopsAfterAnyOfItsLines) {
  const Lines whole = catalogueLines();
  ASSERT_EQ(whole.size(), 182U);
  for (std::size_t kept = 0; kept < whole.size(); ++kept) {
    world.runtime.Unload(form);
    world.write(kWeaponsFile, firstOf(whole, kept));
    const std::string error = errorTextOf([this] { open(12); });
    EXPECT_NE(error.find("Błąd wykonania 62: Odczyt poza końcem pliku\nPlik: bron.cfg\nWiersz: " +
                         std::to_string(kept + 1) + "\n"),
              std::string::npos)
        << kept << ": " << error;
  }
}

TEST_P(BothScreens, ReadTheCatalogueToItsLastLine) {
  world.write(kWeaponsFile, catalogueLines());
  open(12);
  pick("Lbronss", 9);

  EXPECT_EQ(caption("BScena"), "12");
}

// The lines of one melee and one ranged weapon on which a number stands, the two counts left out.
const std::vector<std::size_t> kNumericLines = {4, 5, 6, 7, 9, 10, 14, 15, 16, 17, 18, 19, 20};

Lines smallCatalogue() { return catalogueLines({{"Nóż", kOneDie, 3, "False"}}, {{"Łuk", kOneDie, 3}}); }

TEST_P(BothScreens, EndOnANumberOfTheCatalogueBeyondAnInteger) {
  for (const std::size_t line : kNumericLines) {
    world.runtime.Unload(form);
    world.write(kWeaponsFile, withLine(smallCatalogue(), line, "32768"));
    EXPECT_EQ(errorOf([this] { open(12); }), 6) << line;
  }
}

TEST_P(BothScreens, TakeAWordOrAnEmptyLineInTheCatalogueAsZero) {
  for (const std::string text : {"slowo", ""}) {
    for (const std::size_t line : kNumericLines) {
      world.runtime.Unload(form);
      world.write(kWeaponsFile, withLine(smallCatalogue(), line, text));
      open(12);
      pick("LBronww", 0);
      pick("Lbronss", 0);
      EXPECT_EQ(caption("BWcena"), line == 10 ? "0" : "3") << line;
      EXPECT_EQ(caption("BScena"), line == 20 ? "0" : "3") << line;
      EXPECT_EQ(caption("BWdmg"), line == 6 ? "" : line == 5 ? " 1k 0" : " 1k 4") << line;
    }
  }
}

TEST_P(BothScreens, TakeANegativeCountAsNoWeapons) {
  world.write(kWeaponsFile, {"-1", "0"});
  open(12);

  EXPECT_TRUE(world.rows(form, "LBronww").empty());
}

TEST_P(BothScreens, BuyAWeaponOnce) {
  open(12);
  pick("LBronww", 2);
  press("Kupww");

  EXPECT_EQ(points(), "9");
  EXPECT_TRUE(isRed("BWnazwa"));
  press("Kupww");
  EXPECT_EQ(points(), "9");
  pick("Lbronss", 3);
  press("Kupss");
  EXPECT_EQ(points(), "2");
  EXPECT_TRUE(isRed("BSnazwa"));
  press("Kupss");
  EXPECT_EQ(points(), "2");
}

TEST_P(BothScreens, SellAWeaponForExactlyThePointsThatAreLeft) {
  open(7);
  pick("LBronww", 4);
  press("Kupww");

  EXPECT_EQ(points(), "0");
  EXPECT_TRUE(isRed("BWnazwa"));
}

TEST_P(BothScreens, RefuseAWeaponThatIsOnePointTooDear) {
  open(6);
  pick("LBronww", 4);
  pick("Lbronss", 3);
  const Lines before = picture();
  press("Kupww");
  press("Kupss");

  EXPECT_EQ(picture(), before);
}

TEST_P(BothScreens, GiveAFreeWeaponForNoPoints) {
  openWith({{"Nóż", kOneDie, 1, "False"}, {"Dar", kOneDie, 0, "False"}}, {}, 0);
  pick("LBronww", 1);
  press("Kupww");

  EXPECT_EQ(points(), "0");
  EXPECT_TRUE(isRed("BWnazwa"));
}

TEST_P(BothScreens, PayForAWeaponOfNegativePrice) {
  openWith({{"Nóż", kOneDie, 1, "False"}, {"Łup", kOneDie, -3, "False"}}, {}, 0);
  pick("LBronww", 1);
  press("Kupww");

  EXPECT_EQ(points(), "3");
}

TEST_P(BothScreens, RefuseTheStartingWeaponsBeforeAnyClickSinceTheyAreOwned) {
  open(12);
  const Lines before = picture();
  press("Kupww");
  press("Kupss");

  EXPECT_EQ(picture(), before);
}

TEST_P(BothScreens, KeepTheChosenWeaponsOfTheTwoListsApart) {
  open(30);
  pick("LBronww", 9);
  pick("Lbronss", 1);
  press("Kupss");

  EXPECT_EQ(points(), "27");
  press("Kupww");
  EXPECT_EQ(points(), "14");
}

TEST_P(BothScreens, SellEachSpellOnOfferForItsPrice) {
  const std::vector<std::pair<int, std::string>> left = {{0, "19"}, {1, "19"}, {2, "17"}, {3, "16"},
                                                         {6, "19"}, {7, "17"}, {9, "18"}};
  for (const auto& [spell, rest] : left) {
    world.runtime.Unload(form);
    open(20);
    press(numbered("Czarn", spell));
    EXPECT_EQ(points(), rest) << spell;
    EXPECT_EQ(colouredControls(world.form(form), Colour::red).back(), numbered("Czarn", spell));
  }
}

TEST_P(BothScreens, SellASpellForExactlyThePointsThatAreLeft) {
  open(4);
  press("Czarn(3)");

  EXPECT_EQ(points(), "0");
  EXPECT_TRUE(isRed("Czarn(3)"));
}

TEST_P(BothScreens, RefuseASpellThatIsOnePointTooDear) {
  open(3);
  const Lines before = picture();
  press("Czarn(3)");

  EXPECT_EQ(picture(), before);
}

TEST_P(BothScreens, AreDeafToClicksOnTheFiveDisabledGoodsWhateverThePoints) {
  for (const int budget : {0, 1, 5, 100, 32767}) {
    world.runtime.Unload(form);
    open(budget);
    const Lines before = picture();
    for (const std::string good : {"Czarn(4)", "Czarn(5)", "Czarn(8)", "Spec(1)", "Spec(3)"}) {
      EXPECT_FALSE(world.click(form, good)) << good;
      EXPECT_FALSE(world.isEnabled(form, good)) << good;
    }
    EXPECT_EQ(picture(), before) << budget;
  }
}

TEST_P(BothScreens, AreDeafToClicksOnPricesDescriptionsAndLadders) {
  open(20);
  const Lines before = picture();
  for (const std::string label : {"czarc(0)", "Label13(0)", "Speccena(0)", "stat1(5)", "wyp(0)", "Label17", "ammo"}) {
    press(label);
  }

  EXPECT_EQ(picture(), before);
}

TEST_P(BothScreens, SellGrenadesByOneAndAmmunitionByTenForAPointEach) {
  open(3);
  press("PLUS(7)");
  EXPECT_EQ(caption("wyp(0)"), "1");
  EXPECT_EQ(points(), "2");
  press("PLUS(8)");
  EXPECT_EQ(caption("wyp(1)"), "10");
  press("PLUS(8)");

  EXPECT_EQ(caption("wyp(1)"), "20");
  EXPECT_EQ(caption("wyp(0)"), "1");
  EXPECT_EQ(points(), "0");
}

TEST_P(BothScreens, MoveTheMarkUpEachLadderStepByStepToItsTopAndNoFurther) {
  const int steps[] = {12, 11, 8, 8, 5, 5};
  open(200);
  for (int i = 0; i < 6; ++i) {
    const std::string& ladder = ladderNames()[static_cast<std::size_t>(i)];
    for (int step = 1; step < steps[i]; ++step) {
      EXPECT_EQ(redSteps(ladder), Lines({caption(numbered(ladder, step - 1))}));
      press(numbered("PLUS", i));
    }
    const std::string left = points();
    press(numbered("PLUS", i));
    EXPECT_EQ(points(), left) << ladder;
    EXPECT_EQ(redSteps(ladder), Lines({caption(numbered(ladder, steps[i] - 1))}));
  }
}

TEST_P(BothScreens, ThrowNoDice) {
  const auto visit = [this] {
    open(30);
    press("PLUS(0)");
    press("Czarn(0)");
    pick("LBronww", 1);
    press("Kupww");
  };

  EXPECT_NO_THROW(visit());
}

TEST_P(BothScreens, StartAfreshWhenTheyAreLoadedAgain) {
  open(20);
  pick("LBronww", 3);
  press("Kupww");
  press("Czarn(0)");
  press("PLUS(0)");
  world.runtime.Unload(form);
  open(20);

  EXPECT_EQ(points(), "20");
  EXPECT_EQ(caption("BWnazwa"), "bron1");
  EXPECT_EQ(caption("BWcena"), "0");
  EXPECT_EQ(redSteps("stat1"), Lines({"12"}));
  EXPECT_FALSE(isRed("Czarn(0)"));
  pick("LBronww", 3);
  EXPECT_FALSE(isRed("BWnazwa"));
}

TEST_P(BothScreens, ShowTheSpellsInTheColoursOfTheirKinds) {
  open(12);
  Form& screen = world.form(form);

  EXPECT_EQ(colouredControls(screen, Colour::black), Lines({"Label13(0)", "Label13(9)", "Label10(0)"}));
  EXPECT_EQ(colouredControls(screen, Colour::purple),
            Lines({"Label13(1)", "Label13(2)", "Label13(3)", "Label13(6)", "Label13(7)", "Label10(1)"}));
  for (const std::string label : {"Label13(4)", "Label13(5)", "Label13(8)", "Label12"}) {
    EXPECT_EQ(world.colour(form, label), Colour::green) << label;
  }
}

TEST(Ladders, GiveFiftyAtTheTwelfthStepOfEnduranceAndTwelveAtTheFirst) {
  EXPECT_EQ(ladderValue(kEndurance, 12), 50);
  EXPECT_EQ(ladderValue(kEndurance, 1), 12);
}

TEST(CatalogueCount, IsAMismatchForCreationWhenItIsAWordAndZeroForTheShop) {
  for (const std::string count : {"slowo", "True"}) {
    Screen creation("CTmhero");
    creation.world.write(kWeaponsFile, joined({{count}, {"0"}}));
    EXPECT_EQ(errorOf([&] { creation.open(12); }), 13);
    Screen shop("CTsklep");
    shop.world.write(kWeaponsFile, joined({{count}, {"0"}}));
    EXPECT_EQ(errorOf([&] { shop.open(12); }), 0);
    EXPECT_TRUE(shop.world.rows("CTsklep", "LBronww").empty());
  }
}

TEST(CatalogueCount, IsZeroForBothScreensWhenItIsEmpty) {
  for (const char* name : {"CTmhero", "CTsklep"}) {
    Screen screen(name);
    screen.world.write(kWeaponsFile, {"", ""});
    EXPECT_EQ(errorOf([&] { screen.open(12); }), 0);
    EXPECT_TRUE(screen.world.rows(name, "Lbronss").empty());
  }
}

TEST(CatalogueCount, OverflowsBeyondAnInteger) {
  for (const char* name : {"CTmhero", "CTsklep"}) {
    Screen screen(name);
    screen.world.write(kWeaponsFile, {"40000", "0"});
    EXPECT_EQ(errorOf([&] { screen.open(12); }), 6);
    screen.world.runtime.Unload(name);
    screen.world.write(kWeaponsFile, {"0", "40000"});
    EXPECT_EQ(errorOf([&] { screen.open(12); }), 6);
  }
}

TEST(Remarks, WarnOfThePriceOfUltiGunAtCreationAndNotInTheShop) {
  Screen creation("CTmhero");
  creation.open(12);
  creation.pick("Lbronss", 9);
  Screen shop("CTsklep");
  shop.open(12);
  shop.pick("Lbronss", 9);

  EXPECT_EQ(creation.caption("BSopis"), "10 % szans na utratę 1 wytrzymałości na stałe");
  EXPECT_EQ(shop.caption("BSopis"), "");
}

TEST(Remarks, PutTheWarningOfUltiGunBehindTheOthers) {
  Screen creation("CTmhero");
  creation.world.write(kWeaponsFile, catalogueLines({}, {{"UltiGun", kOneDie, 1, "1", 2}, {"Ultigun"}}));
  creation.open(12);
  creation.pick("Lbronss", 0);

  EXPECT_EQ(creation.caption("BSopis"),
            "Przenoszenie ognia. Zadaje wszystkim przeciwnikom. 10 % szans na utratę 1 wytrzymałości na stałe");
  creation.pick("Lbronss", 1);
  EXPECT_EQ(creation.caption("BSopis"), "");
}

TEST(Mortar, CostsOnePointAtCreationAndSevenInTheShopAndTheFileDoesNotTellWhere) {
  Screen creation("CTmhero");
  creation.open(12);
  creation.press("Spec(0)");
  EXPECT_EQ(creation.points(), "11");
  creation.press("Save");
  Screen shop("CTsklep");
  shop.open(12);
  shop.press("Spec(0)");
  EXPECT_EQ(shop.points(), "5");
  shop.world.roll(1, 5, {1});
  shop.press("w1");

  EXPECT_EQ(creation.world.line("hero1.boh", 92), "True");
  EXPECT_EQ(shop.world.line("hero1.boh", 92), "True");
}

}  // namespace
}  // namespace brolgan::test
