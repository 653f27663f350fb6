#include "simulation/report/report.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "simulation/report/aims.h"
#include "simulation/report/plot.h"

namespace brolgan::simulation {

namespace {

namespace fs = std::filesystem;

void store(const fs::path& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file << text;
  if (!file.flush()) throw std::runtime_error("nie można zapisać " + path.string());
}

std::vector<Bar> classBars(const Study& study) {
  const auto shares = classShares(study.games);
  std::vector<Bar> bars;
  for (std::size_t i = 0; i < kClasses; ++i) bars.push_back({kClassTable[i].caption, shares[i] * 100});
  std::sort(bars.begin(), bars.end(), [](const Bar& a, const Bar& b) { return a.value > b.value; });
  return bars;
}

std::string lengthPlot(const Study& study) {
  const auto turns = winningTurns(study.games);
  const int last = turns.empty() ? 1 : turns.back();
  std::vector<double> counts(static_cast<std::size_t>(last), 0);
  for (const int turn : turns) counts[static_cast<std::size_t>(turn - 1)] += 1;
  return histogram("Długość partii", "tura zwycięzcy, w której padł „Król Zagłady”", 1, counts);
}

std::string zonePlot(const Tallies& tallies) {
  std::vector<std::string> names;
  std::vector<std::vector<double>> shares;
  for (std::size_t zone = 0; zone < kZoneCount; ++zone) {
    names.emplace_back(kZones[zone].caption);
    std::vector<double> row;
    for (std::size_t t = 0; t < kShownTurns; ++t) {
      const int fights = tallies.turns[t].fights;
      row.push_back(fights > 0 ? static_cast<double>(tallies.zoneByTurn[zone][t]) / fights : 0);
    }
    shares.push_back(row);
  }
  return shadeTable("Wybrana strefa według tury (w % bohaterów)", "tura bohatera", names, shares);
}

std::vector<Bar> boughtBars(const Knowledge& known, const Tallies& tallies, int from, int to) {
  std::vector<Bar> bars;
  for (int place = from; place < to; ++place) {
    const std::string name = offerName(known, place);
    if (!name.empty()) bars.push_back({name, tallies.boughtShare(place)});
  }
  return bars;
}

std::string pointsPlot(const Tallies& tallies) {
  std::vector<double> means;
  for (const Tally& turn : tallies.turns) means.push_back(turn.fights > 0 ? turn.points / turn.fights : 0);
  return histogram("Zdobyte punkty według tury (średnio na bohatera)", "tura bohatera", 1, means);
}

std::string deathPlot(const Knowledge& known, const Tallies& tallies) {
  std::vector<Bar> bars;
  for (std::size_t i = 0; i < kMonsters; ++i) {
    const Tally& monster = tallies.monsters[i];
    const double share = monster.fights > 0 ? 100.0 * monster.deaths / monster.fights : 0;
    bars.push_back({std::to_string(i + 1) + ". " + known.monsters[i].name, share});
  }
  return barChart("Śmierci na 100 walk z potworem", bars);
}

void writePlots(const fs::path& folder, const Knowledge& known, const Study& study, const Tallies& tallies) {
  constexpr int kSpellPlace = kStatistics + kWeapons;
  store(folder / "klasy.svg", barChart("Udział klas w zwycięstwach (w %)", classBars(study), {6, 10, 15}));
  store(folder / "dlugosc.svg", lengthPlot(study));
  store(folder / "strefy.svg", zonePlot(tallies));
  store(folder / "bronie.svg",
        barChart("Bronie kupione na 100 karier", boughtBars(known, tallies, kStatistics, kSpellPlace), {3}));
  store(folder / "czary.svg", barChart("Czary, sprzęt i zapasy kupione na 100 karier",
                                       boughtBars(known, tallies, kSpellPlace, kOfferPlaces), {5}));
  store(folder / "punkty.svg", pointsPlot(tallies));
  store(folder / "smierci.svg", deathPlot(known, tallies));
}

std::string aimTable(const std::vector<Aim>& aims) {
  std::ostringstream out;
  out << "| Cel | Miało być | Jest | |\n|---|---|---|---|\n";
  for (const Aim& aim : aims) {
    out << "| " << aim.text << " | " << aim.wanted << " | " << aim.found << " | " << (aim.reached ? "✓" : "✗")
        << " |\n";
  }
  return out.str();
}

std::string diceText(const Throw& dice) {
  std::string text = std::to_string(dice.dice) + "k" + std::to_string(dice.high);
  if (dice.plus != 0) text += (dice.plus > 0 ? "+" : "") + std::to_string(dice.plus);
  return text;
}

std::string weaponTable(const Knowledge& known, const Tallies& tallies) {
  std::ostringstream out;
  out << "| Broń | Cena | Kości | Średnio | Cecha | Kupiona na 100 karier | Średnio w turze "
         "|\n|---|---|---|---|---|---|---|\n";
  for (std::size_t i = 0; i < known.weapons.size(); ++i) {
    const Weapon& weapon = known.weapons[i];
    const int place = kStatistics + static_cast<int>(i);
    const char* trait = weapon.staff      ? "czary"
                        : weapon.cannon   ? "co drugą rundę"
                        : weapon.fire     ? "przenosi ogień"
                        : weapon.spread   ? "wszystkim"
                        : weapon.ultimate ? "kosztuje zdrowie"
                                          : "";
    out << "| " << weapon.name << " | " << weapon.price << " | " << diceText(weapon.damage) << " | "
        << oneDigit(weapon.damage.mean) << " | " << trait << " | " << oneDigit(tallies.boughtShare(place)) << " | "
        << oneDigit(tallies.turnBought[static_cast<std::size_t>(place)]) << " |\n";
  }
  return out.str();
}

std::string monsterTable(const Knowledge& known, const Tallies& tallies) {
  std::ostringstream out;
  out << "| Nr | Potwór | Ilu | Szybkość | Atak | Średnio | Wytrzymałość | Pancerz | Punkty | Śmierci na 100 walk |\n";
  out << "|---|---|---|---|---|---|---|---|---|---|\n";
  for (const Monster& monster : known.monsters) {
    const Tally& met = tallies.monsters[static_cast<std::size_t>(monster.number)];
    out << "| " << monster.number + 1 << " | " << monster.name << " | " << monster.count << " | " << monster.speed
        << " | " << diceText(monster.attack) << " | " << oneDigit(monster.attack.mean) << " | " << monster.life << " | "
        << monster.armour << " | " << oneDigit(pointsFor(kWarrior, monster)) << " | "
        << (met.fights > 0 ? oneDigit(100.0 * met.deaths / met.fights) : "–") << " |\n";
  }
  return out.str();
}

std::string rivalryText(const Study& study) {
  std::ostringstream out;
  for (const Rivalry& rivalry : study.rivalries) {
    out << "- " << rivalry.games << " partii, dwóch rozsądnych i dwóch innych (gracz "
        << kMindNames[static_cast<std::size_t>(rivalry.other)] << "): rozsądni wygrali " << rivalry.sensible
        << ", tamci " << rivalry.others << ".\n";
  }
  return out.str();
}

const char* const kIntroduction =
    "# Balans w liczbach\n\n"
    "Dla graczy, którzy lubią wiedzieć, na co się porywają. Liczby pochodzą z całych partii rozegranych przez\n"
    "wymyślonych graczy, którzy widzą tylko to, co widać na ekranach, i klikają tylko to, co da się kliknąć.\n"
    "**Rozsądny** waży spodziewane obrażenia i ryzyko ołówkiem na kartce. **Nowicjusz** kupuje, co groźnie brzmi, po\n"
    "łatwej walce idzie strefę dalej, po bolesnej się cofa. **Chciwy** przed każdym wyborem rozgrywa walkę w "
    "głowie.\n\n";

const char* const kRules =
    "\n## Z czym liczby nie wygrają\n\n"
    "Niektóre rzeczy rozstrzygają zasady, a nie liczby w plikach:\n\n"
    "- Premia Strzelca (+55% do broni strzeleckich) jest pokazywana, ale do obrażeń się nie liczy. Strzelec gra więc\n"
    "  jak bohater bez klasy, a Satrapa jak Strzelec z czterema punktami więcej: różnica między nimi mówi, ile znaczy\n"
    "  dobry początek.\n"
    "- Ryzykant dostaje potrójne punkty i nawet z tym, co przepada, rośnie najszybciej. Nagrody potworów leżą tuż nad\n"
    "  połówką (1,6; 2,6; 3,6...), bo wtedy zaokrąglanie najbardziej pomaga pozostałym, a i tak wygrywa częściej.\n"
    "  Hamują go działy sklepu: co druga wizyta pozwala rozwijać cechy, co trzecia kupić broń.\n"
    "- Nagrodę liczy się tylko z kości ataku i pancerza; stały dodatek i wytrzymałość potwora nic nie dają. Grupa\n"
    "  płaci za liczebność, więc w każdej strefie trafia się łup większy od innych.\n"
    "- Nóż i Łuk ma od początku każdy, więc nie trzeba ich kupować; można je za to sprzedać przy tworzeniu bohatera.\n"
    "- Broń biała doskonali się w użyciu (do ponad 100% premii), dlatego stara, wyćwiczona broń długo wygrywa z nową.\n"
    "- Średnie obrażenia na ekranie przygotowań zaokrąglają średnią jednej kości. Potwory rzucają więc kośćmi o\n"
    "  nieparzystej liczbie ścian (od k3 do k25): ich średnia jest całkowita, a pokazana liczba dokładna.\n";

std::string howTo(const DataFiles& data, const Study& study) {
  std::ostringstream out;
  out << "\n## Jak to powtórzyć\n\nJedno polecenie, z głównego folderu gry:\n\n"
      << "    simulation/report.sh\n\n"
      << "Rozgrywa " << study.games.size() << " partii po " << study.setup.players << " graczy (" << study.setup.points
      << " punktów na start, ziarno " << study.setup.seed
      << ") i zapisuje ten plik z wykresami od nowa. Te same ziarna dają te same liczby na dowolnej\n"
      << "liczbie rdzeni. Partie jedna po drugiej: [gry.csv](balans/gry.csv); liczby zbiorcze:\n"
      << "[wyniki.json](balans/wyniki.json).\n\n"
      << fingerprintLine(data) << "\n";
  return out.str();
}

std::string markdown(const DataFiles& data, const Knowledge& known, const Study& study, const Tallies& tallies) {
  std::ostringstream out;
  out << kIntroduction << "## Cele\n\n" << aimTable(allAims(known, study, tallies)) << "\n" << rivalryText(study);
  out << "\n## Klasy\n\n![Udział klas w zwycięstwach](balans/klasy.svg)\n"
      << "\n## Długość partii\n\n![Długość partii](balans/dlugosc.svg)\n"
      << "\n## Dokąd iść\n\n![Strefy według tury](balans/strefy.svg)\n\n![Punkty według tury](balans/punkty.svg)\n"
      << "\n## Co kupować\n\n![Bronie](balans/bronie.svg)\n\n![Czary, sprzęt i zapasy](balans/czary.svg)\n\n"
      << weaponTable(known, tallies) << "\n## Od czego się ginie\n\n![Śmierci](balans/smierci.svg)\n\n"
      << monsterTable(known, tallies) << kRules << howTo(data, study);
  return out.str();
}

std::string csv(const Study& study) {
  std::ostringstream out;
  out << "partia,ziarno,gracz,klasa,umysl,wygral,tura_zwyciestwa,walki,smierci,punkty_zdobyte\n";
  for (std::size_t i = 0; i < study.games.size(); ++i) {
    const GameRecord& game = study.games[i];
    for (std::size_t s = 0; s < game.seats.size(); ++s) {
      Tally own;
      for (const TurnRecord& turn : game.turns) {
        if (turn.player != static_cast<int>(s)) continue;
        ++own.fights;
        own.deaths += turn.won ? 0 : 1;
        own.points += turn.won ? turn.earned : 0;
      }
      const bool won = game.winner == static_cast<int>(s);
      out << i + 1 << ',' << game.seed << ',' << s + 1 << ','
          << kClassTable[static_cast<std::size_t>(game.seats[s].seat.klasa)].caption << ','
          << kMindNames[static_cast<std::size_t>(game.seats[s].seat.mind)] << ',' << won << ','
          << (won ? game.winnerTurn : 0) << ',' << own.fights << ',' << own.deaths << ',' << own.points << '\n';
    }
  }
  return out.str();
}

std::string json(const DataFiles& data, const Knowledge& known, const Study& study, const Tallies& tallies) {
  std::ostringstream out;
  out << "{\n  \"odcisk_danych\": \"" << fingerprint(data) << "\",\n  \"partie\": " << study.games.size()
      << ",\n  \"ziarno\": " << study.setup.seed << ",\n  \"cele\": [\n";
  const auto aims = allAims(known, study, tallies);
  for (std::size_t i = 0; i < aims.size(); ++i) {
    out << "    {\"cel\": \"" << aims[i].text << "\", \"mialo_byc\": \"" << aims[i].wanted << "\", \"jest\": \""
        << aims[i].found << "\", \"spelniony\": " << (aims[i].reached ? "true" : "false") << "}"
        << (i + 1 < aims.size() ? "," : "") << "\n";
  }
  out << "  ],\n  \"klasy\": {";
  const auto shares = classShares(study.games);
  for (std::size_t i = 0; i < kClasses; ++i) {
    out << (i > 0 ? ", " : "") << "\"" << kClassTable[i].caption << "\": " << shares[i];
  }
  out << "},\n  \"zakupy_na_100_karier\": {";
  bool first = true;
  for (int place = 0; place < kOfferPlaces; ++place) {
    const std::string name = offerName(known, place);
    if (name.empty()) continue;
    out << (first ? "" : ", ") << "\"" << name << "\": " << tallies.boughtShare(place);
    first = false;
  }
  out << "}\n}\n";
  return out.str();
}

}  // namespace

std::string fingerprintLine(const DataFiles& data) { return "Odcisk danych: `" + fingerprint(data) + "`"; }

void writeReport(const std::string& folder, const DataFiles& data, const Study& study) {
  const Knowledge known(data);
  const Tallies tallies = tally(study.games);
  const fs::path beside = fs::path(folder) / "balans";
  fs::create_directories(beside);
  writePlots(beside, known, study, tallies);
  store(beside / "gry.csv", csv(study));
  store(beside / "wyniki.json", json(data, known, study, tallies));
  store(fs::path(folder) / "balans.md", markdown(data, known, study, tallies));
}

}  // namespace brolgan::simulation
