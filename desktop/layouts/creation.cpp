// The creation screen: who he is at the left, statistics and weapons in the middle, spells and
// gear at the right.
#include <QLineEdit>
#include <QRadioButton>

#include "desktop/layouts/departments.h"
#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"
#include "rules/development.h"

namespace brolgan::desktop {

namespace {

constexpr WeaponHeadings kHeadings = {{0, 1, 2, 3}, {4, 5, 6, 7}};

QWidget* classes(FormWindow& window) {
  QWidget& frame = window.at("Frame6");
  auto* column = within<QVBoxLayout>(window, frame, {12, 8, 12, 8}, 6);
  column->addWidget(&label(window, "Label14", Type::heading));
  for (int i = 0; i < kClasses; ++i) column->addWidget(&window.at<QRadioButton>("Klasa", i));
  return &frame;
}

QWidget* saving(FormWindow& window) {
  QWidget& frame = window.at("Frame5");
  auto* row = within<QHBoxLayout>(window, frame, {12, 8, 12, 8}, 6);
  auto& save = window.at<QPushButton>("Save");
  window.unit().atLeast(save, 96, 36);
  row->addWidget(&label(window, "Label4(3)", Type::heading));
  row->addWidget(&save);
  return &frame;
}

QHBoxLayout* budget(FormWindow& window) {
  auto* row = bare<QHBoxLayout>(window, 8);
  row->addWidget(&label(window, "Label2", Type::heading));
  QLabel& points = figure(window, "Ile_jeszcze", Type::bigFigure);
  points.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  row->addWidget(&points, 1);
  return row;
}

QVBoxLayout* person(FormWindow& window) {
  auto* column = bare<QVBoxLayout>(window, 8);
  auto& rules = alignTop(window.at<QLabel>("Label15"));
  rules.setWordWrap(true);
  column->addWidget(&label(window, "Label1", Type::title));
  column->addWidget(&window.at<QLineEdit>("Imie"));
  column->addLayout(budget(window));
  column->addWidget(classes(window));
  column->addWidget(&rules, 1);
  column->addWidget(saving(window));
  return column;
}

QHBoxLayout* trades(FormWindow& window) {
  auto* row = bare<QHBoxLayout>(window, 8);
  for (int i = 0; i < 3; ++i) {
    auto& picture = window.at<PictureWidget>("pics", i);
    window.unit().atLeast(picture, 64, 64);
    row->addWidget(&picture, 1);
  }
  return row;
}

}  // namespace

void layOutCreation(FormWindow& window) {
  layOutStatistics(window);
  layOutWeapons(window, kHeadings);
  layOutSpells(window);
  layOutGear(window);
  auto* middle = bare<QVBoxLayout>(window, 10);
  middle->addWidget(&window.at("fstat"));
  middle->addWidget(&window.at("fbron"), 1);
  auto* right = bare<QVBoxLayout>(window, 10);
  right->addWidget(&window.at("fczar"));
  right->addWidget(&window.at("Frame4"));
  right->addLayout(trades(window), 1);
  auto* left = new QWidget(&window.page());
  left->setLayout(person(window));
  window.unit().fixed(*left, 280, 0);
  auto* columns = within<QHBoxLayout>(window, window.page(), {12, 10, 12, 10}, 10);
  columns->addWidget(left);
  columns->addLayout(middle, 12);
  columns->addLayout(right, 11);
}

}  // namespace brolgan::desktop
