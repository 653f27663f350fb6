#include "simulation/games/game.h"

#include <string>

#include "creation/creation.h"
#include "flow/setup.h"
#include "flow/starter.h"
#include "shop/shop.h"
#include "simulation/forecasts/rehearsal.h"

namespace brolgan::simulation {

namespace {

std::string nameOf(int player) { return "Gracz" + std::to_string(player + 1); }

class Table {
 public:
  Table(const DataFiles& data, const Knowledge& known, const GameSetup& setup)
      : known_(known), setup_(setup), stage_(data, setup.seed) {
    std::uint64_t seed = setup.seed ^ 0xB01DFACEU;
    const Foresight reckon = reckoning(known);
    const int rivals = static_cast<int>(setup.seats.size()) - 1;
    for (const Seat& seat : setup.seats) {
      minds_.push_back(makeMind(seat.mind, known, reckon, seat.klasa, rivals, nextNumber(seed)));
      minds_.back()->deny(seat.denied);
      record_.seats.push_back({.seat = seat});
    }
    record_.seed = setup.seed;
  }

  GameRecord play() {
    setUp();
    while (!stage_.runtime.ended() && stage_.runtime.find(CTsklep::kName) != nullptr) {
      if (!playTurn()) break;
    }
    for (std::size_t i = 0; i < minds_.size(); ++i) {
      record_.seats[i].hero = minds_[i]->notes();
      record_.seats[i].boughtAt = minds_[i]->boughtAt();
      record_.seats[i].wantedAt = minds_[i]->wantedAt();
    }
    return std::move(record_);
  }

 private:
  void setUp() {
    stage_.runtime.Show(Starter::kName);
    for (std::size_t i = 0; i < minds_.size(); ++i) {
      SetUpScreen screen(stage_.runtime);
      screen.setPoints(setup_.points);
      screen.create(static_cast<int>(i));
      CreationScreen creation(stage_.runtime);
      creation.setName(nameOf(static_cast<int>(i)));
      creation.chooseClass(setup_.seats[i].klasa);
      minds_[i]->create(creation);
      creation.save();
    }
    SetUpScreen(stage_.runtime).start();
  }

  // One turn of the player whose shop is open; answers whether the game may go on.
  bool playTurn() {
    ShopScreen shop(stage_.runtime);
    TurnRecord turn;
    turn.player = shop.heroName().back() - '1';
    turn.turn = shop.turn();
    if (turn.turn > setup_.mostTurns) return false;
    Mind& mind = *minds_[static_cast<std::size_t>(turn.player)];
    turn.zone = mind.shop(shop);
    if (turn.turn == 1 && setup_.firstZone >= 0) turn.zone = setup_.firstZone;
    noteGrown(mind, turn);
    turn.armour = mind.notes().value(kArmour);
    shop.goTo(turn.zone);
    prepare(mind, turn);
    fight(mind, turn);
    record_.turns.push_back(turn);
    mind.hearOutcome(turn.won);
    return true;
  }

  void noteGrown(const Mind& mind, const TurnRecord& turn) {
    SeatRecord& seat = record_.seats[static_cast<std::size_t>(turn.player)];
    if (turn.zone < kFirstLateZone || turn.zone == kPandoria || seat.grownTurn > 0) return;
    seat.grown = mind.notes();
    seat.grownTurn = turn.turn;
  }

  void prepare(Mind& mind, TurnRecord& turn) {
    PreparationScreen screen(stage_.runtime);
    turn.monster = known_.monsterNamed(screen.monsterName()).number;
    mind.prepare(screen);
    turn.enduranceBefore = screen.endurance();
    screen.finish();
  }

  void fight(Mind& mind, TurnRecord& turn) {
    FightScreen screen(stage_.runtime);
    mind.enter(screen);
    bool kingBeaten = false;
    while (screen.isOpen()) {
      turn.enduranceAfter = screen.endurance();
      if (screen.fallen()) {
        leaveFallen(screen, turn);
        return;
      }
      if (screen.cleared()) {
        kingBeaten = screen.won();
        turn.won = true;
      } else {
        mind.act(screen);
        ++turn.rounds;
        turn.enduranceAfter = screen.endurance();
        if (screen.fallen() || screen.cleared()) continue;
      }
      screen.nextRound();
    }
    turn.won = true;
    reward(turn);
    if (kingBeaten) {
      record_.winner = turn.player;
      record_.winnerTurn = turn.turn;
    }
  }

  void reward(TurnRecord& turn) const {
    const auto klasa = static_cast<std::size_t>(setup_.seats[static_cast<std::size_t>(turn.player)].klasa);
    turn.earned = static_cast<int>(known_.monsters[static_cast<std::size_t>(turn.monster)].points[klasa] + 0.5);
  }

  void leaveFallen(FightScreen& screen, const TurnRecord& turn) {
    const HeroNotes& hero = minds_[static_cast<std::size_t>(turn.player)]->notes();
    int& deaths = deaths_[static_cast<std::size_t>(turn.player)];
    ++deaths;
    record_.seats[static_cast<std::size_t>(turn.player)].out = deaths >= hero.value(kLives);
    screen.closeReport();
  }

  const Knowledge& known_;
  const GameSetup& setup_;
  Stage stage_;
  std::vector<std::unique_ptr<Mind>> minds_;
  std::array<int, 4> deaths_{};
  GameRecord record_;
};

}  // namespace

GameRecord playGame(const DataFiles& data, const Knowledge& known, const GameSetup& setup) {
  return Table(data, known, setup).play();
}

}  // namespace brolgan::simulation
