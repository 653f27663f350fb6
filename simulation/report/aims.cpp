#include "simulation/report/aims.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace brolgan::simulation {

namespace {

constexpr int kFirstWeapon = kStatistics;
constexpr int kFirstSpell = kFirstWeapon + kWeapons;
constexpr int kFirstGear = kFirstSpell + kSpells;
constexpr int kFirstSupply = kFirstGear + kGear;
constexpr int kClimbZones = 10;

double percent(double part, double whole) { return whole > 0 ? 100 * part / whole : 0; }

std::string withPercent(double value) { return oneDigit(value) + "%"; }

Aim lowestShare(const char* text, double wanted, const Study& study, int FirstFights::*wins) {
  double lowest = 100;
  int worst = 0;
  for (int i = 0; i < kClasses; ++i) {
    const FirstFights& fights = study.firstFights[static_cast<std::size_t>(i)];
    const double share = percent(fights.*wins, fights.tries);
    if (share < lowest) lowest = share, worst = i;
  }
  const std::string name = kClassTable[static_cast<std::size_t>(worst)].caption;
  return {text, "≥ " + withPercent(wanted), withPercent(lowest) + " (najsłabszy: " + name + ")", lowest >= wanted};
}

Aim classAim(const Study& study) {
  const auto shares = classShares(study.games);
  const auto [low, high] = std::minmax_element(shares.begin(), shares.end());
  const auto name = [&shares](const double* share) {
    return std::string(kClassTable[static_cast<std::size_t>(share - shares.data())].caption);
  };
  return {"Udział klas w zwycięstwach", "6–15%",
          withPercent(*low * 100) + " (" + name(low) + ") do " + withPercent(*high * 100) + " (" + name(high) + ")",
          *low >= 0.06 && *high <= 0.15};
}

Aim rivalryAim(const Rivalry& rivalry) {
  const double ratio = rivalry.others > 0 ? static_cast<double>(rivalry.sensible) / rivalry.others : rivalry.sensible;
  return {"Rozsądny przeciw nowicjuszowi (zwycięstwa przy wspólnym stole)", "≥ 2 : 1",
          std::to_string(rivalry.sensible) + " : " + std::to_string(rivalry.others), ratio >= 2};
}

Aim zoneAim(const Tallies& tallies) {
  double least = 100;
  int worst = 0;
  for (int zone = 0; zone < kClimbZones; ++zone) {
    double best = 0;
    for (int t = 0; t < kShownTurns; ++t) {
      if (tallies.turns[t].fights < tallies.careers / 10) continue;
      best = std::max(best, percent(tallies.zoneByTurn[zone][t], tallies.turns[t].fights));
    }
    if (best < least) least = best, worst = zone;
  }
  return {"Każda z dziesięciu kolejnych stref bywa wybierana", "≥ 5% w jakiejś turze",
          withPercent(least) + " (" + kZones[static_cast<std::size_t>(worst)].caption + ")", least >= 5};
}

Aim gambleAim(const Tallies& tallies) {
  return {"„Pandoria” jest ryzykiem, które czasem się opłaca", "wybierana, rzadko",
          std::to_string(tallies.gambles) + " walk, wygranych " + std::to_string(tallies.gamblesWon),
          tallies.gambles > 0 && tallies.gambles < tallies.allTurns / 20};
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

Aim purchaseAim(const char* text, double wanted, int from, int to, const Knowledge& known, const Tallies& tallies) {
  double least = 100;
  int worst = from;
  for (int place = from; place < to; ++place) {
    if (!isBought(place) || offerName(known, place).empty()) continue;
    const double share = tallies.boughtShare(place);
    if (share < least) least = share, worst = place;
  }
  return {text, "≥ " + withPercent(wanted), withPercent(least) + " (" + offerName(known, worst) + ")", least >= wanted};
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
  const auto inside = std::count_if(turns.begin(), turns.end(), [](int turn) { return turn >= 18 && turn <= 30; });
  const double share = percent(static_cast<double>(inside), static_cast<double>(turns.size()));
  const int middle = quantile(turns, 0.5);
  const int first = turns.empty() ? 0 : turns.front();
  const double ended = percent(static_cast<double>(turns.size()), static_cast<double>(study.games.size()));
  return {{"Zwycięstwo w turach 18–30", "≥ 75%", withPercent(share), share >= 75},
          {"Mediana tury zwycięstwa", "22–25", std::to_string(middle), middle >= 22 && middle <= 25},
          {"Najszybsza partia", "po turze 8", "tura " + std::to_string(first), first > 8},
          {"Partie zakończone zwycięstwem", "≥ 95%", withPercent(ended), ended >= 95}};
}

std::vector<Aim> allAims(const Knowledge& known, const Study& study, const Tallies& tallies) {
  std::vector<Aim> aims = firstFightAims(study);
  for (const Aim& aim : lengthAims(study)) aims.push_back(aim);
  aims.push_back(classAim(study));
  for (const Rivalry& rivalry : study.rivalries) {
    if (rivalry.other == MindKind::newcomer) aims.push_back(rivalryAim(rivalry));
  }
  aims.push_back(zoneAim(tallies));
  aims.push_back(gambleAim(tallies));
  aims.push_back(throneAim(tallies));
  aims.push_back(dominanceAim(known));
  aims.push_back(purchaseAim("Każda broń bywa kupowana", 3, kFirstWeapon, kFirstSpell, known, tallies));
  aims.push_back(purchaseAim("Każdy czar, sprzęt i zapas bywa kupowany", 5, kFirstSpell, kOfferPlaces, known, tallies));
  aims.push_back(alternationAim(known));
  return aims;
}

}  // namespace brolgan::simulation
