#include "simulation/report/advice.h"

#include <algorithm>
#include <sstream>

#include "simulation/report/aims.h"

namespace brolgan::simulation {

namespace {

std::string quoted(const std::string& name) { return "„" + name + "”"; }

std::string percentOf(const Share& share) {
  return oneDigit(100 * share.value()) + "% (" + oneDigit(100 * share.low()) + "–" + oneDigit(100 * share.high()) + ")";
}

const SeatRecord* winnerOf(const GameRecord& game) {
  return game.winner >= 0 ? &game.seats[static_cast<std::size_t>(game.winner)] : nullptr;
}

// The places among some that heroes bought most by a turn, best first, as "name (share%)".
std::string mostBought(const Knowledge& known, const Study& study, int from, int to, int byTurn, int count) {
  std::vector<std::pair<double, int>> shares;
  for (int place = from; place < to; ++place) {
    Share bought;
    for (const GameRecord& game : study.games) {
      for (const SeatRecord& seat : game.seats) {
        const int turn = seat.boughtAt[static_cast<std::size_t>(place)];
        bought.add(turn >= 0 && turn <= byTurn);
      }
    }
    shares.emplace_back(bought.value(), place);
  }
  std::sort(shares.rbegin(), shares.rend());
  std::string words;
  for (int i = 0; i < count; ++i) {
    const auto& [share, place] = shares[static_cast<std::size_t>(i)];
    words += (i == 0 ? "" : ", ") + quoted(offerName(known, place)) + " (" + oneDigit(100 * share) + "%)";
  }
  return words;
}

// The zone chosen most often in some turns.
int favouriteZone(const Tallies& tallies, int from, int to) {
  std::array<int, kZoneCount> visits{};
  for (int turn = from; turn <= to; ++turn) {
    for (std::size_t zone = 0; zone < kZoneCount; ++zone) {
      visits[zone] += tallies.zoneByTurn[zone][static_cast<std::size_t>(turn - 1)];
    }
  }
  return static_cast<int>(std::max_element(visits.begin(), visits.end()) - visits.begin());
}

std::string zoneName(int zone) { return quoted(kZones[static_cast<std::size_t>(zone)].caption); }

int medianOf(std::vector<int> values) {
  std::sort(values.begin(), values.end());
  return quantile(values, 0.5);
}

// The deadliest monsters outside the throne, among those met often enough.
std::string deadliest(const Knowledge& known, const Measures& all, int count) {
  constexpr double kOften = 50;
  std::vector<std::pair<double, std::size_t>> dangers;
  for (std::size_t i = 0; i + 1 < static_cast<std::size_t>(kZones[kThroneZone].OdPotwora); ++i) {
    if (all.monsters[i].deaths.whole >= kOften) dangers.emplace_back(all.monsters[i].deaths.value(), i);
  }
  std::sort(dangers.rbegin(), dangers.rend());
  std::string words;
  for (std::size_t i = 0; i < std::min(dangers.size(), static_cast<std::size_t>(count)); ++i) {
    const std::size_t monster = dangers[i].second;
    words += (i == 0 ? "" : ", ") + quoted(known.monsters[monster].name) + " (" +
             percentOf(all.monsters[monster].deaths) + ")";
  }
  return words;
}

std::string purchaseAdvice(const Knowledge& known, const Study& study) {
  constexpr int kEarly = 3;
  std::ostringstream out;
  out << "**Co kupić.** Do trzeciej tury rozsądni najczęściej mają: z cech "
      << mostBought(known, study, 0, kLives, kEarly, 3) << ", z broni "
      << mostBought(known, study, kFirstWeapon, kFirstSpell, kEarly, 3) << ", z reszty "
      << mostBought(known, study, kFirstSpell, kOfferPlaces, kEarly, 2) << ".";
  std::vector<int> endurance;
  std::vector<int> armour;
  for (const GameRecord& game : study.games) {
    if (const SeatRecord* seat = winnerOf(game)) {
      endurance.push_back(seat->hero.fullEndurance());
      armour.push_back(seat->hero.value(kArmour));
    }
  }
  out << " Zwycięzca kończy zwykle z wytrzymałością " << medianOf(endurance) << " i pancerzem " << medianOf(armour)
      << ".\n\n";
  return out.str();
}

std::string wayAdvice(const Tallies& tallies) {
  std::ostringstream out;
  out << "**Dokąd iść.** W turach 1–4 najczęściej wybierana jest " << zoneName(favouriteZone(tallies, 1, 4))
      << ", w turach 5–9 " << zoneName(favouriteZone(tallies, 5, 9)) << ", w turach 10–14 "
      << zoneName(favouriteZone(tallies, 10, 14)) << ", w turach 15–19 " << zoneName(favouriteZone(tallies, 15, 19))
      << ". W turze 5 walka przynosi średnio "
      << oneDigit(tallies.turns[4].points / std::max(1, tallies.turns[4].fights)) << " punktu, w turze 15 "
      << oneDigit(tallies.turns[14].points / std::max(1, tallies.turns[14].fights)) << ".\n\n";
  return out.str();
}

// The weapon of the largest mean damage that a hero owns.
int heaviest(const Knowledge& known, const HeroNotes& hero) {
  int best = 0;
  for (int i = 1; i < kWeapons; ++i) {
    const auto mean = [&](int weapon) { return known.weapons[static_cast<std::size_t>(weapon)].damage.mean; };
    if (hero.owned[static_cast<std::size_t>(i)] && mean(i) > mean(best)) best = i;
  }
  return best;
}

// What the king wears, and with which heavy weapons winners come.
std::string kingAdvice(const Knowledge& known, const Study& study) {
  constexpr double kWorthTelling = 0.05;
  std::vector<std::pair<Share, std::string>> arms;
  for (const Weapon& weapon : known.weapons) arms.emplace_back(Share{}, weapon.name);
  for (const GameRecord& game : study.games) {
    if (game.winner < 0) continue;
    const int held = heaviest(known, game.seats[static_cast<std::size_t>(game.winner)].hero);
    for (int i = 0; i < kWeapons; ++i) arms[static_cast<std::size_t>(i)].first.add(i == held);
  }
  std::stable_sort(arms.begin(), arms.end(), [](const auto& a, const auto& b) { return a.first.part > b.first.part; });
  std::string words;
  for (const auto& [share, name] : arms) {
    if (share.value() < kWorthTelling) break;
    words += (words.empty() ? "" : ", ") + quoted(name) + " (" + percentOf(share) + ")";
  }
  const Monster& king = known.withTheKingLast(kMonsters - 1);
  return quoted(king.name) + " nosi pancerz " + std::to_string(king.armour) +
         "; najcięższa broń w rękach zwycięzców to " + words + ".";
}

std::string dangerAdvice(const Knowledge& known, const Study& study, const Measures& all) {
  std::vector<int> first;
  for (const GameRecord& game : study.games) {
    std::array<bool, 4> been{};
    for (const TurnRecord& turn : game.turns) {
      if (turn.zone != kThroneZone || been[static_cast<std::size_t>(turn.player)]) continue;
      been[static_cast<std::size_t>(turn.player)] = true;
      first.push_back(turn.turn);
    }
  }
  std::ostringstream out;
  out << "**Czego się bać.** Poza „Tronem Królów” najczęściej zabijają " << deadliest(known, all, 3) << ". "
      << zoneName(kThroneZone) << ": rozsądny wchodzi tam pierwszy raz około tury " << medianOf(first)
      << ", a śmiercią kończy się " << percentOf(all.zones[kThroneZone].deaths)
      << " tych walk; zapasowe wcielenie kupuje się przedtem. " << zoneName(kPandoria) << ": śmiercią kończy się "
      << percentOf(all.zones[kPandoria].deaths) << " walk. " << kingAdvice(known, study) << "\n";
  return out.str();
}

// What came of all the careers of one class.
struct Careers {
  Share deaths;
  Mean points;
  Mean lost;
  Mean throne;  // 1 for a fight won in the last zone
  std::vector<int> winningTurns;
  std::array<int, kWeapons> held{};
};

void addTurn(Careers& careers, const TurnRecord& turn) {
  if (turn.zone == kThroneZone) {
    careers.throne.add(turn.won ? 1 : 0);
    return;
  }
  careers.deaths.add(!turn.won);
  careers.points.add(turn.won ? turn.earned : 0);
  careers.lost.add(turn.won ? std::max(0, turn.lost()) : turn.enduranceBefore);
}

// The dearest weapon that a hero owns.
int dearest(const Knowledge& known, const HeroNotes& hero) {
  int best = 0;
  for (int i = 0; i < kWeapons; ++i) {
    const auto at = static_cast<std::size_t>(i);
    if (hero.owned[at] && known.weapons[at].price > known.weapons[static_cast<std::size_t>(best)].price) best = i;
  }
  return best;
}

std::array<Careers, kClasses> careersOf(const Knowledge& known, const Study& study) {
  std::array<Careers, kClasses> all;
  for (const GameRecord& game : study.games) {
    for (const TurnRecord& turn : game.turns) {
      const Seat& seat = game.seats[static_cast<std::size_t>(turn.player)].seat;
      addTurn(all[static_cast<std::size_t>(seat.klasa)], turn);
    }
    for (const SeatRecord& seat : game.seats) {
      Careers& careers = all[static_cast<std::size_t>(seat.seat.klasa)];
      ++careers.held[static_cast<std::size_t>(dearest(known, seat.hero))];
      if (&seat == winnerOf(game)) careers.winningTurns.push_back(game.winnerTurn);
    }
  }
  return all;
}

// In which of these figures a class is the best of all, and in which the worst.
std::string strengths(const std::array<std::array<double, kClasses>, 4>& ranks, std::size_t klasa) {
  constexpr std::array kBest = {"zarabia najwięcej", "ginie najrzadziej", "traci najmniej zdrowia",
                                "najpewniejsza w „Tronie Królów”"};
  constexpr std::array kWorst = {"zarabia najmniej", "ginie najczęściej", "traci najwięcej zdrowia",
                                 "najsłabsza w „Tronie Królów”"};
  std::string words;
  const auto say = [&words](const char* word) { words += (words.empty() ? "" : ", ") + std::string(word); };
  for (std::size_t i = 0; i < ranks.size(); ++i) {
    const double own = ranks[i][klasa];
    const auto better = std::count_if(ranks[i].begin(), ranks[i].end(), [own](double x) { return x > own; });
    const auto worse = std::count_if(ranks[i].begin(), ranks[i].end(), [own](double x) { return x < own; });
    if (better == 0) say(kBest[i]);
    if (worse == 0) say(kWorst[i]);
  }
  return words.empty() ? "w niczym pierwsza ani ostatnia" : words;
}

}  // namespace

std::string adviceText(const Knowledge& known, const Study& study, const Tallies& tallies, const Measures& all) {
  return "\n## Rady na pierwszy wieczór\n\n" + purchaseAdvice(known, study) + wayAdvice(tallies) +
         dangerAdvice(known, study, all);
}

std::string classTable(const Knowledge& known, const Study& study) {
  const auto all = careersOf(known, study);
  std::array<std::array<double, kClasses>, 4> ranks{};
  for (std::size_t i = 0; i < kClasses; ++i) {
    ranks[0][i] = all[i].points.value();
    ranks[1][i] = -all[i].deaths.value();
    ranks[2][i] = -all[i].lost.value();
    ranks[3][i] = all[i].throne.value();
  }
  std::ostringstream out;
  out << "| Klasa | Wygrywa zwykle w turze | Punkty na walkę | Śmierci na 100 walk poza „Tronem” "
         "| Traci wytrzymałości na walkę | Wygrane w „Tronie Królów” | Najczęściej kończy z bronią | Na tle innych "
         "|\n|---|---|---|---|---|---|---|---|\n";
  for (std::size_t i = 0; i < kClasses; ++i) {
    const Careers& own = all[i];
    const auto held = std::max_element(own.held.begin(), own.held.end()) - own.held.begin();
    out << "| " << kClassTable[i].caption << " | " << medianOf(own.winningTurns) << " | "
        << oneDigit(own.points.value()) << " ±" << oneDigit(own.points.margin()) << " | "
        << oneDigit(100 * own.deaths.value()) << " (" << oneDigit(100 * own.deaths.low()) << "–"
        << oneDigit(100 * own.deaths.high()) << ") | " << oneDigit(own.lost.value()) << " ±"
        << oneDigit(own.lost.margin()) << " | " << oneDigit(100 * own.throne.value()) << "% ±"
        << oneDigit(100 * own.throne.margin()) << " | " << known.weapons[static_cast<std::size_t>(held)].name << " | "
        << strengths(ranks, i) << " |\n";
  }
  return out.str();
}

}  // namespace brolgan::simulation
