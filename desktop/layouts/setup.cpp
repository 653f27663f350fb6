// The set-up: one row a player, the starting points, and the start.
#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"

namespace brolgan::desktop {

namespace {

QGridLayout* players(FormWindow& window) {
  auto* grid = bare<QGridLayout>(8);
  theme::makeTitle(window.at("Label1"));
  theme::makeHeading(window.at("Label4"));
  alignCentre(window.at("Label4"));
  grid->addWidget(&window.at("Label1"), 0, 0, 1, 2);
  grid->addWidget(&window.at("Label4"), 0, 2);
  for (int i = 0; i < 4; ++i) {
    QWidget& takesPart = window.at("Czygra", i);
    theme::makeBigFigure(takesPart);
    alignCentre(takesPart);
    window.at("gracz", i).setMinimumSize(240, 32);
    window.at("GraczM", i).setMinimumSize(110, 34);
    grid->addWidget(&window.at("gracz", i), i + 1, 0);
    grid->addWidget(&window.at("GraczM", i), i + 1, 1);
    grid->addWidget(&takesPart, i + 1, 2);
  }
  grid->setColumnStretch(0, 1);
  grid->setColumnMinimumWidth(2, 110);
  return grid;
}

}  // namespace

void layOutSetup(FormWindow& window) {
  auto* column = new QVBoxLayout(&window);
  column->setContentsMargins(28, 22, 28, 24);
  column->setSpacing(12);
  column->addLayout(players(window));
  column->addWidget(&window.at("Label3"));
  column->addSpacing(8);
  auto* start = bare<QHBoxLayout>(12);
  theme::makeHeading(window.at("Label2"));
  window.at("ile_punktow").setFixedSize(80, 34);
  window.at("Start").setMinimumSize(160, 44);
  theme::makeHeading(window.at("Start"));
  start->addWidget(&window.at("Label2"));
  start->addWidget(&window.at("ile_punktow"));
  start->addStretch();
  start->addWidget(&window.at("Start"));
  column->addLayout(start);
  window.setFixedSize(window.sizeHint().expandedTo({620, 360}));
}

}  // namespace brolgan::desktop
