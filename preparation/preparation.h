// The preparation: draws the monster of the chosen zone, shows it beside the hero, and offers items
// and spells before the fight. Reads pref.cfg, the hero file and the monster list; Zakoncz writes
// the hero file and fight.cfg and opens the fight.
#pragma once

#include <array>
#include <span>
#include <string>

#include "flow/stage/runtime.h"
#include "game/names/names.h"
#include "rules/hero.h"
#include "rules/monsters.h"
#include "rules/random.h"

namespace brolgan {

class Prefight : public Form {
 public:
  static constexpr const char* kName = screens::kPreparation;
  Prefight(Runtime& runtime, RandomSource& random);

  void Form_Load() override;

  Label Label1{"Przygotuj się przed walką !"};
  CommandButton Heroshow{.Picture = pictures::kSheet};
  Label Moname;
  PictureBox Potwór;
  std::array<Label, 4> Monstat{Label{"0"}, Label{"0"}, Label{"0"}, Label{"0"}};
  std::array<Label, 4> Label2{Label{"Szybkość"}, Label{"Średnie Obrażenia"}, Label{"Wytrzymałość"}, Label{"Pancerz"}};
  Frame Statystyki{"Statystyki"};
  std::array<Label, 5> stat{Label{"0"}, Label{"0"}, Label{"0"}, Label{"0"}, Label{"0"}};
  std::array<Label, 6> label4{Label{"Wytrzymałość"}, Label{"Pancerz"},     Label{"Moc"},
                              Label{"Szybkość"},     Label{"Regeneracja"}, Label{"Twoja Inicjatywa"}};
  std::array<Label, 2> cur{Label{"0"}, Label{"0"}};
  Label Inic{"0"};
  Label tabak{.Caption = "0", .Visible = false};
  Frame Frame2{"Przedmioty"};
  ComboBox Przedmioty;
  CommandButton Uzyj{"Użyj"};
  Frame Frame1{"Czary"};
  Label Label3{"Możliwe do rzucenia czary:"};
  ComboBox Czary;
  TextBox Koszt{"0"};
  Label KosztInfo;
  CommandButton Rzuc{"Rzuć"};
  Frame Frame3{"Zapiski"};
  TextBox historia{.MultiLine = true};
  CommandButton Zakoncz{"Zakończ"};
  MediaPlayer Music1;

 protected:
  void listControls(ControlTable& table) override;

 private:
  void Heroshow_Click();
  void Uzyj_Click();
  void Czary_Click();
  void Rzuc_Click();
  void Zakoncz_Click();

  void Zone_Load();
  void Potwor_Pokaz();
  void Hero_Pokaz();
  void Czary_Lista();
  void Przedmioty_Lista();
  void applyHeadStart();
  void Fight_Start();

  void useFish();
  void useRhubarb();
  void useSnuff();
  void useBar();
  void useLamp();
  void useImmortality();
  void spend(int counter);
  // Spells, each a row of a table.
  struct Spell;
  static std::span<const Spell> spells();
  void cast(const Spell& spell);
  Integer castHealing();
  Integer castStrongHealing();
  Integer castAutostart();
  Integer healHero(Integer amount);
  void note(const std::string& text);

  Runtime& runtime_;
  RandomSource& random_;
  Bohater bohater;
  Array<Potwor, 101> Potwory;
  std::string PlikBohatera;
  Integer OdPotwora;
  Integer DoPotwora;
  std::string PlikPotworow;
  Integer NrPotwora;
  Integer Inicjatywa;
  Integer BonusPancerza;
  Integer RundyNiesmiertelnosci;
};

}  // namespace brolgan
