// The errors at run time that a player can bring about by what he types and clicks, each with the
// cause that must be there when it comes.
#pragma once

#include <string>

#include "tests/robot/robot.h"
#include "tests/support/world.h"

namespace brolgan::test {

// The name of the cause of the error that a game ended with; empty when no rule leads there.
std::string causeOf(const World& world, const robot::Report& report);

}  // namespace brolgan::test
