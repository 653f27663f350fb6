// The preparation, in the frame of the fight: the monster at the left; its figures beside those of the hero,
// and what he may still do, at the right.
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"

namespace brolgan::desktop {

namespace {

constexpr int kRow = 30;
// The plate of a title that stands above its panel.
constexpr int kPlate = 16;
constexpr QMargins kWithin(14, 18, 14, 10);
// A line of words above and below what is used or cast.
constexpr int kLine = 20;

// A name beside its value, in a row of their own.
void addFigure(FormWindow& window, QGridLayout& grid, int row, const std::string& heading, const std::string& value,
               Type type = Type::bigFigure) {
  grid.addWidget(&window.at<QLabel>(heading), row, 0);
  grid.addWidget(&figure(window, value, type), row, 1);
  window.unit().row(grid, row, kRow);
}

// What lies in a row of its own, between two lines of words.
QGridLayout* betweenLines(FormWindow& window, QWidget& box) {
  auto* const grid = within<QGridLayout>(window, box, kWithin, 6);
  for (const int row : {0, 2}) window.unit().row(*grid, row, kLine);
  grid->setColumnStretch(0, 1);
  return grid;
}

// The monster in a frame of its own, as in the fight.
QFrame* portrait(FormWindow& window) {
  QFrame* const frame = panel(window);
  auto& picture = window.at<PictureWidget>("Potwór");
  window.unit().fixed(picture, kMonster, kMonster);
  gridIn(window, *frame, 0, 0)->addWidget(&picture, 0, 0);
  return frame;
}

// The monster's name over its figures.
QFrame* monster(FormWindow& window) {
  QFrame* const card = panel(window);
  auto* column = within<QVBoxLayout>(window, *card, {14, 8, 14, 10}, 2);
  TextLabel& name = label(window, "Moname", Type::title);
  name.setWordWrap(true);
  name.keepToRoom();
  name.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  window.unit().atLeast(name, 0, 2 * kRow);
  auto* grid = bare<QGridLayout>(window, 2);
  for (int i = 0; i < 4; ++i) addFigure(window, *grid, i, member("Label2", i), member("Monstat", i));
  grid->setColumnStretch(0, 1);
  window.unit().column(*grid, 1, 76);
  column->addWidget(&name, 1);
  column->addLayout(grid);
  return card;
}

QWidget* hero(FormWindow& window) {
  QWidget& box = window.at("Statystyki");
  QGridLayout& grid = *within<QGridLayout>(window, box, kWithin, 2);
  // What the hero has at most is smaller than what he has now.
  for (int i = 0; i < 5; ++i) {
    addFigure(window, grid, i, member("label4", i), member("stat", i), Type::figure);
  }
  addFigure(window, grid, 5, "label4(5)", "Inic");
  for (int i = 0; i < 2; ++i) {
    grid.addWidget(&figure(window, member("cur", i), Type::bigFigure), i == 0 ? 0 : 2, 2);
  }
  QLabel& snuff = figure(window, "tabak", Type::bigFigure);
  keepRoom(snuff);
  grid.addWidget(&snuff, 1, 2);
  window.unit().column(grid, 1, 60);
  window.unit().column(grid, 2, 60);
  grid.setColumnStretch(0, 1);
  return &box;
}

QWidget* items(FormWindow& window) {
  QWidget& box = window.at("Frame2");
  QGridLayout& grid = *betweenLines(window, box);
  auto& list = window.at<QComboBox>("Przedmioty");
  auto& use = window.at<QPushButton>("Uzyj");
  window.unit().atLeast(list, 160, 34);
  window.unit().atLeast(use, 84, 34);
  // No words, but their lines, so that both boxes are alike.
  for (const int line : {0, 2}) grid.addWidget(new QWidget, line, 0);
  grid.addWidget(&list, 1, 0);
  grid.addWidget(&use, 1, 1);
  return &box;
}

QWidget* spells(FormWindow& window) {
  QWidget& box = window.at("Frame1");
  QGridLayout& grid = *betweenLines(window, box);
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
  return &box;
}

QWidget* notes(FormWindow& window) {
  QWidget& box = window.at("Frame3");
  auto* column = within<QVBoxLayout>(window, box, kWithin, 6);
  auto& text = window.at<QPlainTextEdit>("historia");
  window.unit().atLeast(text, 0, 56);
  column->addWidget(&text);
  return &box;
}

// The way to the sheet and what is to be done, over the monster.
QVBoxLayout* scene(FormWindow& window) {
  auto& sheet = window.at<PictureButton>("Heroshow");
  window.unit().fixed(sheet, 64, 64);
  auto* head = bare<QHBoxLayout>(window, 14);
  head->addWidget(&sheet);
  head->addWidget(&label(window, "Label1", Type::title), 1);
  auto* column = bare<QVBoxLayout>(window, 8);
  column->addLayout(head, 1);
  column->addWidget(portrait(window));
  return column;
}

// The monster beside the hero, what he may use beside what he may cast, the notes beside the way on.
QGridLayout* chances(FormWindow& window) {
  auto& end = window.at<QPushButton>("Zakoncz");
  setType(window, end, Type::heading);
  window.unit().atLeast(end, 0, 60);
  auto* grid = bare<QGridLayout>(window, 10);
  window.unit().spacing(*grid, 14, 8);
  auto* beside = bare<QVBoxLayout>(window, 0);
  window.unit().margins(*beside, {0, kPlate, 0, 0});
  beside->addWidget(monster(window));
  grid->addLayout(beside, 0, 0);
  grid->addWidget(hero(window), 0, 1);
  grid->addWidget(items(window), 1, 0);
  grid->addWidget(spells(window), 1, 1);
  grid->addWidget(notes(window), 2, 0, 1, 2);
  grid->addWidget(&end, 3, 1);
  grid->setRowStretch(2, 1);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(1, 1);
  return grid;
}

}  // namespace

void layOutPreparation(FormWindow& window) {
  window.setBackground("walka.jpg");
  auto* columns = within<QHBoxLayout>(window, window.page(), {66, 56, 66, 54}, 14);
  columns->addLayout(scene(window));
  columns->addLayout(chances(window), 1);
}

}  // namespace brolgan::desktop
