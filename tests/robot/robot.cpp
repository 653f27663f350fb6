#include "tests/robot/robot.h"

#include <algorithm>
#include <array>
#include <utility>

#include "flow/text/number_text.h"

namespace brolgan::robot {

namespace {

constexpr std::array kScreens = {"Main", "CTmhero", "CTsklep", "Prefight", "Fight"};

// The buttons that lead from one screen to the next; random acts leave them alone.
bool isExit(const ControlEntry& entry) {
  static constexpr std::array<std::string_view, 7> kExits = {"gracz",   "GraczM",   "Start",   "Save",
                                                             "Zakoncz", "NastTura", "CloseDMG"};
  const bool zone = entry.name.size() > 1 && entry.name[0] == 'w' && entry.name[1] >= '1' && entry.name[1] <= '9';
  return zone || std::find(kExits.begin(), kExits.end(), entry.name) != kExits.end();
}

// Whether a hand on the control can make anything happen.
bool isActive(const ControlEntry& entry) {
  return std::visit(
      [](const auto* control) {
        if constexpr (
            requires { control->ListCount(); } || requires { control->Locked; })
          return true;
        if constexpr (requires { control->Click; }) return static_cast<bool>(control->Click);
        return false;
      },
      entry.control);
}

int rowsOf(const ControlEntry& entry) {
  return std::visit(
      [](const auto* control) {
        if constexpr (requires { control->ListCount(); }) return control->ListCount();
        return -1;
      },
      entry.control);
}

std::string numbered(const char* name, int index) { return name + ("(" + std::to_string(index) + ")"); }

}  // namespace

Robot::Robot(test::World& world, std::uint64_t seed, Habits habits) : world_(world), random_(seed), habits_(habits) {
  players_ = 1 + die(4);
  courage_ = 1 + die(12);
  rich_ = oneIn(habits_.richRobots);
  miser_ = !rich_ && oneIn(habits_.misers);
  if (rich_) habits_.mostClicks *= 4;
  if (rich_) players_ = 1 + die(2);
  if (miser_) courage_ = 1;
}

Report Robot::play() {
  perform({"Starter", "", ""}, [this] { world_.runtime.Load("Starter"); });
  while (!over() && report_.clicks < habits_.mostClicks && !screen().empty()) playScreen();
  if (!over()) closeForm("Brolgan");
  report_.ending = endingOf();
  return report_;
}

void Robot::playScreen() {
  const std::string name = screen();
  if (oneIn(habits_.closedWindows)) {
    closeForm(name);
  } else if (isShown("FHero") && oneIn(3)) {
    playSheet();
  } else if (name == "Main") {
    playSetUp();
  } else if (name == "CTmhero") {
    playCreation();
  } else if (name == "CTsklep") {
    playShop();
  } else if (name == "Prefight") {
    playPreparation();
  } else {
    playFight();
  }
}

void Robot::playSetUp() {
  int ready = 0;
  while (ready < 4 && caption("Main", numbered("Czygra", ready)) == "+") ++ready;
  if (rich_ || miser_ || oneIn(6)) write("Main", "ile_punktow", textFor("ile_punktow"));
  if (oneIn(5) && oneIn(habits_.sillyTexts))
    write("Main", numbered("gracz", oneIn(2) ? die(4) : ready % 4), textFor("gracz"));
  if (oneIn(8)) actAtRandom("Main");
  if (over()) return;
  if (oneIn(12)) {
    click("Main", oneIn(2) ? "Start" : numbered("gracz", die(4)));
  } else if (ready < players_) {
    enter(ready);
  } else {
    click("Main", "Start");
  }
}

void Robot::enter(int player) { click("Main", numbered(oneIn(2) ? "gracz" : "GraczM", player)); }

void Robot::playCreation() {
  const int acts = miser_ ? 0 : oneIn(4) ? die(80) : die(25);
  if (miser_ && oneIn(3)) click("CTmhero", "Sprzedajww");
  if (oneIn(2)) write("CTmhero", "Imie", textFor("Imie"));
  for (int i = 0; i < acts && !over(); ++i) actAtRandom("CTmhero");
  if (rich_ && !over()) spendRiches();
  if (!over()) mendBudget();
  if (!over()) click("CTmhero", "Save");
}

// A hero who is strong in everything.
void Robot::spendRiches() {
  for (int i = 0; i < 120 && !over(); ++i) {
    click("CTmhero", numbered("PLUS", die(9)));
    if (oneIn(4)) click("CTmhero", numbered("Czarn", die(10)));
    if (oneIn(4) && choose("CTmhero", "LBronww")) click("CTmhero", "Kupww");
    if (oneIn(4) && choose("CTmhero", "Lbronss")) click("CTmhero", oneIn(5) ? "Sprzedajss" : "Kupss");
  }
}

// Gives things back until the budget is not below 0; without hope the robot closes the window.
void Robot::mendBudget() {
  static constexpr std::array kReturns = {"Sprzedajww", "Sprzedajss"};
  for (int tries = 0; wholeNumber(caption("CTmhero", "Ile_jeszcze")) < 0; ++tries) {
    if (tries > 200) return closeForm("CTmhero");
    switch (die(4)) {
      case 0:
        choose("CTmhero", oneIn(2) ? "Lbronss" : "LBronww");
        break;
      case 1:
        click("CTmhero", kReturns.at(static_cast<std::size_t>(die(2))));
        break;
      case 2:
        click("CTmhero", numbered("Klasa", 5));
        break;
      default:
        click("CTmhero", numbered("MINUS", die(9)));
    }
    if (over()) return;
  }
}

void Robot::playShop() {
  const int acts = miser_ ? 0 : die(10);
  for (int i = 0; i < acts && !over(); ++i) actAtRandom("CTsklep");
  if (over()) return;
  const int zone = rich_ && !oneIn(4) ? 12 : 1 + die(courage_);
  if (click("CTsklep", "w" + std::to_string(zone))) ++report_.turns;
}

void Robot::playPreparation() {
  const int acts = die(5);
  for (int i = 0; i < acts && !over(); ++i) actAtRandom("Prefight");
  if (!over()) click("Prefight", "Zakoncz");
}

void Robot::playFight() {
  const int acts = die(5);
  for (int i = 0; i < acts && !over() && isShown("Fight"); ++i) {
    if (rich_ || oneIn(3)) click("Fight", "Atak");
    if (!over() && oneIn(6)) castAny();
    if (!over()) actAtRandom("Fight");
  }
  if (over() || !isShown("Fight")) return;
  const bool report = canReach("Fight", "CloseDMG");
  click("Fight", report && !oneIn(4) ? "CloseDMG" : "NastTura");
}

void Robot::castAny() {
  if (!choose("Fight", "Czar")) return;
  write("Fight", "mana", textFor("mana"));
  click("Fight", "Rzuc");
}

void Robot::playSheet() {
  if (oneIn(6)) {
    closeForm("FHero");
  } else if (oneIn(2)) {
    click("FHero", "HeroClose");
  } else {
    actAtRandom("FHero");
  }
}

bool Robot::click(const std::string& form, std::string_view control) {
  const ControlEntry& entry = entryOf(form, control);
  if (!isReachable(entry)) return false;
  Form& owner = *world_.runtime.find(form);
  perform({form, std::string(control), ""}, [&] { brolgan::click(world_.runtime, owner, entry); });
  return !over();
}

bool Robot::choose(const std::string& form, std::string_view control) {
  const ControlEntry& entry = entryOf(form, control);
  const int rows = rowsOf(entry);
  if (rows < 1 || !isReachable(entry)) return false;
  const int row = die(rows);
  perform({form, std::string(control), std::to_string(row)}, [&] { brolgan::select(world_.runtime, entry, row); });
  return true;
}

bool Robot::write(const std::string& form, std::string_view control, const std::string& text) {
  const ControlEntry& entry = entryOf(form, control);
  if (!isReachable(entry)) return false;
  perform({form, std::string(control), text}, [&] { brolgan::type(entry, text); });
  return true;
}

// Something that can be reached now: mostly what does something, at times a mere label or picture.
void Robot::actAtRandom(const std::string& form) {
  const Menu& offered = menu(form);
  const auto& choice = oneIn(50) && !offered.passive.empty() ? offered.passive : offered.active;
  const auto& entries = world_.runtime.find(form)->controls().entries();
  for (int tries = 0; tries < 20; ++tries) {
    const ControlEntry& entry = entries[choice[static_cast<std::size_t>(die(static_cast<int>(choice.size())))]];
    if (!isReachable(entry) || rowsOf(entry) == 0) continue;
    if (entry.name == "Heroshow" && !oneIn(8)) continue;
    return act(form, entry);
  }
}

void Robot::act(const std::string& form, const ControlEntry& entry) {
  const std::string name = entry.fullName();
  if (rowsOf(entry) > 0) {
    choose(form, name);
  } else if (const auto* const box = std::get_if<TextBox*>(&entry.control); box != nullptr && !(*box)->Locked) {
    write(form, name, textFor(entry.name));
  } else {
    click(form, name);
  }
}

void Robot::closeForm(const std::string& form) {
  perform({form, "", "close"}, [&] { closeWindow(world_.runtime, form); });
}

void Robot::perform(Action action, const Handler& doing) {
  world_.clock.now += 0.25;
  ++report_.clicks;
  try {
    doing();
  } catch (const RuntimeError& error) {
    report_.error = error;
  }
  report_.last = std::move(action);
  if (watcher) watcher(report_);
}

bool Robot::isShown(std::string_view form) const {
  const Form* const found = world_.runtime.find(form);
  return found != nullptr && found->Visible;
}

// The screen that stands on the title window, empty when there is none.
std::string Robot::screen() const {
  for (const char* name : kScreens) {
    if (isShown(name)) return name;
  }
  return {};
}

const Robot::Menu& Robot::menu(const std::string& form) {
  const auto [place, isNew] = menus_.try_emplace(form);
  Menu& offered = place->second;
  if (!isNew) return offered;
  const auto& entries = world_.runtime.find(form)->controls().entries();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    offered.places[entries[i].fullName()] = i;
    if (isExit(entries[i])) continue;
    (isActive(entries[i]) ? offered.active : offered.passive).push_back(i);
  }
  return offered;
}

const ControlEntry& Robot::entryOf(const std::string& form, std::string_view control) {
  return world_.runtime.find(form)->controls().entries().at(menu(form).places.find(control)->second);
}

bool Robot::canReach(const std::string& form, std::string_view control) { return isReachable(entryOf(form, control)); }

std::string Robot::caption(const std::string& form, std::string_view label) {
  return std::get<Label*>(entryOf(form, label).control)->Caption;
}

// The fight that ended the game still stands there.
Ending Robot::endingOf() {
  if (report_.error) return Ending::error;
  if (report_.last.form != "Fight") return Ending::titleClosed;
  return caption("Fight", "OpisZad").starts_with("Wygrałeś") ? Ending::lastMonster : Ending::lastLife;
}

// What the robot types: mostly sense, at times nonsense.
std::string Robot::textFor(const std::string& control) {
  static const std::vector<std::string> kNames = {"Zofia", "Zażółć Gęślą", "Jan III", "", "Łukasz z Żor", "?"};
  static const std::vector<std::string> kSillyNames = {"Jan, Wielki", "\"Jan\"", "\"Jan", "漢字", " , ", "\"a\" b"};
  static const std::vector<std::string> kPoints = {"12", "0", "30", "100", "400", "16 ", "7.5"};
  static const std::vector<std::string> kSillyPoints = {"",      "dużo", "-3",   "32767",
                                                        "32768", "1e3",  "12,5", "99999999999"};
  static const std::vector<std::string> kMagic = {"2", "3", "4", "5", " 6 ", "8"};
  static const std::vector<std::string> kSillyMagic = {"", "dużo", "2.5", "-1", "1e3", "0", "3,5", "5 6", "20"};
  static const std::vector<std::string> kFiles = {"hero1.boh", "Zofia.boh", "x,y", "", "", "Żółw.boh", "a\\b.boh"};
  const auto one = [this](const std::vector<std::string>& texts) {
    return texts[static_cast<std::size_t>(die(static_cast<int>(texts.size())))];
  };
  static const std::vector<std::string> kRiches = {"300", "500", "1000", "9999"};
  const bool silly = oneIn(habits_.sillyTexts);
  if (control == "ile_punktow" && rich_) return one(kRiches);
  if (control == "ile_punktow" && miser_) return "32767";
  if (control == "ile_punktow") return one(silly ? kSillyPoints : kPoints);
  if (control == "mana" || control == "Koszt") return one(silly ? kSillyMagic : kMagic);
  if (control == "gracz") return one(kFiles);
  return one(silly ? kSillyNames : kNames);
}

}  // namespace brolgan::robot
