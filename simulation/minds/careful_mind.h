// A player who weighs every purchase, every zone and every fight by the foresight that he is given.
#pragma once

#include "simulation/minds/mind.h"

namespace brolgan::simulation {

class CarefulMind : public Mind {
 public:
  CarefulMind(const Knowledge& known, int klasa, std::uint64_t seed, Foresight foresight, Foresight reckoning);

  void create(CreationScreen& screen) override;
  int shop(ShopScreen& screen) override;
  void prepare(PreparationScreen& screen) override;
  void enter(FightScreen& screen) override;
  void act(FightScreen& screen) override;

 private:
  void spend(DepartmentScreen& screen, bool atCreation);
  bool buyBest(DepartmentScreen& screen, bool atCreation);
  [[nodiscard]] static bool isOpen(const DepartmentScreen& screen, const Offer& offer);
  void sellSpare(CreationScreen& screen);
  [[nodiscard]] double worthNow(int initiative) const;
  bool healIfWorth(PreparationScreen& screen);
  void hurryIfWorth(PreparationScreen& screen);
  bool castPlanned(FightScreen& screen);
  bool castSpell(FightScreen& screen, const char* name);
  void strike(FightScreen& screen);
  void loadAmmo(FightScreen& screen);
  void throwGrenade(FightScreen& screen);

  Judgement judgement_;
  const Monster* monster_ = nullptr;
  Plan plan_;
  int grenadesLeft_ = 0;
  bool lucky_ = false;
  bool reloading_ = false;
};

}  // namespace brolgan::simulation
