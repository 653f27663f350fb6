// The preparation: the monster's card at the left, the hero and what he may still do at the right.
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"

namespace brolgan::desktop {

namespace {

void addFigure(FormWindow& window, QGridLayout& grid, int row, const std::string& heading, const std::string& value,
               int column = 0, Type type = Type::bigFigure) {
  grid.addWidget(&window.at<QLabel>(heading), row, column);
  grid.addWidget(&figure(window, value, type), row, column + 1);
}

// The monster's card: name, picture and figures.
QFrame* monster(FormWindow& window) {
  QFrame* const card = panel(window);
  auto* column = within<QVBoxLayout>(window, *card, {12, 8, 12, 14}, 10);
  TextLabel& name = label(window, "Moname", Type::title);
  name.setWordWrap(true);
  name.keepToRoom();
  alignCentre(name);
  auto& picture = window.at<PictureWidget>("Potwór");
  window.unit().fixed(picture, kMonster, kMonster);
  auto* grid = bare<QGridLayout>(window, 8);
  for (int i = 0; i < 4; ++i) addFigure(window, *grid, i % 2, member("Label2", i), member("Monstat", i), i < 2 ? 0 : 3);
  window.unit().column(*grid, 2, 48);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(3, 1);
  column->addWidget(&name, 1);
  column->addWidget(&picture, 0, Qt::AlignCenter);
  column->addLayout(grid);
  return card;
}

constexpr int kRow = 33;

QWidget* hero(FormWindow& window) {
  QWidget& box = window.at("Statystyki");
  QGridLayout& grid = *gridIn(window, box, 14, 2);
  // What the hero has at most is smaller than what he has now.
  for (int i = 0; i < 5; ++i) {
    addFigure(window, grid, i, member("label4", i), member("stat", i), 0, Type::figure);
  }
  addFigure(window, grid, 5, "label4(5)", "Inic");
  for (int row = 0; row < 6; ++row) window.unit().row(grid, row, kRow);
  for (int i = 0; i < 2; ++i) {
    grid.addWidget(&figure(window, member("cur", i), Type::bigFigure), i == 0 ? 0 : 2, 2);
  }
  QLabel& snuff = figure(window, "tabak", Type::bigFigure);
  keepRoom(snuff);
  grid.addWidget(&snuff, 1, 2);
  window.unit().column(grid, 0, 140);
  window.unit().column(grid, 1, 76);
  window.unit().column(grid, 2, 76);
  grid.setColumnStretch(0, 1);
  return &box;
}

QWidget* items(FormWindow& window) {
  QWidget& box = window.at("Frame2");
  auto* row = within<QHBoxLayout>(window, box, {14, 14, 14, 14}, 6);
  auto& list = window.at<QComboBox>("Przedmioty");
  auto& use = window.at<QPushButton>("Uzyj");
  window.unit().atLeast(list, 160, 34);
  window.unit().atLeast(use, 84, 34);
  row->addWidget(&list, 1);
  row->addWidget(&use);
  return &box;
}

QWidget* spells(FormWindow& window) {
  QWidget& box = window.at("Frame1");
  QGridLayout& grid = *gridIn(window, box, 14, 6);
  auto& list = window.at<QComboBox>("Czary");
  auto& cost = window.at<QLineEdit>("Koszt");
  auto& cast = window.at<QPushButton>("Rzuc");
  window.unit().atLeast(list, 160, 34);
  window.unit().fixed(cost, 60, 34);
  window.unit().atLeast(cast, 84, 34);
  grid.addWidget(&window.at<QLabel>("Label3"), 0, 0, 1, 3);
  grid.addWidget(&list, 1, 0);
  grid.addWidget(&cost, 1, 1);
  grid.addWidget(&cast, 1, 2);
  grid.addWidget(&window.at<QLabel>("KosztInfo"), 2, 0, 1, 3);
  grid.setColumnStretch(0, 1);
  return &box;
}

QWidget* notes(FormWindow& window) {
  QWidget& box = window.at("Frame3");
  auto* column = within<QVBoxLayout>(window, box, {14, 14, 14, 14}, 6);
  auto& text = window.at<QPlainTextEdit>("historia");
  window.unit().atLeast(text, 0, 84);
  column->addWidget(&text);
  return &box;
}

QHBoxLayout* head(FormWindow& window) {
  auto* row = bare<QHBoxLayout>(window, 12);
  auto& sheet = window.at<PictureButton>("Heroshow");
  window.unit().fixed(sheet, 64, 64);
  row->addWidget(&label(window, "Label1", Type::title));
  row->addStretch();
  row->addWidget(&sheet);
  return row;
}

// The hero beside what he may use and cast.
QHBoxLayout* chances(FormWindow& window) {
  auto* right = bare<QVBoxLayout>(window, 10);
  right->addWidget(items(window));
  right->addWidget(spells(window), 1);
  auto* row = bare<QHBoxLayout>(window, 20);
  row->addWidget(hero(window), 1);
  row->addLayout(right, 1);
  return row;
}

QHBoxLayout* foot(FormWindow& window) {
  auto* row = bare<QHBoxLayout>(window);
  auto& end = window.at<QPushButton>("Zakoncz");
  setType(window, end, Type::heading);
  window.unit().atLeast(end, 220, 56);
  row->addStretch();
  row->addWidget(&end);
  return row;
}

}  // namespace

void layOutPreparation(FormWindow& window) {
  auto* right = bare<QVBoxLayout>(window, 12);
  right->addLayout(head(window));
  right->addLayout(chances(window));
  right->addWidget(notes(window), 1);
  right->addLayout(foot(window));
  auto* columns = within<QHBoxLayout>(window, window.page(), {16, 14, 16, 14}, 20);
  columns->addWidget(monster(window));
  columns->addLayout(right, 1);
}

}  // namespace brolgan::desktop
