#include "tests/game/known_errors.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <optional>

#include "tests/game/invariants.h"

namespace brolgan::test {

namespace {

using robot::Report;

bool has(const World& world, const std::string& file) { return world.files.contents.contains(file); }

// The number that a text holds by itself, judged apart from the game's own reading.
std::optional<double> numberIn(std::string text) {
  text.erase(0, std::min(text.find_first_not_of(' '), text.size()));
  while (text.ends_with(' ')) text.pop_back();
  if (text.empty() || text.find_first_not_of("0123456789+-.eE") != std::string::npos) return std::nullopt;
  char* end = nullptr;
  const double number = std::strtod(text.c_str(), &end);
  return *end == '\0' ? std::optional(number) : std::nullopt;
}

// The first item of a line, as the game takes it from a file.
std::string firstItem(const World& world, const std::string& file, int line) {
  const std::string text = world.line(file, line);
  return text.substr(0, text.find(','));
}

// Whether reading this hero's name takes more or less than its line.
bool splitsItsLine(const std::string& name) { return name.find_first_of(",\"") != std::string::npos; }

std::string typeMismatch(const World& world, const Report& report) {
  const bool cast = report.last.form == "Fight" && report.last.control == "Rzuc";
  if (!cast || report.error->place().field != "mana" || world.text("Fight", "Czar") != "BullShots") return {};
  return numberIn(world.text("Fight", "mana")) ? "" : "BullShots without a number in mana";
}

std::string startingPoints(const World& world, const Report& report) {
  const ErrorPlace& place = report.error->place();
  if (place.file != "makehro.cfg" || place.line != 2) return {};
  const std::string text = world.text("Main", "ile_punktow");
  const double points = numberIn(text.substr(0, text.find(','))).value_or(0);
  return points > 32767 || points < -32768 ? "starting points beyond an Integer" : "";
}

std::string savedPoints(const World& world) {
  const std::string file = world.text("CTmhero", "Plik");
  const bool cutBehindName = has(world, file) && lineCount(world.files.contents.at(file)) == 1;
  return cutBehindName && std::stol(world.caption("CTmhero", "Ile_jeszcze")) > 32767 ? "a budget above 32767 saved"
                                                                                     : "";
}

// The most that a group can bring: its armour as it came, and the class that trebles.
double highestReward(const World& world) {
  const auto number = [&](int line) { return std::stod(world.line("fight.cfg", line)); };
  const double g = (number(5) - 1) * 0.33 + 1;
  return (((number(9) + number(10)) / 2 * number(11) + number(14)) / 10 * g + 1) * 3;
}

std::string endOfRound(const World& world) {
  const double points = std::stod(world.line(world.line("fight.cfg", 2), 2));
  const bool won = world.caption("Fight", "OpisZad") == "Czysto!" && world.caption("Fight", "LIle") == "0";
  if (won && points + highestReward(world) > 32767) return "a reward beyond 32767 points";
  const int endurance = std::stoi(world.caption("Fight", "Pstat(0)"));
  const bool fallen = world.caption("Fight", "OpisDMG") == "Śmierć!" && endurance < -30000;
  return fallen ? "a fallen hero struck beyond -32768" : "";
}

std::string overflow(const World& world, const Report& report) {
  if (report.last.form == "Main") return startingPoints(world, report);
  if (report.last.form == "CTmhero" && report.last.control == "Save") return savedPoints(world);
  if (report.last.form == "Fight" && report.last.control == "NastTura") return endOfRound(world);
  return {};
}

// The hero file that the act wanted to open: the first of the order for a sheet, else the shop's.
std::string wantedFile(const World& world, const Report& report) {
  if (report.last.control == "Heroshow") return firstItem(world, "gra.cfg", 2);
  return firstItem(world, "sklep.cfg", 1);
}

std::string missingHero(const World& world, const Report& report) {
  const std::string& file = report.error->place().file;
  return !has(world, file) && file == wantedFile(world, report) ? "a hero file that nobody has saved" : "";
}

std::string emptyName(const World& world, const Report& report) {
  if (!report.error->place().file.empty()) return {};
  if (report.last.form == "CTmhero" && report.last.control == "Save") {
    return world.text("CTmhero", "Plik").empty() ? "a hero saved without a file name" : "";
  }
  return wantedFile(world, report).empty() ? "a hero opened without a file name" : "";
}

std::string wrongStep(const World& world, const Report& report) {
  const ErrorPlace& place = report.error->place();
  const bool step = place.field.starts_with("Poziomy(") && world.isOpen("CTsklep");
  return step && has(world, place.file) && splitsItsLine(world.line(place.file, 1)) ? "a name that shifts the hero file"
                                                                                    : "";
}

}  // namespace

std::string causeOf(const World& world, const Report& report) {
  switch (report.error->code()) {
    case ErrorCode::typeMismatch:
      return typeMismatch(world, report);
    case ErrorCode::overflow:
      return overflow(world, report);
    case ErrorCode::fileNotFound:
      return missingHero(world, report);
    case ErrorCode::pathAccess:
      return emptyName(world, report);
    case ErrorCode::noSuchControl:
      return wrongStep(world, report);
    default:
      return {};
  }
}

}  // namespace brolgan::test
