// The title screen: two pictures that stay behind all other screens. Closing it ends the game.
#pragma once

#include <array>

#include "flow/stage/runtime.h"
#include "game/names/names.h"

namespace brolgan {

class Brolgan : public Form {
 public:
  static constexpr const char* kName = screens::kTitle;
  explicit Brolgan(Runtime& runtime);

  void Form_Load() override;
  void Form_Unload() override;

  std::array<PictureBox, 2> pics;

 protected:
  void listControls(ControlTable& table) override;

 private:
  Runtime& runtime_;
};

}  // namespace brolgan
