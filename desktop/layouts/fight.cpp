// The fight: the monster in the middle, the hero at its left and its own figures at its right, row beside
// row; under each the blows that he took, where their place is kept; the actions below.
#include <array>

#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"

namespace brolgan::desktop {

namespace {

constexpr int kHead = 64;
constexpr int kFigures = 4;
// How far the plate of a group box stands out above its frame.
constexpr int kPlate = 12;

QFrame* panel(FormWindow& window) {
  auto* frame = new QFrame(&window);
  theme::makePanel(*frame);
  return frame;
}

// Heading, and name beside value in four rows. The values stand at the monster's side of the panel, so
// that those of hero and monster face each other across it.
QFrame* figures(FormWindow& window, int firstLegend, const char* values, bool valuesFirst) {
  QFrame* const frame = panel(window);
  QGridLayout& grid = *gridIn(*frame, 12, 6);
  QWidget& heading = window.at("Label2", firstLegend);
  theme::makeHeading(heading);
  grid.addWidget(&heading, 0, 0, 1, 2);
  for (int i = 0; i < kFigures; ++i) {
    QWidget& legend = window.at("Label2", firstLegend + 1 + i);
    QWidget& value = window.at(values, i);
    const bool isDice = i == kFigures - 1;
    isDice ? theme::makeFigure(value) : theme::makeBigFigure(value);
    alignRight(valuesFirst ? legend : value);
    grid.addWidget(&legend, 1 + i, valuesFirst ? 1 : 0);
    grid.addWidget(&value, 1 + i, valuesFirst ? 0 : 1);
    grid.setRowMinimumHeight(1 + i, 32);
  }
  if (valuesFirst) alignRight(heading);
  grid.setColumnStretch(valuesFirst ? 1 : 0, 1);
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
QGridLayout* over(FormWindow& window, const char* report, const QString& picture, QSize size, int above = 0) {
  auto* place = bare<QGridLayout>(0);
  place->setContentsMargins(0, above, 0, 0);
  QWidget* const faint = decoration(window, picture, size);
  faint->setEnabled(false);
  place->addWidget(faint, 0, 0, Qt::AlignCenter);
  place->addWidget(&window.at(report), 0, 0);
  window.at(report).raise();
  return place;
}

// The hero: his sheet and what he is warned of, his figures, the blows that he took.
QVBoxLayout* hero(FormWindow& window) {
  layOutReport(window, "FDamage", {"Picture1", "Label3", "IleDMG", "OpisDMG", "CloseDMG"});
  auto* head = bare<QHBoxLayout>(12);
  window.at("Heroshow").setFixedSize(kHead, kHead);
  head->addWidget(&window.at("Heroshow"));
  wrap(window.at("Uwaga"));
  theme::makeHeading(window.at("Uwaga"));
  keepRoom(window.at("Uwaga"));
  head->addWidget(&window.at("Uwaga"), 1);
  auto* column = bare<QVBoxLayout>(8);
  column->addLayout(head);
  column->addWidget(figures(window, 0, "Pstat", false));
  column->addLayout(over(window, "FDamage", "herb.png", {150, 150}), 1);
  return column;
}

QHBoxLayout* distance(FormWindow& window) {
  auto* row = bare<QHBoxLayout>(8);
  theme::makeHeading(window.at("Odl"));
  window.at("Odl").setMinimumHeight(kHead);
  row->addStretch();
  row->addWidget(&window.at("Label1"));
  row->addWidget(&window.at("Odl"));
  return row;
}

// The monster's side: how far it is, its figures, the blows that it took.
QVBoxLayout* foe(FormWindow& window) {
  layOutReport(window, "FZad", {"Picture2", "Label4", "IleZad", "OpisZad", "CloseZad"});
  auto* column = bare<QVBoxLayout>(8);
  column->addLayout(distance(window));
  column->addWidget(figures(window, 5, "Mstat", true));
  column->addLayout(over(window, "FZad", "kosci.png", {107, 175}, kPlate), 1);
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
  scene->addLayout(hero(window), 1);
  scene->addWidget(monster(window), 0, Qt::AlignCenter);
  scene->addLayout(foe(window), 1);
  auto* all = new QVBoxLayout(&window);
  all->setContentsMargins(66, 56, 66, 54);
  all->setSpacing(8);
  all->addLayout(scene, 1);
  all->addWidget(actions(window));
  window.resize(1340, 716);
}

}  // namespace brolgan::desktop
