#include "game/guide/keys.h"

#include <map>

#include "game/names/names.h"

namespace brolgan {

namespace {

using Keys = std::map<std::string, char, std::less<>>;

const Keys& keysOf(const std::string& screen) {
  static const std::map<std::string, Keys, std::less<>> all = {
      {screens::kSetUp,
       {{"GraczM(0)", '1'}, {"GraczM(1)", '2'}, {"GraczM(2)", '3'}, {"GraczM(3)", '4'}, {"Start", 'Z'}}},
      {screens::kCreation,
       {{"LBronww", 'W'},
        {"Lbronss", 'S'},
        {"Kupww", 'K'},
        {"Kupss", 'U'},
        {"Sprzedajww", 'P'},
        {"Sprzedajss", 'R'},
        {"Save", 'T'}}},
      {screens::kShop,
       {{"Heroshow", 'H'},
        {"LBronww", 'W'},
        {"Lbronss", 'S'},
        {"Kupww", 'K'},
        {"Kupss", 'U'},
        {"w1", '1'},
        {"w2", '2'},
        {"w3", '3'},
        {"w4", '4'},
        {"w5", '5'},
        {"w6", '6'},
        {"w7", '7'},
        {"w8", '8'},
        {"w9", '9'},
        {"w10", '0'},
        {"w11", 'P'},
        {"w12", 'T'}}},
      {screens::kPreparation,
       {{"Heroshow", 'H'}, {"Przedmioty", 'P'}, {"Uzyj", 'U'}, {"Czary", 'C'}, {"Rzuc", 'R'}, {"Zakoncz", 'Z'}}},
      {screens::kFight,
       {{"Heroshow", 'H'},
        {"Bron", 'B'},
        {"Atak", 'A'},
        {"Czar", 'C'},
        {"Rzuc", 'R'},
        {"Przedmiot", 'P'},
        {"Uzyj", 'U'},
        {"NastTura", 'N'}}},
      {screens::kSheet, {{"Bron", 'B'}, {"Stwory", 'S'}, {"HeroClose", 'Z'}}},
  };
  static const Keys none;
  const auto found = all.find(screen);
  return found == all.end() ? none : found->second;
}

}  // namespace

char accessKey(const std::string& screen, const ControlEntry& entry) {
  const Keys& keys = keysOf(screen);
  const auto found = keys.find(entry.fullName());
  return found == keys.end() ? '\0' : found->second;
}

}  // namespace brolgan
