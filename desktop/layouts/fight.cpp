// The fight: the monster in the middle, the hero's figures at its left, its own at its right, row
// beside row; the reports at the right edge, where they cover nothing; the actions below.
#include <array>

#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"

namespace brolgan::desktop {

namespace {

QFrame* panel(FormWindow& window) {
  auto* frame = new QFrame(&window);
  frame->setProperty("panel", true);
  return frame;
}

// One column of figures: a heading, then name and value in four rows.
QFrame* figures(FormWindow& window, int firstLegend, const char* values) {
  QFrame* const frame = panel(window);
  QGridLayout& grid = *gridIn(*frame, 12, 4);
  theme::makeHeading(window.at("Label2", firstLegend));
  grid.addWidget(&window.at("Label2", firstLegend), 0, 0, 1, 2);
  for (int i = 0; i < 4; ++i) {
    QWidget& legend = window.at("Label2", firstLegend + 1 + i);
    QWidget& value = window.at(values, i);
    const bool dice = i == 3;
    dice ? theme::makeFigure(value) : theme::makeBigFigure(value);
    alignRight(value);
    grid.addWidget(&legend, 1 + (dice ? 4 : i), 0, 1, dice ? 2 : 1);
    grid.addWidget(&value, 1 + (dice ? 5 : i), dice ? 0 : 1, 1, dice ? 2 : 1);
  }
  grid.setRowStretch(7, 1);
  grid.setColumnStretch(0, 1);
  return frame;
}

void layOutReport(FormWindow& window, const char* frame, const std::array<const char*, 5>& parts) {
  QGridLayout& grid = *gridIn(window.at(frame), 12, 4);
  window.at(parts[0]).setFixedSize(76, 76);
  theme::makeHeading(window.at(parts[1]));
  theme::makeBigFigure(window.at(parts[2]));
  theme::makeHeading(window.at(parts[3]));
  wrap(window.at(parts[2]));
  wrap(window.at(parts[3]));
  window.at(parts[4]).setFixedSize(44, 44);
  grid.addWidget(&window.at(parts[0]), 0, 0, 2, 1);
  grid.addWidget(&window.at(parts[1]), 0, 1);
  grid.addWidget(&window.at(parts[4]), 0, 2, Qt::AlignRight | Qt::AlignTop);
  grid.addWidget(&window.at(parts[2]), 1, 1, 1, 2);
  grid.addWidget(&window.at(parts[3]), 2, 0, 1, 3);
  grid.setColumnStretch(1, 1);
  grid.setRowStretch(1, 1);
  keepRoom(window.at(frame));
  window.at(frame).setMinimumHeight(180);
}

QVBoxLayout* reports(FormWindow& window) {
  layOutReport(window, "FZad", {"Picture2", "Label4", "IleZad", "OpisZad", "CloseZad"});
  layOutReport(window, "FDamage", {"Picture1", "Label3", "IleDMG", "OpisDMG", "CloseDMG"});
  window.at("FZad").setProperty("panel", true);
  auto* column = bare<QVBoxLayout>(8);
  column->addWidget(&window.at("FZad"), 1);
  column->addWidget(&window.at("FDamage"), 1);
  wrap(window.at("Uwaga"));
  theme::makeHeading(window.at("Uwaga"));
  keepRoom(window.at("Uwaga"));
  window.at("Uwaga").setMinimumHeight(48);
  column->addWidget(&window.at("Uwaga"));
  return column;
}

QHBoxLayout* distance(FormWindow& window) {
  auto* row = bare<QHBoxLayout>(8);
  theme::makeHeading(window.at("Odl"));
  row->addWidget(&window.at("Label1"));
  row->addWidget(&window.at("Odl"));
  row->addStretch();
  return row;
}

QVBoxLayout* monster(FormWindow& window) {
  auto* column = bare<QVBoxLayout>(6);
  column->addLayout(distance(window));
  window.at("Potwór").setFixedSize(432, 432);
  // How many are left stands on the picture, in its corner.
  QWidget& left = window.at("LIle");
  left.setProperty("badge", true);
  theme::makeBigFigure(left);
  alignCentre(left);
  auto* scene = bare<QGridLayout>(0);
  scene->addWidget(&window.at("Potwór"), 0, 0);
  scene->addWidget(&left, 0, 0, Qt::AlignRight | Qt::AlignBottom);
  left.raise();
  column->addLayout(scene);
  column->addStretch();
  return column;
}

QFrame* actions(FormWindow& window) {
  QFrame* const frame = panel(window);
  QGridLayout& grid = *gridIn(*frame, 10, 8);
  for (const char* list : {"Bron", "Czar", "Przedmiot"}) window.at(list).setMinimumSize(160, 34);
  for (const char* button : {"Atak", "Rzuc", "Uzyj"}) window.at(button).setMinimumSize(110, 38);
  window.at("mana").setFixedSize(52, 34);
  grid.addWidget(&window.at("Bron"), 0, 0, 1, 2);
  grid.addWidget(&window.at("Atak"), 1, 0, 1, 2);
  grid.addWidget(&window.at("Czar"), 0, 3);
  grid.addWidget(&window.at("mana"), 0, 4);
  grid.addWidget(&window.at("Rzuc"), 1, 3, 1, 2);
  grid.addWidget(&window.at("Przedmiot"), 0, 6, 1, 2);
  grid.addWidget(&window.at("Uzyj"), 1, 6, 1, 2);
  window.at("NastTura").setMinimumSize(190, 80);
  theme::makeHeading(window.at("NastTura"));
  grid.addWidget(&window.at("NastTura"), 0, 9, 2, 1);
  for (const int gap : {2, 5, 8}) grid.setColumnMinimumWidth(gap, 18);
  for (const int stretched : {0, 3, 6}) grid.setColumnStretch(stretched, 1);
  return frame;
}

}  // namespace

void layOutFight(FormWindow& window) {
  window.setBackground("walka.jpg");
  auto* left = bare<QVBoxLayout>(8);
  window.at("Heroshow").setFixedSize(64, 64);
  left->addWidget(&window.at("Heroshow"), 0, Qt::AlignLeft);
  left->addWidget(figures(window, 0, "Pstat"));
  left->addStretch();
  auto* right = bare<QVBoxLayout>(8);
  right->addSpacing(72);
  right->addWidget(figures(window, 5, "Mstat"));
  right->addStretch();
  auto* scene = bare<QHBoxLayout>(12);
  scene->addLayout(left, 5);
  scene->addLayout(monster(window));
  scene->addLayout(right, 4);
  scene->addLayout(reports(window), 5);
  auto* all = new QVBoxLayout(&window);
  all->setContentsMargins(66, 62, 66, 58);
  all->setSpacing(10);
  all->addLayout(scene, 1);
  all->addWidget(actions(window));
  window.resize(1340, 716);
}

}  // namespace brolgan::desktop
