#include "simulation/search/score.h"

#include <algorithm>
#include <cmath>

#include "simulation/report/tallies.h"
#include "simulation/report/worth.h"

namespace brolgan::simulation {

namespace {

constexpr std::uint64_t kAloneSeed = 0x4000;
constexpr std::uint64_t kNewcomerSeed = 0x5000;
constexpr int kThirdZone = 2;
constexpr double kWeaponsForSale = 18;

double above(double found, double most, double felt) { return std::max(0.0, found - most) / felt; }
double under(double found, double least, double felt) { return std::max(0.0, least - found) / felt; }
double outside(double found, double least, double most, double felt) {
  return above(found, most, felt) + under(found, least, felt);
}

Term deathTerm(const Measures& all) {
  double miss = 0;
  double worst = 0;
  for (std::size_t zone = kThirdZone; zone < kPandoria; ++zone) {
    const double deaths = 100 * all.zones[zone].deaths.value();
    miss += outside(deaths, 2, 6, 2) / (kPandoria - kThirdZone);
    worst = std::max(worst, deaths);
  }
  return {"deaths", worst, miss * 2};
}

Term rankTerm(const Knowledge& known, const Measures& all) {
  double miss = 0;
  double least = 1;
  for (int zone = 0; zone < kPandoria; ++zone) {
    const double found = rewardFollowsDanger(known, all, zone);
    miss += under(found, 0.6, 0.5) / kPandoria;
    least = std::min(least, found);
  }
  return {"reward_follows_danger", least, miss};
}

// Eight of the ten are to lie in range; the two that are farthest from it count little.
Term classTerm(const std::vector<GameRecord>& games) {
  constexpr std::size_t kSpared = 2;
  constexpr double kSparedWeight = 0.2;
  std::vector<double> misses;
  double most = 0;
  for (const double share : classShares(games)) {
    misses.push_back(outside(100 * share, 6, 15, 10) / 3);
    most = std::max(most, 100 * share);
  }
  std::sort(misses.begin(), misses.end());
  double miss = 0;
  for (std::size_t i = 0; i < misses.size(); ++i) {
    miss += misses[i] * (i + kSpared < misses.size() ? 1 : kSparedWeight);
  }
  return {"classes", most, miss};
}

Term purchaseTerm(const Tallies& tallies) {
  double miss = 0;
  double least = 100;
  for (int i = 0; i < kWeapons; ++i) {
    if (i == 0 || i == kMelees) continue;
    const double share = tallies.boughtShare(kStatistics + i);
    miss += under(share, 3, 3) * 3 / kWeaponsForSale;
    least = std::min(least, share);
  }
  return {"weapons", least, miss};
}

Term harmlessTerm(const Knowledge& known, const Measures& all) {
  const auto count = static_cast<double>(harmlessMonsters(known, all).size());
  return {"harmless", count, count / 3};
}

Term favourTerm(const Tallies& tallies) {
  double miss = 0;
  double least = 100;
  for (const double share : favours(tallies)) {
    miss += under(share, 5, 5);
    least = std::min(least, share);
  }
  return {"zones_chosen", least, miss};
}

Term dearTerm(const Knowledge& known, const std::vector<GameRecord>& games) {
  constexpr int kHeroes = 100;
  double miss = 0;
  double least = 100;
  for (const WeaponWorth& worth : worthOfDearWeapons(known, games, kHeroes)) {
    const double gain = 100 * worth.gain.value();
    miss += under(gain, 0.5, 4);
    least = std::min(least, gain);
  }
  return {"dear_weapons", least, miss};
}

double endedShare(const std::vector<GameRecord>& games) {
  const auto won = std::count_if(games.begin(), games.end(), [](const GameRecord& game) { return game.winner >= 0; });
  return games.empty() ? 0 : static_cast<double>(won) / static_cast<double>(games.size());
}

}  // namespace

double Score::sum() const {
  double all = 0;
  for (const Term& term : terms) all += term.miss;
  return all;
}

Sample playSample(const DataFiles& data, int games, int threads, std::uint64_t seed) {
  const Knowledge known(data);
  const auto play = [&](std::uint64_t run, int count, int players, MindKind mind) {
    const auto table = [=](int i) { return randomTable(seedOf(run, i), players, {mind}); };
    return playGames(data, known, count, threads, table);
  };
  return {play(seed, games, 4, MindKind::sensible), play(seed + kAloneSeed, games / 4, 1, MindKind::sensible),
          play(seed + kNewcomerSeed, games / 4, 4, MindKind::newcomer)};
}

Score scoreOf(const DataFiles& data, const Sample& sample) {
  const Knowledge known(data);
  const Measures all = measure(sample.games);
  const Tallies tallies = tally(sample.games);
  const auto percent = [](double share) { return 100 * share; };
  const double oneRound = percent(all.oneRound.value());
  const double costless = percent(all.costless.value());
  const double inTime = percent(all.inTime.value());
  const double ended = percent(all.ended.value());
  const double alone = percent(endedShare(sample.alone));
  const double gambles = percent(all.gambles.value());
  const double gamblesWon = percent(all.gamblesWon.value());
  const double pay = all.wisePay.value() > 0 ? all.gamblePay.value() / all.wisePay.value() : 0;
  const double early = 2000.0 * tallies.earlyThrones / std::max(1, tallies.allTurns);
  const double first =
      percent(tallies.turns[0].fights > 0 ? 1.0 * tallies.turns[0].deaths / tallies.turns[0].fights : 0);
  const double finished = percent(endedShare(sample.newcomers));
  const int newcomersMedian = quantile(winningTurns(sample.newcomers), 0.5);
  Score score;
  score.terms = {{"one_round", oneRound, above(oneRound, 40, 10)},
                 {"costless", costless, above(costless, 45, 10)},
                 deathTerm(all),
                 {"in_time", inTime, under(inTime, 88, 8)},
                 {"median", static_cast<double>(all.median), outside(all.median, 22, 24, 2)},
                 {"ended", ended, under(ended, 99, 3)},
                 {"ended_alone", alone, under(alone, 85, 12)},
                 {"busiest_zone", percent(all.busiest), above(percent(all.busiest), 18, 5)},
                 rankTerm(known, all),
                 {"gambles", gambles, under(gambles, 3, 3)},
                 {"gambles_pay", pay, under(pay, 1, 0.2)},
                 {"gambles_won", gamblesWon, outside(gamblesWon, 70, 85, 10)},
                 classTerm(sample.games),
                 purchaseTerm(tallies),
                 harmlessTerm(known, all),
                 favourTerm(tallies),
                 dearTerm(known, sample.games),
                 {"newcomers_ended", finished, under(finished, 60, 20)},
                 {"newcomers_median", static_cast<double>(newcomersMedian), above(newcomersMedian, 40, 4)},
                 {"early_thrones", early, above(early, 1, 1)},
                 {"first_deaths", first, above(first, 5, 2)}};
  return score;
}

}  // namespace brolgan::simulation
