// The set-up: a shield and a column a player, the starting points, and the start.
#include "flow/setup.h"

#include <QLineEdit>
#include <array>

#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"

namespace brolgan::desktop {

namespace {

constexpr std::array kShields = {"tarcza-1.png", "tarcza-2.png", "tarcza-3.png", "tarcza-4.png"};
constexpr QSize kShield(110, 124);
constexpr int kBoss = 36;

// The shield of a player; the mark that he takes part stands on its boss.
QGridLayout* shield(FormWindow& window, int player) {
  auto* place = bare<QGridLayout>(window, 0);
  place->addWidget(decoration(window, kShields.at(static_cast<std::size_t>(player)), kShield), 0, 0, Qt::AlignCenter);
  QLabel& mark = alignCentre(label(window, member("Czygra", player), Type::bigFigure));
  window.unit().fixed(mark, kBoss, kBoss);
  place->addWidget(&mark, 0, 0, Qt::AlignCenter);
  mark.raise();
  return place;
}

// A column a player.
QGridLayout* players(FormWindow& window) {
  auto* grid = bare<QGridLayout>(window, 8);
  window.unit().spacing(*grid, 20, 8);
  for (int i = 0; i < kPlayers; ++i) {
    auto& file = window.at<QLineEdit>("gracz", i);
    auto& create = window.at<QPushButton>("GraczM", i);
    window.unit().atLeast(file, 0, 32);
    setType(window, create, Type::heading);
    window.unit().atLeast(create, 110, 40);
    grid->addLayout(shield(window, i), 0, i);
    grid->addWidget(&file, 1, i);
    grid->addWidget(&create, 2, i);
    grid->setColumnStretch(i, 1);
  }
  return grid;
}

QHBoxLayout* head(FormWindow& window) {
  auto* row = bare<QHBoxLayout>(window, 12);
  row->addWidget(&label(window, "Label1", Type::title));
  row->addStretch();
  row->addWidget(&label(window, "Label4", Type::heading));
  return row;
}

QHBoxLayout* start(FormWindow& window) {
  auto* row = bare<QHBoxLayout>(window, 12);
  auto& points = window.at<QLineEdit>("ile_punktow");
  auto& button = window.at<QPushButton>("Start");
  setType(window, button, Type::heading);
  window.unit().fixed(points, 96, 34);
  window.unit().atLeast(button, 200, 52);
  row->addWidget(&label(window, "Label2", Type::heading));
  row->addWidget(&points);
  row->addStretch();
  row->addWidget(&button);
  return row;
}

}  // namespace

void layOutSetup(FormWindow& window) {
  auto* column = within<QVBoxLayout>(window, window.page(), {24, 10, 24, 14}, 8);
  column->addLayout(head(window));
  column->addLayout(players(window), 1);
  column->addWidget(&window.at<QLabel>("Label3"));
  column->addLayout(start(window));
}

}  // namespace brolgan::desktop
