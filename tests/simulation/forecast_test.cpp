// What the players foresee of a fight, held against the fight's own screen: the rehearsal must have
// the very distribution of the screen, the reckoning must come near it.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <string>
#include <vector>

#include "fight/fight.h"
#include "rules/handover.h"
#include "simulation/forecasts/rehearsal.h"
#include "simulation/games/batch.h"
#include "simulation/minds/tactics.h"

namespace brolgan::simulation {
namespace {

constexpr const char* kHeroFile = "hero1.boh";
constexpr int kScreenFights = 400;
constexpr int kRehearsals = 8000;
constexpr int kMostRounds = 60;

const DataFiles& data() {
  static const DataFiles files = loadData(BROLGAN_ASSETS);
  return files;
}

const Knowledge& known() {
  static const Knowledge knowledge(data());
  return knowledge;
}

// One way to fight one monster.
struct Bout {
  std::string name;
  HeroNotes hero;
  int monster = 0;
  Plan plan;
};

// What came of a fight, one number for each thing that a player looks at.
using Result = std::array<double, 5>;  // won, lost, magic left, rounds, lost squared

Result resultOf(bool won, int lost, int magic, int rounds) {
  return {won ? 1.0 : 0.0, static_cast<double>(lost), static_cast<double>(magic), static_cast<double>(rounds),
          static_cast<double>(lost) * lost};
}

std::string heroFile(const HeroNotes& notes) {
  Bohater hero;
  hero.Imie = "Kosiarz";
  const ClassRow& klasa = kClassTable[static_cast<std::size_t>(notes.klasa)];
  hero.Klasa = klasa.caption;
  for (int i = 0; i < kStatistics; ++i) hero.Poziomy(i) = notes.steps[static_cast<std::size_t>(i)];
  for (int i = 0; i < 5; ++i) hero.Wartosci(i) = notes.value(i);
  hero.AktWytrzymalosc = notes.endurance;
  hero.AktMoc = notes.magic;
  hero.MO = modifierDice(notes.steps[kModifier]);
  hero.Wcielenia = 3;
  hero.Tura = 1;
  for (int i = 0; i < kMelees; ++i) {
    hero.MaBronww(i) = true;
    hero.MaBronss(i) = true;
    hero.BronwwProc(i) = notes.percent[static_cast<std::size_t>(i)];
    hero.BronwwPlus(i) = klasa.plus;
  }
  for (int i = 0; i < kSpells; ++i) hero.MaCzar(i) = notes.spells[static_cast<std::size_t>(i)];
  hero.MaSpec(0) = notes.mortar;
  hero.MaSpec(2) = notes.sucker;
  hero.Wyp(0) = notes.grenades;
  hero.Wyp(1) = notes.ammo;
  MemoryFiles files;
  Player_Save(ItemWriter(files, "h"), hero);
  return files.contents["h"];
}

// Fights on the screen, through its own handlers.
class ScreenFights {
 public:
  explicit ScreenFights(const Bout& bout) : bout_(bout), hero_(heroFile(bout.hero)) {
    Array<Potwor, 46> list;
    Potwory_Load(ItemReader(kMonstersFile, data().monsters), list);
    const Potwor& monster = list(bout.monster);
    MemoryFiles files;
    const Integer first = bout.hero.value(kSpeed) > monster.Szybkosc.value() ? 0 : 1;
    writeFight(ItemWriter(files, kFightFile), {first, kHeroFile, 0, 0, monster, bout.monster});
    writePlayerOrder(ItemWriter(files, kGameFile), 2, {kHeroFile, "hero2.boh"});
    texts_ = files.contents;
  }

  Result fight(std::uint64_t seed) {
    Stage stage(data(), seed, Cast::fightAlone);
    for (const auto& [name, text] : texts_) stage.files.contents[name] = text;
    stage.files.contents[kHeroFile] = hero_;
    stage.runtime.Show(Fight::kName);
    FightScreen screen(stage.runtime);
    HeroNotes notes = bout_.hero;
    Tactics tactics(known());
    tactics.begin(screen, bout_.plan);
    int rounds = 0;
    while (!screen.fallen() && rounds < kMostRounds) {
      tactics.act(screen, notes);
      ++rounds;
      if (screen.cleared() || screen.fallen()) break;
      screen.nextRound();
    }
    return resultOf(screen.cleared(), bout_.hero.endurance - screen.endurance(), screen.magic(), rounds);
  }

 private:
  const Bout& bout_;
  std::string hero_;
  std::map<std::string, std::string, std::less<>> texts_;
};

std::vector<Result> onTheScreen(const Bout& bout, std::uint64_t seed) {
  ScreenFights fights(bout);
  std::vector<Result> results;
  for (int i = 0; i < kScreenFights; ++i) results.push_back(fights.fight(seedOf(seed, i)));
  return results;
}

std::vector<Result> inTheHead(const Bout& bout, std::uint64_t seed) {
  std::vector<Result> results;
  const Monster& monster = known().monsters[static_cast<std::size_t>(bout.monster)];
  for (int i = 0; i < kRehearsals; ++i) {
    const Rehearsed one = rehearse(known(), bout.hero, monster, bout.plan, bout.hero.value(kSpeed), seed, kMostRounds);
    results.push_back(resultOf(one.won, bout.hero.endurance - one.endurance, one.magic, one.rounds));
  }
  return results;
}

struct Moments {
  double mean = 0;
  double variance = 0;  // of the mean
};

Moments momentsOf(const std::vector<Result>& results, std::size_t quantity) {
  const auto n = static_cast<double>(results.size());
  double sum = 0;
  double squares = 0;
  for (const Result& result : results) {
    sum += result[quantity];
    squares += result[quantity] * result[quantity];
  }
  return {sum / n, std::max(0.0, squares / n - sum / n * sum / n) / n};
}

// The largest of the differences between two rows of results, in standard errors; a share that is
// all or nothing on one side keeps an error of one case.
double deviation(const std::vector<Result>& a, const std::vector<Result>& b) {
  double most = 0;
  for (std::size_t quantity = 0; quantity < Result().size(); ++quantity) {
    const Moments one = momentsOf(a, quantity);
    const Moments other = momentsOf(b, quantity);
    const double doubt = 1.0 / (kScreenFights * kScreenFights);
    const double error =
        std::sqrt(std::max(one.variance, other.variance * kRehearsals / kScreenFights) + other.variance + doubt);
    most = std::max(most, std::abs(one.mean - other.mean) / error);
  }
  return most;
}

// The largest difference between the shares of fights that cost at most so much.
double distance(const std::vector<Result>& a, const std::vector<Result>& b) {
  const auto lost = [](const std::vector<Result>& results) {
    std::vector<double> values;
    for (const Result& result : results) values.push_back(result[1]);
    std::sort(values.begin(), values.end());
    return values;
  };
  const auto one = lost(a);
  const auto other = lost(b);
  const auto share = [](const std::vector<double>& sorted, double value) {
    const auto upTo = std::upper_bound(sorted.begin(), sorted.end(), value) - sorted.begin();
    return static_cast<double>(upTo) / static_cast<double>(sorted.size());
  };
  double most = 0;
  for (const double value : other) most = std::max(most, std::abs(share(one, value) - share(other, value)));
  return most;
}

// What chance alone exceeds in less than one of a million comparisons of equals.
constexpr double kMostDeviation = 5;
const double kMostDistance = 2.7 * std::sqrt(1.0 / kScreenFights + 1.0 / kRehearsals);

HeroNotes grown(int klasa) {
  HeroNotes hero;
  hero.klasa = klasa;
  hero.steps = {9, 5, 6, 4, 3, 4, 3};
  hero.endurance = hero.fullEndurance() - 3;
  hero.magic = 11;
  hero.percent.fill(40);
  hero.owned.fill(true);
  hero.grenades = 2;
  hero.ammo = 2;
  return hero;
}

// Singles and groups, slow and quick, of all thirds of the list.
constexpr std::array kFoes = {4, 11, 17, 24, 33, 38};

std::vector<Bout> weaponBouts() {
  std::vector<Bout> bouts;
  for (int weapon = 0; weapon < kWeapons; ++weapon) {
    for (std::size_t i = 0; i < kFoes.size(); i += 2) {
      HeroNotes hero = grown((weapon * 3 + static_cast<int>(i)) % kClasses);
      hero.sucker = i == 2;
      const int foe = kFoes[(i + static_cast<std::size_t>(weapon)) % kFoes.size()];
      bouts.push_back({known().weapons[static_cast<std::size_t>(weapon)].name, hero, foe, {.weapon = weapon}});
    }
  }
  return bouts;
}

std::vector<Bout> spellBouts() {
  std::vector<Bout> bouts;
  const auto add = [&](const char* name, int klasa, const Plan& plan, int spell) {
    for (std::size_t i = 0; i < kFoes.size(); i += 2) {
      HeroNotes hero = grown(klasa);
      if (spell >= 0) hero.spells[static_cast<std::size_t>(spell)] = true;
      hero.mortar = i == 2;
      bouts.push_back({name, hero, kFoes[(i + bouts.size() / 3) % kFoes.size()], plan});
    }
  };
  for (const int klasa : {+kWarrior, +kWizard}) {
    for (const int weapon : {3, 6}) {
      add("Damage!", klasa, {.weapon = weapon, .spell = kDamage}, kDamage);
      add("BullShots", klasa, {.weapon = weapon, .spell = kBullShots}, kBullShots);
      add("BOOM!", klasa, {.weapon = weapon, .spell = kBoom}, kBoom);
      add("Klasa III A", klasa, {.weapon = weapon, .shield = true}, kClass3A);
      add("Kaczy Fart", klasa, {.weapon = weapon, .luck = true}, kLuck);
    }
    add("Leczenie", klasa, {.weapon = 4}, kHealing);
  }
  for (const int klasa : {+kBerserker, +kWitcher, +kHandyman}) add("Granat", klasa, {.weapon = 5, .grenades = 2}, -1);
  return bouts;
}

std::string faultOf(const Bout& bout, const HeroNotes& foreseen) {
  const auto screen = onTheScreen(bout, 11);
  Bout head = bout;
  head.hero = foreseen;
  const auto rehearsed = inTheHead(head, 12);
  const double off = deviation(screen, rehearsed);
  const double apart = distance(screen, rehearsed);
  if (off <= kMostDeviation && apart <= kMostDistance) return "";
  return bout.name + ", " + kClassTable[static_cast<std::size_t>(bout.hero.klasa)].caption + ", monster " +
         std::to_string(bout.monster + 1) + ": " + std::to_string(off) + " errors, apart " + std::to_string(apart);
}

TEST(Forecast, RehearsesEveryWeaponAsTheScreenPlaysIt) {
  for (const Bout& bout : weaponBouts()) EXPECT_EQ(faultOf(bout, bout.hero), "");
}

TEST(Forecast, RehearsesEverySpellAndGrenadesAsTheScreenPlaysThem) {
  for (const Bout& bout : spellBouts()) EXPECT_EQ(faultOf(bout, bout.hero), "");
}

TEST(Forecast, OffByOneInArmourOrByALittlePracticeWouldBeNoticed) {
  const Bout bout = {"Okuty kij", grown(kWarrior), 9, {.weapon = 1}};
  HeroNotes thicker = bout.hero;
  ++thicker.steps[kArmour];
  EXPECT_NE(faultOf(bout, thicker), "");
  HeroNotes practised = bout.hero;
  practised.percent.fill(80);
  EXPECT_NE(faultOf(bout, practised), "");
}

// How far the reckoning is off, on average and at most, in the chance to win.
TEST(Forecast, ReckonsTheChanceToWinNearTheRehearsal) {
  const Foresight reckon = reckoning(known());
  double sum = 0;
  double most = 0;
  std::vector<Bout> bouts = weaponBouts();
  for (const Bout& bout : spellBouts()) bouts.push_back(bout);
  for (const Bout& bout : bouts) {
    const Monster& monster = known().monsters[static_cast<std::size_t>(bout.monster)];
    const double reckoned = reckon(bout.hero, monster, bout.plan, bout.hero.value(kSpeed)).win;
    const double off = std::abs(reckoned - momentsOf(inTheHead(bout, 13), 0).mean);
    sum += off;
    most = std::max(most, off);
  }
  EXPECT_LT(sum / static_cast<double>(bouts.size()), 0.05);
  EXPECT_LT(most, 0.35);
}

}  // namespace
}  // namespace brolgan::simulation
