// Every screen fits a display of 1366 x 768, and nothing that it says is cut off or covered, with the
// longest words and figures that the game can put there.
#include <gtest/gtest.h>

#include <QScreen>

#include "rules/development.h"
#include "rules/monsters.h"
#include "tests/desktop/expected.h"
#include "tests/desktop/fits.h"
#include "tests/desktop/late_hero.h"
#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

constexpr QSize kScreen(1366, 768);

TEST(Fit, IsMeasuredAtTheResolutionThatIsAskedFor) {
  Stage stage;
  stage.start();
  const int factor = qEnvironmentVariableIsSet("QT_SCALE_FACTOR") ? qEnvironmentVariableIntValue("QT_SCALE_FACTOR") : 1;
  EXPECT_EQ(stage.window("Main").devicePixelRatioF(), factor);
  EXPECT_EQ(stage.window("Main").screen()->size(), kScreen);
}

TEST(Fit, Title) {
  Stage stage;
  stage.start();
  expectFits(stage, "Brolgan");
}

TEST(Fit, SetUp) {
  Stage stage;
  setTheTable(stage.world);
  stage.start();
  expectFits(stage, "Main");
  for (int i = 0; i < 4; ++i) {
    stage.click("Main", member("GraczM", i));
    stage.click("CTmhero", "Save");
  }
  stage.write("Main", "ile_punktow", "32767");
  expectFits(stage, "Main");
}

void expectFitsWithEachWeapon(Stage& stage, const std::string& form) {
  for (const char* list : {"LBronww", "Lbronss"}) {
    for (const std::string& row : stage.rows(form, list)) {
      SCOPED_TRACE(row);
      stage.choose(form, list, row);
      expectFits(stage, form);
    }
  }
}

TEST(Fit, Creation) {
  Stage stage;
  setCreation(stage.world, 32767);
  useRealData(stage.world);
  stage.open({"CTmhero"});
  stage.write("CTmhero", "Imie", "Zbigniew z Bogdańca Wielki");
  expectFitsWithEachWeapon(stage, "CTmhero");
}

TEST(Fit, CreationOfAHeroAtTheTop) {
  Stage stage;
  setCreation(stage.world, 2000);
  useRealData(stage.world);
  stage.open({"CTmhero"});
  for (int i = 0; i < kStatistics; ++i) {
    for (int step = 1; step < kStatisticTable[static_cast<std::size_t>(i)].top(); ++step) {
      stage.click("CTmhero", member("PLUS", i));
      ASSERT_TRUE(stage.isRed("CTmhero", "stat" + std::to_string(i + 1) + "(" + std::to_string(step) + ")"));
    }
    expectFits(stage, "CTmhero");
  }
  for (int i = 0; i < 12; ++i) stage.click("CTmhero", "PLUS(8)");
  for (const char* name :
       {"Czarn(0)", "Czarn(1)", "Czarn(2)", "Czarn(3)", "Czarn(6)", "Czarn(7)", "Czarn(9)", "Spec(0)", "Spec(2)"}) {
    stage.click("CTmhero", name);
  }
  expectFits(stage, "CTmhero");
}

TEST(Fit, Shop) {
  for (int mode = 1; mode <= 4; ++mode) {
    SCOPED_TRACE(mode);
    Stage stage;
    setShop(stage.world, lateHero(), mode);
    useRealData(stage.world);
    stage.open({"CTsklep"});
    expectFits(stage, "CTsklep");
    if (mode == 1) expectFitsWithEachWeapon(stage, "CTsklep");
  }
}

TEST(Fit, PreparationAgainstEachMonster) {
  Stage stage;
  Bohater hero = lateHero();
  hero.Przedmioty(1) = 1;
  setShop(stage.world, hero);
  useRealData(stage.world);
  for (int i = 1; i <= 45; ++i) {
    SCOPED_TRACE(i);
    writeZone(stage.world, i, i);
    stage.world.roll(i, i, {i});
    stage.open({"Prefight"});
    stage.world.roll(1, 6, {6, 6});
    stage.choose("Prefight", "Przedmioty", "Tabaka");
    stage.click("Prefight", "Uzyj");
    expectFits(stage, "Prefight");
  }
}

FightSetup setupOf(const std::vector<Potwor>& monsters, int index) {
  FightSetup setup = plainFight();
  setup.potwor = monsters[static_cast<std::size_t>(index)];
  setup.NrPotwora = index;
  setup.BonusPancerza = 12;
  return setup;
}

std::vector<Potwor> realMonsters(World& world) {
  std::vector<Potwor> monsters;
  ItemReader in = world.runtime.OpenForInput("monsters.cfg");
  const int count = in.integer("").value();
  for (int i = 0; i < count; ++i) monsters.push_back(readPotwor(in));
  return monsters;
}

// Puts both reports on the screen as they read at their longest against that group.
void fillReports(Stage& stage, int group, int blow) {
  const ControlTable& table = stage.runtime.find("Fight")->controls();
  const auto caption = [&](const char* name) -> std::string& {
    return std::get<Label*>(table.find(name).control)->Caption;
  };
  for (const char* frame : {"FZad", "FDamage"}) std::get<Frame*>(table.find(frame).control)->Visible = true;
  std::get<Label*>(table.find("Uwaga").control)->Visible = true;
  caption("IleZad").clear();
  caption("IleDMG").clear();
  for (int i = 0; i < group; ++i) {
    caption("IleZad") += " 38 ";
    caption("IleDMG") += std::to_string(blow) + " ";
  }
  caption("OpisZad") = "Zabity - przenoszenie";
  caption("OpisDMG") = "Śmierć!";
  caption("Uwaga") = "Straciłeś 1 od Maxa Wytrzymałości";
  stage.choose("Fight", "Czar", "Leczenie");
  for (const char* name : {"IleZad", "OpisZad", "IleDMG", "OpisDMG", "Uwaga"}) {
    ASSERT_TRUE(stage.isVisible("Fight", name)) << name;
  }
}

TEST(Fit, FightAgainstEachMonster) {
  Stage stage;
  setShop(stage.world, lateHero());
  useRealData(stage.world);
  const auto monsters = realMonsters(stage.world);
  ASSERT_EQ(monsters.size(), 45U);
  for (int i = 0; i < 45; ++i) {
    const Potwor& monster = monsters[static_cast<std::size_t>(i)];
    SCOPED_TRACE(monster.Nazwa);
    stage.world.writeFightFile(setupOf(monsters, i));
    stage.open({"Fight"});
    expectFits(stage, "Fight");
    fillReports(stage, monster.Ilosc.value(), (monster.Atak.kmax * monster.Atak.kile + monster.Atak.dodatek).value());
    expectFits(stage, "Fight");
  }
}

TEST(Fit, FightWithEachWeapon) {
  Stage stage;
  setShop(stage.world, lateHero());
  useRealData(stage.world);
  stage.world.writeFightFile(setupOf(realMonsters(stage.world), 44));
  stage.open({"Fight"});
  for (const std::string& weapon : stage.rows("Fight", "Bron")) {
    SCOPED_TRACE(weapon);
    stage.choose("Fight", "Bron", weapon);
    expectFits(stage, "Fight");
  }
}

TEST(Fit, FightThatIsWonForGood) {
  Stage stage;
  Bohater hero = lateHero();
  FightSetup setup = plainFight();
  setup.potwor.Nazwa = "Król Zagłady";
  setFight(stage.world, hero, setup);
  stage.open({"Fight"});
  stage.world.roll(1, 30, {30});
  stage.choose("Fight", "Przedmiot", "Granat");
  stage.click("Fight", "Uzyj");
  EXPECT_EQ(stage.text("Fight", "OpisZad"), "Wygrałeś - tura  288");
  expectFits(stage, "Fight");
}

TEST(Fit, Sheet) {
  Stage stage;
  setShop(stage.world, lateHero());
  useRealData(stage.world);
  stage.open({"FHero"});
  expectFits(stage, "FHero");
}

}  // namespace
}  // namespace brolgan::test
