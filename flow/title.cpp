#include "flow/title.h"

#include "game/names/names.h"

namespace brolgan {

Brolgan::Brolgan(Runtime& runtime) : runtime_(runtime) {
  Caption = "Brolgan XP version";
  pics[0].Picture = pictures::kTitleByDay;
  pics[1].Picture = pictures::kTitleByNight;
}

void Brolgan::Form_Load() { runtime_.Show(screens::kSetUp); }

void Brolgan::Form_Unload() { runtime_.End(); }

void Brolgan::listControls(ControlTable& table) { table.add("pics", pics); }

}  // namespace brolgan
