#include "flow/brolgan.h"

namespace brolgan {

Brolgan::Brolgan(Runtime& runtime) : runtime_(runtime) {
  Caption = "Brolgan XP version";
  pics[0].Picture = "tytul.jpg";
  pics[1].Picture = "tytul-noc.jpg";
}

void Brolgan::Form_Load() { runtime_.Show("Main"); }

void Brolgan::Form_Unload() { runtime_.End(); }

void Brolgan::listControls(ControlTable& table) { table.add("pics", pics); }

}  // namespace brolgan
