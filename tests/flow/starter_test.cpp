// The start form.
#include "flow/starter.h"

#include <gtest/gtest.h>

#include "tests/flow/stage.h"

namespace brolgan::test {
namespace {

TEST(Starter, ShowsTheTitleAndTheSetUpAndIsGone) {
  World world;
  start(world);
  EXPECT_EQ(world.runtime.loaded(), (std::vector<std::string>{"Brolgan", "Main"}));
  EXPECT_TRUE(world.isShown("Brolgan"));
  EXPECT_TRUE(world.isShown("Main"));
  EXPECT_FALSE(world.isOpen("Starter"));
  EXPECT_FALSE(world.runtime.ended());
}

TEST(Starter, HasNoControlsAndNoCaption) {
  World world;
  Starter starter(world.runtime);
  EXPECT_TRUE(starter.controls().entries().empty());
  EXPECT_EQ(starter.Caption, "");
}

TEST(Starter, NeitherReadsNorWritesAFile) {
  World world;
  world.files.contents.clear();
  start(world);
  EXPECT_TRUE(world.files.contents.empty());
}

}  // namespace
}  // namespace brolgan::test
