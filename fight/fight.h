// The fight: one hero against one group of like monsters, round by round, until the group is gone
// or the hero has fallen. Reads fight.cfg, the hero file, bron.cfg and gra.cfg; at its end it writes
// the hero file, gra.cfg and sklep.cfg and opens the next player's shop, or ends the game.
#pragma once

#include <array>
#include <span>
#include <string>

#include "fight/state.h"
#include "flow/stage/runtime.h"
#include "game/names/names.h"
#include "rules/battle.h"
#include "rules/handover.h"
#include "rules/hero.h"
#include "rules/random.h"
#include "rules/weapons.h"

namespace brolgan {

class Fight : public Form {
 public:
  static constexpr const char* kName = screens::kFight;
  Fight(Runtime& runtime, RandomSource& random);

  void Form_Load() override;

  CommandButton Heroshow{.Picture = pictures::kSheet};
  ComboBox Bron;
  CommandButton Atak{"Atakuj !"};
  ComboBox Czar;
  TextBox mana{.Text = "0", .Enabled = false};
  CommandButton Rzuc{"Rzuć"};
  ComboBox Przedmiot;
  CommandButton Uzyj{"Użyj"};
  CommandButton NastTura{"Następna Tura"};
  Frame FZad{.Visible = false};
  PictureBox Picture2{pictures::kBlow};
  Label Label4{"Zadałeś :"};
  Label IleZad;
  Label OpisZad;
  CommandButton CloseZad{.Picture = pictures::kClose};
  Frame FDamage{.Caption = "DAMAGE!", .Visible = false};
  PictureBox Picture1{pictures::kWound};
  Label Label3{"Otrzymałeś :"};
  Label IleDMG;
  Label OpisDMG;
  CommandButton CloseDMG{.Picture = pictures::kPlaster};
  Label Uwaga{.Visible = false};
  PictureBox Potwór;
  Label LIle{"1"};
  Label Odl{"DALEKA"};
  Label Label1{"Odległość :"};
  std::array<Label, 4> Pstat{Label{"0"}, Label{"0"}, Label{"0"}, Label{}};
  std::array<Label, 4> Mstat{Label{"0"}, Label{"0"}, Label{"0"}, Label{}};
  std::array<Label, 10> Label2{
      Label{"Twoje statystyki:"},   Label{"Wytrzymałość"}, Label{"Pancerz"}, Label{"Punkty Magii"}, Label{"DAMAGE :"},
      Label{"Statystyki Potwora:"}, Label{"Wytrzymałość"}, Label{"Pancerz"}, Label{"Szybkość"},     Label{"DAMAGE :"}};
  MediaPlayer SFX;

  // Reads the hero file into the record.
  void Player_Load();

 protected:
  void listControls(ControlTable& table) override;

 private:
  void Heroshow_Click();
  void Bron_Click();
  void Atak_Click();
  void Czar_Click();
  void Rzuc_Click();
  void Uzyj_Click();
  void NastTura_Click();
  void CloseZad_Click();
  void CloseDMG_Click();

  // Loading and redrawing.
  void Fight_Load();
  void Bron_Walka();
  void Czary_Lista();
  void Przedmioty_Lista();
  void Wybory_Load();
  void Statystyki();
  [[nodiscard]] std::string damageText() const;
  void play(const std::string& file);
  void disableActions();

  // Attacking.
  [[nodiscard]] bool mayStrike() const;
  void strike();
  void spendBlow();
  void shoot();
  void fireCannon();
  void fire();
  void payForUltiGun();
  void suckArmour();
  void growWeapon(const Growth& growth);
  void clearReport();
  void ZadajObrazenia(Integer damage);
  void carryOn();

  // Spells, each a row of a table, and items.
  struct Spell;
  static std::span<const Spell> spells();
  void cast(const Spell& spell);
  [[nodiscard]] double typedMagic() const;
  void castHealing();
  void castStrongHealing();
  void castDamage();
  void castBullShots();
  void castBoom();
  void castClass3A();
  void castLuck();
  void healHero(Integer amount);
  void hit(Integer damage);
  void removeFallen();
  void useGrenade();
  void useAmmo();
  void hurtGroup(Integer roll);

  // The round and the end.
  void AtakPotwora();
  void suffer(Integer blow);
  void regainMagic();
  void Zabici();
  void Player_Save();
  void KoniecWalki();
  void leaveGame(const PlayerOrder& order);
  void recover();
  void takeReward();
  void regenerate();
  void passTurn(const PlayerOrder& order);
  void openShop();

  Runtime& runtime_;
  RandomSource& random_;
  Bohater bohater;
  Catalogue<kFightPlaces> katalog;
  HandedOver handedOver_;
  Group group_;
  Round round_;
  Effects effects_;
  WeaponInHand weapon_;
  // Whether the hero outlived the fight; only its closing looks at it.
  bool Przezyl = true;
};

}  // namespace brolgan
