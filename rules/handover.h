// The small text files by which one screen tells the next what to do: makehro.cfg, gra.cfg,
// sklep.cfg, pref.cfg and fight.cfg. Each is replaced whole when it is written.
#pragma once

#include <string>
#include <vector>

#include "flow/text/array.h"
#include "flow/text/item_reader.h"
#include "flow/text/item_writer.h"
#include "rules/monsters.h"

namespace brolgan {

inline constexpr const char* kMakeHeroFile = "makehro.cfg";
inline constexpr const char* kGameFile = "gra.cfg";
inline constexpr const char* kShopFile = "sklep.cfg";
inline constexpr const char* kPreparationFile = "pref.cfg";
inline constexpr const char* kFightFile = "fight.cfg";
inline constexpr const char* kMonstersFile = "monsters.cfg";

// gra.cfg: who is in the game, the first being the one whose turn it is.
struct PlayerOrder {
  static constexpr int kMost = 4;
  Integer count;
  Array<std::string, kMost> Gracz;
};

// Reads the count and the names. Raises a subscript error when there are more than four.
PlayerOrder readPlayerOrder(ItemReader in);
void writePlayerOrder(ItemWriter out, Integer count, const std::vector<std::string>& names);

// Which departments of weapons, spells and statistics a shop opens, drawn between the first and last.
enum ShopMode { kAllDepartments = 1, kStatisticsAlone, kSpellsAlone, kWeaponsAlone };

// sklep.cfg: whose shop opens, and in what mode.
void writeShop(ItemWriter out, const std::string& heroFile, Integer mode);

// pref.cfg: the zone that a hero goes to, as bounds counted from 1.
void writeZone(ItemWriter out, const std::string& heroFile, Integer OdPotwora, Integer DoPotwora);

// fight.cfg: everything that a fight is set up from.
struct FightSetup {
  Integer PotworPierwszy;
  std::string PlikBohatera;
  Integer BonusPancerza;
  Integer RundyNiesmiertelnosci;
  Potwor potwor;
  Integer NrPotwora;
};

FightSetup readFight(ItemReader in);
void writeFight(ItemWriter out, const FightSetup& fight);

}  // namespace brolgan
