// Every button, clickable label, option, list row and combo box of every screen, used once with the
// mouse, and what comes of it on the screen.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QRadioButton>

#include "tests/desktop/expected.h"
#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

using Names = std::vector<std::string>;

// A stage with one screen open, and short names for what a test does there.
class Screenplay {
 public:
  explicit Screenplay(std::string name) : form(std::move(name)) {}

  void click(const std::string& control) { stage.click(form, control); }
  void choose(const std::string& control, const std::string& row) { stage.choose(form, control, row); }
  [[nodiscard]] std::string text(const std::string& control) const { return stage.text(form, control); }
  [[nodiscard]] int number(const std::string& control) const { return std::stoi(text(control)); }
  [[nodiscard]] bool isRed(const std::string& control) const { return stage.isRed(form, control); }

  Stage stage;
  std::string form;
};

struct Creation : Screenplay {
  explicit Creation(int points = 50) : Screenplay("CTmhero") {
    setCreation(stage.world, points);
    stage.open({form});
  }
};

struct Shop : Screenplay {
  explicit Shop(Bohater hero = plainHero(), int points = 50) : Screenplay("CTsklep") {
    hero.Ile_jeszcze = points;
    setShop(stage.world, hero);
    stage.open({form});
  }
};

struct Preparing : Screenplay {
  Preparing() : Screenplay("Prefight") {
    setPreparation(stage.world, richHero());
    stage.open({form});
  }
};

struct Fighting : Screenplay {
  explicit Fighting(const FightSetup& setup = plainFight()) : Screenplay("Fight") {
    setFight(stage.world, richHero(), setup);
    stage.open({form});
  }
};

TEST(Buttons, EachCreateButtonOpensCreationForItsPlayer) {
  Stage stage;
  setTheTable(stage.world);
  stage.start();
  for (int i = 0; i < 4; ++i) {
    stage.click("Main", member("GraczM", i));
    EXPECT_TRUE(stage.isShown("CTmhero"));
    EXPECT_FALSE(stage.isShown("Main"));
    EXPECT_EQ(stage.world.line("makehro.cfg", 1), "hero" + std::to_string(i + 1) + ".boh");
    stage.click("CTmhero", "Save");
    EXPECT_TRUE(stage.isShown("Main"));
    EXPECT_FALSE(stage.isShown("CTmhero"));
    EXPECT_EQ(stage.text("Main", member("Czygra", i)), "+");
  }
}

TEST(Buttons, EachFileNameOpensCreationAtAClick) {
  Stage stage;
  setTheTable(stage.world);
  stage.start();
  for (int i = 0; i < 4; ++i) {
    stage.click("Main", member("gracz", i));
    EXPECT_TRUE(stage.isShown("CTmhero"));
    EXPECT_EQ(stage.text("CTmhero", "Plik"), "hero" + std::to_string(i + 1) + ".boh");
    stage.click("CTmhero", "Save");
    EXPECT_EQ(stage.text("Main", member("Czygra", i)), "+");
  }
}

TEST(Buttons, APlayerOutOfOrderIsRefused) {
  Stage stage;
  setTheTable(stage.world);
  stage.start();
  for (const char* name : {"gracz(2)", "GraczM(1)"}) {
    stage.click("Main", name);
    EXPECT_TRUE(stage.isShown("Main")) << name;
    EXPECT_FALSE(stage.world.exists("makehro.cfg")) << name;
  }
}

TEST(Buttons, StartOpensTheShopOnceAPlayerTakesPart) {
  Stage stage;
  setTheTable(stage.world);
  stage.world.roll(1, 4, {1});
  stage.start();
  stage.click("Main", "Start");
  EXPECT_TRUE(stage.isShown("Main"));
  EXPECT_FALSE(stage.world.exists("gra.cfg"));
  stage.click("Main", "GraczM(0)");
  stage.click("CTmhero", "Save");
  stage.click("Main", "Start");
  EXPECT_TRUE(stage.isShown("CTsklep"));
  EXPECT_FALSE(stage.isShown("Main"));
  EXPECT_EQ(stage.world.lines("gra.cfg"), (Names{" 1 ", "hero1.boh"}));
}

TEST(Buttons, CreationTakesAndReturnsEachStep) {
  Creation creation;
  for (int i = 0; i < 7; ++i) {
    const std::string ladder = "stat" + std::to_string(i + 1);
    creation.click(member("PLUS", i));
    EXPECT_TRUE(creation.isRed(ladder + "(1)")) << i;
    EXPECT_FALSE(creation.isRed(ladder + "(0)")) << i;
    EXPECT_EQ(creation.number("Ile_jeszcze"), i == 6 ? 48 : 49) << i;
    creation.click(member("MINUS", i));
    EXPECT_TRUE(creation.isRed(ladder + "(0)")) << i;
    EXPECT_FALSE(creation.isRed(ladder + "(1)")) << i;
    EXPECT_EQ(creation.number("Ile_jeszcze"), 50) << i;
  }
}

TEST(Buttons, CreationTakesAndReturnsSupplies) {
  Creation creation;
  for (int i = 0; i < 2; ++i) {
    creation.click(member("PLUS", 7 + i));
    EXPECT_EQ(creation.text(member("wyp", i)), i == 0 ? "1" : "10");
    EXPECT_EQ(creation.number("Ile_jeszcze"), 49);
    creation.click(member("MINUS", 7 + i));
    EXPECT_EQ(creation.text(member("wyp", i)), "0");
    EXPECT_EQ(creation.number("Ile_jeszcze"), 50);
  }
}

TEST(Buttons, CreationChoosesOneOfTenClasses) {
  Creation creation;
  for (int i = 9; i >= 0; --i) {
    creation.click(member("Klasa", i));
    for (int j = 0; j < 10; ++j) {
      EXPECT_EQ(creation.stage.get<QRadioButton>("CTmhero", member("Klasa", j)).isChecked(), i == j) << i << " " << j;
    }
    EXPECT_EQ(creation.number("Ile_jeszcze"), i == 5 ? 54 : 50) << i;
  }
}

void expectWeapons(Screenplay& play, const std::string& list, const std::string& prefix, const Weapons& weapons) {
  for (const Weapon& weapon : weapons) {
    play.choose(list, weapon.nazwa);
    EXPECT_EQ(play.text(list), weapon.nazwa);
    EXPECT_EQ(play.text(prefix + "nazwa"), weapon.nazwa);
    EXPECT_EQ(play.text(prefix + "cena"), std::to_string(weapon.cena));
    EXPECT_EQ(play.text(prefix + "dmg"), OpisKosci(weapon.dice)) << weapon.nazwa;
    EXPECT_EQ(play.isRed(prefix + "nazwa"), weapon.nazwa == weapons.front().nazwa) << weapon.nazwa;
  }
}

TEST(Buttons, CreationShowsEachWeaponOfItsLists) {
  Creation creation;
  expectWeapons(creation, "LBronww", "BW", meleeWeapons());
  expectWeapons(creation, "Lbronss", "BS", rangedWeapons());
  EXPECT_EQ(creation.text("BSopis"), "10 % szans na utratę 1 wytrzymałości na stałe");
}

TEST(Buttons, CreationBuysAndSellsWeapons) {
  Creation creation;
  creation.choose("LBronww", "Miecz");
  creation.click("Kupww");
  EXPECT_TRUE(creation.isRed("BWnazwa"));
  EXPECT_EQ(creation.number("Ile_jeszcze"), 46);
  creation.click("Sprzedajww");
  EXPECT_FALSE(creation.isRed("BWnazwa"));
  EXPECT_EQ(creation.number("Ile_jeszcze"), 50);
  creation.choose("Lbronss", "Strzelba");
  creation.click("Kupss");
  EXPECT_TRUE(creation.isRed("BSnazwa"));
  EXPECT_EQ(creation.number("Ile_jeszcze"), 45);
  creation.choose("LBronww", "Laska");
  creation.click("Sprzedajss");
  EXPECT_FALSE(creation.isRed("BSnazwa"));
  EXPECT_EQ(creation.number("Ile_jeszcze"), 50);
}

TEST(Buttons, CreationTogglesSpellsAndGearForSale) {
  Creation creation;
  for (const std::string name :
       {"Czarn(0)", "Czarn(1)", "Czarn(2)", "Czarn(3)", "Czarn(6)", "Czarn(7)", "Czarn(9)", "Spec(0)", "Spec(2)"}) {
    creation.click(name);
    EXPECT_TRUE(creation.isRed(name)) << name;
    EXPECT_LT(creation.number("Ile_jeszcze"), 50) << name;
    creation.click(name);
    EXPECT_FALSE(creation.isRed(name)) << name;
    EXPECT_FALSE(creation.stage.at("CTmhero", name).font().bold()) << name;
    EXPECT_EQ(creation.number("Ile_jeszcze"), 50) << name;
  }
}

TEST(Buttons, ShopRaisesEachStatisticAndSellsSupplies) {
  Shop shop;
  for (int i = 0; i < 6; ++i) {
    const std::string ladder = "stat" + std::to_string(i + 1);
    shop.click(member("PLUS", i));
    EXPECT_TRUE(shop.isRed(ladder + "(1)")) << i;
    EXPECT_FALSE(shop.isRed(ladder + "(0)")) << i;
    EXPECT_EQ(shop.number("Ile_jeszcze"), 48 - 2 * i);
  }
  shop.click("PLUS(7)");
  shop.click("PLUS(8)");
  EXPECT_EQ(shop.text("wyp(0)"), "1");
  EXPECT_EQ(shop.text("wyp(1)"), "10");
  EXPECT_EQ(shop.number("Ile_jeszcze"), 36);
}

TEST(Buttons, ShopShowsEachWeaponOfItsLists) {
  Shop shop;
  expectWeapons(shop, "LBronww", "BW", meleeWeapons());
  expectWeapons(shop, "Lbronss", "BS", rangedWeapons());
}

TEST(Buttons, ShopSellsWeaponsSpellsAndGear) {
  Shop shop;
  shop.choose("LBronww", "Miecz");
  shop.click("Kupww");
  EXPECT_TRUE(shop.isRed("BWnazwa"));
  shop.choose("Lbronss", "Strzelba");
  shop.click("Kupss");
  EXPECT_TRUE(shop.isRed("BSnazwa"));
  EXPECT_EQ(shop.number("Ile_jeszcze"), 41);
  int left = 41;
  for (const auto& [name, price] : std::vector<std::pair<std::string, int>>{{"Czarn(0)", 1},
                                                                            {"Czarn(1)", 1},
                                                                            {"Czarn(2)", 3},
                                                                            {"Czarn(3)", 4},
                                                                            {"Czarn(6)", 1},
                                                                            {"Czarn(7)", 3},
                                                                            {"Czarn(9)", 2},
                                                                            {"Spec(0)", 7},
                                                                            {"Spec(2)", 9}}) {
    shop.click(name);
    shop.click(name);
    left -= price;
    EXPECT_TRUE(shop.isRed(name)) << name;
    EXPECT_EQ(shop.number("Ile_jeszcze"), left) << name;
  }
}

TEST(Buttons, EachZoneLeadsToThePreparation) {
  const std::vector<std::pair<int, int>> zones = {{1, 5},   {4, 9},   {8, 13},  {12, 17}, {16, 21}, {20, 25},
                                                  {24, 29}, {27, 33}, {32, 37}, {36, 41}, {1, 45},  {42, 45}};
  for (std::size_t i = 0; i < zones.size(); ++i) {
    const auto& [lowest, highest] = zones[i];
    Shop shop;
    shop.stage.world.files.contents["monsters.cfg"] = assetBytes("monsters.cfg");
    shop.stage.world.roll(lowest, highest, {highest});
    shop.click("w" + std::to_string(i + 1));
    EXPECT_TRUE(shop.stage.isShown("Prefight")) << i;
    EXPECT_FALSE(shop.stage.isShown("CTsklep")) << i;
    EXPECT_EQ(shop.stage.world.lines("pref.cfg"), (Names{"hero1.boh", " " + std::to_string(lowest) + " ",
                                                         " " + std::to_string(highest) + " ", "monsters.cfg"}));
  }
}

TEST(Buttons, SheetOpensFromThreeScreensAndCloses) {
  Shop shop;
  Preparing preparing;
  Fighting fighting;
  for (Screenplay* play : std::vector<Screenplay*>{&shop, &preparing, &fighting}) {
    play->click("Heroshow");
    EXPECT_TRUE(play->stage.isShown("FHero")) << play->form;
    EXPECT_TRUE(play->stage.isShown(play->form)) << play->form;
    play->stage.click("FHero", "HeroClose");
    EXPECT_FALSE(play->stage.isShown("FHero")) << play->form;
    EXPECT_TRUE(play->stage.isShown(play->form)) << play->form;
  }
}

TEST(Buttons, PreparationUsesEachItem) {
  Preparing play;
  World& world = play.stage.world;
  const auto use = [&](const std::string& item, const std::vector<int>& dice) {
    world.roll(1, 6, dice);
    play.choose("Przedmioty", item);
    play.click("Uzyj");
  };
  use("Zatruta Ryba", {3, 4});
  EXPECT_EQ(play.text("Monstat(2)"), "13");
  use("Rabarbar de'Cur", {});
  EXPECT_EQ(play.text("cur(0)"), "12");
  use("Tabaka", {2, 3});
  EXPECT_TRUE(play.stage.isVisible("Prefight", "tabak"));
  EXPECT_EQ(play.text("tabak"), "5");
  use("Krzepiący Baton", {});
  EXPECT_EQ(play.text("Inic"), "10006");
  use("Lampa Sea Archiego", {});
  EXPECT_EQ(play.text("Inic"), "10006");
  use("Nieśmiertelność", {4});
  EXPECT_EQ(play.text("historia"),
            "Podłożyłem zatrutą rybę( 7) Spożyłem Rabarbar de'CurSpożyłem Tabakę( 5) Spożyłem Krzepiący "
            "BatonWykorzystałem Lampę Sea ArchiegoStałem się nieśmiertelny (rund: 4)");
}

TEST(Buttons, PreparationCastsEachSpell) {
  Preparing play;
  World& world = play.stage.world;
  const auto cast = [&](const std::string& spell, const std::string& cost, const std::vector<int>& dice) {
    world.roll(1, 6, dice);
    play.choose("Czary", spell);
    EXPECT_EQ(play.text("Koszt"), cost);
    play.click("Rzuc");
  };
  cast("Leczenie", "1", {1});
  EXPECT_EQ(play.text("cur(0)"), "10");
  cast("Autostart", "3", {5});
  EXPECT_EQ(play.text("Inic"), "11");
  cast("Czar Leczniczy", "2", {1, 1});
  EXPECT_EQ(play.text("cur(0)"), "12");
  EXPECT_EQ(play.text("cur(1)"), "14");
}

TEST(Buttons, PreparationEndsInTheFight) {
  Preparing play;
  play.click("Zakoncz");
  EXPECT_TRUE(play.stage.isShown("Fight"));
  EXPECT_FALSE(play.stage.isShown("Prefight"));
  EXPECT_EQ(play.stage.text("Fight", "LIle"), "3");
}

TEST(Buttons, FightShowsWhatEachWeaponDoes) {
  Fighting play;
  const std::vector<std::pair<std::string, std::string>> texts = {{"Nóż", " 1k 4+ 1k 4+ 0+ 0%"},
                                                                  {"Tasak", " 1k 4+1k8+ 1+ 0+ 0%"},
                                                                  {"Łuk", " 1k 6+ 0+ 0%"},
                                                                  {"Pistolet", "1k8+ 2+ 0+ 0%"}};
  for (const auto& [weapon, text] : texts) {
    play.choose("Bron", weapon);
    EXPECT_EQ(play.text("Bron"), weapon);
    EXPECT_EQ(play.text("Pstat(3)"), text);
  }
}

TEST(Buttons, FightShowsTheCostOfEachSpell) {
  Fighting play;
  const std::vector<std::pair<std::string, std::string>> costs = {
      {"Leczenie", "1"},    {"Damage!", "2"},    {"BullShots", "2"},     {"BOOM!", "4"},
      {"Klasa III A", "2"}, {"Kaczy Fart", "4"}, {"Czar Leczniczy", "2"}};
  for (const auto& [spell, cost] : costs) {
    play.choose("Czar", spell);
    EXPECT_EQ(play.text("mana"), cost);
    EXPECT_EQ(play.stage.isEnabled("Fight", "mana"), spell == "BullShots") << spell;
  }
}

TEST(Buttons, ChoosingTheChosenSpellAgainPutsItsCostBack) {
  Fighting play;
  play.choose("Czar", "BullShots");
  play.stage.write("Fight", "mana", "7");
  EXPECT_EQ(play.text("mana"), "7");
  play.choose("Czar", "BullShots");
  EXPECT_EQ(play.text("mana"), "2");
}

TEST(Buttons, AttackReportsAndDisablesWhatIsSpent) {
  Fighting play;
  play.choose("Bron", "Nóż");
  play.stage.world.roll(1, 4, {3, 4});
  play.stage.world.roll(1, 120, {50});
  play.click("Atak");
  EXPECT_TRUE(play.stage.isVisible("Fight", "FZad"));
  EXPECT_EQ(play.text("IleZad"), " 7 ");
  EXPECT_EQ(play.text("Mstat(0)"), "13");
  EXPECT_FALSE(play.stage.isEnabled("Fight", "Atak"));
  EXPECT_FALSE(play.stage.isEnabled("Fight", "Rzuc"));
  play.click("CloseZad");
  EXPECT_FALSE(play.stage.isVisible("Fight", "FZad"));
  EXPECT_TRUE(play.stage.isVisible("Fight", "Atak"));
}

TEST(Buttons, NextRoundLetsTheMonstersStrikeAndEnablesAgain) {
  FightSetup setup = plainFight();
  setup.potwor.Wytrzymalosc = 60;
  Fighting play(setup);
  play.stage.world.roll(1, 30, {20});
  play.stage.world.roll(1, 4, {4});
  play.choose("Przedmiot", "Granat");
  play.click("Uzyj");
  EXPECT_FALSE(play.stage.isEnabled("Fight", "Uzyj"));
  play.click("NastTura");
  EXPECT_EQ(play.text("IleDMG"), "4 ");
  EXPECT_EQ(play.text("Pstat(0)"), "5");
  EXPECT_TRUE(play.stage.isVisible("Fight", "FDamage"));
  EXPECT_TRUE(play.stage.isEnabled("Fight", "Uzyj"));
  play.click("CloseDMG");
  EXPECT_FALSE(play.stage.isVisible("Fight", "FDamage"));
}

TEST(Buttons, CastingASpellDoesWhatItSays) {
  Fighting play;
  play.stage.world.roll(1, 30, {10, 5});
  play.choose("Czar", "BOOM!");
  play.click("Rzuc");
  EXPECT_EQ(play.text("IleZad"), " 15");
  EXPECT_EQ(play.text("Pstat(2)"), "16");
  EXPECT_EQ(play.text("Mstat(0)"), "5");
  EXPECT_FALSE(play.stage.isEnabled("Fight", "Rzuc"));
  EXPECT_TRUE(play.stage.isEnabled("Fight", "Atak"));
}

TEST(Buttons, WarningOfTheUltiGunIsSeen) {
  Bohater hero = richHero();
  hero.MaBronss(9) = true;
  Screenplay play("Fight");
  setFight(play.stage.world, hero);
  play.stage.open({"Fight"});
  EXPECT_FALSE(play.stage.isVisible("Fight", "Uwaga"));
  play.choose("Bron", "UltiGun");
  play.stage.world.roll(1, 140, {50});
  play.stage.world.roll(1, 8, {1, 1, 1, 1, 1});
  play.stage.world.roll(1, 10, {1});
  play.click("Atak");
  EXPECT_TRUE(play.stage.isVisible("Fight", "Uwaga"));
  EXPECT_EQ(play.text("Uwaga"), "Straciłeś 1 od Maxa Wytrzymałości");
}

TEST(Buttons, AFallenHeroLeavesByTheCloseButtonOfHisReport) {
  FightSetup setup = plainFight();
  setup.potwor.Atak = {1, 4, 1, 50};
  Screenplay play("Fight");
  Bohater hero = richHero();
  hero.Wcielenia = 2;
  setFight(play.stage.world, hero, setup);
  play.stage.world.roll(1, 4, {1, 2});
  play.stage.open({"Fight"});
  play.click("NastTura");
  EXPECT_EQ(play.text("OpisDMG"), "Śmierć!");
  for (const char* name : {"Atak", "Rzuc", "Uzyj"}) EXPECT_FALSE(play.stage.isEnabled("Fight", name)) << name;
  play.click("CloseDMG");
  EXPECT_TRUE(play.stage.isShown("CTsklep"));
  EXPECT_FALSE(play.stage.isShown("Fight"));
  EXPECT_EQ(play.stage.text("CTsklep", "akt(2)"), "1");
}

}  // namespace
}  // namespace brolgan::test
