// The set-up screen: names the hero files of up to four players, opens the creation screen for each
// in turn and starts the game. Writes makehro.cfg, gra.cfg and sklep.cfg; reads nothing.
#pragma once

#include <array>

#include "flow/stage/runtime.h"
#include "game/names/names.h"
#include "rules/random.h"

namespace brolgan {

class Main : public Form {
 public:
  static constexpr const char* kName = screens::kSetUp;
  Main(Runtime& runtime, RandomSource& random);

  void Form_Load() override;

  Label Label1{"Bohaterowie graczy"};
  Label Label2{"Ile punktów startowych"};
  Label Label3{"Kliknij na nazwie pliku, aby stworzyć bohatera "};
  Label Label4{"Czy gra?"};
  std::array<TextBox, kPlayers> gracz;
  std::array<CommandButton, kPlayers> GraczM;
  std::array<Label, kPlayers> Czygra;
  TextBox ile_punktow{"12"};
  CommandButton Start{"Zacznij"};

 protected:
  void listControls(ControlTable& table) override;

 private:
  void gracz_Click(int index);
  void GraczM_Click(int index);
  void Start_Click();

  [[nodiscard]] bool takesPart(int index) const;
  [[nodiscard]] int playersTakingPart() const;

  Runtime& runtime_;
  RandomSource& random_;
};

}  // namespace brolgan
