// The hero sheet: a read-only view of the hero whose turn it is, beside the open screen. Reads
// gra.cfg, the hero file, bron.cfg and monsters.cfg whenever it opens, so it shows the hero as he was
// last written; writes nothing.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "flow/stage/runtime.h"
#include "game/names/names.h"
#include "rules/hero.h"
#include "rules/monsters.h"
#include "rules/weapons.h"

namespace brolgan {

class FHero : public Form {
 public:
  static constexpr const char* kName = screens::kSheet;
  explicit FHero(Runtime& runtime);

  void Form_Load() override;

  // The picture of the monster in a row of Stwory.
  [[nodiscard]] const std::string& pictureOfKill(int row) const;

  Label Imie{"Kosiarz1"};
  Label klasa{"wojownik"};
  std::array<Label, 6> Pstat{Label{"50"}, Label{"50"}, Label{"50"}, Label{"50"}, Label{"50"}, Label{"50"}};
  std::array<Label, 6> pstatl{Label{"Wytrzymałość"}, Label{"Pancerz"},     Label{"Moc"},
                              Label{"Szybkość"},     Label{"Regeneracja"}, Label{"Modyfikator O."}};
  Label Label1{"Posiadane bronie :"};
  ListBox Bron;
  Label Label2{"Pokonane Stwory:"};
  ListBox Stwory;
  CommandButton HeroClose{.Picture = pictures::kClose};

 protected:
  void listControls(ControlTable& table) override;

 private:
  void HeroClose_Click();

  void Player_Load(const std::string& heroFile);
  void showHero();
  void listWeapons();
  void listKills();

  Runtime& runtime_;
  Bohater bohater;
  Catalogue<kShelfPlaces> katalog;
  Array<Potwor, kMonsterNumbers + 1> Potwory;
  std::vector<int> kills_;  // the monster of each row
};

}  // namespace brolgan
