#include "flow/starter.h"

#include "game/names/names.h"

namespace brolgan {

void Starter::Form_Load() {
  runtime_.Show(screens::kTitle);
  runtime_.Show(screens::kSetUp);
  runtime_.Unload(kName);
}

}  // namespace brolgan
