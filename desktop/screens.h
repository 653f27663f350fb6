// All eight screens of the game, made known to a runtime.
#pragma once

namespace brolgan {
class Runtime;
}

namespace brolgan::desktop {

void offerScreens(Runtime& runtime);

}  // namespace brolgan::desktop
