#include "desktop/layouts/departments.h"

#include <array>

#include "desktop/layouts/grid.h"
#include "rules/development.h"

namespace brolgan::desktop {

namespace {

// The small buttons that go with a row.
void makeNarrow(QWidget& button) {
  theme::makeNarrow(button);
  button.setFixedSize(30, 24);
}

void addButtons(FormWindow& window, QGridLayout& grid, int row, int index) {
  int column = 1;
  for (const char* name : {"MINUS", "PLUS"}) {
    const std::string button = member(name, index);
    if (window.has(button)) {
      makeNarrow(window.at(button));
      grid.addWidget(&window.at(button), row, column);
    }
    ++column;
  }
}

constexpr int kLadderColumn = 3;
constexpr int kCurrentColumn = kLadderColumn + 12;

void addLadder(FormWindow& window, QGridLayout& grid, int row, int index) {
  const std::string name = "stat" + std::to_string(index + 1);
  const bool dice = index == kModifier;
  int column = kLadderColumn;
  for (int step = 0; window.has(member(name.c_str(), step)); ++step) {
    QWidget& label = window.at(name, step);
    alignCentre(label);
    label.setMinimumWidth(dice ? 46 : 23);
    const int span = dice ? 2 : 1;
    grid.addWidget(&label, row, column, 1, span);
    column += span;
  }
}

// The current values stand in the rows of their statistics, at the right end.
void addCurrent(FormWindow& window, QGridLayout& grid, int row, int index) {
  const int place = index == kEndurance ? 0 : index == kPower ? 1 : index == kLives ? 2 : -1;
  if (place < 0 || !window.has(member("akt", place))) return;
  QWidget& label = window.at("akt", place);
  makeBold(label);
  alignRight(label);
  label.setMinimumWidth(34);
  grid.addWidget(&label, row, kCurrentColumn);
}

void layOutDesk(FormWindow& window, QGridLayout& grid, int column, const char* kind) {
  const std::string k = kind;
  const bool melee = k == "w";
  const std::string list = melee ? "LBronww" : "Lbronss";
  const std::string prefix = melee ? "BW" : "BS";
  makeBold(window.at("Label7", melee ? 0 : 1));
  grid.addWidget(&window.at("Label7", melee ? 0 : 1), 1, column, 1, 2);
  window.at(list).setMinimumHeight(96);
  grid.addWidget(&window.at(list), 2, column, 1, 2);
  constexpr std::array<const char*, 4> details = {"nazwa", "dmg", "cena", "opis"};
  for (int i = 0; i < 4; ++i) {
    // Each screen heads the second row of details in its own order; the words decide the place.
    QWidget* heading = nullptr;
    constexpr std::array<const char*, 4> words = {"Nazwa", "Obrażenia", "Cena", "Opis"};
    for (int j = melee ? 0 : 4; j < (melee ? 4 : 8); ++j) {
      QLabel& candidate = label(window, member("Label6", j));
      if (candidate.text() == QString::fromUtf8(words[static_cast<std::size_t>(i)])) heading = &candidate;
    }
    QWidget& value = window.at(prefix + details[static_cast<std::size_t>(i)]);
    if (heading != nullptr) {
      static_cast<QLabel*>(heading)->setAlignment(Qt::AlignLeft | Qt::AlignTop);
      grid.addWidget(heading, 3 + i, column);
    }
    static_cast<QLabel&>(value).setAlignment(Qt::AlignLeft | Qt::AlignTop);
    wrap(value);
    grid.addWidget(&value, 3 + i, column + 1);
  }
  window.at(prefix + "opis").setMinimumHeight(36);
  auto* buttons = bare<QHBoxLayout>();
  buttons->addWidget(&window.at(melee ? "Kupww" : "Kupss"));
  const std::string sell = melee ? "Sprzedajww" : "Sprzedajss";
  if (window.has(sell)) buttons->addWidget(&window.at(sell));
  grid.addLayout(buttons, 7, column, 1, 2);
  grid.setColumnStretch(column + 1, 1);
}

}  // namespace

void layOutStatistics(FormWindow& window) {
  QWidget& panel = window.at("fstat");
  QGridLayout& grid = *gridIn(panel, 10, 4);
  theme::makeHeading(window.at("Label4(0)"));
  grid.addWidget(&window.at("Label4(0)"), 0, 0, 1, kCurrentColumn);
  for (int i = 0; i < kStatistics; ++i) {
    grid.addWidget(&window.at("Label5", i), i + 1, 0);
    addButtons(window, grid, i + 1, i);
    addLadder(window, grid, i + 1, i);
    addCurrent(window, grid, i + 1, i);
    grid.setRowMinimumHeight(i + 1, 27);
  }
  grid.setColumnStretch(kCurrentColumn, 1);
}

void layOutWeapons(FormWindow& window) {
  QGridLayout& grid = *gridIn(window.at("fbron"), 10, 4);
  theme::makeHeading(window.at("Label3"));
  grid.addWidget(&window.at("Label3"), 0, 0, 1, 2);
  layOutDesk(window, grid, 0, "w");
  grid.setColumnMinimumWidth(2, 10);
  layOutDesk(window, grid, 3, "s");
  grid.setRowStretch(2, 1);
}

void layOutSpells(FormWindow& window) {
  QGridLayout& grid = *gridIn(window.at("fczar"), 10, 3);
  grid.setHorizontalSpacing(8);
  theme::makeHeading(window.at("Label4(1)"));
  grid.addWidget(&window.at("Label4(1)"), 0, 0);
  // Name, price, description: the prices stand between, where the eye compares them.
  constexpr std::array<int, 3> columns = {0, 2, 1};
  for (int i = 0; i < 3; ++i) {
    makeBold(window.at("Label11", i));
    grid.addWidget(&window.at("Label11", i), 1, columns[static_cast<std::size_t>(i)]);
  }
  for (int i = 0; i < kSpells; ++i) {
    alignCentre(window.at("czarc", i));
    theme::makeSmall(window.at("Label13", i));
    wrap(window.at("Label13", i));
    grid.addWidget(&window.at("Czarn", i), i + 2, 0);
    grid.addWidget(&window.at("czarc", i), i + 2, 1);
    grid.addWidget(&window.at("Label13", i), i + 2, 2);
    grid.setRowMinimumHeight(i + 2, 24);
  }
  int row = kSpells + 2;
  for (const char* name : {"Label10(0)", "Label10(1)", "Label12"}) {
    theme::makeSmall(window.at(name));
    grid.addWidget(&window.at(name), row++, 0, 1, 3);
  }
  grid.setColumnStretch(2, 1);
}

void layOutGear(FormWindow& window) {
  QGridLayout& grid = *gridIn(window.at("Frame4"), 10, 4);
  theme::makeHeading(window.at("Label4(2)"));
  grid.addWidget(&window.at("Label4(2)"), 0, 0, 1, 7);
  for (int i = 0; i < kSupplies; ++i) {
    QWidget& count = window.at("wyp", i);
    makeBold(count);
    alignRight(count);
    count.setMinimumWidth(44);
    grid.addWidget(&window.at(i == kGrenade ? "Label17" : "ammo"), i + 1, 0);
    addButtons(window, grid, i + 1, kStatistics + i);
    grid.addWidget(&count, i + 1, 3);
  }
  for (int i = 0; i < kGear; ++i) {
    alignRight(window.at("Speccena", i));
    grid.addWidget(&window.at("Spec", i), i + 1, 5);
    grid.addWidget(&window.at("Speccena", i), i + 1, 6);
    grid.setRowMinimumHeight(i + 1, 26);
  }
  grid.setColumnMinimumWidth(4, 48);
  grid.setColumnMinimumWidth(5, 110);
  grid.setColumnStretch(7, 1);
}

}  // namespace brolgan::desktop
