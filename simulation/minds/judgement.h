// How a player who reckons weighs things: what a fight is worth to him and how best to fight it, which
// zone to go to, and which of all goods helps him on the most.
#pragma once

#include <array>
#include <vector>

#include "simulation/forecasts/blow.h"
#include "simulation/forecasts/outlook.h"

namespace brolgan::simulation {

struct Prospect {
  Plan plan;
  Outlook outlook;
  double worth = 0;  // in points of development
};

// What can be had for points.
enum class Ware { step, weapon, spell, gear, supply };
struct Offer {
  Ware ware = Ware::step;
  int index = 0;
  int price = 0;

  [[nodiscard]] int place() const;
};
inline constexpr int kOfferPlaces = kStatistics + kWeapons + kSpells + kGear + kSupplies;

// How much a player likes a risk.
struct Temper {
  double courage = 1;     // the less a lost life counts
  double care = 2.5;      // points that it costs to go home with nothing left of the endurance
  double temptation = 1;  // how good a gamble must look beside the best choice
  int mood = 1;           // one visit in so many finds him in the mood for one
};
// A sensible player hurries when others may be there before him, and takes his time alone.
Temper sensible(int rivals);
inline constexpr Temper kDaredevil = {60, 0.3, 0.15, 1};

class Judgement {
 public:
  enum class Credit;

  // Fights are foreseen by foresight and goods by reckoning; seed makes the tastes by which one
  // player differs from another.
  Judgement(const Knowledge& known, Foresight foresight, Foresight reckoning, const Temper& temper, std::uint64_t seed);

  [[nodiscard]] Prospect plan(const HeroNotes& hero, const Monster& monster, int initiative) const;
  // The zone worth most; a daring player takes the gamble when it tempts him, if he is well and has a life to spare.
  [[nodiscard]] int bestZone(const HeroNotes& hero, bool daring) const;

  // Everything that the hero could still buy, with its price there.
  [[nodiscard]] std::vector<Offer> offers(const HeroNotes& hero, bool atCreation) const;
  // How much an offer helps for each point that it costs, by the player's taste; 0 for what costs
  // more than reach.
  [[nodiscard]] std::vector<double> gains(const HeroNotes& hero, const std::vector<Offer>& wares, int reach);

 private:
  struct Sight;
  class Map;

  [[nodiscard]] double worth(const HeroNotes& hero, const Monster& monster, const Outlook& outlook) const;
  [[nodiscard]] Prospect weigh(const HeroNotes& hero, const Monster& monster, const Plan& plan, int initiative) const;
  void tryBetter(Prospect& best, const Plan& plan, const HeroNotes& hero, const Monster& monster, int init) const;
  [[nodiscard]] std::vector<int> bestWeapons(const HeroNotes& hero, const Monster& monster) const;
  [[nodiscard]] std::vector<Sight> frontier(const HeroNotes& hero);
  [[nodiscard]] double power(const HeroNotes& hero, const Sight& sight, const Plan& plan, Credit credit) const;
  [[nodiscard]] double powerWithSpells(const HeroNotes& hero, const Sight& sight) const;
  [[nodiscard]] double powerWith(const HeroNotes& hero, const Sight& sight, const Offer& offer) const;
  void creditBundles(const HeroNotes& hero, const std::vector<Offer>& wares, const std::vector<Sight>& sights,
                     int reach, std::vector<double>& gains) const;

  const Knowledge& known_;
  Foresight foresight_;
  Foresight reckoning_;
  std::array<double, kOfferPlaces> taste_{};
  int edge_ = 0;  // the first monster, of every other one, that was too strong for the hero
  double courage_ = 1;
  double care_ = 2.5;
  double temptation_ = 1;
};

// Puts what was bought into the notes.
void own(HeroNotes& hero, const Offer& offer);

// Endurance and magic that a hero can reckon with on the day of a fight, in the long run.
HeroNotes onAnOrdinaryDay(HeroNotes hero);

}  // namespace brolgan::simulation
