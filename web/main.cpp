// The program in the browser: its services, the game and its face, and what the page may ask of it.
#include <emscripten.h>

#include <string>

#include "web/face.h"
#include "web/outside.h"
#include "web/page.h"
#include "web/page_files.h"

namespace {

using namespace brolgan;

struct Program {
  web::PageFiles files;
  web::PageClock clock;
  web::PagePictures pictures;
  web::PageSounds sounds;
  web::Face face{{files, clock, pictures, sounds}};
};

Program& program() {
  static Program theOne;
  return theOne;
}

void layDown(const char* name) {
  const int length = page_file_length(name);
  if (length < 0) return;
  std::string bytes(static_cast<std::size_t>(length), '\0');
  page_file_bytes(name, bytes.data());
  program().files.put(name, std::move(bytes));
}

}  // namespace

extern "C" {

// The page calls these; ids and texts are UTF-8.
EMSCRIPTEN_KEEPALIVE void game_start() { program().face.start(); }
EMSCRIPTEN_KEEPALIVE bool game_prepare() { return program().face.prepare(); }
EMSCRIPTEN_KEEPALIVE void game_click(const char* id) { program().face.click(id); }
EMSCRIPTEN_KEEPALIVE void game_select(const char* id, int row) { program().face.select(id, row); }
EMSCRIPTEN_KEEPALIVE void game_type(const char* id, const char* text) { program().face.type(id, text); }
EMSCRIPTEN_KEEPALIVE void game_focus(const char* id) { program().face.focus(id); }
EMSCRIPTEN_KEEPALIVE void game_close(const char* form) { program().face.close(form); }
EMSCRIPTEN_KEEPALIVE void game_escape(const char* form) { program().face.escape(form); }
EMSCRIPTEN_KEEPALIVE bool game_reach(const char* form, int key) {
  return program().face.reach(form, static_cast<char>(key));
}

// A person has closed the box that told of an error.
EMSCRIPTEN_KEEPALIVE void game_over() { program().face.end(); }

#ifdef BROLGAN_DEVELOPER
// The names of all files, one a line.
EMSCRIPTEN_KEEPALIVE const char* game_files() {
  static std::string names;
  names.clear();
  for (const auto& [name, bytes] : program().files.contents()) names += name + "\n";
  return names.c_str();
}
// A file's length, -1 when there is none, and its bytes.
EMSCRIPTEN_KEEPALIVE int game_file_length(const char* name) {
  const auto found = program().files.contents().find(name);
  return found == program().files.contents().end() ? -1 : static_cast<int>(found->second.size());
}
EMSCRIPTEN_KEEPALIVE const char* game_file_bytes(const char* name) {
  return program().files.contents().at(name).data();
}
EMSCRIPTEN_KEEPALIVE void game_write(const char* name, const char* bytes, int length) {
  program().files.put(name, {bytes, static_cast<std::size_t>(length)});
}
// Fixes the clock. The first time, before a person has done anything, the dice become as if the program
// had started then.
EMSCRIPTEN_KEEPALIVE void game_seed(double seconds) {
  if (!program().clock.isFixed() && !program().face.isTouched()) program().face.random().seed(seconds);
  program().clock.fix(seconds);
}
#endif
}

// What is thrown before the face stands has nowhere to be shown and ends the program.
int main() {  // NOLINT(bugprone-exception-escape)
  for (const char* name : {"bron.cfg", "monsters.cfg"}) layDown(name);
  program().face.start();
}
