// The sound of a program built without sound.
#pragma once

#include "flow/stage/outside.h"

namespace brolgan::desktop {

class Silence : public Sounds {
 public:
  void play(const std::string&, const std::string&) override {}
  void stop(const std::string&) override {}
};

}  // namespace brolgan::desktop
