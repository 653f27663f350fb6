#include "simulation/report/measures.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>

namespace brolgan::simulation {

namespace {

constexpr int kThirdZone = 2;

void add(Danger& danger, const TurnRecord& turn) {
  danger.deaths.add(!turn.won);
  danger.oneRound.add(turn.rounds <= 1);
  danger.costless.add(turn.lost() <= 0);
  danger.lost.add(turn.won ? std::max(0, turn.lost()) : turn.enduranceBefore);
}

double pay(const TurnRecord& turn) { return turn.won ? turn.earned : 0; }

// What the visits elsewhere pay at each turn, weighed by how often that turn is one of a gamble.
Mean payElsewhere(const std::vector<GameRecord>& games) {
  std::map<int, Mean> byTurn;
  std::map<int, double> gambles;
  for (const GameRecord& game : games) {
    for (const TurnRecord& turn : game.turns) {
      if (turn.zone == kPandoria) {
        gambles[turn.turn] += 1;
      } else if (turn.zone != kThroneZone) {
        byTurn[turn.turn].add(pay(turn));
      }
    }
  }
  Mean sum;
  for (const auto& [turn, weight] : gambles) {
    const Mean& elsewhere = byTurn[turn];
    if (elsewhere.count <= 0) continue;
    sum.count += weight;
    sum.sum += weight * elsewhere.value();
    sum.squares += weight * elsewhere.squares / elsewhere.count;
  }
  return sum;
}

std::vector<double> ranksOf(const std::vector<double>& values) {
  std::vector<double> ranks(values.size());
  for (std::size_t i = 0; i < values.size(); ++i) {
    double below = 0;
    double equal = 0;
    for (const double other : values) {
      below += other < values[i] ? 1 : 0;
      equal += other == values[i] ? 1 : 0;
    }
    ranks[i] = below + (equal + 1) / 2;
  }
  return ranks;
}

int medianOf(std::vector<int> values) {
  if (values.empty()) return -1;
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

}  // namespace

Measures measure(const std::vector<GameRecord>& games) {
  Measures all;
  std::array<std::vector<int>, kZoneCount> armours;
  std::array<double, kZoneCount> visits{};
  for (const GameRecord& game : games) {
    all.ended.add(game.winner >= 0);
    if (game.winner >= 0) all.inTime.add(game.winnerTurn >= 18 && game.winnerTurn <= 30);
    for (const TurnRecord& turn : game.turns) {
      const auto zone = static_cast<std::size_t>(turn.zone);
      all.oneRound.add(turn.rounds <= 1);
      all.costless.add(turn.lost() <= 0);
      add(all.zones[zone], turn);
      add(all.monsters[static_cast<std::size_t>(turn.monster)], turn);
      armours[zone].push_back(turn.armour);
      visits[zone] += 1;
      all.gambles.add(turn.zone == kPandoria);
      if (turn.zone != kPandoria) continue;
      all.gamblesWon.add(turn.won);
      all.gamblePay.add(pay(turn));
    }
  }
  all.wisePay = payElsewhere(games);
  all.median = quantile(winningTurns(games), 0.5);
  for (std::size_t i = 0; i < kZoneCount; ++i) all.usualArmour[i] = medianOf(armours[i]);
  const auto busiest = std::max_element(visits.begin(), visits.end());
  all.busiestZone = static_cast<int>(busiest - visits.begin());
  all.busiest = *busiest / std::max(1.0, std::accumulate(visits.begin(), visits.end(), 0.0));
  return all;
}

double rankCorrelation(const std::vector<double>& a, const std::vector<double>& b) {
  const auto x = ranksOf(a);
  const auto y = ranksOf(b);
  const double middle = (static_cast<double>(a.size()) + 1) / 2;
  double both = 0;
  double xs = 0;
  double ys = 0;
  for (std::size_t i = 0; i < x.size(); ++i) {
    both += (x[i] - middle) * (y[i] - middle);
    xs += (x[i] - middle) * (x[i] - middle);
    ys += (y[i] - middle) * (y[i] - middle);
  }
  return xs > 0 && ys > 0 ? both / std::sqrt(xs * ys) : 0;
}

double rewardFollowsDanger(const Knowledge& known, const Measures& measures, int zone, int leastMet) {
  std::vector<double> points;
  std::vector<double> lost;
  const Strefa& bounds = kZones[static_cast<std::size_t>(zone)];
  for (int i = bounds.OdPotwora - 1; i < bounds.DoPotwora; ++i) {
    const Danger& danger = measures.monsters[static_cast<std::size_t>(i)];
    if (danger.lost.count < leastMet) continue;
    points.push_back(std::round(known.monsters[static_cast<std::size_t>(i)].points[kWarrior]));
    lost.push_back(danger.lost.value());
  }
  return points.size() < 3 ? 1 : rankCorrelation(points, lost);
}

std::vector<int> harmlessMonsters(const Knowledge& known, const Measures& measures) {
  std::vector<int> found;
  for (const Monster& monster : known.monsters) {
    const int hardest = monster.attack.high * monster.attack.dice + monster.attack.plus;
    for (int zone = kThirdZone; zone < kPandoria; ++zone) {
      const bool lives = drawChance(kZones[static_cast<std::size_t>(zone)], monster.number) > 0;
      if (!lives || measures.usualArmour[static_cast<std::size_t>(zone)] < hardest) continue;
      found.push_back(monster.number);
      break;
    }
  }
  return found;
}

}  // namespace brolgan::simulation
