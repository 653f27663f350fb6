// The preparation: the monster at the left, the hero in the middle, what he may still do at the
// right.
#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"

namespace brolgan::desktop {

namespace {

void addFigure(FormWindow& window, QGridLayout& grid, int row, const std::string& heading, const std::string& figure) {
  theme::makeFigure(window.at(figure));
  alignRight(window.at(figure));
  grid.addWidget(&window.at(heading), row, 0);
  grid.addWidget(&window.at(figure), row, 1);
}

QVBoxLayout* monster(FormWindow& window) {
  auto* column = bare<QVBoxLayout>(8);
  theme::makeTitle(window.at("Moname"));
  alignCentre(window.at("Moname"));
  window.at("Potwór").setFixedSize(400, 400);
  auto* grid = bare<QGridLayout>(4);
  for (int i = 0; i < 4; ++i) addFigure(window, *grid, i, member("Label2", i), member("Monstat", i));
  grid->setColumnStretch(0, 1);
  column->addWidget(&window.at("Moname"));
  column->addWidget(&window.at("Potwór"), 0, Qt::AlignCenter);
  column->addLayout(grid);
  column->addStretch();
  return column;
}

void layOutHero(FormWindow& window) {
  QGridLayout& grid = *gridIn(window.at("Statystyki"), 14, 8);
  for (int i = 0; i < 5; ++i) addFigure(window, grid, i, member("label4", i), member("stat", i));
  addFigure(window, grid, 5, "label4(5)", "Inic");
  for (int i = 0; i < 2; ++i) {
    theme::makeFigure(window.at("cur", i));
    alignRight(window.at("cur", i));
    grid.addWidget(&window.at("cur", i), i == 0 ? 0 : 2, 2);
  }
  theme::makeFigure(window.at("tabak"));
  alignRight(window.at("tabak"));
  keepRoom(window.at("tabak"));
  grid.addWidget(&window.at("tabak"), 1, 2);
  grid.setColumnStretch(0, 1);
  grid.setColumnMinimumWidth(1, 60);
  grid.setColumnMinimumWidth(2, 60);
}

void layOutItems(FormWindow& window) {
  auto* row = new QHBoxLayout(&window.at("Frame2"));
  row->setContentsMargins(12, 14, 12, 12);
  row->addWidget(&window.at("Przedmioty"), 1);
  row->addWidget(&window.at("Uzyj"));
}

void layOutSpells(FormWindow& window) {
  QGridLayout& grid = *gridIn(window.at("Frame1"), 12, 6);
  window.at("Koszt").setFixedWidth(60);
  grid.addWidget(&window.at("Label3"), 0, 0, 1, 3);
  grid.addWidget(&window.at("Czary"), 1, 0);
  grid.addWidget(&window.at("Koszt"), 1, 1);
  grid.addWidget(&window.at("Rzuc"), 1, 2);
  grid.addWidget(&window.at("KosztInfo"), 2, 0, 1, 3);
  grid.setColumnStretch(0, 1);
}

void layOutNotes(FormWindow& window) {
  auto* column = new QVBoxLayout(&window.at("Frame3"));
  column->setContentsMargins(12, 14, 12, 12);
  window.at("historia").setMinimumHeight(100);
  column->addWidget(&window.at("historia"));
}

QHBoxLayout* head(FormWindow& window) {
  auto* row = bare<QHBoxLayout>(12);
  theme::makeTitle(window.at("Label1"));
  window.at("Heroshow").setFixedSize(64, 64);
  row->addWidget(&window.at("Label1"));
  row->addStretch();
  row->addWidget(&window.at("Heroshow"));
  return row;
}

}  // namespace

void layOutPreparation(FormWindow& window) {
  layOutHero(window);
  layOutItems(window);
  layOutSpells(window);
  layOutNotes(window);
  auto* right = bare<QVBoxLayout>(12);
  for (const char* frame : {"Statystyki", "Frame2", "Frame1"}) right->addWidget(&window.at(frame));
  right->addWidget(&window.at("Frame3"), 1);
  window.at("Zakoncz").setMinimumSize(200, 44);
  theme::makeHeading(window.at("Zakoncz"));
  right->addWidget(&window.at("Zakoncz"), 0, Qt::AlignRight);
  auto* columns = bare<QHBoxLayout>(24);
  columns->addLayout(monster(window));
  columns->addLayout(right, 1);
  auto* all = new QVBoxLayout(&window);
  all->setContentsMargins(20, 8, 20, 12);
  all->addLayout(head(window));
  all->addLayout(columns, 1);
  window.resize(1000, 700);
}

}  // namespace brolgan::desktop
