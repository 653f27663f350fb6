// The preparation: the monster's card at the left, the hero and what he may still do at the right.
#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"

namespace brolgan::desktop {

namespace {

void addFigure(FormWindow& window, QGridLayout& grid, int row, const std::string& heading, const std::string& figure,
               int column = 0) {
  theme::makeBigFigure(window.at(figure));
  alignRight(window.at(figure));
  grid.addWidget(&window.at(heading), row, column);
  grid.addWidget(&window.at(figure), row, column + 1);
}

// The monster's card: name, picture and figures.
QFrame* monster(FormWindow& window) {
  auto* card = new QFrame(&window);
  theme::makePanel(*card);
  auto* column = new QVBoxLayout(card);
  column->setContentsMargins(12, 8, 12, 14);
  column->setSpacing(10);
  theme::makeTitle(window.at("Moname"));
  alignCentre(window.at("Moname"));
  window.at("Potwór").setFixedSize(kMonster);
  auto* grid = bare<QGridLayout>(8);
  for (int i = 0; i < 4; ++i) addFigure(window, *grid, i % 2, member("Label2", i), member("Monstat", i), i < 2 ? 0 : 3);
  grid->setColumnMinimumWidth(2, 48);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(3, 1);
  column->addWidget(&window.at("Moname"), 1);
  column->addWidget(&window.at("Potwór"), 0, Qt::AlignCenter);
  column->addLayout(grid);
  return card;
}

void layOutHero(FormWindow& window) {
  QGridLayout& grid = *gridIn(window.at("Statystyki"), 12, 2);
  for (int i = 0; i < 5; ++i) addFigure(window, grid, i, member("label4", i), member("stat", i));
  addFigure(window, grid, 5, "label4(5)", "Inic");
  for (int i = 0; i < 2; ++i) {
    theme::makeBigFigure(window.at("cur", i));
    alignRight(window.at("cur", i));
    grid.addWidget(&window.at("cur", i), i == 0 ? 0 : 2, 2);
  }
  theme::makeBigFigure(window.at("tabak"));
  alignRight(window.at("tabak"));
  keepRoom(window.at("tabak"));
  grid.addWidget(&window.at("tabak"), 1, 2);
  grid.setColumnMinimumWidth(0, 140);
  grid.setColumnMinimumWidth(1, 60);
  grid.setColumnMinimumWidth(2, 60);
  grid.setColumnStretch(3, 1);
  grid.addWidget(decoration(window, "herb.png", {150, 150}), 0, 3, 6, 1, Qt::AlignCenter);
}

void layOutItems(FormWindow& window) {
  auto* row = new QHBoxLayout(&window.at("Frame2"));
  row->setContentsMargins(12, 14, 12, 12);
  window.at("Przedmioty").setMinimumHeight(30);
  window.at("Uzyj").setMinimumSize(72, 30);
  row->addWidget(&window.at("Przedmioty"), 1);
  row->addWidget(&window.at("Uzyj"));
}

void layOutSpells(FormWindow& window) {
  QGridLayout& grid = *gridIn(window.at("Frame1"), 12, 6);
  window.at("Czary").setMinimumHeight(30);
  window.at("Koszt").setFixedSize(60, 30);
  window.at("Rzuc").setMinimumSize(72, 30);
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
  window.at("historia").setMinimumHeight(84);
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
  auto* right = bare<QVBoxLayout>(10);
  right->addLayout(head(window));
  for (const char* frame : {"Statystyki", "Frame2", "Frame1"}) right->addWidget(&window.at(frame));
  right->addWidget(&window.at("Frame3"), 1);
  window.at("Zakoncz").setMinimumSize(200, 44);
  theme::makeHeading(window.at("Zakoncz"));
  right->addWidget(&window.at("Zakoncz"), 0, Qt::AlignRight);
  auto* columns = new QHBoxLayout(&window);
  columns->setContentsMargins(16, 14, 16, 14);
  columns->setSpacing(20);
  columns->addWidget(monster(window));
  columns->addLayout(right, 1);
  window.resize(1044, 704);
}

}  // namespace brolgan::desktop
