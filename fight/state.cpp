#include "fight/state.h"

#include "fight/choices.h"

namespace brolgan {

bool Group::isLastOfTheGame() const { return PotworNazwa == kLastMonster; }

void Group::hurtOthers(Integer harm) {
  for (int i = 0; i < Ostatni.value(); ++i) PotworZycie(i) -= harm;
}

Group gather(const FightSetup& setup) {
  const Potwor& monster = setup.potwor;
  Group group{.PotworNazwa = monster.Nazwa,
              .PotworObraz = monster.Obrazek,
              .PotworSzybkosc = monster.Szybkosc,
              .PotworAtak = monster.Atak,
              .NrPotwora = setup.NrPotwora,
              .IlePotworow = monster.Ilosc,
              .Ostatni = monster.Ilosc - 1};
  if (monster.Ilosc > Group::kMost) throw RuntimeError(ErrorCode::subscript, {kFightFile, 5, "Ilosc"});
  group.PotworZycie(0) = monster.Wytrzymalosc;
  group.PotworPancerz(0) = monster.Pancerz;
  for (int i = 1; i <= group.Ostatni.value(); ++i) {
    group.PotworZycie(i) = group.PotworZycie(0);
    group.PotworPancerz(i) = group.PotworPancerz(0);
  }
  return group;
}

void Effects::endRound() {
  if (Tury3A > 0) Tury3A -= 1;
  if (Tury3A == 0) Pancerz3A = 0;
}

bool Effects::takesBlow() {
  if (Fart <= 0) return false;
  Fart -= 1;
  return true;
}

}  // namespace brolgan
