// The fight: the monster in the middle; at its left the figures of the hero over its own, row under
// row; at its right the blows dealt and taken, where their place is kept; the actions below.
#include <array>

#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"

namespace brolgan::desktop {

namespace {

constexpr int kHead = 64;
constexpr int kFigures = 4;

QFrame* panel(FormWindow& window) {
  auto* frame = new QFrame(&window);
  theme::makePanel(*frame);
  return frame;
}

// Heading, and name beside value in four rows.
QFrame* figures(FormWindow& window, int firstLegend, const char* values) {
  QFrame* const frame = panel(window);
  QGridLayout& grid = *gridIn(*frame, 12, 6);
  QWidget& heading = window.at("Label2", firstLegend);
  theme::makeHeading(heading);
  grid.addWidget(&heading, 0, 0, 1, 2);
  for (int i = 0; i < kFigures; ++i) {
    QWidget& value = window.at(values, i);
    const bool isDice = i == kFigures - 1;
    isDice ? theme::makeFigure(value) : theme::makeBigFigure(value);
    alignRight(value);
    grid.addWidget(&window.at("Label2", firstLegend + 1 + i), 1 + i, 0);
    grid.addWidget(&value, 1 + i, 1);
    grid.setRowMinimumHeight(1 + i, 32);
  }
  grid.setColumnStretch(0, 1);
  return frame;
}

void layOutReport(FormWindow& window, const char* frame, const std::array<const char*, 5>& parts) {
  QGridLayout& grid = *gridIn(window.at(frame), 14, 6);
  window.at(parts[0]).setFixedSize(104, 104);
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
}

// A report and the faint picture in its place while there is none.
QGridLayout* over(FormWindow& window, const char* report, const QString& picture, QSize size) {
  auto* place = bare<QGridLayout>(0);
  QWidget* const faint = decoration(window, picture, size);
  faint->setEnabled(false);
  place->addWidget(faint, 0, 0, Qt::AlignCenter);
  place->addWidget(&window.at(report), 0, 0);
  window.at(report).raise();
  return place;
}

// The way to the sheet, how far the monster is, and the figures of both, one over the other.
QVBoxLayout* figuresOfBoth(FormWindow& window) {
  auto* head = bare<QHBoxLayout>(8);
  window.at("Heroshow").setFixedSize(kHead, kHead);
  theme::makeHeading(window.at("Odl"));
  head->addWidget(&window.at("Heroshow"));
  head->addStretch();
  head->addWidget(&window.at("Label1"));
  head->addWidget(&window.at("Odl"));
  auto* column = bare<QVBoxLayout>(8);
  column->addLayout(head);
  column->addWidget(figures(window, 0, "Pstat"), 1);
  column->addWidget(figures(window, 5, "Mstat"), 1);
  return column;
}

// The warning, the blows dealt, the blows taken.
QVBoxLayout* reports(FormWindow& window) {
  layOutReport(window, "FZad", {"Picture2", "Label4", "IleZad", "OpisZad", "CloseZad"});
  layOutReport(window, "FDamage", {"Picture1", "Label3", "IleDMG", "OpisDMG", "CloseDMG"});
  QWidget& warning = window.at("Uwaga");
  wrap(warning);
  theme::makeHeading(warning);
  warning.setMinimumHeight(kHead);
  keepRoom(warning);
  auto* column = bare<QVBoxLayout>(8);
  column->addWidget(&warning);
  column->addLayout(over(window, "FZad", "kosci.png", {107, 187}), 1);
  column->addLayout(over(window, "FDamage", "herb.png", {150, 150}), 1);
  return column;
}

// The monster's picture; how many are left stands in its corner.
QFrame* monster(FormWindow& window) {
  QFrame* const frame = panel(window);
  QGridLayout& scene = *gridIn(*frame, 0, 0);
  window.at("Potwór").setFixedSize(kMonster);
  QWidget& left = window.at("LIle");
  theme::makeBadge(static_cast<QLabel&>(left));
  theme::makeBigFigure(left);
  alignCentre(left);
  scene.addWidget(&window.at("Potwór"), 0, 0);
  scene.addWidget(&left, 0, 0, Qt::AlignRight | Qt::AlignBottom);
  left.raise();
  return frame;
}

QFrame* actions(FormWindow& window) {
  QFrame* const frame = panel(window);
  QGridLayout& grid = *gridIn(*frame, 8, 6);
  grid.setHorizontalSpacing(8);
  for (const char* list : {"Bron", "Czar", "Przedmiot"}) window.at(list).setMinimumSize(160, 32);
  for (const char* button : {"Atak", "Rzuc", "Uzyj"}) window.at(button).setMinimumSize(110, 38);
  window.at("mana").setFixedSize(52, 32);
  grid.addWidget(&window.at("Bron"), 0, 0, 1, 2);
  grid.addWidget(&window.at("Atak"), 1, 0, 1, 2);
  grid.addWidget(&window.at("Czar"), 0, 3);
  grid.addWidget(&window.at("mana"), 0, 4);
  grid.addWidget(&window.at("Rzuc"), 1, 3, 1, 2);
  grid.addWidget(&window.at("Przedmiot"), 0, 6, 1, 2);
  grid.addWidget(&window.at("Uzyj"), 1, 6, 1, 2);
  window.at("NastTura").setMinimumSize(190, 76);
  theme::makeHeading(window.at("NastTura"));
  grid.addWidget(&window.at("NastTura"), 0, 9, 2, 1);
  for (const int gap : {2, 5, 8}) grid.setColumnMinimumWidth(gap, 18);
  for (const int stretched : {0, 3, 6}) grid.setColumnStretch(stretched, 1);
  return frame;
}

}  // namespace

void layOutFight(FormWindow& window) {
  window.setBackground("walka.jpg");
  auto* scene = bare<QHBoxLayout>(14);
  scene->addLayout(figuresOfBoth(window), 1);
  scene->addWidget(monster(window), 0, Qt::AlignCenter);
  scene->addLayout(reports(window), 1);
  auto* all = new QVBoxLayout(&window);
  all->setContentsMargins(66, 56, 66, 54);
  all->setSpacing(8);
  all->addLayout(scene, 1);
  all->addWidget(actions(window));
  window.resize(1340, 716);
}

}  // namespace brolgan::desktop
