#include "game/guide/spoken.h"

#include <array>
#include <map>
#include <string_view>

#include "game/guide/look.h"
#include "game/names/names.h"
#include "rules/development.h"

namespace brolgan {

namespace {

using Names = std::map<std::string, const char*, std::less<>>;

// Controls whose spoken text is a name alone, or a name with the caption behind it.
const Names& namesOf(const std::string& screen) {
  static const Names goods = {{"Ile_jeszcze", "Pozostało punktów"},
                              {"Tura", "Tura numer"},
                              {"Imie", "Imię bohatera"},
                              {"akt(0)", "Obecna wytrzymałość"},
                              {"akt(1)", "Obecne punkty magii"},
                              {"akt(2)", "Pozostałe wcielenia"},
                              {"Heroshow", "Karta bohatera"},
                              {"LBronww", "Broń do walki wręcz"},
                              {"Lbronss", "Broń strzelecka"},
                              {"Kupww", "Kup broń do walki wręcz"},
                              {"Kupss", "Kup broń strzelecką"},
                              {"Sprzedajww", "Sprzedaj broń do walki wręcz"},
                              {"Sprzedajss", "Sprzedaj broń strzelecką"},
                              {"BWnazwa", "Wybrana broń do walki wręcz"},
                              {"BWdmg", "Obrażenia broni do walki wręcz"},
                              {"BWcena", "Cena broni do walki wręcz"},
                              {"BWopis", "Opis broni do walki wręcz"},
                              {"BSnazwa", "Wybrana broń strzelecka"},
                              {"BSdmg", "Obrażenia broni strzeleckiej"},
                              {"BScena", "Cena broni strzeleckiej"},
                              {"BSopis", "Opis broni strzeleckiej"}};
  static const std::map<std::string, Names, std::less<>> all = {
      {screens::kSetUp, {{"ile_punktow", "Ile punktów startowych"}}},
      {screens::kCreation, goods},
      {screens::kShop, goods},
      {screens::kPreparation,
       {{"Heroshow", "Karta bohatera"},
        {"Moname", "Potwór"},
        {"Potwór", "Obraz potwora"},
        {"Monstat(0)", "Szybkość potwora"},
        {"Monstat(1)", "Średnie obrażenia potwora"},
        {"Monstat(2)", "Wytrzymałość potwora"},
        {"Monstat(3)", "Pancerz potwora"},
        {"stat(0)", "Najwyższa wytrzymałość"},
        {"stat(1)", "Twój pancerz"},
        {"stat(2)", "Najwięcej punktów magii"},
        {"stat(3)", "Twoja szybkość"},
        {"stat(4)", "Twoja regeneracja"},
        {"cur(0)", "Obecna wytrzymałość"},
        {"cur(1)", "Obecne punkty magii"},
        {"Inic", "Twoja inicjatywa"},
        {"tabak", "Pancerz z premią"},
        {"Przedmioty", "Przedmioty"},
        {"Uzyj", "Użyj przedmiotu"},
        {"Czary", "Czary"},
        {"Koszt", "Koszt czaru"},
        {"Rzuc", "Rzuć czar"},
        {"historia", "Zapiski"}}},
      {screens::kFight,
       {{"Heroshow", "Karta bohatera"},
        {"Potwór", "Obraz potwora"},
        {"LIle", "Ilu przeciwników zostało"},
        {"Odl", "Odległość"},
        {"Pstat(0)", "Twoja wytrzymałość"},
        {"Pstat(1)", "Twój pancerz"},
        {"Pstat(2)", "Twoje punkty magii"},
        {"Pstat(3)", "Twoje obrażenia"},
        {"Mstat(0)", "Wytrzymałość potwora"},
        {"Mstat(1)", "Pancerz potwora"},
        {"Mstat(2)", "Szybkość potwora"},
        {"Mstat(3)", "Obrażenia potwora"},
        {"Bron", "Broń"},
        {"Czar", "Czar"},
        {"mana", "Punkty magii na czar"},
        {"Przedmiot", "Przedmiot"},
        {"IleZad", "Zadałeś"},
        {"IleDMG", "Otrzymałeś"},
        {"CloseZad", "Zamknij raport zadanych obrażeń"},
        {"CloseDMG", "Zamknij raport otrzymanych obrażeń"}}},
      {screens::kSheet,
       {{"klasa", "Klasa"},
        {"Pstat(0)", "Wytrzymałość"},
        {"Pstat(1)", "Pancerz"},
        {"Pstat(2)", "Moc"},
        {"Pstat(3)", "Szybkość"},
        {"Pstat(4)", "Regeneracja"},
        {"Pstat(5)", "Modyfikator obrażeń"},
        {"Bron", "Posiadane bronie"},
        {"Stwory", "Pokonane stwory"},
        {"HeroClose", "Zamknij kartę bohatera"}}},
  };
  static const Names none;
  const auto found = all.find(screen);
  return found == all.end() ? none : found->second;
}

// The value behind a name, without the blanks around it.
std::string valueOf(const ControlEntry& entry) {
  const auto read = [](const auto* control) -> std::string {
    if constexpr (requires { control->ListCount(); }) {
      return control->Text();
    } else if constexpr (std::is_same_v<decltype(control), const Label*>) {
      return control->Caption;
    }
    return {};
  };
  const std::string text = std::visit(read, entry.control);
  const auto first = text.find_first_not_of(' ');
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string named(const char* name, const ControlEntry& entry) {
  const std::string value = valueOf(entry);
  return value.empty() ? name : name + (": " + value);
}

bool isRed(const ControlEntry& entry) {
  const auto* const* const label = std::get_if<Label*>(&entry.control);
  return label != nullptr && (*label)->ForeColor == Colour::red;
}

const char* statistic(int index) { return kStatisticTable.at(static_cast<std::size_t>(index)).name; }

// What a PLUS or MINUS of that index raises or lowers.
std::string developed(int index) {
  if (index < kStatistics) return statistic(index);
  return kSupplyTable.at(static_cast<std::size_t>(index - kStatistics)).name;
}

bool isStep(const ControlEntry& entry) { return entry.name.size() == 5 && entry.name.starts_with("stat"); }

std::string step(const ControlEntry& entry) {
  const std::string name = statistic(entry.name[4] - '1');
  return name + ", stopień " + valueOf(entry) + (isRed(entry) ? ", obecny" : "");
}

bool isDepartment(std::string_view screen) { return screen == screens::kCreation || screen == screens::kShop; }

// The rows of the departments: ladders, steps, goods and their prices.
std::string good(const ControlEntry& entry) {
  const auto place = static_cast<std::size_t>(entry.index);
  if (entry.name == "PLUS") return developed(entry.index) + ", plus";
  if (entry.name == "MINUS") return developed(entry.index) + ", minus";
  if (isStep(entry)) return step(entry);
  if (entry.name == "Czarn" || entry.name == "Spec") return valueOf(entry) + (isRed(entry) ? ", masz" : "");
  if (entry.name == "czarc") return kSpellTable.at(place).name + (", cena " + valueOf(entry));
  if (entry.name == "Speccena") return kGearTable.at(place).name + (", cena " + valueOf(entry));
  if (entry.name == "wyp") return kSupplyTable.at(place).name + (", masz " + valueOf(entry));
  return {};
}

std::string player(const ControlEntry& entry) {
  const std::string number = std::to_string(entry.index + 1);
  if (entry.name == "gracz") return "Plik bohatera gracza " + number;
  if (entry.name == "GraczM") return "Stwórz bohatera gracza " + number;
  if (entry.name == "Czygra") return "Gracz " + number + (valueOf(entry).empty() ? " nie gra" : " gra");
  return {};
}

}  // namespace

std::string spoken(const std::string& screen, const ControlEntry& entry) {
  std::string own = isDepartment(screen) ? good(entry) : screen == screens::kSetUp ? player(entry) : "";
  if (!own.empty()) return own;
  const auto found = namesOf(screen).find(entry.fullName());
  if (found == namesOf(screen).end()) return {};
  const bool isOwned = (entry.name == "BWnazwa" || entry.name == "BSnazwa") && isRed(entry);
  return named(found->second, entry) + (isOwned ? ", masz" : "");
}

std::string spokenName(const std::string& screen, const ControlEntry& entry) {
  const auto found = namesOf(screen).find(entry.fullName());
  return found == namesOf(screen).end() ? std::string() : found->second;
}

bool isCheckable(const std::string& screen, const ControlEntry& entry) {
  return isDepartment(screen) && (entry.name == "Czarn" || entry.name == "Spec");
}

bool isChecked(const ControlEntry& entry) { return isRed(entry); }

}  // namespace brolgan
