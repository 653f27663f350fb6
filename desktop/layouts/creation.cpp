// The creation screen: who he is at the left, statistics and weapons in the middle, spells and
// gear at the right.
#include "desktop/layouts/departments.h"
#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"
#include "rules/development.h"

namespace brolgan::desktop {

namespace {

void layOutClasses(FormWindow& window) {
  auto* column = new QVBoxLayout(&window.at("Frame6"));
  column->setContentsMargins(12, 8, 12, 10);
  column->setSpacing(8);
  theme::makeHeading(window.at("Label14"));
  column->addWidget(&window.at("Label14"));
  for (int i = 0; i < kClasses; ++i) column->addWidget(&window.at("Klasa", i));
}

void layOutSaving(FormWindow& window) {
  auto* row = new QHBoxLayout(&window.at("Frame5"));
  row->setContentsMargins(12, 8, 12, 8);
  theme::makeHeading(window.at("Label4(3)"));
  row->addWidget(&window.at("Label4(3)"));
  window.at("Save").setMinimumSize(96, 36);
  row->addWidget(&window.at("Save"));
}

QHBoxLayout* budget(FormWindow& window) {
  auto* row = bare<QHBoxLayout>(8);
  theme::makeHeading(window.at("Label2"));
  theme::makeBigFigure(window.at("Ile_jeszcze"));
  row->addWidget(&window.at("Label2"));
  row->addWidget(&window.at("Ile_jeszcze"));
  row->addStretch();
  return row;
}

QVBoxLayout* person(FormWindow& window) {
  auto* column = bare<QVBoxLayout>(8);
  theme::makeTitle(window.at("Label1"));
  column->addWidget(&window.at("Label1"));
  column->addWidget(&window.at("Imie"));
  column->addLayout(budget(window));
  layOutClasses(window);
  column->addWidget(&window.at("Frame6"));
  wrap(window.at("Label15"));
  label(window, "Label15").setAlignment(Qt::AlignLeft | Qt::AlignTop);
  column->addWidget(&window.at("Label15"), 1);
  layOutSaving(window);
  column->addWidget(&window.at("Frame5"));
  return column;
}

QHBoxLayout* trades(FormWindow& window) {
  auto* row = bare<QHBoxLayout>(8);
  for (int i = 0; i < 3; ++i) {
    window.at("pics", i).setMinimumSize(96, 96);
    row->addWidget(&window.at("pics", i), 1);
  }
  return row;
}

}  // namespace

void layOutCreation(FormWindow& window) {
  auto* columns = new QHBoxLayout(&window);
  columns->setContentsMargins(12, 10, 12, 10);
  columns->setSpacing(10);
  layOutStatistics(window);
  layOutWeapons(window);
  layOutSpells(window);
  layOutGear(window);
  auto* middle = bare<QVBoxLayout>(10);
  middle->addWidget(&window.at("fstat"));
  middle->addWidget(&window.at("fbron"), 1);
  auto* right = bare<QVBoxLayout>(10);
  right->addWidget(&window.at("fczar"));
  right->addWidget(&window.at("Frame4"));
  right->addLayout(trades(window), 1);
  auto* left = new QWidget(&window);
  left->setLayout(person(window));
  left->setFixedWidth(276);
  columns->addWidget(left);
  columns->addLayout(middle, 13);
  columns->addLayout(right, 11);
  window.resize(1330, 712);
}

}  // namespace brolgan::desktop
