#include "desktop/screens.h"

#include "creation/ctmhero.h"
#include "fight/fight.h"
#include "flow/brolgan.h"
#include "flow/main_form.h"
#include "flow/starter.h"
#include "preparation/prefight.h"
#include "sheet/fhero.h"
#include "shop/ctsklep.h"

namespace brolgan::desktop {

void offerScreens(Runtime& runtime) {
  offer<Starter>(runtime);
  offer<Brolgan>(runtime);
  offer<Main>(runtime);
  offer<CTmhero>(runtime);
  offer<CTsklep>(runtime);
  offer<Prefight>(runtime);
  offer<Fight>(runtime);
  offer<FHero>(runtime);
}

}  // namespace brolgan::desktop
