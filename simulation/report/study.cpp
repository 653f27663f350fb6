#include "simulation/report/study.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace brolgan::simulation {

namespace {

constexpr std::uint64_t kRivalSeed = 0x1000;
constexpr std::uint64_t kTrialSeed = 0x2000;
constexpr std::uint64_t kSmallerSeed = 0x4000;
constexpr std::uint64_t kNewcomerSeed = 0x5000;
constexpr std::uint64_t kDenialSeed = 0x6000;

std::function<void(int)> named(const Progress& progress, const char* what, int all) {
  if (!progress) return {};
  return [&progress, what, all](int done) { progress(what, done, all); };
}

bool winsFirstFight(const DataFiles& data, const Knowledge& known, const GameSetup& setup) {
  const GameRecord game = playGame(data, known, setup);
  return !game.turns.empty() && game.turns.front().won;
}

Rivalry playRivalry(const DataFiles& data, const Knowledge& known, MindKind other, const StudySetup& setup,
                    const Progress& progress) {
  Rivalry rivalry{other, setup.rivalries};
  const auto table = [&](int i) {
    const auto seed = seedOf(setup.seed + kRivalSeed + static_cast<std::uint64_t>(other), i);
    return randomTable(seed, 4, {MindKind::sensible, other});
  };
  const auto games = playGames(data, known, setup.rivalries, setup.threads, table,
                               named(progress, kMindWords[static_cast<std::size_t>(other)], setup.rivalries));
  for (const GameRecord& game : games) {
    if (game.winner < 0) continue;
    const MindKind winner = game.seats[static_cast<std::size_t>(game.winner)].seat.mind;
    (winner == MindKind::sensible ? rivalry.sensible : rivalry.others) += 1;
  }
  return rivalry;
}

// The places of what can be bought besides steps and weapons.
std::vector<int> goodsForSale() {
  std::vector<int> places;
  for (int i = 0; i < kSpells; ++i) {
    if (kSpellTable[static_cast<std::size_t>(i)].forSale) places.push_back(Offer{Ware::spell, i}.place());
  }
  for (const int i : {kMortar, kSucker}) places.push_back(Offer{Ware::gear, i}.place());
  for (int i = 0; i < kSupplies; ++i) places.push_back(Offer{Ware::supply, i}.place());
  return places;
}

// Chance leaves a third of the seats or so free to buy and denies each other one some good; whether the player
// would ever have wanted it, nobody knows before.
GameSetup tableOfDenials(std::uint64_t seed) {
  static const std::vector<int> goods = goodsForSale();
  constexpr std::size_t kFree = 5;
  GameSetup game = randomTable(seed, 4, {MindKind::sensible});
  std::uint64_t state = seed ^ 0xDE21A150U;
  for (Seat& seat : game.seats) {
    const std::size_t drawn = nextNumber(state) % (goods.size() + kFree);
    if (drawn < goods.size()) seat.denied = goods[drawn];
  }
  return game;
}

// How much of a monster's life a weapon takes in a round, with all that makes weapons differ.
double useOf(const HeroNotes& hero, const Weapon& weapon, int index, const Monster& monster) {
  double harm = pastArmour(blowOf(hero, weapon, index), monster.armour);
  if (weapon.melee && hero.is(kBerserker)) harm *= 2;
  if (weapon.cannon) harm /= 2;
  harm = std::min<double>(harm, monster.life * (weapon.fire ? monster.count : 1.0));
  if (weapon.spread) harm = std::min<double>(harm, monster.life) * monster.count;
  return harm;
}

// Heroes on whom weapons are compared: every class, weak and strong.
std::vector<HeroNotes> measureHeroes() {
  std::vector<HeroNotes> heroes;
  for (int klasa = 0; klasa < kClasses; ++klasa) {
    for (const int step : {1, 3, 5}) {
      HeroNotes hero;
      hero.klasa = klasa;
      hero.steps[kModifier] = step;
      hero.steps[kSpeed] = step;
      heroes.push_back(hero);
    }
  }
  return heroes;
}

bool dominates(const Knowledge& known, std::size_t better, std::size_t worse, const std::vector<HeroNotes>& heroes) {
  const Weapon& a = known.weapons[better];
  const Weapon& b = known.weapons[worse];
  // A staff leaves the cast free, and "UltiGun" and ammunition go their own ways.
  if (a.price > b.price || (b.staff && !a.staff) || (a.ultimate && !b.ultimate)) return false;
  for (const HeroNotes& hero : heroes) {
    for (const Monster& monster : known.monsters) {
      const double one = useOf(hero, a, static_cast<int>(better), monster);
      if (one + 1e-9 < useOf(hero, b, static_cast<int>(worse), monster)) return false;
    }
  }
  return true;
}

}  // namespace

FirstFights tryFirstFights(const DataFiles& data, const Knowledge& known, int klasa, const StudySetup& setup) {
  FirstFights result{setup.trials, 0, 0};
  std::vector<std::array<bool, 2>> wins(static_cast<std::size_t>(setup.trials));
  inParallel(setup.trials, setup.threads, [&](int i) {
    GameSetup game;
    game.points = setup.points;
    game.mostTurns = 1;
    game.firstZone = 0;
    game.seed = seedOf(setup.seed + kTrialSeed + static_cast<std::uint64_t>(klasa), i);
    auto& won = wins[static_cast<std::size_t>(i)];
    game.seats = {{klasa, MindKind::sensible}};
    won[0] = winsFirstFight(data, known, game);
    game.seats = {{klasa, MindKind::bare}};
    won[1] = winsFirstFight(data, known, game);
  });
  for (const auto& won : wins) {
    result.fresh += won[0] ? 1 : 0;
    result.bare += won[1] ? 1 : 0;
  }
  return result;
}

Study makeStudy(const DataFiles& data, const StudySetup& setup, const Progress& progress) {
  const Knowledge known(data);
  Study study;
  study.setup = setup;
  const auto table = [&](int i) {
    GameSetup game = randomTable(seedOf(setup.seed, i), setup.players, {setup.mind});
    game.points = setup.points;
    return game;
  };
  const auto began = std::chrono::steady_clock::now();
  study.games = playGames(data, known, setup.games, setup.threads, table, named(progress, "games", setup.games));
  study.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
  for (int players = 1; players < 4; ++players) {
    const std::uint64_t run = setup.seed + kSmallerSeed + static_cast<std::uint64_t>(players);
    const auto smaller = [&](int i) { return randomTable(seedOf(run, i), players, {MindKind::sensible}); };
    study.smaller[static_cast<std::size_t>(players - 1)] =
        playGames(data, known, setup.smaller, setup.threads, smaller, named(progress, "smaller tables", setup.smaller));
  }
  const auto beginners = [&](int i) {
    return randomTable(seedOf(setup.seed + kNewcomerSeed, i), 4, {MindKind::newcomer});
  };
  study.newcomers =
      playGames(data, known, setup.newcomers, setup.threads, beginners, named(progress, "newcomers", setup.newcomers));
  if (setup.denials > 0) {
    const auto denying = [&](int i) { return tableOfDenials(seedOf(setup.seed + kDenialSeed, i)); };
    study.denials = denialsOf(
        playGames(data, known, setup.denials, setup.threads, denying, named(progress, "denials", setup.denials)));
  }
  for (const MindKind other : {MindKind::newcomer, MindKind::greedy, MindKind::gambler}) {
    if (setup.rivalries > 0) study.rivalries.push_back(playRivalry(data, known, other, setup, progress));
  }
  for (int klasa = 0; klasa < kClasses; ++klasa) {
    study.firstFights[static_cast<std::size_t>(klasa)] = tryFirstFights(data, known, klasa, setup);
    if (progress) progress("first fights", klasa + 1, kClasses);
  }
  return study;
}

double Denial::margin() const {
  const auto variance = [](const Share& share) {
    return share.whole > 0 ? share.value() * (1 - share.value()) / share.whole : 1;
  };
  return 196 * std::sqrt(variance(with) + variance(without));
}

std::vector<Denial> denialsOf(const std::vector<GameRecord>& games) {
  std::vector<Denial> denials;
  for (const int place : goodsForSale()) {
    Denial denial{place, {}, {}, {}};
    for (const GameRecord& game : games) {
      if (game.winner < 0) continue;
      for (std::size_t i = 0; i < game.seats.size(); ++i) {
        const SeatRecord& seat = game.seats[i];
        const bool wanted = seat.wantedAt[static_cast<std::size_t>(place)] >= 0;
        const bool won = game.winner == static_cast<int>(i);
        if (seat.seat.denied < 0) denial.wanted.add(wanted);
        if (wanted && seat.seat.denied < 0) denial.with.add(won);
        if (wanted && seat.seat.denied == place) denial.without.add(won);
      }
    }
    denials.push_back(denial);
  }
  return denials;
}

std::vector<int> winningTurns(const std::vector<GameRecord>& games) {
  std::vector<int> turns;
  for (const GameRecord& game : games) {
    if (game.winner >= 0) turns.push_back(game.winnerTurn);
  }
  std::sort(turns.begin(), turns.end());
  return turns;
}

int quantile(const std::vector<int>& sorted, double share) {
  if (sorted.empty()) return 0;
  const auto place = static_cast<std::size_t>(share * static_cast<double>(sorted.size() - 1) + 0.5);
  return sorted[place];
}

std::array<double, kClasses> classShares(const std::vector<GameRecord>& games) {
  std::array<double, kClasses> wins{};
  std::array<double, kClasses> seats{};
  double decided = 0;
  double allSeats = 0;
  for (const GameRecord& game : games) {
    for (const SeatRecord& seat : game.seats) {
      seats[static_cast<std::size_t>(seat.seat.klasa)] += 1;
      allSeats += 1;
    }
    if (game.winner < 0) continue;
    decided += 1;
    wins[static_cast<std::size_t>(game.seats[static_cast<std::size_t>(game.winner)].seat.klasa)] += 1;
  }
  for (std::size_t i = 0; i < kClasses; ++i) {
    const double due = seats[i] / allSeats * static_cast<double>(seats.size());
    wins[i] = decided > 0 && due > 0 ? wins[i] / decided / due : 0;
  }
  return wins;
}

std::vector<Dominated> dominatedWeapons(const Knowledge& known) {
  const auto heroes = measureHeroes();
  std::vector<Dominated> found;
  for (std::size_t worse = 0; worse < known.weapons.size(); ++worse) {
    for (std::size_t better = 0; better < known.weapons.size(); ++better) {
      if (better == worse || !dominates(known, better, worse, heroes)) continue;
      found.push_back({known.weapons[worse].name, known.weapons[better].name});
      break;
    }
  }
  return found;
}

// FNV-1a over the bytes of both files.
std::string fingerprint(const DataFiles& data) {
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const std::string* bytes : {&data.weapons, &data.monsters}) {
    for (const char byte : *bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
  }
  std::array<char, 17> text{};
  std::snprintf(text.data(), text.size(), "%016llx", static_cast<unsigned long long>(hash));
  return text.data();
}

}  // namespace brolgan::simulation
