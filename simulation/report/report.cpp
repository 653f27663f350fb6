#include "simulation/report/report.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "simulation/report/advice.h"
#include "simulation/report/aims.h"
#include "simulation/report/plot.h"
#include "simulation/report/worth.h"

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

std::vector<double> gamesWonByTurn(const Study& study) {
  const auto turns = winningTurns(study.games);
  const int last = turns.empty() ? 1 : turns.back();
  std::vector<double> counts(static_cast<std::size_t>(last), 0);
  for (const int turn : turns) counts[static_cast<std::size_t>(turn - 1)] += 1;
  return counts;
}

// Of the heroes at each turn, the share that chose each zone.
std::vector<std::vector<double>> zoneShares(const Tallies& tallies) {
  std::vector<std::vector<double>> shares;
  for (std::size_t zone = 0; zone < kZoneCount; ++zone) {
    std::vector<double> row;
    for (std::size_t t = 0; t < kShownTurns; ++t) {
      const int fights = tallies.turns[t].fights;
      row.push_back(fights > 0 ? static_cast<double>(tallies.zoneByTurn[zone][t]) / fights : 0);
    }
    shares.push_back(row);
  }
  return shares;
}

std::vector<std::string> zoneNames() {
  std::vector<std::string> names;
  for (const Strefa& zone : kZones) names.emplace_back(zone.caption);
  return names;
}

std::vector<Bar> boughtBars(const Knowledge& known, const Tallies& tallies, int from, int to) {
  std::vector<Bar> bars;
  for (int place = from; place < to; ++place) {
    const std::string name = offerName(known, place);
    if (!name.empty()) bars.push_back({name, tallies.boughtShare(place)});
  }
  return bars;
}

std::vector<double> pointsByTurn(const Tallies& tallies) {
  std::vector<double> means;
  for (const Tally& turn : tallies.turns) means.push_back(turn.fights > 0 ? turn.points / turn.fights : 0);
  return means;
}

std::vector<Bar> deathBars(const Knowledge& known, const Tallies& tallies) {
  std::vector<Bar> bars;
  for (std::size_t i = 0; i < kMonsters; ++i) {
    const Tally& monster = tallies.monsters[i];
    const double share = monster.fights > 0 ? 100.0 * monster.deaths / monster.fights : 0;
    bars.push_back({std::to_string(i + 1) + ". " + known.monsters[i].name, share});
  }
  return bars;
}

std::string barCsv(const char* what, const std::vector<Bar>& bars) {
  std::ostringstream out;
  out << "name," << what << "\n";
  for (const Bar& bar : bars) out << '"' << bar.name << "\"," << bar.value << "\n";
  return out.str();
}

std::string turnCsv(const char* what, const std::vector<double>& values) {
  std::ostringstream out;
  out << "turn," << what << "\n";
  for (std::size_t i = 0; i < values.size(); ++i) out << i + 1 << ',' << values[i] << "\n";
  return out.str();
}

std::string zoneCsv(const std::vector<std::vector<double>>& shares) {
  std::ostringstream out;
  out << "zone,turn,share\n";
  const auto names = zoneNames();
  for (std::size_t zone = 0; zone < shares.size(); ++zone) {
    for (std::size_t t = 0; t < shares[zone].size(); ++t) {
      out << '"' << names[zone] << "\"," << t + 1 << ',' << shares[zone][t] << "\n";
    }
  }
  return out.str();
}

// A plot and, beside it, the figures in it.
void storePlot(const fs::path& folder, const std::string& name, const std::string& plot, const std::string& figures) {
  store(folder / (name + ".svg"), plot);
  store(folder / (name + ".csv"), figures);
}

void writePlots(const fs::path& folder, const Knowledge& known, const Study& study, const Tallies& tallies) {
  const auto classes = classBars(study);
  storePlot(folder, "klasy", barChart("Zwycięstwa klas", "% zwycięstw", classes, {6, 15}, "cel: od 6 do 15%"),
            barCsv("percent_of_wins", classes));
  const auto won = gamesWonByTurn(study);
  storePlot(folder, "dlugosc",
            histogram("Długość partii", "tura zwycięzcy, w której padł „Król Zagłady”", "partie", 1, won),
            turnCsv("games_won", won));
  const auto zones = zoneShares(tallies);
  storePlot(folder, "strefy",
            shadeTable("Wybrana strefa według tury (w % bohaterów)", "tura bohatera", zoneNames(), zones),
            zoneCsv(zones));
  const auto weapons = boughtBars(known, tallies, kFirstWeapon, kFirstSpell);
  storePlot(folder, "bronie", barChart("Kupione bronie", "kupiona na 100 karier", weapons, {3}, "cel: co najmniej 3"),
            barCsv("bought_in_100_careers", weapons));
  const auto goods = boughtBars(known, tallies, kFirstSpell, kOfferPlaces);
  storePlot(folder, "czary",
            barChart("Kupione czary, sprzęt i zapasy", "kupione na 100 karier", goods, {5}, "cel: co najmniej 5"),
            barCsv("bought_in_100_careers", goods));
  const auto points = pointsByTurn(tallies);
  storePlot(folder, "punkty", histogram("Zdobyte punkty według tury", "tura bohatera", "punkty na walkę", 1, points),
            turnCsv("points_a_fight", points));
  const auto deaths = deathBars(known, tallies);
  storePlot(folder, "smierci", barChart("Od czego się ginie", "śmierci na 100 walk z potworem", deaths),
            barCsv("deaths_in_100_fights", deaths));
}

const char* const kBefore =
    "\n„Było” to pierwsze liczby w rękach pierwszych graczy. Dzisiejsi rozsądni są śmielsi i nie gromadzą punktów, a\n"
    "nowicjusz kupuje więcej wcieleń, więc część różnicy to oni. Liczby sprzed ostatniego strojenia, z UltiGunem za\n"
    "15 punktów jako jedyną bronią na „Króla”, dawały dzisiejszym rozsądnym (600 partii): w jednej rundzie 37.6%,\n"
    "bez kosztów 34.6%, zwycięstwo w turach 18–30 89.5%, ale medianę 21 i potwora, który nikogo nie zrani.\n";

std::string aimTable(const std::vector<Aim>& aims) {
  std::ostringstream out;
  out << "| Cel | Miało być | Było | Jest (przedział 95%) | |\n|---|---|---|---|---|\n";
  for (const Aim& aim : aims) {
    out << "| " << aim.text << " | " << aim.wanted << " | " << aim.before << " | " << aim.found << " | "
        << (aim.reached ? "✓" : "✗") << " |\n";
  }
  out << kBefore;
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
        << monster.armour << " | " << oneDigit(monster.points[kWarrior]) << " | "
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
    "**Rozsądny** waży spodziewane obrażenia i ryzyko ołówkiem na kartce. **Nowicjusz** kupuje to, co\n"
    "brzmi groźnie, oraz od jednego do trzech stopni wcieleń, idzie strefę dalej, gdy było łatwo, a strefę bliżej,\n"
    "gdy bolało (dwie, gdy zostało mu mniej niż pół wytrzymałości); kto stracił wcielenie albo stoi przed „Tronem\n"
    "Królów”, rusza dalej dopiero po dwóch łatwych walkach z rzędu. **Chciwy** rozgrywa każdą walkę w głowie, nim ją\n"
    "wybierze. **Hazardzista** ciągnie do „Pandorii” i do „Tronu Królów”, nim przyjdzie pora. Rozsądny waży się na\n"
    "tym więcej, im więcej ma rywali: w czwórkę rany liczy mało, a śmierć, po której zostaje zapas, jeszcze mniej.\n"
    "Na „Pandorię” ma ochotę co drugą wizytę, ale idzie tylko zdrowy, z zapasowym wcieleniem i gdy wygląda ona na\n"
    "wartą ponad 0.61 najlepszego wyboru.\n"
    "Samotny odwleka „Tron” najdłużej, a partia, która po 60 turach trwa, liczy się jako nierozstrzygnięta.\n\n"
    "W nawiasach stoją przedziały, w których z ufnością 95% leży prawdziwa wartość.\n\n";

const char* const kRules =
    "\n## Z czym liczby nie wygrają\n\n"
    "Niektóre rzeczy rozstrzygają zasady, a nie liczby w plikach:\n\n"
    "- Premia Strzelca (+55% do broni strzeleckich) jest pokazywana, ale do obrażeń się nie liczy. Strzelec gra więc\n"
    "  jak bohater bez klasy, a Satrapa jak Strzelec z czterema punktami więcej: różnica między nimi mówi, ile znaczy\n"
    "  dobry początek.\n"
    "- Ryzykant dostaje potrójne punkty i nawet z tym, co przepada, rośnie najszybciej. Nagrody potworów leżą na ogół\n"
    "  tuż nad połówką, bo wtedy zaokrąglanie najbardziej pomaga pozostałym.\n"
    "  Hamują go działy sklepu (co druga wizyta pozwala rozwijać cechy, co trzecia kupić broń) i to, że na broń\n"
    "  droższą niż łup z jednej walki nie uzbiera.\n"
    "- Berserker uderza w rundzie dwa razy, więc każda broń biała jest w jego ręku dwiema.\n"
    "- Czarownik odzyskuje w rundzie od 0 do 3 punktów magii, zależnie od regeneracji, którą musi najpierw kupić;\n"
    "  z początku gra więc jak bohater bez klasy.\n"
    "- Nagrodę liczy się tylko z kości ataku i pancerza; stały dodatek i wytrzymałość potwora nic nie dają. Grupa\n"
    "  płaci za liczebność, więc w każdej strefie trafia się łup większy od innych.\n"
    "- Nóż i Łuk ma od początku każdy, więc nie trzeba ich kupować; można je za to sprzedać przy tworzeniu bohatera.\n"
    "- Broń biała doskonali się w użyciu (do ponad 100% premii), dlatego stara, wyćwiczona broń długo wygrywa z nową.\n"
    "- Średnie obrażenia na ekranie przygotowań zaokrąglają średnią jednej kości. Potwory rzucają więc kośćmi o\n"
    "  nieparzystej liczbie ścian: ich średnia jest całkowita, a pokazana liczba dokładna.\n";

const char* const kSearch =
    "\n## Skąd te liczby\n\n"
    "Z prób: każdy wiersz [szukanie.csv](balans/szukanie.csv) to jeden zestaw liczb, rozegrany przez czterech\n"
    "rozsądnych, z innymi ziarnami niż partie tego pliku. Do zestawu 33 kręcono całymi grupami liczb, a gracze byli\n"
    "ostrożniejsi; od zestawu 100 potwory przesuwano pojedynczo (`simulation/search.sh settle`): w każdej strefie,\n"
    "kto płaci więcej, robił się groźniejszy, a strefa zbyt oblegana albo zbyt bezpieczna trudniejsza. Między\n"
    "kolejnymi seriami, jak przed zestawem 156, zmieniano ręcznie to, co wyszło źle: tam skrócono życie potworów\n"
    "i ułatwiono początek. Na koniec ruszano po kilka pojedynczych liczb (`simulation/search.sh climb`): zmiana\n"
    "zostawała, gdy w trzech seriach partii była bliżej celów. Co zostało, stoi we\n"
    "[wspinaczka.csv](balans/wspinaczka.csv), z wynikiem w partiach, które o niczym nie rozstrzygały.\n"
    "Pomogły: jedna szeroka kość zamiast stałego dodatku (śmierć zdarza się, choć zwykła walka kosztuje mało), od\n"
    "ósmej strefy grupy z większym dodatkiem niż samotnicy obok, nagrody tuż nad połówką punktu, ogień przenoszony\n"
    "przez UltiGun, a potem, z dwustu losowych zestawów po 300 partii, słabsze ostrza, mocniejsze działa i grupy na\n"
    "dworze „Króla”, które sprowadziły Berserkera między innych.\n\n"
    "Potem zajęto się końcem partii. „Król” stoi na przedostatnim miejscu listy, więc na „Tronie” spotyka się go co\n"
    "trzeci raz; jego pancerz przebijają tylko najcięższe ciosy, a broń, która je zadaje, kosztuje więcej, niż\n"
    "Ryzykant przynosi zwykle z jednej walki. Kupi ją dopiero, gdy pokona bogatą grupę, a sklep zaraz potem otworzy\n"
    "dział broni. Potrzeba było obu rzeczy naraz, co pokazuje [cena-ultiguna.csv](balans/cena-ultiguna.csv) (po 600\n"
    "partii z ówczesnymi liczbami, innymi tylko w UltiGunie i „Królu”): za 10 punktów Ryzykant wygrywa 24 partie na\n"
    "sto i co piąta kończy się przed turą 18, za 15 wygrywa 10, za 15 z cienkim pancerzem „Króla” znów 23. Sama cena\n"
    "i sam pancerz nie pomagały też wcześniej; czego jeszcze próbowano, by wyrównać klasy, pokazuje\n"
    "[klasy-proby.csv](balans/klasy-proby.csv), po jednej zmianie w wierszu, z dawnymi liczbami i ostrożniejszymi\n"
    "graczami. Resztę poprawiano ręcznie, po jednej lub kilka liczb, w jakichś stu pięćdziesięciu zestawach po 800 do\n"
    "2400 partii z innymi ziarnami niż partie tego pliku; ich dziennika tu nie ma.\n"
    "O wielu rzeczach rozstrzyga jeden próg: w jednej z tych prób „Zombi z Kolejki” o szybkości 4 zamiast 9 dały\n"
    "53 walki na sto w jednej rundzie zamiast 39.\n\n"
    "Tak powstał jednak próg z jedną furtką: 99 zwycięzców na stu przychodziło z UltiGunem. Dlatego tyle samo co on\n"
    "kosztują dziś Rózgacz, Oczożłop i Reaper Cannon, a każda z tych broni uderza dość ciężko. Próg został, a drogę\n"
    "przez niego wybiera się samemu.\n\n"
    "Gracze też się uczyli. Rozsądny liczył granat za ćwierć rzeczy trwałej, a czar, który tylko odwleka przegraną,\n"
    "za pomoc. Komu odmówiono czaru „BullShots”, ten wygrywał więc o 8.8 ±3.2 partii na sto częściej niż ten, kto\n"
    "go kupił, a bez granatu o 5.5 ±2.7 (8000 partii z poprzednimi liczbami). Gracz niemal taki jak dzisiejszy\n"
    "(moździerz liczył za ćwierć rzeczy trwałej, Zasysacz za połowę) wygrał z poprzednim przy wspólnym stole\n"
    "59.9 ±1.8 partii na sto: 3000 partii z poprzednimi liczbami, każdy stół dwa razy, z zamianą miejsc. Po tej\n"
    "zmianie liczby dobrano od nowa, w jakichś stu zestawach po 1200 do 2400 partii. Pierwsze sprawozdanie z ziarnem\n"
    "tego pliku pokazało dwie klasy i „Pandorię” tuż za progiem; odjęto potem punkt Pistoletowi, co sprawdzono\n"
    "z innymi ziarnami, i przesunięto próg pokusy z 0.607 na 0.61 najlepszego wyboru, po trzech próbach z tym samym\n"
    "ziarnem.\n\n"
    "Śmierci przybyło razem ze śmiałością: przy wspólnym stole, jeszcze z poprzednimi liczbami, gracze, dla których\n"
    "stracone wcielenie waży dwadzieścia pięć razy mniej, wygrali 736 partii, a sześć razy mniej, 762, czyli żadnej\n"
    "różnicy nie dowiedziono (47–52%); ginęli za to prawie dwa razy częściej.\n";

// What a dear weapon adds to the chance to win.
std::string dearTable(const Knowledge& known, const Study& study) {
  constexpr int kHeroes = 400;
  std::ostringstream out;
  out << "\n| Droga broń | Szansa wygranej od 6. strefy wobec najlepszej tańszej, w pkt. proc. (95%) |\n|---|---|\n";
  for (const WeaponWorth& worth : worthOfDearWeapons(known, study.games, kHeroes)) {
    out << "| " << known.weapons[static_cast<std::size_t>(worth.weapon)].name << " | "
        << oneDigit(100 * worth.gain.value()) << " ±" << oneDigit(100 * worth.gain.margin()) << " |\n";
  }
  out << "\nLiczone ołówkiem dla bohaterów, którzy właśnie pierwszy raz wybierają się dalej niż do piątej strefy; "
         "każdy\n"
         "ma w ręku tylko tę jedną broń, a najlepszą tańszą dobiera się do niego z osobna.\n";
  return out.str();
}

// The goods without which those who wanted them win more, beyond what chance explains.
std::string overratedGoods(const Knowledge& known, const Study& study) {
  std::string names;
  for (const Denial& denial : study.denials) {
    if (denial.loss() >= -denial.margin()) continue;
    names += (names.empty() ? "„" : ", „") + offerName(known, denial.place) + "”";
  }
  return names;
}

// What a good is worth: how often those win who wanted it and got it, and those to whom it was denied.
std::string denialTable(const Knowledge& known, const Study& study) {
  if (study.denials.empty()) return "";
  std::ostringstream out;
  out << "\n| Rzecz | Chce jej, na 100 bohaterów | Kupił: wygrywa na 100 partii | Odmówiono mu: wygrywa | Różnica "
         "(95%) "
         "|\n|---|---|---|---|---|\n";
  for (const Denial& denial : study.denials) {
    out << "| " << offerName(known, denial.place) << " | " << oneDigit(100 * denial.wanted.value()) << " | "
        << oneDigit(100 * denial.with.value()) << " | " << oneDigit(100 * denial.without.value()) << " | "
        << oneDigit(denial.loss()) << " ±" << oneDigit(denial.margin()) << " |\n";
  }
  out << "\nDwom z trzech bohaterów los odmawia jednej z tych rzeczy; dowiadują się o tym, gdy pierwszy raz po nią\n"
         "sięgną, i wydają punkty na co innego. Porównuje się tylko tych, którzy po nią sięgnęli. Gdy przedział\n"
         "obejmuje zero, liczby nie rozstrzygają, czy warto.\n";
  const std::string overrated = overratedGoods(known, study);
  if (!overrated.empty()) {
    out << "Rozsądni kupują na własną szkodę, bo wyceniają za wysoko: " << overrated
        << ". Kto ich nie dostał, wygrywa częściej.\n";
  }
  return out.str();
}

// How long an evening is, by what a person takes for a visit to the shop and for a round.
std::string minutesTable(const Study& study) {
  constexpr double kShopMinutes = 1;
  constexpr double kRoundMinutes = 0.15;
  std::ostringstream out;
  out << "| Gracze | Zwykle (mediana) | Co dziesiąta krócej niż | Co dziesiąta dłużej niż |\n|---|---|---|---|\n";
  for (int players = 1; players <= 4; ++players) {
    const auto& games = players == 4 ? study.games : study.smaller[static_cast<std::size_t>(players - 1)];
    std::vector<int> minutes;
    for (const GameRecord& game : games) {
      double sum = 0;
      for (const TurnRecord& turn : game.turns) sum += kShopMinutes + kRoundMinutes * turn.rounds;
      minutes.push_back(static_cast<int>(sum + 0.5));
    }
    std::sort(minutes.begin(), minutes.end());
    out << "| " << players << " | " << quantile(minutes, 0.5) << " min | " << quantile(minutes, 0.1) << " min | "
        << quantile(minutes, 0.9) << " min |\n";
  }
  out << "\nLiczone po minucie na wizytę w sklepie z przygotowaniem i po 9 sekund na rundę walki.\n";
  return out.str();
}

const char* const kDice =
    "\n## Kość tej gry\n\n"
    "Skrajne ścianki wypadają tu dwa razy rzadziej niż każda inna. Na k6 jedynka i szóstka mają po 10%, pozostałe po\n"
    "20%; na k4 skrajne mają po 16,7%, środkowe po 33,3%; na k30 jedynka wypada raz na 58 rzutów. Średnia jest taka\n"
    "sama jak zwykłej kości, ale rozrzut mniejszy: odchylenie k6 wynosi 1,52 zamiast 1,71. Kto liczy na szóstkę,\n"
    "przelicza się o połowę; kto boi się granatu we własnych rękach, może się bać o połowę mniej.\n";

// The options that make the same study again, as far as they differ from the usual ones.
std::string optionsOf(const StudySetup& setup) {
  const StudySetup usual;
  std::string options;
  const auto tell = [&options](const char* name, auto value, auto known) {
    if (value != known) options += std::string(" ") + name + " " + std::to_string(value);
  };
  tell("--games", setup.games, usual.games);
  tell("--smaller", setup.smaller, usual.smaller);
  tell("--newcomers", setup.newcomers, usual.newcomers);
  tell("--rivalries", setup.rivalries, usual.rivalries);
  tell("--denials", setup.denials, usual.denials);
  tell("--trials", setup.trials, usual.trials);
  tell("--seed", setup.seed, usual.seed);
  return options;
}

std::string howTo(const DataFiles& data, const Study& study) {
  std::ostringstream out;
  out << kSearch << "\n## Jak to powtórzyć\n\nJedno polecenie, z głównego folderu gry:\n\n"
      << "    simulation/report.sh" << optionsOf(study.setup) << "\n\n"
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
  out << adviceText(known, study, tallies, measure(study.games));
  out << "\n## Klasy\n\n![Udział klas w zwycięstwach](balans/klasy.svg)\n\n"
      << classTable(known, study) << "\n## Długość partii\n\n![Długość partii](balans/dlugosc.svg)\n"
      << "\n### Wieczór w minutach\n\n"
      << minutesTable(study) << kDice
      << "\n## Dokąd iść\n\n![Strefy według tury](balans/strefy.svg)\n\n![Punkty według tury](balans/punkty.svg)\n"
      << "\n## Co kupować\n\n![Bronie](balans/bronie.svg)\n\n![Czary, sprzęt i zapasy](balans/czary.svg)\n\n"
      << weaponTable(known, tallies) << dearTable(known, study) << denialTable(known, study)
      << "\n## Od czego się ginie\n\n![Śmierci](balans/smierci.svg)\n\n"
      << monsterTable(known, tallies) << kRules << howTo(data, study);
  return out.str();
}

std::string csv(const Study& study) {
  std::ostringstream out;
  out << "game,seed,player,class,mind,won,winning_turn,fights,deaths,points_earned\n";
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
          << kMindWords[static_cast<std::size_t>(game.seats[s].seat.mind)] << ',' << won << ','
          << (won ? game.winnerTurn : 0) << ',' << own.fights << ',' << own.deaths << ',' << own.points << '\n';
    }
  }
  return out.str();
}

std::string json(const DataFiles& data, const Knowledge& known, const Study& study, const Tallies& tallies) {
  std::ostringstream out;
  out << "{\n  \"fingerprint\": \"" << fingerprint(data) << "\",\n  \"games\": " << study.games.size()
      << ",\n  \"seed\": " << study.setup.seed << ",\n  \"aims\": [\n";
  const auto aims = allAims(known, study, tallies);
  for (std::size_t i = 0; i < aims.size(); ++i) {
    out << "    {\"aim\": \"" << aims[i].text << "\", \"wanted\": \"" << aims[i].wanted << "\", \"found\": \""
        << aims[i].found << "\", \"met\": " << (aims[i].reached ? "true" : "false") << "}"
        << (i + 1 < aims.size() ? "," : "") << "\n";
  }
  out << "  ],\n  \"classes\": {";
  const auto shares = classShares(study.games);
  for (std::size_t i = 0; i < kClasses; ++i) {
    out << (i > 0 ? ", " : "") << "\"" << kClassTable[i].caption << "\": " << shares[i];
  }
  out << "},\n  \"bought_in_100_careers\": {";
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
