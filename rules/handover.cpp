#include "rules/handover.h"

#include "rules/dice_items.h"

namespace brolgan {

PlayerOrder readPlayerOrder(ItemReader in) {
  PlayerOrder order;
  order.count = in.integer("liczba graczy");
  for (int i = 0; i < order.count.value(); ++i) {
    if (i >= PlayerOrder::kMost) in.fail(ErrorCode::subscript, {"Gracz", i + 1});
    order.Gracz(i) = in.string({"Gracz", i + 1});
  }
  return order;
}

void writePlayerOrder(ItemWriter out, Integer count, const std::vector<std::string>& names) {
  out.integer(count);
  for (const std::string& name : names) out.string(name);
  out.close();
}

void writeShop(ItemWriter out, const std::string& heroFile, Integer mode) {
  out.string(heroFile);
  out.integer(mode);
  out.close();
}

void writeZone(ItemWriter out, const std::string& heroFile, Integer OdPotwora, Integer DoPotwora) {
  out.string(heroFile);
  out.integer(OdPotwora);
  out.integer(DoPotwora);
  out.string(kMonstersFile);
  out.close();
}

FightSetup readFight(ItemReader in) {
  FightSetup fight;
  fight.PotworPierwszy = in.integer("PotworPierwszy");
  fight.PlikBohatera = in.string("PlikBohatera");
  fight.BonusPancerza = in.integer("BonusPancerza");
  fight.RundyNiesmiertelnosci = in.integer("RundyNiesmiertelnosci");
  fight.potwor = readPotwor(in);
  fight.NrPotwora = in.integer("NrPotwora");
  return fight;
}

void writeFight(ItemWriter out, const FightSetup& fight) {
  out.integer(fight.PotworPierwszy);
  out.string(fight.PlikBohatera);
  out.integer(fight.BonusPancerza);
  out.integer(fight.RundyNiesmiertelnosci);
  out.integer(fight.potwor.Ilosc);
  out.string(fight.potwor.Nazwa);
  out.string(fight.potwor.Obrazek);
  out.integer(fight.potwor.Szybkosc);
  writeOnFourLines(out, fight.potwor.Atak);
  out.integer(fight.potwor.Wytrzymalosc);
  out.integer(fight.potwor.Pancerz);
  out.integer(fight.NrPotwora);
  out.close();
}

}  // namespace brolgan
