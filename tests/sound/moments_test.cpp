// Every moment at which the game sounds, reached through the screens' own handlers: which file the
// screen asks for, on which player, what has been done and what not when it asks, and what of it
// reaches the back-end.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "desktop/sound/queued_sounds.h"
#include "fight/fight.h"
#include "game/game.h"
#include "preparation/preparation.h"
#include "sheet/sheet.h"
#include "shop/shop.h"
#include "tests/fight/fixture.h"
#include "tests/preparation/preparation.h"
#include "tests/sound/stand_in.h"

namespace brolgan::test {
namespace {

// Stands before the queue: notes what the screens ask for, and lets the test look at the screen at
// that very moment.
class Asked : public Sounds {
 public:
  explicit Asked(Sounds& next) : next_(next) {}

  void play(const std::string& player, const std::string& fileName) override {
    events.push_back(player + " " + fileName);
    if (onPlay) onPlay(fileName);
    next_.play(player, fileName);
  }
  void stop(const std::string& player) override {
    events.push_back(player + " stop");
    next_.stop(player);
  }

  Events events;
  std::function<void(const std::string& fileName)> onPlay;

 private:
  Sounds& next_;
};

// The fight and the preparation on a stage whose sounds go through the queue to the stand-in.
class Moment : public FightTest {
 protected:
  enum class Dice { scripted, chance };

  explicit Moment(Dice dice = Dice::scripted) : stage({world.files, world.clock, world.pictures, asked}) {
    offerScreens(stage, source(dice));
    hero.Wartosci(0) = 30;
    hero.Wartosci(2) = 20;
    hero.AktMoc = 10;
  }

  void openFight() {
    writeFiles();
    stage.Show("Fight");
  }
  void openPreparation() {
    writeFiles();
    writeMonsters(world, "monsters.cfg", {plainMonster()});
    writeZone(world, 1, 1);
    world.roll(1, 1, {1});
    stage.Show("Prefight");
  }

  void press(const std::string& control, const std::string& form = "Fight") {
    EXPECT_TRUE(click(stage, *stage.find(form), entry(control, form))) << control << " cannot be pressed";
  }
  void pick(const std::string& list, int row, const std::string& form = "Fight") {
    EXPECT_TRUE(select(stage, entry(list, form), row)) << list << " has no row " << row;
  }
  [[nodiscard]] const ControlEntry& entry(const std::string& control, const std::string& form = "Fight") const {
    return stage.find(form)->controls().find(control);
  }
  template <class Control>
  [[nodiscard]] Control& get(const std::string& control) const {
    return *std::get<Control*>(entry(control).control);
  }
  [[nodiscard]] std::string captionOf(const std::string& label) const { return get<Label>(label).Caption; }

  // What the first sound from now on finds.
  void when(std::function<void()> look) {
    asked.onPlay = [this, look = std::move(look)](const std::string&) {
      ++looks;
      look();
    };
  }
  // What the sound of that file finds.
  void when(const std::string& file, std::function<void()> look) {
    asked.onPlay = [this, file, look = std::move(look)](const std::string& fileName) {
      if (fileName != file) return;
      ++looks;
      look();
    };
  }
  // The screen asked for just that sound, and it was started.
  void expectOnly(const std::string& event) {
    EXPECT_EQ(asked.events, Events{event});
    EXPECT_EQ(diary->await(2), (Events{"open", event}));
  }

  RandomSource& source(Dice dice) {
    if (dice == Dice::chance) return world.seeded;
    return world.scripted;
  }

  std::shared_ptr<Diary> diary = std::make_shared<Diary>();
  desktop::QueuedSounds sounds{standIn(diary), std::chrono::minutes(1)};
  Asked asked{sounds};
  Runtime stage;
  int looks = 0;
};

class PreparationMoment : public Moment {};

TEST_F(PreparationMoment, ItsMusicStartsWithTheScreen) {
  openPreparation();
  EXPECT_EQ(asked.events, Events{"Music1 guit\\hard2.wav"});
  EXPECT_EQ(diary->await(2), (Events{"open", "Music1 guit/hard2.wav"}));
}

TEST_F(PreparationMoment, ItsMusicStartsBeforeAnyFileIsRead) {
  EXPECT_EQ(errorOf([this] { stage.Show("Prefight"); }), 53);
  EXPECT_EQ(asked.events, Events{"Music1 guit\\hard2.wav"});
}

TEST_F(PreparationMoment, ItsItemsAndSpellsAreSilent) {
  hero.Przedmioty(0) = 1;
  hero.MaCzar(0) = true;
  openPreparation();
  pick("Przedmioty", 0, "Prefight");
  world.roll(1, 6, {3, 3});
  press("Uzyj", "Prefight");
  pick("Czary", 0, "Prefight");
  world.roll(1, 6, {3});
  press("Rzuc", "Prefight");
  press("Heroshow", "Prefight");
  EXPECT_EQ(asked.events.size(), 1U);
}

TEST_F(PreparationMoment, ItsMusicEndsWithTheScreen) {
  openPreparation();
  diary->await(2);
  when([] { ADD_FAILURE() << "nothing is to be played"; });
  press("Zakoncz", "Prefight");
  EXPECT_NE(stage.find("Fight"), nullptr);
  EXPECT_EQ(asked.events, (Events{"Music1 guit\\hard2.wav", "Music1 stop"}));
  EXPECT_EQ(diary->await(3).back(), "Music1 stop");
}

struct Cast {
  const char* spell;
  int cost;
  const char* file;
  std::vector<std::pair<int, int>> dice;
  const char* lifeLeft;
};

class SpellMoment : public Moment, public ::testing::WithParamInterface<Cast> {};

TEST_P(SpellMoment, SoundsLastOfAll) {
  const Cast& given = GetParam();
  readySpell(given.spell);
  if (std::string(given.spell) == "BullShots") group(1, 100, 1);
  fight.potwor.Wytrzymalosc = 100;
  openFight();
  when(given.file, [&] {
    EXPECT_EQ(world.unusedRolls(), 0U) << "the effect comes first";
    EXPECT_EQ(captionOf("Pstat(2)"), std::to_string(10 - given.cost)) << "the cost comes first";
    EXPECT_FALSE(get<CommandButton>("Rzuc").Enabled);
    EXPECT_EQ(captionOf("Mstat(0)"), given.lifeLeft) << "the figures come first";
  });
  for (const auto& [faces, face] : given.dice) world.roll(1, faces, {face});
  press("Rzuc");
  EXPECT_EQ(looks, 1);
  EXPECT_EQ(asked.events.back(), std::string("SFX ") + given.file);
  EXPECT_EQ(diary->awaitLast(std::string("SFX ") + given.file).front(), "open");
}

INSTANTIATE_TEST_SUITE_P(All, SpellMoment,
                         ::testing::Values(Cast{"Leczenie", 1, "czar.wav", {{6, 3}}, "100"},
                                           Cast{"Czar Leczniczy", 2, "czar.wav", {{6, 3}, {6, 4}}, "100"},
                                           Cast{"Damage!", 2, "czaramg.wav", {{6, 1}, {6, 2}, {6, 3}}, "94"},
                                           Cast{"BullShots", 2, "czarbul.wav", {{6, 1}, {6, 2}, {6, 3}}, "95"},
                                           Cast{"BOOM!", 4, "czarboom.wav", {{30, 3}, {30, 4}}, "93"},
                                           Cast{"Klasa III A", 2, "czar3a.wav", {{6, 3}, {6, 4}, {10, 5}}, "100"},
                                           Cast{"Kaczy Fart", 4, "czarkac.wav", {}, "100"}));

TEST_P(SpellMoment, IsSilentWithoutTheMagicForIt) {
  readySpell(GetParam().spell);
  hero.AktMoc = GetParam().cost - 1;
  openFight();
  press("Rzuc");
  EXPECT_EQ(asked.events, Events{});
}

class BullShotsMoment : public Moment {
 protected:
  // Casts it and gives what the screen asked for; the last of it must be heard.
  Events castAt(int armour) {
    readySpell("BullShots");
    group(1, 100, armour);
    openFight();
    world.roll(1, 6, {2, 2, 2});
    press("Rzuc");
    diary->awaitLast("SFX czarbul.wav");
    return asked.events;
  }
};

TEST_F(BullShotsMoment, TheWeaponSoundsFirstWhenTheShotsGetThrough) {
  ready("Tasak");
  EXPECT_EQ(castAt(5), (Events{"SFX Tasak.wav", "SFX czarbul.wav"}));
}

TEST_F(BullShotsMoment, TheWeaponIsSilentWhenTheArmourStopsThem) {
  ready("Tasak");
  EXPECT_EQ(castAt(6), Events{"SFX czarbul.wav"});
}

TEST_F(BullShotsMoment, ARangedWeaponSoundsAsTheMeleeOneOfItsPlace) {
  ready("Pistolet");
  EXPECT_EQ(castAt(0), (Events{"SFX Okuty kij.wav", "SFX czarbul.wav"}));
}

TEST_F(BullShotsMoment, NoWeaponSoundsAsTheFirst) { EXPECT_EQ(castAt(0), (Events{"SFX Nóż.wav", "SFX czarbul.wav"})); }

TEST_F(BullShotsMoment, ItsOwnSoundOvertakesTheWeaponsThatIsNotStarted) {
  ready("Tasak");
  readyItem("Ammo", 1);
  diary->hangIn("SFX specammo.wav");
  readySpell("BullShots");
  group(1, 100);
  openFight();
  press("Uzyj");
  diary->awaitHang();
  world.roll(1, 6, {2, 2, 2});
  press("Rzuc");
  EXPECT_EQ(asked.events, (Events{"SFX specammo.wav", "SFX Tasak.wav", "SFX czarbul.wav"}));
  diary->release();
  EXPECT_EQ(diary->await(3), (Events{"open", "SFX specammo.wav", "SFX czarbul.wav"}));
}

struct Voice {
  const char* weapon;
  const char* file;
};

// With the project's own catalogue and dice of chance.
class WeaponMoment : public Moment, public ::testing::WithParamInterface<Voice> {
 protected:
  WeaponMoment() : Moment(Dice::chance) {}
};

TEST_P(WeaponMoment, SoundsWithTheFileOfTheCatalogue) {
  ready(GetParam().weapon);
  group(1, 30000);
  writeFiles();
  world.files.contents["bron.cfg"] = assetBytes("bron.cfg");
  stage.Show("Fight");
  EXPECT_EQ(asked.events, Events{}) << "choosing a weapon is silent";
  press("Atak");
  expectOnly(std::string("SFX ") + GetParam().file);
}

INSTANTIATE_TEST_SUITE_P(Twenty, WeaponMoment,
                         ::testing::Values(Voice{"Nóż", "noz.wav"}, Voice{"Okuty kij", "kij.wav"},
                                           Voice{"Laska", "laska.wav"}, Voice{"Magustaffi", "magustaf.wav"},
                                           Voice{"Rózgacz", "rozgacz.wav"}, Voice{"Tasak", "tasak.wav"},
                                           Voice{"Miecz", "miecz.wav"}, Voice{"Kordelas Chaosu", "kordelas.wav"},
                                           Voice{"Rysik Ślusarski", "rysik.wav"}, Voice{"Oczożłop", "oczozlop.wav"},
                                           Voice{"Łuk", "luk.wav"}, Voice{"Pistolet", "pistolet.wav"},
                                           Voice{"Strzelba", "strzelba.wav"}, Voice{"Karabin", "karabin.wav"},
                                           Voice{"Działo", "dzialo.wav"}, Voice{"Marker", "marker.wav"},
                                           Voice{"MultiBleed", "multi.wav"}, Voice{"Intrusion Rifle", "intruz.wav"},
                                           Voice{"Reaper Cannon", "reaper.wav"}, Voice{"UltiGun", "ulti.wav"}));

class AttackMoment : public Moment {};

TEST_F(AttackMoment, ABlowSoundsBehindItsDiceAndBeforeItsDamage) {
  ready("Nóż");
  group(1, 100);
  openFight();
  get<Label>("IleZad").Caption = "ostatni cios";
  world.roll(1, 120, {120});
  when([this] {
    EXPECT_EQ(world.unusedRolls(), 0U);
    EXPECT_EQ(captionOf("IleZad"), "ostatni cios");
    EXPECT_EQ(captionOf("Mstat(0)"), "100");
  });
  press("Atak");
  EXPECT_EQ(looks, 1);
  EXPECT_EQ(captionOf("Mstat(0)"), "90");
  expectOnly("SFX Nóż.wav");
}

TEST_F(AttackMoment, AShotSoundsBeforeItsDice) {
  ready("Łuk");
  group(1, 100);
  openFight();
  world.roll(1, 140, {140});
  when([this] { EXPECT_EQ(world.unusedRolls(), 1U); });
  press("Atak");
  EXPECT_EQ(looks, 1);
  expectOnly("SFX Łuk.wav");
}

TEST_F(AttackMoment, ABlowAndAShotThatTheArmourStopsSoundToo) {
  for (const std::string name : {"Nóż", "Łuk"}) own(name);
  ready("Nóż");
  group(1, 100, 50);
  openFight();
  world.roll(1, 120, {120});
  press("Atak");
  press("NastTura");
  pick("Bron", 2);
  world.roll(1, 140, {140});
  press("Atak");
  EXPECT_EQ(asked.events, (Events{"SFX Nóż.wav", "SFX Łuk.wav"}));
  EXPECT_EQ(diary->awaitLast("SFX Łuk.wav").front(), "open");
}

TEST_F(AttackMoment, TheCannonReloadsWithASoundOfItsOwn) {
  ready("Działo");
  group(1, 100);
  openFight();
  world.roll(1, 140, {140, 140});
  press("Atak");
  press("NastTura");
  when("specammo.wav", [this] { EXPECT_EQ(world.unusedRolls(), 1U) << "reloading throws no die"; });
  press("Atak");
  EXPECT_EQ(looks, 1);
  EXPECT_EQ(captionOf("Mstat(0)"), "90");
  press("NastTura");
  press("Atak");
  EXPECT_EQ(asked.events, (Events{"SFX Działo.wav", "SFX specammo.wav", "SFX Działo.wav"}));
}

TEST_F(AttackMoment, AttackingWithoutAWeaponIsSilent) {
  openFight();
  press("Atak");
  EXPECT_EQ(asked.events, Events{});
}

class ItemMoment : public Moment {};

TEST_F(ItemMoment, AGrenadeSoundsBeforeAnythingElse) {
  readyItem("Granat", 1);
  group(1, 100);
  openFight();
  world.roll(1, 30, {12});
  when([this] {
    EXPECT_EQ(world.unusedRolls(), 1U);
    EXPECT_EQ(get<ComboBox>("Przedmiot").Text(), "Granat");
    EXPECT_TRUE(get<CommandButton>("Atak").Enabled);
  });
  press("Uzyj");
  EXPECT_EQ(looks, 1);
  EXPECT_EQ(get<ComboBox>("Przedmiot").ListCount(), 0);
  expectOnly("SFX specgran.wav");
}

TEST_F(ItemMoment, AGrenadeThatHurtsItsThrowerSoundsTheSame) {
  readyItem("Granat", 1);
  openFight();
  world.roll(1, 30, {1, 5});
  press("Uzyj");
  expectOnly("SFX specgran.wav");
}

TEST_F(ItemMoment, AmmunitionSoundsBeforeItIsTaken) {
  readyItem("Ammo", 1);
  openFight();
  when([this] { EXPECT_EQ(get<ComboBox>("Przedmiot").Text(), "Ammo"); });
  press("Uzyj");
  EXPECT_EQ(looks, 1);
  EXPECT_EQ(get<ComboBox>("Przedmiot").ListCount(), 0);
  expectOnly("SFX specammo.wav");
}

TEST_F(ItemMoment, NothingChosenIsSilent) {
  pack("Granat", 1);
  openFight();
  press("Uzyj");
  EXPECT_EQ(asked.events, Events{});
}

class VictoryMoment : public Moment {
 protected:
  VictoryMoment() { fight.potwor.Nazwa = "Król Zagłady"; }
  void lookAtVictory() {
    when("wygr.wav", [this] {
      EXPECT_EQ(captionOf("OpisZad"), "Wygrałeś - tura  1");
      EXPECT_TRUE(get<CommandButton>("NastTura").Enabled);
    });
  }
};

TEST_F(VictoryMoment, SoundsBehindTheBlow) {
  ready("Miecz");
  openFight();
  lookAtVictory();
  world.roll(1, 120, {120});
  press("Atak");
  EXPECT_EQ(looks, 1);
  EXPECT_EQ(asked.events, (Events{"SFX Miecz.wav", "SFX wygr.wav"}));
  EXPECT_EQ(diary->awaitLast("SFX wygr.wav").front(), "open");
}

TEST_F(VictoryMoment, SoundsBehindTheGrenade) {
  readyItem("Granat", 1);
  openFight();
  lookAtVictory();
  world.roll(1, 30, {25});
  press("Uzyj");
  EXPECT_EQ(looks, 1);
  EXPECT_EQ(asked.events, (Events{"SFX specgran.wav", "SFX wygr.wav"}));
}

TEST_F(VictoryMoment, SoundsBeforeTheSpellThatBroughtIt) {
  readySpell("BOOM!");
  openFight();
  lookAtVictory();
  world.roll(1, 30, {20, 20});
  press("Rzuc");
  EXPECT_EQ(looks, 1);
  EXPECT_EQ(asked.events, (Events{"SFX wygr.wav", "SFX czarboom.wav"}));
  EXPECT_EQ(diary->awaitLast("SFX czarboom.wav").front(), "open");
}

TEST_F(VictoryMoment, OverAnotherMonsterIsSilent) {
  fight.potwor.Nazwa = "Szczur";
  ready("Miecz");
  openFight();
  world.roll(1, 120, {120});
  press("Atak");
  EXPECT_EQ(captionOf("OpisZad"), "Czysto!");
  expectOnly("SFX Miecz.wav");
}

class FightMoment : public Moment {};

TEST_F(FightMoment, EverythingElseIsSilentAndStartsNoThread) {
  ready("Nóż");
  own("Łuk");
  learn("Damage!");
  learn("BullShots");
  pack("Granat", 1);
  strikesWith(3);
  openFight();
  pick("Bron", 1);
  pick("Czar", 1);
  pick("Przedmiot", 0);
  press("Heroshow");
  press("NastTura");
  press("CloseDMG");
  EXPECT_EQ(asked.events, Events{});
  EXPECT_EQ(diary->thread(), std::thread::id());
}

TEST_F(FightMoment, ItsSoundEndsWithTheScreen) {
  ready("Miecz");
  openFight();
  world.roll(1, 120, {120});
  press("Atak");
  diary->await(2);
  world.roll(1, 4, {1});
  press("NastTura");
  EXPECT_EQ(stage.find("Fight"), nullptr);
  EXPECT_NE(stage.find("CTsklep"), nullptr);
  EXPECT_EQ(asked.events, (Events{"SFX Miecz.wav", "SFX stop"}));
  EXPECT_EQ(diary->await(3).back(), "SFX stop");
}

TEST_F(FightMoment, NoHungBackendHoldsAScreenUp) {
  diary->hangIn("open");
  openPreparation();
  diary->awaitHang();
  press("Zakoncz", "Prefight");
  EXPECT_NE(stage.find("Fight"), nullptr);
  EXPECT_EQ(diary->events(), Events{"open"}) << "the back-end hangs to this moment";
  diary->release();
  EXPECT_EQ(diary->await(2), (Events{"open", "Music1 stop"})) << "the music of a screen that is gone is not played";
}

}  // namespace
}  // namespace brolgan::test
