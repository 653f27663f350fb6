#include "desktop/spoken_names.h"

#include <array>
#include <map>

#include "rules/development.h"

namespace brolgan::desktop {

namespace {

const std::map<std::string, const char*>& namesOfControls() {
  static const std::map<std::string, const char*> names = {
      {"Imie", "Imię bohatera"},
      {"ile_punktow", "Ile punktów startowych"},
      {"Ile_jeszcze", "Pozostało punktów"},
      {"Heroshow", "Karta bohatera"},
      {"HeroClose", "Zamknij kartę bohatera"},
      {"CloseZad", "Zamknij raport zadanych obrażeń"},
      {"CloseDMG", "Zamknij raport otrzymanych obrażeń"},
      {"LBronww", "Broń do walki wręcz"},
      {"Lbronss", "Broń strzelecka"},
      {"Kupww", "Kup broń do walki wręcz"},
      {"Kupss", "Kup broń strzelecką"},
      {"Sprzedajww", "Sprzedaj broń do walki wręcz"},
      {"Sprzedajss", "Sprzedaj broń strzelecką"},
      {"Bron", "Broń"},
      {"Czar", "Czar"},
      {"Czary", "Czary"},
      {"mana", "Punkty magii na czar"},
      {"Koszt", "Koszt czaru"},
      {"Przedmiot", "Przedmiot"},
      {"Przedmioty", "Przedmioty"},
      {"historia", "Zapiski"},
      {"Stwory", "Pokonane stwory"},
      {"Potwór", "Obraz potwora"},
      {"LIle", "Ilu przeciwników zostało"},
      {"tabak", "Pancerz z premią"},
  };
  return names;
}

QString statisticName(int index) { return QString::fromUtf8(kStatisticTable.at(static_cast<std::size_t>(index)).name); }

QString developedName(int index) {
  if (index < kStatistics) return statisticName(index);
  return QString::fromUtf8(kSupplyTable.at(static_cast<std::size_t>(index - kStatistics)).name);
}

}  // namespace

QString spokenName(const std::string& form, const ControlEntry& entry) {
  if (entry.name == "PLUS") return developedName(entry.index) + ", plus";
  if (entry.name == "MINUS") return developedName(entry.index) + ", minus";
  if (entry.name == "gracz") return QString("Plik bohatera gracza %1").arg(entry.index + 1);
  if (entry.name == "GraczM") return QString::fromUtf8("Stwórz bohatera gracza %1").arg(entry.index + 1);
  if (form == "FHero" && entry.name == "Imie") return {};
  if (form == "FHero" && entry.name == "Bron") return QString::fromUtf8("Posiadane bronie");
  const auto found = namesOfControls().find(entry.name);
  return found == namesOfControls().end() ? QString() : QString::fromUtf8(found->second);
}

}  // namespace brolgan::desktop
