// A player who weighs every purchase, every zone and every fight by the foresight that he is given.
#pragma once

#include "simulation/minds/mind.h"
#include "simulation/minds/tactics.h"

namespace brolgan::simulation {

class CarefulMind : public Mind {
 public:
  CarefulMind(const Knowledge& known, int klasa, std::uint64_t seed, Foresight foresight, Foresight reckoning,
              const Temper& temper);

  void create(CreationScreen& screen) override;
  int shop(ShopScreen& screen) override;
  void prepare(PreparationScreen& screen) override;
  void enter(FightScreen& screen) override;
  void act(FightScreen& screen) override;

 private:
  void spend(DepartmentScreen& screen, bool atCreation);
  bool buyBest(DepartmentScreen& screen, bool atCreation);
  bool take(DepartmentScreen& screen, const Offer& offer);
  bool buyFromPlenty(DepartmentScreen& screen, const std::vector<Offer>& offers);
  [[nodiscard]] static bool isOpen(const DepartmentScreen& screen, const Offer& offer);
  void sellSpare(CreationScreen& screen);
  [[nodiscard]] double worthNow(int initiative) const;
  bool healIfWorth(PreparationScreen& screen);
  void hurryIfWorth(PreparationScreen& screen);

  Judgement judgement_;
  int mood_;
  bool wasDenied_ = false;
  const Monster* monster_ = nullptr;
  Plan plan_;
  Tactics tactics_;
};

}  // namespace brolgan::simulation
