// The hero sheet: name and class, six figures, two lists.
#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"

namespace brolgan::desktop {

namespace {

QGridLayout* figures(FormWindow& window) {
  auto* grid = bare<QGridLayout>(6);
  for (int i = 0; i < 6; ++i) {
    const int column = i < 3 ? 0 : 3;
    theme::makeFigure(window.at("Pstat", i));
    alignRight(window.at("Pstat", i));
    grid->addWidget(&window.at("pstatl", i), i % 3, column);
    grid->addWidget(&window.at("Pstat", i), i % 3, column + 1);
  }
  grid->setColumnMinimumWidth(2, 28);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(4, 1);
  return grid;
}

QVBoxLayout* list(FormWindow& window, const char* heading, const char* rows) {
  auto* column = bare<QVBoxLayout>(4);
  makeBold(window.at(heading));
  column->addWidget(&window.at(heading));
  column->addWidget(&window.at(rows), 1);
  return column;
}

}  // namespace

void layOutSheet(FormWindow& window) {
  auto* all = new QVBoxLayout(&window);
  all->setContentsMargins(18, 14, 18, 16);
  all->setSpacing(10);
  auto* head = bare<QGridLayout>(2);
  theme::makeTitle(window.at("Imie"));
  theme::makeHeading(window.at("klasa"));
  window.at("HeroClose").setFixedSize(48, 48);
  head->addWidget(decoration(window, "herb.png", {104, 104}), 0, 0, 2, 1);
  head->addWidget(&window.at("Imie"), 0, 1, Qt::AlignBottom);
  head->addWidget(&window.at("klasa"), 1, 1, Qt::AlignTop);
  head->addWidget(&window.at("HeroClose"), 0, 2, 2, 1, Qt::AlignTop);
  head->setHorizontalSpacing(14);
  head->setColumnStretch(1, 1);
  all->addLayout(head);
  all->addLayout(figures(window));
  auto* lists = bare<QHBoxLayout>(12);
  lists->addLayout(list(window, "Label1", "Bron"), 1);
  lists->addLayout(list(window, "Label2", "Stwory"), 1);
  all->addLayout(lists, 1);
  window.resize(560, 560);
}

}  // namespace brolgan::desktop
