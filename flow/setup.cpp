#include "flow/setup.h"

#include <string>
#include <vector>

#include "game/names/names.h"
#include "rules/dice.h"
#include "rules/handover.h"

namespace brolgan {

Main::Main(Runtime& runtime, RandomSource& random) : runtime_(runtime), random_(random) {
  Caption = "MainGame";
  for (int i = 0; i < kPlayers; ++i) {
    gracz[i].Text = "hero" + std::to_string(i + 1) + ".boh";
    gracz[i].Click = [this, i] { gracz_Click(i); };
    GraczM[i].Caption = "Stwórz";
    GraczM[i].Click = [this, i] { GraczM_Click(i); };
  }
  Start.Click = [this] { Start_Click(); };
}

void Main::Form_Load() { random_.seed(runtime_.Timer()); }

// MEANT(early-plus): the "+" goes up before the player has finished his hero, and it is the flag itself.
void Main::gracz_Click(int index) {
  if (index != 0 && !takesPart(index - 1)) return;
  ItemWriter out = runtime_.OpenForOutput(kMakeHeroFile);
  out.string(gracz[index].Text);
  out.string(ile_punktow.Text);
  out.close();
  runtime_.Hide(kName);
  runtime_.Load(screens::kCreation);
  runtime_.Show(screens::kCreation);
  Czygra[index].Caption = "+";
}

void Main::GraczM_Click(int index) {
  runtime_.Unload(screens::kCreation);
  gracz_Click(index);
}

// MEANT(first-shop): the first shop always opens "hero1.boh", whatever the first box says.
void Main::Start_Click() {
  const int count = playersTakingPart();
  if (count < 1) return;
  std::vector<std::string> names(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) names[static_cast<std::size_t>(i)] = gracz[i].Text;
  writePlayerOrder(runtime_.OpenForOutput(kGameFile), count, names);
  writeShop(runtime_.OpenForOutput(kShopFile), "hero1.boh", Rzut(random_, kAllDepartments, kWeaponsAlone));
  runtime_.Hide(kName);
  runtime_.Show(screens::kShop);
  runtime_.Unload(kName);
}

bool Main::takesPart(int index) const { return Czygra[index].Caption == "+"; }

int Main::playersTakingPart() const {
  int count = 0;
  for (int i = 0; i < kPlayers; ++i) count += takesPart(i) ? 1 : 0;
  return count;
}

void Main::listControls(ControlTable& table) {
  table.add("Label1", Label1);
  table.add("Label4", Label4);
  for (int i = 0; i < kPlayers; ++i) {
    table.addMember("gracz", i, gracz[i]);
    table.addMember("GraczM", i, GraczM[i]);
    table.addMember("Czygra", i, Czygra[i]);
  }
  table.add("Label3", Label3);
  table.add("Label2", Label2);
  table.add("ile_punktow", ile_punktow);
  table.add("Start", Start);
}

}  // namespace brolgan
