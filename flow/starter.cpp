#include "flow/starter.h"

namespace brolgan {

void Starter::Form_Load() {
  runtime_.Show("Brolgan");
  runtime_.Show("Main");
  runtime_.Unload(kName);
}

}  // namespace brolgan
