#include "tests/support/world.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

#include "flow/text/code_page.h"
#include "game/game.h"

namespace brolgan::test {

void FakePictures::load(const std::string& name) {
  if (missing.contains(name)) throw RuntimeError(ErrorCode::fileNotFound, {name, 0, {}});
  if (broken.contains(name)) throw RuntimeError(ErrorCode::invalidPicture, {name, 0, {}});
  loaded.push_back(name);
}

void FillingFiles::append(const std::string& name, std::string_view bytes) {
  if (room-- <= 0) throw RuntimeError(ErrorCode::deviceIo, {name, 0, {}});
  MemoryFiles::append(name, bytes);
}

void RecordingSounds::play(const std::string& player, const std::string& fileName) {
  events.push_back(player + " " + fileName);
}

void RecordingSounds::stop(const std::string& player) { events.push_back(player + " stop"); }

std::vector<std::string> RecordingSounds::played() const {
  std::vector<std::string> names;
  for (const std::string& event : events) {
    const std::string name = event.substr(event.find(' ') + 1);
    if (name != "stop") names.push_back(name);
  }
  return names;
}

float rollOf(int kmin, int kmax, int face) {
  if (kmin == kmax) return 0.5F;
  const auto span = static_cast<float>(kmax - kmin);
  if (face == kmax) return 1 - 0.25F / span;
  if (face == kmin) return 0;
  return static_cast<float>(face - kmin) / span;
}

World::World() : runtime({files, clock, pictures, sounds}) { prepare(scripted); }

World::World(double timer) : runtime({files, clock, pictures, sounds}) {
  clock.now = timer;
  prepare(seeded);
}

void World::prepare(RandomSource& random) {
  offerScreens(runtime, random);
  files.contents["bron.cfg"] = assetBytes("bron.cfg");
  files.contents["monsters.cfg"] = assetBytes("monsters.cfg");
}

void World::roll(int kmin, int kmax, const std::vector<int>& faces) {
  for (const int face : faces) scripted.add(rollOf(kmin, kmax, face));
}

Form& World::form(const std::string& name) const {
  Form* const found = runtime.find(name);
  if (found == nullptr) throw std::logic_error("form not loaded: " + name);
  return *found;
}

bool World::click(const std::string& formName, const std::string& control) {
  Form& owner = form(formName);
  return brolgan::click(runtime, owner, owner.controls().find(control));
}

bool World::select(const std::string& formName, const std::string& control, const std::string& row) {
  const auto names = rows(formName, control);
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (names[i] == row) return selectRow(formName, control, static_cast<int>(i));
  }
  throw std::logic_error("no row " + row);
}

bool World::selectRow(const std::string& formName, const std::string& control, int row) {
  return brolgan::select(runtime, form(formName).controls().find(control), row);
}

bool World::type(const std::string& formName, const std::string& control, const std::string& newText) {
  return brolgan::type(form(formName).controls().find(control), newText);
}

std::string World::caption(const std::string& formName, const std::string& label) const {
  return std::visit(
      [](auto* control) -> std::string {
        if constexpr (requires { control->Caption; }) return control->Caption;
        throw std::logic_error("control without caption");
      },
      form(formName).controls().find(label).control);
}

std::string World::text(const std::string& formName, const std::string& control) const {
  return std::visit(
      [](auto* box) -> std::string {
        if constexpr (requires { std::string(box->Text()); }) {
          return box->Text();
        } else if constexpr (requires { std::string(box->Text); }) {
          return box->Text;
        }
        throw std::logic_error("control without text");
      },
      form(formName).controls().find(control).control);
}

bool World::isVisible(const std::string& formName, const std::string& control) const {
  return std::visit(
      [](auto* shown) {
        if constexpr (requires { shown->Visible; }) return shown->Visible;
        return true;
      },
      form(formName).controls().find(control).control);
}

bool World::isEnabled(const std::string& formName, const std::string& control) const {
  return std::visit(
      [](auto* usable) {
        if constexpr (requires { usable->Enabled; }) return usable->Enabled;
        return true;
      },
      form(formName).controls().find(control).control);
}

Colour World::colour(const std::string& formName, const std::string& label) const {
  return get<Label>(formName, label).ForeColor;
}

std::vector<std::string> World::rows(const std::string& formName, const std::string& list) const {
  std::vector<std::string> names;
  const auto collect = [&names](auto* control) {
    if constexpr (requires { control->ListCount(); }) {
      for (int i = 0; i < control->ListCount(); ++i) names.push_back(control->List(i));
    }
  };
  std::visit(collect, form(formName).controls().find(list).control);
  return names;
}

void World::write(const std::string& name, const std::vector<std::string>& lines) {
  ItemWriter out(files, name);
  for (const std::string& text : lines) out.string(text);
  out.close();
}

std::vector<std::string> World::lines(const std::string& name) const {
  std::vector<std::string> found;
  const std::string& bytes = files.contents.at(name);
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t end = std::min(bytes.find("\r\n", at), bytes.size());
    found.push_back(fromCodePage(std::string_view(bytes).substr(at, end - at)));
    at = end + 2;
  }
  return found;
}

std::string World::line(const std::string& name, int number) const {
  return lines(name).at(static_cast<std::size_t>(number - 1));
}

void World::writeHero(const std::string& name, const Bohater& hero) { Player_Save({files, name}, hero); }

Bohater World::hero(const std::string& name) { return Player_Load(runtime.OpenForInput(name)); }

void World::writeFightFile(const FightSetup& setup) { writeFight(runtime.OpenForOutput(kFightFile), setup); }

Bohater plainHero() {
  Bohater hero;
  hero.Imie = "Kosiarz";
  hero.Ile_jeszcze = 0;
  hero.Klasa = "Strzelec";
  hero.AktWytrzymalosc = 12;
  hero.AktMoc = 2;
  for (Integer& step : hero.Poziomy) step = 1;
  const int values[] = {12, 0, 2, 6, 1};
  for (int i = 0; i < 5; ++i) hero.Wartosci(i) = values[i];
  hero.MO = {1, 4, 1, 0};
  hero.Wcielenia = 1;
  hero.MaBronww(0) = true;
  hero.MaBronss(0) = true;
  hero.Tura = 1;
  return hero;
}

FightSetup plainFight() {
  Potwor monster;
  monster.Ilosc = 1;
  monster.Nazwa = "Szczur";
  monster.Obrazek = "szczur.jpg";
  monster.Szybkosc = 5;
  monster.Atak = {1, 4, 1, 0};
  monster.Wytrzymalosc = 20;
  monster.Pancerz = 0;
  return {0, "hero1.boh", 0, 0, monster, 0};
}

std::string assetBytes(const std::string& name) {
  std::ifstream file(std::string(BROLGAN_ASSETS) + "/" + name, std::ios::binary);
  if (!file) throw std::runtime_error("no asset " + name);
  return {std::istreambuf_iterator<char>(file), {}};
}

int errorOf(const Handler& doing) {
  try {
    doing();
  } catch (const RuntimeError& error) {
    return static_cast<int>(error.code());
  }
  return 0;
}

std::string errorTextOf(const Handler& doing) {
  try {
    doing();
  } catch (const RuntimeError& error) {
    return error.what();
  }
  return {};
}

}  // namespace brolgan::test
