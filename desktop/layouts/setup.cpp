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

QHBoxLayout* start(FormWindow& window) {
  auto* row = bare<QHBoxLayout>(12);
  theme::makeHeading(window.at("Label2"));
  window.at("ile_punktow").setFixedSize(80, 34);
  window.at("Start").setMinimumSize(160, 44);
  theme::makeHeading(window.at("Start"));
  row->addWidget(&window.at("Label2"));
  row->addWidget(&window.at("ile_punktow"));
  row->addStretch();
  row->addWidget(&window.at("Start"));
  return row;
}

}  // namespace

void layOutSetup(FormWindow& window) {
  auto* column = bare<QVBoxLayout>(12);
  column->addLayout(players(window));
  column->addWidget(&window.at("Label3"));
  column->addLayout(start(window));
  auto* row = new QHBoxLayout(&window);
  row->setContentsMargins(20, 16, 28, 20);
  row->setSpacing(20);
  row->addWidget(decoration(window, "kosci.png", {150, 262}));
  row->addLayout(column, 1);
  window.setFixedSize(window.sizeHint().expandedTo({760, 320}));
}

}  // namespace brolgan::desktop
