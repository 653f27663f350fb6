#include "simulation/report/aims.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "simulation/report/worth.h"

namespace brolgan::simulation {

namespace {

constexpr int kFirstGear = kFirstSpell + kSpells;
constexpr int kFirstSupply = kFirstGear + kGear;
constexpr int kClimbZones = 10;

std::string withPercent(double value) { return oneDigit(value) + "%"; }

// "43.1% (40.2–46.0)"
std::string withInterval(const Share& share) {
  return withPercent(100 * share.value()) + " (" + oneDigit(100 * share.low()) + "–" + oneDigit(100 * share.high()) +
         ")";
}

Aim lowestShare(const char* text, double wanted, const Study& study, int FirstFights::*wins) {
  Share lowest{1, 1};
  int worst = 0;
  for (int i = 0; i < kClasses; ++i) {
    const FirstFights& fights = study.firstFights[static_cast<std::size_t>(i)];
    const Share share{static_cast<double>(fights.*wins), static_cast<double>(fights.tries)};
    if (i > 0 && share.value() >= lowest.value()) continue;
    lowest = share;
    worst = i;
  }
  const std::string name = kClassTable[static_cast<std::size_t>(worst)].caption;
  return {text, "≥ " + withPercent(wanted), withInterval(lowest) + " (najsłabszy: " + name + ")",
          100 * lowest.value() >= wanted};
}

Aim classAim(const Study& study) {
  const auto shares = classShares(study.games);
  const auto [low, high] = std::minmax_element(shares.begin(), shares.end());
  const auto inside = std::count_if(shares.begin(), shares.end(), [](double x) { return x >= 0.06 && x <= 0.15; });
  const auto decided = static_cast<double>(winningTurns(study.games).size());
  const auto told = [&shares, decided](const double* share) {
    return withInterval({*share * decided, decided}) + " " +
           kClassTable[static_cast<std::size_t>(share - shares.data())].caption;
  };
  return {"Klasy, które wygrywają 6–15 ze 100 partii", "8 z 10",
          std::to_string(inside) + " z 10; od " + told(low) + " do " + told(high), inside >= 8,
          "7 z 10; 3.7% do 21.1%"};
}

Aim rivalryAim(const Rivalry& rivalry) {
  const double ratio = rivalry.others > 0 ? static_cast<double>(rivalry.sensible) / rivalry.others : rivalry.sensible;
  return {"Rozsądny przeciw nowicjuszowi (zwycięstwa przy wspólnym stole)", "≥ 2 : 1",
          std::to_string(rivalry.sensible) + " : " + std::to_string(rivalry.others), ratio >= 2};
}

Aim zoneAim(const Tallies& tallies) {
  const auto shares = favours(tallies);
  const auto least = std::min_element(shares.begin(), shares.end());
  const auto& zone = kZones[static_cast<std::size_t>(least - shares.begin())];
  return {"Każda z dziesięciu kolejnych stref bywa wybierana", "≥ 5% w jakiejś turze",
          withPercent(*least) + " (" + zone.caption + ")", *least >= 5};
}

Aim mostAim(const char* text, const Share& share, double most, const char* before) {
  return {text, "≤ " + withPercent(most), withInterval(share), 100 * share.value() <= most, before};
}

Aim leastAim(const char* text, const Share& share, double least, const char* before) {
  return {text, "≥ " + withPercent(least), withInterval(share), 100 * share.value() >= least, before};
}

Aim deathAim(const Measures& all) {
  constexpr std::size_t kThird = 2;
  int inside = 0;
  Share least = all.zones[kThird].deaths;
  Share most = least;
  for (std::size_t zone = kThird; zone < kClimbZones; ++zone) {
    const Share& deaths = all.zones[zone].deaths;
    inside += deaths.value() >= 0.02 && deaths.value() <= 0.06 ? 1 : 0;
    if (deaths.value() < least.value()) least = deaths;
    if (deaths.value() > most.value()) most = deaths;
  }
  return {
      "Śmierci na 100 walk w strefach od 3. do 10.", "2–6 w każdej",
      "od " + withInterval(least) + " do " + withInterval(most) + "; w przedziale " + std::to_string(inside) + " z 8",
      inside == 8, "do 2.4"};
}

Aim followAim(const Knowledge& known, const Measures& all) {
  int reached = 0;
  double least = 1;
  for (int zone = 0; zone < kClimbZones; ++zone) {
    const double found = rewardFollowsDanger(known, all, zone);
    reached += found >= 0.6 ? 1 : 0;
    least = std::min(least, found);
  }
  return {"Nagroda idzie za niebezpieczeństwem (korelacja rang w strefie)", "≥ 0.6 w każdej",
          "najmniej " + oneDigit(least) + "; spełniona w " + std::to_string(reached) + " z 10", reached == kClimbZones};
}

Aim harmlessAim(const Knowledge& known, const Measures& all) {
  const auto harmless = harmlessMonsters(known, all);
  std::string numbers;
  for (const int monster : harmless) numbers += (numbers.empty() ? ": nr " : ", ") + std::to_string(monster + 1);
  return {"Potwory od 3. strefy, które nie zranią pancerza tam zwykłego", "0",
          std::to_string(harmless.size()) + numbers, harmless.empty()};
}

Aim payAim(const Measures& all) {
  const double ratio = all.wisePay.value() > 0 ? all.gamblePay.value() / all.wisePay.value() : 0;
  const double margin = all.wisePay.value() > 0 ? all.gamblePay.margin() / all.wisePay.value() : 0;
  return {"„Pandoria” płaci tyle, co mądry wybór w tej samej turze", "co najmniej 100% w przedziale",
          oneDigit(100 * ratio) + "% (±" + oneDigit(100 * margin) + ")", ratio + margin >= 1};
}

Aim dearAim(const Knowledge& known, const Study& study) {
  constexpr int kHeroes = 400;
  const auto worths = worthOfDearWeapons(known, study.games, kHeroes);
  const auto paying = std::count_if(worths.begin(), worths.end(), [](const WeaponWorth& worth) {
    return worth.gain.value() - worth.gain.margin() > 0;
  });
  const auto least = std::min_element(worths.begin(), worths.end(), [](const WeaponWorth& a, const WeaponWorth& b) {
    return a.gain.value() < b.gain.value();
  });
  if (least == worths.end()) return {"Na drogą broń warto czekać", "każda", "brak drogich broni", false};
  return {"Na drogą broń warto czekać (szansa wygranej od 6. strefy)", "każda ponad 0 pkt. proc.",
          std::to_string(paying) + " z " + std::to_string(worths.size()) + "; najmniej " +
              oneDigit(100 * least->gain.value()) + " ±" + oneDigit(100 * least->gain.margin()) + " (" +
              known.weapons[static_cast<std::size_t>(least->weapon)].name + ")",
          paying == static_cast<std::ptrdiff_t>(worths.size())};
}

Aim denialAim(const Study& study) {
  int proven = 0;
  int fewer = 0;
  for (const Denial& denial : study.denials) {
    fewer += denial.loss() > 0 ? 1 : 0;
    proven += denial.loss() > denial.margin() ? 1 : 0;
  }
  const auto all = static_cast<int>(study.denials.size());
  return {"Bez czaru, sprzętu, zapasu wygrywa się rzadziej", "każdy, z przedziałem",
          "rzadziej bez " + std::to_string(fewer) + " z " + std::to_string(all) + ", dowiedzione przy " +
              std::to_string(proven),
          proven == all};
}

Share endedShare(const std::vector<GameRecord>& games) {
  Share ended;
  for (const GameRecord& game : games) ended.add(game.winner >= 0);
  return ended;
}

Aim newcomerAim(const std::vector<GameRecord>& games) {
  const int median = quantile(winningTurns(games), 0.5);
  const Share ended = endedShare(games);
  return {"Partie czterech nowicjuszy zakończone zwycięstwem", "≥ 60%, mediana ≤ 40",
          withInterval(ended) + ", mediana " + std::to_string(median),
          ended.value() >= 0.6 && median > 0 && median <= 40, "0% (naiwni)"};
}

Aim wonGamblesAim(const Share& won) {
  return {"Wygrane walki w „Pandorii”", "70–85%", withInterval(won), won.value() >= 0.7 && won.value() <= 0.85, "94%"};
}

Aim throneAim(const Tallies& tallies) {
  return {"„Tron Królów” nie dla młodych (przed turą 12)", "najwyżej jedna walka na 2000",
          std::to_string(tallies.earlyThrones) + " z " + std::to_string(tallies.allTurns),
          tallies.earlyThrones <= tallies.allTurns / 2000};
}

Aim dominanceAim(const Knowledge& known) {
  const auto dominated = dominatedWeapons(known);
  std::string names;
  for (const Dominated& weapon : dominated) names += " " + weapon.weapon + " (" + weapon.by + ")";
  return {"Żadna broń nie jest zdominowana", "0", std::to_string(dominated.size()) + names, dominated.empty()};
}

// The two weapons that every hero has from the start are not counted.
bool isBought(int place) { return place != kFirstWeapon && place != kFirstWeapon + kMelees; }

// The lower end of the interval may lie so far below what is wanted.
constexpr double kMargin = 0.5;

Aim purchaseAim(const char* text, double wanted, int from, int to, const Knowledge& known, const Tallies& tallies,
                const char* before) {
  double least = 100;
  int worst = from;
  for (int place = from; place < to; ++place) {
    if (!isBought(place) || offerName(known, place).empty()) continue;
    const double share = tallies.boughtShare(place);
    if (share >= least) continue;
    least = share;
    worst = place;
  }
  const Share share{static_cast<double>(tallies.bought[static_cast<std::size_t>(worst)]),
                    static_cast<double>(tallies.careers)};
  const bool reached = least >= wanted && 100 * share.low() > wanted - kMargin;
  return {text, "≥ " + withPercent(wanted), withInterval(share) + " " + offerName(known, worst), reached, before};
}

Aim alternationAim(const Knowledge& known) {
  int longest = 0;
  int run = 0;
  for (const Monster& monster : known.monsters) {
    run = monster.count > 1 ? 0 : run + 1;
    longest = std::max(longest, run);
  }
  return {"Grupy i samotnicy na przemian", "najwyżej 3 samotników z rzędu", std::to_string(longest), longest <= 3};
}

}  // namespace

std::string oneDigit(double value) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.1f", value);
  return text.data();
}

std::string offerName(const Knowledge& known, int place) {
  if (place < kFirstWeapon) return kStatisticTable[static_cast<std::size_t>(place)].name;
  if (place < kFirstSpell) return known.weapons[static_cast<std::size_t>(place - kFirstWeapon)].name;
  if (place < kFirstGear) {
    const SpellRow& spell = kSpellTable[static_cast<std::size_t>(place - kFirstSpell)];
    return spell.forSale ? spell.name : "";
  }
  if (place < kFirstSupply) {
    const GearRow& gear = kGearTable[static_cast<std::size_t>(place - kFirstGear)];
    return gear.forSale ? gear.name : "";
  }
  return kSupplyTable[static_cast<std::size_t>(place - kFirstSupply)].name;
}

std::vector<Aim> firstFightAims(const Study& study) {
  return {lowestShare("Pierwsza walka świeżego bohatera w „Jaskini małych”", 95, study, &FirstFights::fresh),
          lowestShare("To samo bez wydania ani jednego punktu", 75, study, &FirstFights::bare)};
}

std::vector<Aim> lengthAims(const Study& study) {
  const auto turns = winningTurns(study.games);
  Share inside;
  for (const int turn : turns) inside.add(turn >= 18 && turn <= 30);
  const int middle = quantile(turns, 0.5);
  const int first = turns.empty() ? 0 : turns.front();
  return {leastAim("Zwycięstwo w turach 18–30", inside, 88, "79.1%"),
          {"Mediana tury zwycięstwa", "22–24", std::to_string(middle), middle >= 22 && middle <= 24, "25"},
          {"Najszybsza partia", "po turze 8", "tura " + std::to_string(first), first > 8, "tura 12"},
          leastAim("Partie czterech graczy zakończone zwycięstwem", endedShare(study.games), 99, "99.3%")};
}

std::vector<Aim> tensionAims(const Knowledge& known, const Study& study, const Measures& all) {
  const std::string busiest = kZones[static_cast<std::size_t>(all.busiestZone)].caption;
  return {
      mostAim("Walki rozstrzygnięte w jednej rundzie", all.oneRound, 40, "63%"),
      mostAim("Walki, które nic nie kosztują", all.costless, 45, "75%"),
      deathAim(all),
      leastAim("Partie trzech graczy zakończone zwycięstwem", endedShare(study.smaller[2]), 98, "96%"),
      leastAim("Partie dwóch graczy zakończone zwycięstwem", endedShare(study.smaller[1]), 95, "90%"),
      leastAim("Partie samotnika zakończone zwycięstwem", endedShare(study.smaller[0]), 85, "63%"),
      newcomerAim(study.newcomers),
      {"Udział jednej strefy w turach", "≤ 18%",
       withInterval({all.busiest * all.gambles.whole, all.gambles.whole}) + " " + busiest, all.busiest <= 0.18, "26%"},
      followAim(known, all),
      leastAim("Tury spędzone w „Pandorii”", all.gambles, 3, "1.2%"),
      wonGamblesAim(all.gamblesWon),
      payAim(all),
      harmlessAim(known, all)};
}

std::vector<Aim> allAims(const Knowledge& known, const Study& study, const Tallies& tallies) {
  std::vector<Aim> aims = firstFightAims(study);
  for (const Aim& aim : lengthAims(study)) aims.push_back(aim);
  aims.push_back(classAim(study));
  for (const Rivalry& rivalry : study.rivalries) {
    if (rivalry.other == MindKind::newcomer) aims.push_back(rivalryAim(rivalry));
  }
  const Measures all = measure(study.games);
  for (const Aim& aim : tensionAims(known, study, all)) aims.push_back(aim);
  aims.push_back(zoneAim(tallies));
  aims.push_back(throneAim(tallies));
  aims.push_back(dominanceAim(known));
  aims.push_back(
      purchaseAim("Każda broń bywa kupowana", 3, kFirstWeapon, kFirstSpell, known, tallies, "3.1% (Marker)"));
  aims.push_back(
      purchaseAim("Każdy czar, sprzęt i zapas bywa kupowany", 5, kFirstSpell, kOfferPlaces, known, tallies, "24.6%"));
  aims.push_back(dearAim(known, study));
  if (!study.denials.empty()) aims.push_back(denialAim(study));
  aims.push_back(alternationAim(known));
  return aims;
}

}  // namespace brolgan::simulation
