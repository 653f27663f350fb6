// The start form, which exists for one moment: it opens the title and the set-up and goes.
#pragma once

#include "flow/stage/runtime.h"
#include "game/names/names.h"

namespace brolgan {

class Starter : public Form {
 public:
  static constexpr const char* kName = screens::kStart;
  explicit Starter(Runtime& runtime) : runtime_(runtime) {}

  void Form_Load() override;

 protected:
  void listControls(ControlTable&) override {}

 private:
  Runtime& runtime_;
};

}  // namespace brolgan
