#include "rules/development.h"

#include "flow/services/number_text.h"
#include "flow/services/runtime_error.h"

namespace brolgan {

namespace {

constexpr std::array kEnduranceLadder = {"12", "15", "18", "21", "24", "27", "30", "34", "38", "42", "46", "50"};
constexpr std::array kArmourLadder = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"};
constexpr std::array kPowerLadder = {"2", "4", "6", "8", "11", "14", "17", "20"};
constexpr std::array kSpeedLadder = {"6", "9", "12", "16", "20", "24", "29", "34"};
constexpr std::array kRegenerationLadder = {"1", "3", "5", "7", "10"};
constexpr std::array kModifierLadder = {"+k4", "+k6", "+k6+2", "+2k6", "+2k6+3"};
constexpr std::array kLivesLadder = {"1", "2", "3", "5", "8", "12"};

const std::array<Kostka, 5> kModifierDice = {{{1, 4, 1, 0}, {1, 6, 1, 0}, {1, 6, 1, 2}, {1, 6, 2, 0}, {1, 6, 2, 3}}};

// The place of a 1-based step in a ladder of that many steps.
std::size_t place(Integer step, std::size_t steps) {
  const Integer index = step - 1;
  if (index < 0 || index.value() >= static_cast<int>(steps)) throw RuntimeError(ErrorCode::noSuchControl);
  return static_cast<std::size_t>(index.value());
}

}  // namespace

const std::array<StatisticRow, kStatistics> kStatisticTable = {{
    {"Wytrzymałość", "Wytrzymałość określa jak duże obrażenia zniesiesz, zanim zginiesz", kEnduranceLadder},
    {"Pancerz", "Pancerz określa wielkość obrażeń, które absorbuje Twoja skóra i ubiór", kArmourLadder},
    {"Moc",
     "Moc jest potrzebna do rzucania czarów. W czasie gry używa się Punktów Magii, aby rzucać zaklęcia. Są one "
     "równe Mocy i regenerują się do jej poziomu ( co turę odnawia się ilość równa regeneracji)",
     kPowerLadder},
    {"Szybkość", "Szybkość określa inicjatywę w walce", kSpeedLadder},
    {"Regeneracja", "Regeneracja określa ilość wytrzymałości i punktów magii, które regenerują się co turę",
     kRegenerationLadder},
    {"Modyfikator Obrażeń",
     "Modyfikator Obrażeń(MO) określa siłę postaci - wpływa bezpośrednio na obrażenia zadawane w walce wręcz.",
     kModifierLadder},
    {"Wcielenia", "Ilość wcieleń - jeśli zginiesz więcej razy niż wynosi ich ilość - przegrywasz grę! Koszt : 2",
     kLivesLadder},
}};

const std::array<ClassRow, kClasses> kClassTable = {{
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
}};

const std::array<SpellRow, kSpells> kSpellTable = {{
    {"Leczenie", 1, "za 1 PM odzyskujesz k6 wytrzymałości", Colour::black, true},
    {"Damage !", 1, "za 2 PM zadaje 3k6 jednemu wrogowi", Colour::purple, true},
    {"BullShots", 3, "za 2+** PM zadaje 3k6 + ** wszystkim", Colour::purple, true},
    {"BOOM !", 4, "za 4 PM zadaje 2k30 jednemu wrogowi", Colour::purple, true},
    {"AntyLeczenie", 2, "za 3 PM powstrzymuje  leczenie na k3 tury", Colour::green, false},
    {"Przyzwanie potwora", 3, "za 1-12 PM przyzywa potwora na wybrane przec Ciebie, nie zajęte miejsce", Colour::green,
     false},
    {"Klasa III A", 1, "za 2 PM  zwiększa pancerz o k8 na 2k6 r ", Colour::purple, true},
    {"Kaczy Fart", 3, "za 4 PM najbliższy atak nic Ci nie robi", Colour::purple, true},
    {"Teleportacja", 3, "za 3 PM przenosisz się do 3 pól dalej", Colour::green, false},
    {"Autostart", 2, "za 3 PM zwiększa inicjatywę o +k6", Colour::black, true},
}};

const std::array<GearRow, kGear> kGearTable = {{
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
}};

const std::array<SupplyRow, kSupplies> kSupplyTable = {{
    {"Granat", "Cena 1. Zadaje k30 wszystkim przeciwnikom ( jesli rzucisz 1 - zadaje tobie). Jednorazowego uzytku", 1},
    {"10 x ammo +k6", "Cena 1. 10 sztuk wyśmienitej amunicji (+k6 do każdego strzału)", 10},
}};

Integer ladderValue(Statistic statistic, Integer step) {
  const auto ladder = kStatisticTable[statistic].ladder;
  return static_cast<int>(wholeNumber(ladder[place(step, ladder.size())]));
}

Kostka modifierDice(Integer step) { return kModifierDice[place(step, kModifierDice.size())]; }

bool isClass(std::string_view klasa, ClassIndex index) { return klasa == kClassTable[index].caption; }

}  // namespace brolgan
