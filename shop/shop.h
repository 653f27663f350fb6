// The shop: the stop between two fights of a player, whose departments open and close by chance.
// Reads sklep.cfg, the hero file and bron.cfg; a zone button writes pref.cfg and the hero file and
// opens the preparation. There is no other way out.
#pragma once

#include <array>

#include "departments/development_form.h"
#include "game/names/names.h"
#include "shop/zones.h"

namespace brolgan {

class CTsklep : public DevelopmentForm {
 public:
  static constexpr const char* kName = screens::kShop;
  explicit CTsklep(Runtime& runtime);

  void Form_Load() override;

  Label Tura{"1"};
  CommandButton Heroshow{.Picture = pictures::kSheet};
  std::array<PictureBox, 5> pics;
  std::array<Label, 3> akt{Label{"50", Colour::green}, Label{"50", Colour::green}, Label{"50", Colour::green}};
  CommandButton w1, w2, w3, w4, w5, w6, w7, w8, w9, w10, w11, w12;

 protected:
  void listControls(ControlTable& table) override;

 private:
  void Heroshow_Click();
  void PLUS_Click(int index) override;
  void Czarn_Click(int index) override;
  void Spec_Click(int index) override;
  void zone_Click(const Strefa& zone);
  void Save_Click();

  void Sklep_Load();
  void openDepartments(Integer mode);
  void readHero(ItemReader in);
  std::size_t stepPlace(int statistic);
  void rememberLostEndurance();
  void markLadders();
  void showGoods();
  void writeBeginning(ItemWriter& out);
  void writeGoods(ItemWriter& out);
  std::array<CommandButton*, 12> zoneButtons();

  Integer UbytekWytrzymalosci;
  StepLines stepLines_{};
};

}  // namespace brolgan
