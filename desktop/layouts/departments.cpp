#include "desktop/layouts/departments.h"

#include <QItemSelectionModel>
#include <QListWidget>
#include <vector>

#include "desktop/layouts/grid.h"
#include "rules/development.h"

namespace brolgan::desktop {

namespace {

// The stripes of a table begin before its words and end behind them.
constexpr int kInset = 6;

// An inset, a name, a gap, its buttons.
constexpr int kNameColumn = 1;
constexpr int kGapColumn = 2;
constexpr int kButtonColumn = 3;
constexpr int kGap = 7;

// A grid with an inset before its first column of words and behind its last; the words begin where those of
// a table without stripes do.
QGridLayout& stripedGrid(FormWindow& window, QWidget& frame, int across, int down, int lastColumn) {
  auto& grid = *within<QGridLayout>(window, frame, {10 - kInset, 10, 10 - kInset, 10}, 0);
  window.unit().spacing(grid, across, down);
  for (const int inset : {0, lastColumn + 1}) window.unit().column(grid, inset, kInset - across);
  return grid;
}

void addButtons(FormWindow& window, QGridLayout& grid, int row, int index) {
  int column = kButtonColumn;
  for (const char* name : {"MINUS", "PLUS"}) {
    if (window.has(member(name, index))) {
      auto& button = window.at<QPushButton>(name, index);
      theme::makeNarrow(button);
      window.unit().fixed(button, 30, 24);
      grid.addWidget(&button, row, column);
    }
    ++column;
  }
}

constexpr int kLadderColumn = kButtonColumn + 2;
constexpr int kCurrentColumn = kLadderColumn + 12;

void addLadder(FormWindow& window, QGridLayout& grid, int row, int index) {
  const std::string name = "stat" + std::to_string(index + 1);
  const bool isDice = index == kModifier;
  const int span = isDice ? 2 : 1;
  int column = kLadderColumn;
  for (int step = 0; window.has(member(name.c_str(), step)); ++step) {
    QLabel& label = alignCentre(window.at<QLabel>(name, step));
    window.unit().atLeast(label, isDice ? 52 : 23, 0);
    grid.addWidget(&label, row, column, 1, span);
    column += span;
  }
}

// The current values stand in the rows of their statistics, at the right end.
void addCurrent(FormWindow& window, QGridLayout& grid, int row, int index) {
  const int place = index == kEndurance ? 0 : index == kPower ? 1 : index == kLives ? 2 : -1;
  if (place < 0 || !window.has(member("akt", place))) return;
  QLabel& label = alignRight(window.at<QLabel>("akt", place));
  makeBold(label);
  window.unit().atLeast(label, 34, 0);
  grid.addWidget(&label, row, kCurrentColumn);
}

// The names of the controls of a desk.
struct Desk {
  int heading;  // of "Label7"
  const char* list;
  std::array<const char*, 4> details;
  const char* buy;
  const char* sell;
};

// What stands in the details of a weapon while none is chosen is paler than what is said of one.
void paleWithoutChoice(const QListWidget& list, const std::vector<QLabel*>& details) {
  const auto tell = [&list, details] {
    const bool isChosen = !list.selectedItems().isEmpty();
    for (QLabel* const detail : details) {
      detail->setForegroundRole(isChosen ? QPalette::WindowText : QPalette::PlaceholderText);
    }
  };
  QObject::connect(list.selectionModel(), &QItemSelectionModel::selectionChanged, &list, tell);
  QObject::connect(list.model(), &QAbstractItemModel::modelReset, &list, tell);
  tell();
}

constexpr Desk kMelee = {0, "LBronww", {"BWnazwa", "BWdmg", "BWcena", "BWopis"}, "Kupww", "Sprzedajww"};
constexpr Desk kRanged = {1, "Lbronss", {"BSnazwa", "BSdmg", "BScena", "BSopis"}, "Kupss", "Sprzedajss"};

constexpr int kAboveLegend = 8;

// Below the list and a gap.
constexpr int kDetails = 4;
constexpr int kAboveDetails = 2;

void layOutDesk(FormWindow& window, QGridLayout& grid, int column, const Desk& desk,
                const std::array<int, 4>& headings) {
  auto& heading = window.at<QLabel>("Label7", desk.heading);
  makeBold(heading);
  grid.addWidget(&heading, 1, column, 1, 2);
  auto& list = window.at<QListWidget>(desk.list);
  window.unit().atLeast(list, 0, 96);
  // A list would like a height that is told in pixels; it takes what is left.
  list.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  grid.addWidget(&list, 2, column, 1, 2);
  std::vector<QLabel*> details;
  for (std::size_t i = 0; i < headings.size(); ++i) {
    const int row = kDetails + static_cast<int>(i);
    QLabel& value = alignTop(window.at<QLabel>(desk.details[i]));
    value.setWordWrap(true);
    details.push_back(&value);
    grid.addWidget(&alignTop(window.at<QLabel>("Label6", headings[i])), row, column);
    grid.addWidget(&value, row, column + 1);
  }
  paleWithoutChoice(list, details);
  window.unit().row(grid, kDetails - 1, kAboveDetails);
  window.unit().atLeast(window.at(desk.details.back()), 0, 36);
  auto* buttons = bare<QHBoxLayout>(window);
  buttons->addWidget(&window.at<QPushButton>(desk.buy));
  if (window.has(desk.sell)) buttons->addWidget(&window.at<QPushButton>(desk.sell));
  grid.addLayout(buttons, kDetails + static_cast<int>(headings.size()), column, 1, 2);
  grid.setColumnStretch(column + 1, 1);
}

}  // namespace

void layOutStatistics(FormWindow& window) {
  QGridLayout& grid = stripedGrid(window, window.at("fstat"), 3, 4, kCurrentColumn);
  window.unit().column(grid, kGapColumn, kGap);
  grid.addWidget(&label(window, "Label4(0)", Type::heading), 0, kNameColumn, 1, kCurrentColumn - kNameColumn);
  for (int i = 0; i < kStatistics; ++i) {
    grid.addWidget(&window.at<QLabel>("Label5", i), i + 1, kNameColumn);
    addButtons(window, grid, i + 1, i);
    addLadder(window, grid, i + 1, i);
    addCurrent(window, grid, i + 1, i);
    window.unit().row(grid, i + 1, 27);
    if (i % 2 == 0) addStripe(grid, i + 1, kCurrentColumn + 2);
  }
  grid.setColumnStretch(kCurrentColumn, 1);
}

void layOutWeapons(FormWindow& window, const WeaponHeadings& headings) {
  QGridLayout& grid = *gridIn(window, window.at("fbron"), 10, 4);
  window.unit().spacing(grid, 8, 4);
  grid.addWidget(&label(window, "Label3", Type::heading), 0, 0, 1, 2);
  layOutDesk(window, grid, 0, kMelee, headings.melee);
  window.unit().column(grid, 2, 6);
  layOutDesk(window, grid, 3, kRanged, headings.ranged);
  grid.setRowStretch(2, 1);
}

void layOutSpells(FormWindow& window, int legendHeight) {
  // Name, price, a gap, description: the prices stand between, where the eye compares them.
  constexpr int kPriceColumn = kNameColumn + 1;
  constexpr int kEffectColumn = kPriceColumn + 2;
  QGridLayout& grid = stripedGrid(window, window.at("fczar"), 2, 5, kEffectColumn);
  grid.addWidget(&label(window, "Label4(1)", Type::heading), 0, kNameColumn);
  window.unit().column(grid, kPriceColumn + 1, 8);
  constexpr std::array<int, 3> columns = {kNameColumn, kEffectColumn, kPriceColumn};
  for (int i = 0; i < 3; ++i) {
    auto& heading = window.at<QLabel>("Label11", i);
    makeBold(heading);
    grid.addWidget(&heading, 1, columns[static_cast<std::size_t>(i)]);
  }
  for (int i = 0; i < kSpells; ++i) {
    TextLabel& effect = label(window, member("Label13", i), Type::small);
    effect.setWordWrap(true);
    grid.addWidget(&window.at<ClickLabel>("Czarn", i), i + 2, kNameColumn);
    grid.addWidget(&alignCentre(window.at<QLabel>("czarc", i)), i + 2, kPriceColumn);
    grid.addWidget(&effect, i + 2, kEffectColumn);
    window.unit().row(grid, i + 2, 24);
    if (i % 2 == 0) addStripe(grid, i + 2, kEffectColumn + 2);
  }
  auto* legend = bare<QVBoxLayout>(window, 3);
  window.unit().margins(*legend, {0, kAboveLegend, 0, 0});
  for (const char* name : {"Label10(0)", "Label10(1)", "Label12"}) legend->addWidget(&label(window, name, Type::small));
  grid.addLayout(legend, kSpells + 2, kNameColumn, 1, kEffectColumn, Qt::AlignVCenter);
  window.unit().row(grid, kSpells + 2, legendHeight);
  grid.setColumnStretch(kEffectColumn, 1);
}

void layOutGear(FormWindow& window) {
  constexpr int kCount = kButtonColumn + 2;
  constexpr int kName = kCount + 2;
  constexpr int kPrice = kName + 1;
  QGridLayout& grid = *gridIn(window, window.at("Frame4"), 10, 4);
  grid.addWidget(&label(window, "Label4(2)", Type::heading), 0, kNameColumn, 1, kPrice);
  for (int i = 0; i < kSupplies; ++i) {
    QLabel& count = alignRight(window.at<QLabel>("wyp", i));
    makeBold(count);
    window.unit().atLeast(count, 44, 0);
    grid.addWidget(&window.at<QLabel>(i == kGrenade ? "Label17" : "ammo"), i + 1, kNameColumn);
    addButtons(window, grid, i + 1, kStatistics + i);
    grid.addWidget(&count, i + 1, kCount);
  }
  for (int i = 0; i < kGear; ++i) {
    grid.addWidget(&window.at<ClickLabel>("Spec", i), i + 1, kName);
    grid.addWidget(&alignRight(window.at<QLabel>("Speccena", i)), i + 1, kPrice);
    window.unit().row(grid, i + 1, 26);
  }
  window.unit().column(grid, kGapColumn, kGap);
  window.unit().column(grid, kCount + 1, 40);
  window.unit().column(grid, kName, 110);
  grid.setColumnStretch(kPrice + 1, 1);
}

}  // namespace brolgan::desktop
