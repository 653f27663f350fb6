// The tables of development: every caption, tip and price.
#include "rules/development.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/rules/lines.h"
#include "tests/support/world.h"

namespace brolgan::test {
namespace {

struct StatisticCase {
  const char* name;
  const char* tip;
  std::vector<std::string> ladder;
};

struct ClassCase {
  const char* caption;
  const char* tip;
  int meleePercent;
  int rangedPercent;
  int plus;
};

struct SpellCase {
  const char* name;
  int price;
  const char* description;
  SpellGroup group;
  Colour colour;
  bool forSale;
};

struct GearCase {
  const char* name;
  int creationPrice;
  int shopPrice;
  const char* creationTip;
  const char* shopTip;
  bool forSale;
};

struct SupplyCase {
  const char* name;
  const char* tip;
  int perPurchase;
};

const std::vector<StatisticCase> kStatisticCases = {
    {"Wytrzymałość",
     "Wytrzymałość określa jak duże obrażenia zniesiesz, zanim zginiesz",
     {"12", "15", "18", "21", "24", "27", "30", "34", "38", "42", "46", "50"}},
    {"Pancerz",
     "Pancerz określa wielkość obrażeń, które absorbuje Twoja skóra i ubiór",
     {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}},
    {"Moc",
     "Moc jest potrzebna do rzucania czarów. W czasie gry używa się Punktów Magii, aby rzucać zaklęcia. Są one równe "
     "Mocy i regenerują się do jej poziomu ( co turę odnawia się ilość równa regeneracji)",
     {"2", "4", "6", "8", "11", "14", "17", "20"}},
    {"Szybkość", "Szybkość określa inicjatywę w walce", {"6", "9", "12", "16", "20", "24", "29", "34"}},
    {"Regeneracja",
     "Regeneracja określa ilość wytrzymałości i punktów magii, które regenerują się co turę",
     {"1", "3", "5", "7", "10"}},
    {"Modyfikator Obrażeń",
     "Modyfikator Obrażeń(MO) określa siłę postaci - wpływa bezpośrednio na obrażenia zadawane w walce wręcz.",
     {"+k4", "+k6", "+k6+2", "+2k6", "+2k6+3"}},
    {"Wcielenia",
     "Ilość wcieleń - jeśli zginiesz więcej razy niż wynosi ich ilość - przegrywasz grę! Koszt : 2",
     {"1", "2", "3", "5", "8", "12"}},
};
const std::vector<ClassCase> kClassCases = {
    {"Wojownik", "Wojownik zaczyna posiadając 45% bonus do broni o zasięgu bezpośrednim", 45, 0, 0},
    {"Strzelec", "Strzelec zaczyna posiadając 55% bonus do broni strzeleckich", 0, 55, 0},
    {"Czarownik",
     "Czarownik regeneruje ilosć many (1-3) zależną od jego współczynnika regeneracji w każdej rundzie walki", 0, 0, 0},
    {"Wiedźmin", "Wiedźmin zadaje w walce wręcz dodatkowe (1-10) zależne od jego szybkości", 0, 0, 0},
    {"Awanturnik", "Awanturnik zdobywa o 45% więcej punktów za pokonane stwory", 0, 0, 0},
    {"Satrapa", "Satrapa rozpoczyna grę posiadając dodatkowe 4 punkty rozwoju", 0, 0, 0},
    {"Berserker",
     "Berserker nie może rzucać czarów podczas walki. Brońmi do walki wręcz atakuje dwukrotnie podczas walki", 0, 0, 0},
    {"Ryzykant",
     "Uzyskujesz 3 razy więcej punktów rozwoju za zabite potory, jednak wszystkie niewydane przepadają po wyjściu ze "
     "sklepu",
     0, 0, 0},
    {"Zabobonny mnich zakonny", "Mnich odzyskuje maxa zycia i many po zakończeniu walki", 0, 0, 0},
    {"Złota rączka", "Złota rączka uzyskuje bonus +5 do obrażeń zadawanych każdym typem broni", 0, 0, 5},
};
const std::vector<SpellCase> kSpellCases = {
    {"Leczenie", 1, "za 1 PM odzyskujesz k6 wytrzymałości", SpellGroup::always, Colour::black, true},
    {"Damage !", 1, "za 2 PM zadaje 3k6 jednemu wrogowi", SpellGroup::fight, Colour::purple, true},
    {"BullShots", 3, "za 2+** PM zadaje 3k6 + ** wszystkim", SpellGroup::fight, Colour::purple, true},
    {"BOOM !", 4, "za 4 PM zadaje 2k30 jednemu wrogowi", SpellGroup::fight, Colour::purple, true},
    {"AntyLeczenie", 2, "za 3 PM powstrzymuje  leczenie na k3 tury", SpellGroup::board, Colour::green, false},
    {"Przyzwanie potwora", 3, "za 1-12 PM przyzywa potwora na wybrane przec Ciebie, nie zajęte miejsce",
     SpellGroup::board, Colour::green, false},
    {"Klasa III A", 1, "za 2 PM  zwiększa pancerz o k8 na 2k6 r ", SpellGroup::fight, Colour::purple, true},
    {"Kaczy Fart", 3, "za 4 PM najbliższy atak nic Ci nie robi", SpellGroup::fight, Colour::purple, true},
    {"Teleportacja", 3, "za 3 PM przenosisz się do 3 pól dalej", SpellGroup::board, Colour::green, false},
    {"Autostart", 2, "za 3 PM zwiększa inicjatywę o +k6", SpellGroup::always, Colour::black, true},
};
const std::vector<GearCase> kGearCases = {
    {"Moździerz", 1, 7, "Cena 1. Zwiększa obrażenia zadawane przez granat o 8",
     "Cena 7. Zwiększa obrażenia zadawane przez granat o 8", true},
    {"Pas Knura", 1, 1,
     "Cena 1. Jeśli wygrasz inicjatywę z graczem masz 50% szans na to, że zaskoczysz go - nie będziesz musiał "
     "podchodzić do niego, aby go zaatakować bronią do walki wręcz",
     "Cena 1. Jeśli wygrasz inicjatywę z graczem masz 50% szans na to, że zaskoczysz go - nie będziesz musiał "
     "podchodzić do niego, aby go zaatakować bronią do walki wręcz",
     false},
    {"Zasysacz", 1, 9, "Cena 1. Każde trafienie z broni palnej zmniejsza pancerz przeciwnika o 1k3",
     "Cena 9. Każde trafienie z broni palnej zmniejsza pancerz przeciwnika o k3", true},
    {"Szperacz", 2, 2, "Cena 2. Sam wybierasz sobie nagrod( w zakresie +1 do +4 od numeru potwora)",
     "Cena 2. Sam wybierasz sobie nagrod( w zakresie +1 do +4 od numeru potwora)", false},
};
const std::vector<SupplyCase> kSupplyCases = {
    {"Granat", "Cena 1. Zadaje k30 wszystkim przeciwnikom ( jesli rzucisz 1 - zadaje tobie). Jednorazowego uzytku", 1},
    {"10 x ammo +k6", "Cena 1. 10 sztuk wyśmienitej amunicji (+k6 do każdego strzału)", 10},
};

constexpr std::array<const char*, 2> kScreens = {"CTmhero", "CTsklep"};

std::string member(const std::string& name, std::size_t index) { return name + "(" + std::to_string(index) + ")"; }

// Both screens that offer the tables, open for a hero with nothing bought and 100 points.
class DevelopmentScreens : public testing::Test {
 protected:
  void SetUp() override {
    Bohater hero = plainHero();
    hero.Ile_jeszcze = 100;
    world.writeHero("hero1.boh", hero);
    world.write("makehro.cfg", {"nowy.boh", "100"});
    world.write("sklep.cfg", {"hero1.boh", " 1 "});
    for (const char* const screen : kScreens) world.runtime.Show(screen);
  }

  [[nodiscard]] std::string caption(const char* screen, const std::string& name, std::size_t index) const {
    return world.caption(screen, member(name, index));
  }
  [[nodiscard]] std::string tip(const char* screen, const std::string& label) const {
    return world.get<Label>(screen, label).ToolTipText;
  }
  [[nodiscard]] std::string points(const char* screen) const { return world.caption(screen, "Ile_jeszcze"); }

  World world;
};

// Statistics.

TEST(StatisticTable, HasSevenStatisticsWithTheirNamesAndLadders) {
  ASSERT_EQ(kStatisticTable.size(), kStatisticCases.size());
  for (std::size_t i = 0; i < kStatisticCases.size(); ++i) {
    const auto& [name, tipText, ladder] = kStatisticCases[i];
    EXPECT_STREQ(kStatisticTable[i].name, name);
    EXPECT_EQ(std::vector<std::string>(kStatisticTable[i].ladder.begin(), kStatisticTable[i].ladder.end()), ladder);
  }
}

TEST(StatisticTable, LaddersHaveTheirTopSteps) {
  const std::vector<int> tops = {12, 11, 8, 8, 5, 5, 6};
  for (std::size_t i = 0; i < tops.size(); ++i) EXPECT_EQ(kStatisticTable[i].top(), tops[i]) << i;
}

TEST_F(DevelopmentScreens, ShowTheSameStatistics) {
  for (const char* const screen : kScreens) {
    for (std::size_t i = 0; i < kStatisticCases.size(); ++i) {
      const auto& [name, tipText, ladder] = kStatisticCases[i];
      EXPECT_EQ(caption(screen, "Label5", i), name);
      EXPECT_EQ(tip(screen, member("Label5", i)), tipText);
      for (std::size_t step = 0; step < ladder.size(); ++step) {
        EXPECT_EQ(caption(screen, "stat" + std::to_string(i + 1), step), ladder[step]);
      }
    }
  }
}

TEST(LadderValue, OfAStepIsTheCaptionOneBelowIt) {
  EXPECT_EQ(ladderValue(kEndurance, 1), 12);
  EXPECT_EQ(ladderValue(kEndurance, 12), 50);
  EXPECT_EQ(ladderValue(kArmour, 1), 0);
  EXPECT_EQ(ladderValue(kArmour, 11), 10);
  EXPECT_EQ(ladderValue(kLives, 6), 12);
}

TEST(LadderValue, IsTheCaptionAsANumberOnEveryStep) {
  for (const Statistic statistic : {kEndurance, kArmour, kPower, kSpeed, kRegeneration, kLives}) {
    const auto& ladder = kStatisticCases[statistic].ladder;
    for (std::size_t i = 0; i < ladder.size(); ++i) {
      EXPECT_EQ(ladderValue(statistic, static_cast<int>(i) + 1), std::stoi(ladder[i])) << statistic << " " << i;
    }
  }
}

TEST(LadderValue, OfAStepThatTheLadderDoesNotHaveIsAMissingControl) {
  for (const int step : {-32768 + 1, -1, 0, 13, 32767}) {
    EXPECT_EQ(errorOf([&] { ladderValue(kEndurance, step); }), 340) << step;
  }
  EXPECT_EQ(errorOf([] { ladderValue(kLives, 7); }), 340);
}

TEST(ModifierDice, AreThoseOfTheirStep) {
  const std::vector<Kostka> dice = {{1, 4, 1, 0}, {1, 6, 1, 0}, {1, 6, 1, 2}, {1, 6, 2, 0}, {1, 6, 2, 3}};
  for (std::size_t i = 0; i < dice.size(); ++i) EXPECT_EQ(modifierDice(static_cast<int>(i) + 1), dice[i]) << i;
}

TEST(ModifierDice, OfAStepThatTheLadderDoesNotHaveAreAMissingControl) {
  for (const int step : {-1, 0, 6, 32767}) EXPECT_EQ(errorOf([&] { modifierDice(step); }), 340) << step;
}

// Classes.

TEST(ClassTable, HasTenClassesWithTheirGrants) {
  ASSERT_EQ(kClassTable.size(), kClassCases.size());
  for (std::size_t i = 0; i < kClassCases.size(); ++i) {
    EXPECT_STREQ(kClassTable[i].caption, kClassCases[i].caption);
    EXPECT_EQ(kClassTable[i].meleePercent, kClassCases[i].meleePercent) << i;
    EXPECT_EQ(kClassTable[i].rangedPercent, kClassCases[i].rangedPercent) << i;
    EXPECT_EQ(kClassTable[i].plus, kClassCases[i].plus) << i;
  }
}

TEST(ClassTable, AClassIsToldByItsCaptionToTheLetter) {
  EXPECT_TRUE(isClass("Berserker", kBerserker));
  EXPECT_TRUE(isClass("Wiedźmin", kWitcher));
  EXPECT_TRUE(isClass("Ryzykant", kGambler));
  for (const char* const text : {"berserker", "Berserker ", "", "Wojownik"}) {
    EXPECT_FALSE(isClass(text, kBerserker)) << text;
  }
}

TEST_F(DevelopmentScreens, OfferTheClassesAtCreationAloneWithTheFirstSelected) {
  for (std::size_t i = 0; i < kClassCases.size(); ++i) {
    const OptionButton& option = world.get<OptionButton>("CTmhero", member("Klasa", i));
    EXPECT_EQ(option.Caption, kClassCases[i].caption);
    EXPECT_STREQ(option.ToolTipText, kClassCases[i].tip);
    EXPECT_EQ(option.Value, i == 0);
  }
  EXPECT_THROW(static_cast<void>(world.form("CTsklep").controls().find("Klasa(0)")), std::out_of_range);
}

// Spells.

TEST(SpellTable, HasTenSpellsWithTheirPricesDescriptionsAndGroups) {
  ASSERT_EQ(kSpellTable.size(), kSpellCases.size());
  for (std::size_t i = 0; i < kSpellCases.size(); ++i) {
    EXPECT_STREQ(kSpellTable[i].name, kSpellCases[i].name);
    EXPECT_EQ(kSpellTable[i].price, kSpellCases[i].price) << i;
    EXPECT_STREQ(kSpellTable[i].description, kSpellCases[i].description);
    EXPECT_EQ(kSpellTable[i].group, kSpellCases[i].group) << i;
    EXPECT_EQ(kSpellTable[i].forSale, kSpellCases[i].forSale) << i;
  }
}

TEST_F(DevelopmentScreens, ShowTheSameSpells) {
  for (const char* const screen : kScreens) {
    for (std::size_t i = 0; i < kSpellCases.size(); ++i) {
      EXPECT_EQ(caption(screen, "Czarn", i), kSpellCases[i].name);
      EXPECT_EQ(caption(screen, "czarc", i), std::to_string(kSpellCases[i].price));
      EXPECT_EQ(caption(screen, "Label13", i), kSpellCases[i].description);
      EXPECT_EQ(world.colour(screen, member("Label13", i)), kSpellCases[i].colour);
      EXPECT_EQ(world.isEnabled(screen, member("Czarn", i)), kSpellCases[i].forSale);
    }
  }
}

TEST_F(DevelopmentScreens, ShowTheLegendOfTheGroups) {
  for (const char* const screen : kScreens) {
    EXPECT_EQ(world.caption(screen, "Label12"), "Czar do rzucenia tylko na planszy");
    EXPECT_EQ(world.colour(screen, "Label12"), Colour::green);
    EXPECT_EQ(world.caption(screen, "Label10(1)"), "Czar do rzucenia tylko podczas walki");
    EXPECT_EQ(world.colour(screen, "Label10(1)"), Colour::purple);
    EXPECT_EQ(world.caption(screen, "Label10(0)"), "Czar do rzucenia zawsze");
    EXPECT_EQ(world.colour(screen, "Label10(0)"), Colour::black);
  }
}

// Gear and supplies.

TEST(GearTable, HasFourItemsWithTheirPrices) {
  ASSERT_EQ(kGearTable.size(), kGearCases.size());
  for (std::size_t i = 0; i < kGearCases.size(); ++i) {
    EXPECT_STREQ(kGearTable[i].name, kGearCases[i].name);
    EXPECT_EQ(kGearTable[i].creationPrice, kGearCases[i].creationPrice) << i;
    EXPECT_EQ(kGearTable[i].shopPrice, kGearCases[i].shopPrice) << i;
    EXPECT_EQ(kGearTable[i].forSale, kGearCases[i].forSale) << i;
  }
}

TEST_F(DevelopmentScreens, ShowTheGearEachWithItsOwnPricesAndTips) {
  for (std::size_t i = 0; i < kGearCases.size(); ++i) {
    for (const char* const screen : kScreens) {
      EXPECT_EQ(caption(screen, "Spec", i), kGearCases[i].name);
      EXPECT_EQ(world.isEnabled(screen, member("Spec", i)), kGearCases[i].forSale);
    }
    EXPECT_EQ(caption("CTmhero", "Speccena", i), std::to_string(kGearCases[i].creationPrice));
    EXPECT_EQ(caption("CTsklep", "Speccena", i), std::to_string(kGearCases[i].shopPrice));
    EXPECT_EQ(tip("CTmhero", member("Spec", i)), kGearCases[i].creationTip);
    EXPECT_EQ(tip("CTsklep", member("Spec", i)), kGearCases[i].shopTip);
  }
}

TEST(SupplyTable, HasGrenadesAndAmmunition) {
  ASSERT_EQ(kSupplyTable.size(), kSupplyCases.size());
  for (std::size_t i = 0; i < kSupplyCases.size(); ++i) {
    EXPECT_STREQ(kSupplyTable[i].name, kSupplyCases[i].name);
    EXPECT_EQ(kSupplyTable[i].perPurchase, kSupplyCases[i].perPurchase) << i;
  }
}

TEST_F(DevelopmentScreens, ShowTheSupplies) {
  for (const char* const screen : kScreens) {
    EXPECT_EQ(world.caption(screen, "Label17"), kSupplyCases[0].name);
    EXPECT_EQ(tip(screen, "Label17"), kSupplyCases[0].tip);
    EXPECT_EQ(world.caption(screen, "ammo"), kSupplyCases[1].name);
    EXPECT_EQ(tip(screen, "ammo"), kSupplyCases[1].tip);
  }
}

// Prices.

TEST(Prices, AreThoseOfTheTwoScreens) {
  EXPECT_EQ(kCreationStepPrice, 1);
  EXPECT_EQ(kCreationLifePrice, 2);
  EXPECT_EQ(kShopStepPrice, 2);
  EXPECT_EQ(kSupplyPrice, 1);
  EXPECT_EQ(kSatrapPoints, 4);
}

struct Purchase {
  const char* button;
  int creation;
  int shop;  // -1: not sold there.
};
class PriceOf : public DevelopmentScreens, public testing::WithParamInterface<Purchase> {};

TEST_P(PriceOf, IsTakenFromThePoints) {
  const auto& [button, creation, shop] = GetParam();
  EXPECT_TRUE(world.click("CTmhero", button));
  EXPECT_EQ(points("CTmhero"), std::to_string(100 - creation));
  if (shop < 0) {
    EXPECT_THROW(static_cast<void>(world.form("CTsklep").controls().find(button)), std::out_of_range);
    return;
  }
  EXPECT_TRUE(world.click("CTsklep", button));
  EXPECT_EQ(points("CTsklep"), std::to_string(100 - shop));
}

INSTANTIATE_TEST_SUITE_P(Steps, PriceOf,
                         testing::Values(Purchase{"PLUS(0)", 1, 2}, Purchase{"PLUS(1)", 1, 2},
                                         Purchase{"PLUS(2)", 1, 2}, Purchase{"PLUS(3)", 1, 2},
                                         Purchase{"PLUS(4)", 1, 2}, Purchase{"PLUS(5)", 1, 2},
                                         Purchase{"PLUS(6)", 2, -1}));
INSTANTIATE_TEST_SUITE_P(Supplies, PriceOf, testing::Values(Purchase{"PLUS(7)", 1, 1}, Purchase{"PLUS(8)", 1, 1}));
INSTANTIATE_TEST_SUITE_P(Spells, PriceOf,
                         testing::Values(Purchase{"Czarn(0)", 1, 1}, Purchase{"Czarn(1)", 1, 1},
                                         Purchase{"Czarn(2)", 3, 3}, Purchase{"Czarn(3)", 4, 4},
                                         Purchase{"Czarn(6)", 1, 1}, Purchase{"Czarn(7)", 3, 3},
                                         Purchase{"Czarn(9)", 2, 2}));
INSTANTIATE_TEST_SUITE_P(Gear, PriceOf, testing::Values(Purchase{"Spec(0)", 1, 7}, Purchase{"Spec(2)", 1, 9}));

TEST_F(DevelopmentScreens, NeverSellWhatIsDisabledWhateverThePoints) {
  for (const char* const screen : kScreens) {
    for (const char* const label : {"Czarn(4)", "Czarn(5)", "Czarn(8)", "Spec(1)", "Spec(3)"}) {
      EXPECT_FALSE(world.click(screen, label)) << screen << " " << label;
      EXPECT_EQ(world.colour(screen, label), Colour::buttonText) << screen << " " << label;
    }
    EXPECT_EQ(points(screen), "100") << screen;
  }
}

TEST_F(DevelopmentScreens, SellOneMortarForOnePointAtCreationAndForSevenInTheShopAndTheFileDoesNotTellWhere) {
  world.click("CTmhero", "Spec(0)");
  EXPECT_EQ(points("CTmhero"), "99");
  world.click("CTmhero", "Save");
  world.click("CTsklep", "Spec(0)");
  EXPECT_EQ(points("CTsklep"), "93");
  world.roll(1, 5, {1});
  world.click("CTsklep", "w1");
  for (int line = 92; line <= 95; ++line) EXPECT_EQ(world.line("nowy.boh", line), world.line("hero1.boh", line));
  EXPECT_EQ(world.line("hero1.boh", 92), "True");
}

TEST_F(DevelopmentScreens, MarkTheFirstStepOfEveryLadderInRedAndWhatIsOwned) {
  for (const char* const screen : kScreens) {
    for (int i = 1; i <= 7; ++i) {
      const std::string ladder = "stat" + std::to_string(i);
      EXPECT_EQ(world.colour(screen, member(ladder, 0)), Colour::red) << screen << ladder;
      EXPECT_NE(world.colour(screen, member(ladder, 1)), Colour::red) << screen << ladder;
    }
    world.click(screen, "Czarn(0)");
    world.click(screen, "Spec(2)");
    EXPECT_EQ(world.colour(screen, "Czarn(0)"), Colour::red);
    EXPECT_EQ(world.colour(screen, "Spec(2)"), Colour::red);
    EXPECT_EQ(world.colour(screen, "Czarn(1)"), Colour::buttonText);
  }
}

TEST_F(DevelopmentScreens, ShowTheHeroesCurrentFiguresInTheShopAlone) {
  Bohater hero = plainHero();
  hero.AktWytrzymalosc = 7;
  hero.AktMoc = 1;
  hero.Wcielenia = 3;
  world.writeHero("hero1.boh", hero);
  world.runtime.Reopen("CTsklep");
  EXPECT_EQ(world.caption("CTsklep", "akt(0)"), "7");
  EXPECT_EQ(world.caption("CTsklep", "akt(1)"), "1");
  EXPECT_EQ(world.caption("CTsklep", "akt(2)"), "3");
  EXPECT_EQ(world.colour("CTsklep", "akt(0)"), Colour::green);
  EXPECT_THROW(static_cast<void>(world.form("CTmhero").controls().find("akt(0)")), std::out_of_range);
}

}  // namespace
}  // namespace brolgan::test
