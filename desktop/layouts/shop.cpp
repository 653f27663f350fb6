// The shop: the hero and the zones at the left, the departments in the middle and at the right.
// Behind each department lies the picture that shows when it is closed.
#include "desktop/layouts/departments.h"
#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"

namespace brolgan::desktop {

namespace {

// A department and the picture behind it share one place.
QGridLayout* stacked(FormWindow& window, const char* frame, int picture) {
  auto* place = bare<QGridLayout>(0);
  QWidget& shut = window.at("pics", picture);
  shut.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  keepRoom(window.at(frame));
  place->addWidget(&shut, 0, 0);
  place->addWidget(&window.at(frame), 0, 0);
  shut.lower();
  return place;
}

void layOutZones(FormWindow& window) {
  auto* column = new QVBoxLayout(&window.at("Frame5"));
  column->setContentsMargins(10, 8, 10, 8);
  column->setSpacing(4);
  for (int i = 1; i <= 12; ++i) {
    QWidget& zone = window.at("w" + std::to_string(i));
    zone.setMinimumHeight(38);
    column->addWidget(&zone);
  }
}

QGridLayout* person(FormWindow& window) {
  auto* grid = bare<QGridLayout>(6);
  theme::makeTitle(window.at("Label1"));
  theme::makeHeading(window.at("Label2"));
  theme::makeBigFigure(window.at("Ile_jeszcze"));
  theme::makeHeading(window.at("Label15"));
  theme::makeFigure(window.at("Tura"));
  window.at("Heroshow").setFixedSize(64, 64);
  grid->addWidget(&window.at("Label1"), 0, 0, 1, 2);
  grid->addWidget(&window.at("Heroshow"), 0, 2, 2, 1, Qt::AlignRight);
  grid->addWidget(&window.at("Imie"), 1, 0, 1, 2);
  grid->addWidget(&window.at("Label2"), 2, 0, 1, 2);
  grid->addWidget(&window.at("Ile_jeszcze"), 2, 2, Qt::AlignRight);
  grid->addWidget(&window.at("Label15"), 3, 0, 1, 2);
  grid->addWidget(&window.at("Tura"), 3, 2, Qt::AlignRight);
  grid->setColumnStretch(1, 1);
  return grid;
}

QWidget* leftColumn(FormWindow& window) {
  auto* left = new QWidget(&window);
  auto* column = bare<QVBoxLayout>(8);
  left->setLayout(column);
  left->setFixedWidth(250);
  column->addLayout(person(window));
  wrap(window.at("Label14"));
  theme::makeSmall(window.at("Label14"));
  makeBold(window.at("Label14"));
  column->addWidget(&window.at("Label14"));
  layOutZones(window);
  column->addWidget(&window.at("Frame5"));
  column->addStretch();
  return left;
}

QHBoxLayout* signs(FormWindow& window) {
  auto* row = bare<QHBoxLayout>(8);
  for (const int i : {0, 4}) {
    window.at("pics", i).setMinimumSize(60, 60);
    window.at("pics", i).setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  }
  row->addWidget(&window.at("pics", 0), 4);
  row->addWidget(&window.at("pics", 4), 1);
  return row;
}

}  // namespace

void layOutShop(FormWindow& window) {
  auto* columns = new QHBoxLayout(&window);
  columns->setContentsMargins(12, 10, 12, 10);
  columns->setSpacing(10);
  layOutStatistics(window);
  layOutWeapons(window);
  layOutSpells(window);
  layOutGear(window);
  auto* middle = bare<QVBoxLayout>(10);
  middle->addLayout(stacked(window, "fstat", 3));
  middle->addLayout(stacked(window, "fbron", 2), 1);
  auto* right = bare<QVBoxLayout>(10);
  right->addLayout(stacked(window, "fczar", 1));
  right->addWidget(&window.at("Frame4"));
  right->addLayout(signs(window), 1);
  columns->addWidget(leftColumn(window));
  columns->addLayout(middle, 5);
  columns->addLayout(right, 4);
  window.resize(1330, 712);
}

}  // namespace brolgan::desktop
