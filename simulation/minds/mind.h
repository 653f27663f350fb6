// The players of the simulation. A mind sees the screens, keeps notes of its hero and clicks; it
// knows nothing that a person at the table could not know.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "simulation/minds/judgement.h"
#include "simulation/stage/screens.h"

namespace brolgan::simulation {

enum class MindKind { newcomer, sensible, greedy, gambler, bare };
inline constexpr int kMindKinds = 5;
// Their names in the report and on the command line.
extern const std::array<const char*, kMindKinds> kMindNames;
extern const std::array<const char*, kMindKinds> kMindWords;

class Mind {
 public:
  Mind(const Knowledge& known, int klasa, std::uint64_t seed) : known_(known), seed_(seed) { notes_.klasa = klasa; }
  Mind(const Mind&) = delete;
  Mind& operator=(const Mind&) = delete;
  virtual ~Mind() = default;

  // Makes the hero; the caller saves him.
  virtual void create(CreationScreen& screen) = 0;
  // Spends points; answers the zone to go to.
  virtual int shop(ShopScreen& screen) = 0;
  virtual void prepare(PreparationScreen& screen) = 0;
  // Begins a fight and does what is to be done in one round, all but ending it.
  virtual void enter(FightScreen& screen) = 0;
  virtual void act(FightScreen& screen) = 0;
  virtual void hearOutcome(bool /*won*/) {}

  // What lies at that place is never sold to him, which he learns when he first chooses it; -1 for nothing.
  void deny(int place) { denied_ = place; }

  [[nodiscard]] const HeroNotes& notes() const { return notes_; }
  // At which turn each good was bought for the first time, -1 when never.
  [[nodiscard]] const std::array<int, kOfferPlaces>& boughtAt() const { return boughtAt_; }
  // At which turn each good was first chosen for what it is worth, -1 when never.
  [[nodiscard]] const std::array<int, kOfferPlaces>& wantedAt() const { return wantedAt_; }

 protected:
  void beginHero(const DepartmentScreen& screen);
  // Buys at the desk where the offer lies and notes it; answers whether it could be had.
  bool buy(DepartmentScreen& screen, const Offer& offer);
  std::uint64_t random() { return nextNumber(seed_); }
  int below(int limit) { return static_cast<int>(random() % static_cast<std::uint64_t>(limit)); }

  // Notes that the offer was chosen for what it is worth.
  void want(const Offer& offer);

  const Knowledge& known_;
  HeroNotes notes_;
  int turn_ = 0;
  int denied_ = -1;

 private:
  static std::array<int, kOfferPlaces> never() {
    std::array<int, kOfferPlaces> turns{};
    turns.fill(-1);
    return turns;
  }

  std::uint64_t seed_;
  std::array<int, kOfferPlaces> boughtAt_ = never();
  std::array<int, kOfferPlaces> wantedAt_ = never();
};

// Makes a mind for a table with so many others, all of whom may share one reckoning; equal seeds make
// equal minds.
std::unique_ptr<Mind> makeMind(MindKind kind, const Knowledge& known, const Foresight& reckon, int klasa, int rivals,
                               std::uint64_t seed);

}  // namespace brolgan::simulation
