// The set-up: one row a player, the starting points, and the start.
#include <QLineEdit>

#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"

namespace brolgan::desktop {

namespace {

QGridLayout* players(FormWindow& window) {
  auto* grid = bare<QGridLayout>(window, 8);
  grid->addWidget(&label(window, "Label1", Type::title), 0, 0, 1, 2);
  grid->addWidget(&alignCentre(label(window, "Label4", Type::heading)), 0, 2);
  for (int i = 0; i < 4; ++i) {
    auto& file = window.at<QLineEdit>("gracz", i);
    auto& create = window.at<QPushButton>("GraczM", i);
    window.unit().atLeast(file, 240, 32);
    window.unit().atLeast(create, 110, 34);
    grid->addWidget(&file, i + 1, 0);
    grid->addWidget(&create, i + 1, 1);
    grid->addWidget(&alignCentre(label(window, member("Czygra", i), Type::bigFigure)), i + 1, 2);
  }
  grid->setColumnStretch(0, 1);
  window.unit().column(*grid, 2, 110);
  return grid;
}

QHBoxLayout* start(FormWindow& window) {
  auto* row = bare<QHBoxLayout>(window, 12);
  auto& points = window.at<QLineEdit>("ile_punktow");
  auto& button = window.at<QPushButton>("Start");
  setType(window, button, Type::heading);
  window.unit().fixed(points, 96, 34);
  window.unit().atLeast(button, 160, 44);
  row->addWidget(&label(window, "Label2", Type::heading));
  row->addWidget(&points);
  row->addStretch();
  row->addWidget(&button);
  return row;
}

}  // namespace

void layOutSetup(FormWindow& window) {
  auto* column = bare<QVBoxLayout>(window, 12);
  column->addStretch();
  column->addLayout(players(window));
  column->addWidget(&window.at<QLabel>("Label3"));
  column->addLayout(start(window));
  column->addStretch();
  auto* row = within<QHBoxLayout>(window, window.page(), {20, 16, 28, 20}, 20);
  row->addWidget(decoration(window, "kosci.png", {150, 262}));
  row->addLayout(column, 1);
}

}  // namespace brolgan::desktop
