#include "rules/development.h"

#include "flow/text/number_text.h"
#include "flow/text/runtime_error.h"

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
    {"Wytrzymałość", kEnduranceLadder},
    {"Pancerz", kArmourLadder},
    {"Moc", kPowerLadder},
    {"Szybkość", kSpeedLadder},
    {"Regeneracja", kRegenerationLadder},
    {"Modyfikator Obrażeń", kModifierLadder},
    {"Wcielenia", kLivesLadder},
}};

const std::array<ClassRow, kClasses> kClassTable = {{
    {"Wojownik", 45, 0, 0},
    {"Strzelec", 0, 55, 0},
    {"Czarownik", 0, 0, 0},
    {"Wiedźmin", 0, 0, 0},
    {"Awanturnik", 0, 0, 0},
    {"Satrapa", 0, 0, 0},
    {"Berserker", 0, 0, 0},
    {"Ryzykant", 0, 0, 0},
    {"Zabobonny mnich zakonny", 0, 0, 0},
    {"Złota rączka", 0, 0, 5},
}};

const std::array<SpellRow, kSpells> kSpellTable = {{
    {"Leczenie", 1, "za 1 PM odzyskujesz k6 wytrzymałości", SpellGroup::always, true},
    {"Damage !", 1, "za 2 PM zadaje 3k6 jednemu wrogowi", SpellGroup::fight, true},
    {"BullShots", 3, "za 2+** PM zadaje 3k6 + ** wszystkim", SpellGroup::fight, true},
    {"BOOM !", 4, "za 4 PM zadaje 2k30 jednemu wrogowi", SpellGroup::fight, true},
    {"AntyLeczenie", 2, "za 3 PM powstrzymuje  leczenie na k3 tury", SpellGroup::board, false},
    {"Przyzwanie potwora", 3, "za 1-12 PM przyzywa potwora na wybrane przec Ciebie, nie zajęte miejsce",
     SpellGroup::board, false},
    {"Klasa III A", 1, "za 2 PM  zwiększa pancerz o k8 na 2k6 r ", SpellGroup::fight, true},
    {"Kaczy Fart", 3, "za 4 PM najbliższy atak nic Ci nie robi", SpellGroup::fight, true},
    {"Teleportacja", 3, "za 3 PM przenosisz się do 3 pól dalej", SpellGroup::board, false},
    {"Autostart", 2, "za 3 PM zwiększa inicjatywę o +k6", SpellGroup::always, true},
}};

const std::array<GearRow, kGear> kGearTable = {{
    {"Moździerz", 1, 7, true},
    {"Pas Knura", 1, 1, false},
    {"Zasysacz", 1, 9, true},
    {"Szperacz", 2, 2, false},
}};

const std::array<SupplyRow, kSupplies> kSupplyTable = {{{"Granat", 1}, {"10 x ammo +k6", 10}}};

Integer ladderValue(Statistic statistic, Integer step) {
  const auto ladder = kStatisticTable[statistic].ladder;
  return static_cast<int>(wholeNumber(ladder[place(step, ladder.size())]));
}

Kostka modifierDice(Integer step) { return kModifierDice[place(step, kModifierDice.size())]; }

bool isClass(std::string_view klasa, ClassIndex index) { return klasa == kClassTable[index].caption; }

}  // namespace brolgan
