// Opening the shop: its departments, the hero on the screen, and the sheet beside it.
#include <gtest/gtest.h>

#include "tests/departments/looks.h"
#include "tests/shop/shop.h"

namespace brolgan::test {
namespace {

class ShopLoad : public Shop {
 protected:
  // The open departments, by their frames.
  Lines openDepartments() {
    Lines open;
    for (const std::string frame : {"fbron", "fstat", "fczar"}) {
      if (world.isVisible(form, frame)) open.push_back(frame);
    }
    return open;
  }
  Lines departmentsIn(const std::string& mode) {
    world.runtime.Unload(form);
    world.writeHero("hero1.boh", heroWith(50));
    world.write(kShopFile, {"hero1.boh", mode});
    world.runtime.Show(form);
    return openDepartments();
  }
  void openSheet() {
    world.write(kGameFile, {" 1 ", "hero1.boh"});
    press("Heroshow");
  }
};

const Lines kAllDepartments = {"fbron", "fstat", "fczar"};

TEST_F(ShopLoad, OpensAllDepartmentsInModeOneAndOneInEachOther) {
  EXPECT_EQ(departmentsIn(" 1 "), kAllDepartments);
  EXPECT_EQ(departmentsIn(" 2 "), Lines({"fstat"}));
  EXPECT_EQ(departmentsIn(" 3 "), Lines({"fczar"}));
  EXPECT_EQ(departmentsIn(" 4 "), Lines({"fbron"}));
}

TEST_F(ShopLoad, OpensAllDepartmentsInModeSeven) { EXPECT_EQ(departmentsIn(" 7 "), kAllDepartments); }

TEST_F(ShopLoad, OpensAllDepartmentsInAnyOtherMode) {
  for (const std::string mode : {" 0 ", "-1 ", " 5 ", " 32767 ", "slowo", "", "1.4"}) {
    EXPECT_EQ(departmentsIn(mode), kAllDepartments) << mode;
  }
}

TEST_F(ShopLoad, RoundsTheModeAsAnyNumber) { EXPECT_EQ(departmentsIn("2.5"), Lines({"fstat"})); }

TEST_F(ShopLoad, KeepsSpellsGearAndZonesInModeThreeAndFillsTheClosedListsAllTheSame) {
  departmentsIn(" 3 ");

  EXPECT_EQ(world.rows(form, "LBronww").size(), 10U);
  EXPECT_EQ(world.rows(form, "Lbronss").size(), 10U);
  press("Czarn(0)");
  press("Spec(0)");
  press("PLUS(7)");
  press("PLUS(8)");
  EXPECT_EQ(points(), "40");
  EXPECT_FALSE(world.click(form, "PLUS(0)"));
  EXPECT_FALSE(world.selectRow(form, "LBronww", 1));
  EXPECT_TRUE(isReachable(world.form(form).controls().find("w12")));
}

TEST_F(ShopLoad, EmptiesTheListsOfWeaponsBeforeItFillsThem) {
  departmentsIn(" 1 ");
  world.form(form).Form_Load();

  EXPECT_EQ(world.rows(form, "LBronww").size(), 10U);
  EXPECT_EQ(world.rows(form, "Lbronss").size(), 10U);
}

TEST_F(ShopLoad, RefusesEveryClickInAClosedDepartment) {
  departmentsIn(" 2 ");
  Lines before = picture();
  for (const std::string control : {"Kupww", "Kupss", "Czarn(0)", "Czarn(9)"}) {
    EXPECT_FALSE(world.click(form, control)) << control;
  }
  EXPECT_FALSE(world.selectRow(form, "Lbronss", 1));
  EXPECT_EQ(picture(), before);
  departmentsIn(" 4 ");
  before = picture();
  for (int i = 0; i < 6; ++i) EXPECT_FALSE(world.click(form, numbered("PLUS", i))) << i;
  EXPECT_FALSE(world.click(form, "Czarn(0)"));
  EXPECT_EQ(picture(), before);
}

TEST_F(ShopLoad, KeepsGearSuppliesAndZonesOpenInEveryMode) {
  for (const std::string mode : {" 1 ", " 2 ", " 3 ", " 4 "}) {
    departmentsIn(mode);
    const ControlTable& table = world.form(form).controls();
    for (const std::string control : {"Spec(0)", "PLUS(7)", "PLUS(8)", "w1", "w11", "Heroshow"}) {
      EXPECT_TRUE(isReachable(table.find(control))) << mode << control;
    }
  }
}

TEST_F(ShopLoad, ShowsThePicturesInEveryMode) {
  for (const std::string mode : {" 1 ", " 2 ", " 3 ", " 4 "}) {
    departmentsIn(mode);
    for (int i = 0; i < 5; ++i) EXPECT_TRUE(world.isVisible(form, numbered("pics", i)));
  }
}

TEST_F(ShopLoad, NeverOpensTheLeavingButton) {
  for (const std::string mode : {" 1 ", " 2 ", " 3 ", " 4 ", " 7 "}) {
    departmentsIn(mode);
    EXPECT_FALSE(world.click(form, "Save"));
    EXPECT_FALSE(world.isVisible(form, "Save"));
    EXPECT_FALSE(world.isEnabled(form, "Save"));
  }
}

TEST_F(ShopLoad, HasNoButtonForLives) {
  departmentsIn(" 1 ");

  EXPECT_THROW(static_cast<void>(world.form(form).controls().find("PLUS(6)")), std::out_of_range);
}

TEST_F(ShopLoad, ShowsTheHeroOfTheFile) {
  Bohater hero = heroWith(23);
  hero.Imie = "Wanda Ćma";
  hero.AktWytrzymalosc = 7;
  hero.AktMoc = 1;
  hero.Wcielenia = 9;
  hero.Wyp(0) = 4;
  hero.Wyp(1) = 35;
  hero.Tura = 12;
  openShop(hero);

  EXPECT_EQ(world.text(form, "Imie"), "Wanda Ćma");
  EXPECT_EQ(points(), "23");
  EXPECT_EQ(caption("akt(0)"), "7");
  EXPECT_EQ(caption("akt(1)"), "1");
  EXPECT_EQ(caption("akt(2)"), "9");
  EXPECT_EQ(caption("wyp(0)"), "4");
  EXPECT_EQ(caption("wyp(1)"), "35");
  EXPECT_EQ(caption("Tura"), "12");
}

TEST_F(ShopLoad, ServesTheHeroThatItsFileNames) {
  Bohater other = heroWith(5);
  other.Imie = "Druga";
  world.writeHero("druga.boh", other);
  world.writeHero("hero1.boh", heroWith(1));
  world.write(kShopFile, {"druga.boh", " 1 "});
  world.runtime.Show(form);

  EXPECT_EQ(world.text(form, "Imie"), "Druga");
  EXPECT_EQ(world.text(form, "Plik"), "druga.boh");
}

TEST_F(ShopLoad, ShowsTheCurrentEnduranceBesideTheLaddersMaximumWithoutACorrection) {
  Bohater hero = heroWith(0);
  hero.Poziomy(0) = 3;
  hero.Wartosci(0) = 16;
  hero.AktWytrzymalosc = 5;
  openShop(hero);

  EXPECT_EQ(caption("akt(0)"), "5");
  EXPECT_EQ(redSteps("stat1"), Lines({"18"}));
}

TEST_F(ShopLoad, MarksTheStepOfEachLadderAndNoOther) {
  Bohater hero = heroWith(0);
  const int steps[] = {12, 11, 8, 7, 5, 4, 6};
  for (int i = 0; i < 7; ++i) hero.Poziomy(i) = steps[i];
  openShop(hero);

  Lines marks;
  for (const std::string& ladder : ladderNames()) marks = joined({marks, redSteps(ladder)});
  EXPECT_EQ(marks, Lines({"50", "10", "20", "29", "10", "+2k6", "12"}));
}

TEST_F(ShopLoad, MarksTheOwnedSpellsAndGearDisabledOnesTooAndLeavesTheRestPlain) {
  Bohater hero = heroWith(0);
  hero.MaCzar(2) = true;
  hero.MaCzar(8) = true;
  hero.MaSpec(1) = true;
  hero.MaSpec(2) = true;
  openShop(hero);

  Lines red;
  for (const std::string& name : colouredControls(world.form(form), Colour::red)) {
    if (!name.starts_with("stat")) red.push_back(name);
  }
  EXPECT_EQ(red, Lines({"Czarn(2)", "Czarn(8)", "Spec(1)", "Spec(2)"}));
}

TEST_F(ShopLoad, MarksNoOwnedWeaponBeforeItIsClicked) {
  openShop(heroWith(0));

  EXPECT_FALSE(isRed("BWnazwa"));
  EXPECT_EQ(caption("BWnazwa"), "bron1");
  EXPECT_EQ(caption("BSdmg"), "0");
  EXPECT_EQ(caption("BSopis"), "opis można rzucać czary");
}

TEST_F(ShopLoad, TakesAnyWordButTrueAsNotOwned) {
  for (const std::string word : {"true", "TRUE", "False", "1", "-1", "Prawda", "", "True ", "#TRUE#"}) {
    Lines lines = plainLines();
    for (const std::size_t flag : {20U, 23U, 50U, 80U, 92U}) lines = withLine(lines, flag, word);
    world.runtime.Unload(form);
    openOn(lines);
    pick("LBronww", 0);
    pick("Lbronss", 0);
    for (const std::string label : {"BWnazwa", "BSnazwa", "Czarn(0)", "Spec(0)"}) {
      EXPECT_FALSE(isRed(label)) << word << " " << label;
    }
  }
}

TEST_F(ShopLoad, FillsTheScreenForAHeroWithoutPointsOrInDebt) {
  for (const int debt : {0, -4}) {
    world.runtime.Unload(form);
    openShop(heroWith(debt));
    const Lines before = picture();
    for (const std::string control : {"PLUS(0)", "PLUS(7)", "PLUS(8)", "Czarn(0)", "Spec(0)"}) press(control);
    pick("LBronww", 1);
    press("Kupww");
    EXPECT_EQ(points(), std::to_string(debt));
    EXPECT_FALSE(isRed("Czarn(0)"));
    EXPECT_FALSE(isRed("BWnazwa"));
  }
}

TEST_F(ShopLoad, WritesNothing) {
  openShop(heroWith(3));
  const auto before = world.files.contents;
  press("PLUS(7)");

  EXPECT_EQ(world.files.contents, before);
}

TEST_F(ShopLoad, LosesTheVisitWhenItsWindowIsClosed) {
  openShop(heroWith(9));
  const auto before = world.files.contents;
  press("PLUS(0)");
  closeWindow(world.runtime, form);

  EXPECT_FALSE(world.isOpen(form));
  EXPECT_FALSE(world.isOpen("Prefight"));
  EXPECT_EQ(world.files.contents, before);
}

TEST_F(ShopLoad, DoesNotLetTheNameBeTypedOver) {
  openShop(heroWith(9));

  EXPECT_FALSE(world.type(form, "Imie", "Inny"));
  EXPECT_EQ(world.text(form, "Imie"), "Kosiarz");
}

TEST_F(ShopLoad, OpensOneSheetAfreshEachTimeItIsAskedFor) {
  openShop(heroWith(9));
  openSheet();
  ASSERT_EQ(world.caption("FHero", "klasa"), "Strzelec");
  Bohater changed = heroWith(9);
  changed.Klasa = "Berserker";
  world.writeHero("hero1.boh", changed);
  openSheet();

  EXPECT_EQ(world.caption("FHero", "klasa"), "Berserker");
  EXPECT_EQ(world.runtime.loaded(), Lines({"CTsklep", "FHero"}));
  EXPECT_TRUE(world.isShown("FHero"));
}

TEST_F(ShopLoad, OpensASheetThatShowsTheHeroAsHeStandsOnDisk) {
  openShop(heroWith(20));
  press("PLUS(0)");
  pick("LBronww", 6);
  press("Kupww");
  openSheet();

  EXPECT_EQ(world.caption("FHero", "Pstat(0)"), "12");
  EXPECT_EQ(world.rows("FHero", "Bron"), Lines({"Nóż (+0%)", "Łuk (+0%)"}));
}

TEST_F(ShopLoad, StaysUsableBehindTheSheetAndLeavesItOpen) {
  openShop(heroWith(20));
  openSheet();
  press("PLUS(0)");
  EXPECT_EQ(points(), "18");
  leave();

  EXPECT_FALSE(world.isOpen(form));
  EXPECT_TRUE(world.isShown("FHero"));
}

}  // namespace
}  // namespace brolgan::test
