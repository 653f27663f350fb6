// The fight: the monster in the middle; at its left the figures of the hero over its own, row under
// row; at its right the blows dealt and taken, where their place is kept; the actions below.
#include <QComboBox>
#include <QLineEdit>
#include <array>

#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"

namespace brolgan::desktop {

namespace {

constexpr int kHead = 64;
constexpr int kFigures = 4;
// Two blows must not read as one number.
constexpr qreal kBetweenBlows = 0.25;

// Heading, and name beside value in four rows.
QFrame* figures(FormWindow& window, int firstLegend, const char* values) {
  QFrame* const frame = panel(window);
  QGridLayout& grid = *gridIn(window, *frame, 12, 6);
  grid.addWidget(&label(window, member("Label2", firstLegend), Type::heading), 0, 0, 1, 2);
  for (int i = 0; i < kFigures; ++i) {
    const bool isDice = i == kFigures - 1;
    grid.addWidget(&window.at<QLabel>("Label2", firstLegend + 1 + i), 1 + i, 0);
    grid.addWidget(&figure(window, member(values, i), isDice ? Type::figure : Type::bigFigure), 1 + i, 1);
    window.unit().row(grid, 1 + i, 32);
  }
  grid.setColumnStretch(0, 1);
  return frame;
}

// The controls of a report.
struct Report {
  const char* frame;
  const char* picture;
  const char* heading;
  const char* blows;
  const char* verdict;
  const char* close;
  const QColor& band;
};

const Report kDealt = {"FZad", "Picture2", "Label4", "IleZad", "OpisZad", "CloseZad", theme::kDealt};
const Report kTaken = {"FDamage", "Picture1", "Label3", "IleDMG", "OpisDMG", "CloseDMG", theme::kTaken};

// Words that keep to their place, however many there are.
TextLabel& words(FormWindow& window, const char* name, Type type, Qt::Alignment alignment) {
  TextLabel& found = label(window, name, type);
  found.setWordWrap(true);
  found.keepToRoom();
  found.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  found.setAlignment(Qt::AlignLeft | alignment);
  return found;
}

// The heading in its band; below it the picture over the button that closes the report, and the blows
// over the verdict.
void layOutReport(FormWindow& window, const Report& report) {
  QWidget& frame = window.at(report.frame);
  theme::makeBanded(frame, report.band);
  auto& grid = *within<QGridLayout>(window, frame, {10, 0, 10, 8}, 4);
  window.unit().spacing(grid, 10, 4);
  auto& picture = window.at<PictureWidget>(report.picture);
  auto& close = window.at<PictureButton>(report.close);
  TextLabel& heading = label(window, report.heading, Type::heading);
  heading.setForegroundRole(QPalette::BrightText);
  window.unit().fixed(heading, 0, kBandHeight);
  window.unit().fixed(picture, 96, 96);
  window.unit().fixed(close, 96, 56);
  grid.addWidget(&heading, 0, 1);
  grid.addWidget(&picture, 1, 0, Qt::AlignCenter);
  TextLabel& blows = words(window, report.blows, Type::blow, Qt::AlignVCenter);
  blows.spreadWords(kBetweenBlows);
  grid.addWidget(&blows, 1, 1);
  grid.addWidget(&close, 2, 0);
  grid.addWidget(&words(window, report.verdict, Type::heading, Qt::AlignVCenter), 2, 1);
  grid.setColumnStretch(1, 1);
  grid.setRowStretch(1, 1);
  keepRoom(frame);
}

// A report and the faint picture in its place while there is none.
QGridLayout* over(FormWindow& window, const char* report, const QString& picture, QSize size) {
  auto* place = bare<QGridLayout>(window, 0);
  QWidget* const faint = decoration(window, picture, size);
  faint->setEnabled(false);
  place->addWidget(faint, 0, 0, Qt::AlignCenter);
  place->addWidget(&window.at(report), 0, 0);
  window.at(report).raise();
  return place;
}

// The way to the sheet, how far the monster is, and the figures of both, one over the other.
QVBoxLayout* figuresOfBoth(FormWindow& window) {
  auto* head = bare<QHBoxLayout>(window, 8);
  auto& sheet = window.at<PictureButton>("Heroshow");
  window.unit().fixed(sheet, kHead, kHead);
  head->addWidget(&sheet);
  head->addStretch();
  head->addWidget(&window.at<QLabel>("Label1"));
  head->addWidget(&label(window, "Odl", Type::heading));
  auto* column = bare<QVBoxLayout>(window, 8);
  column->addLayout(head);
  column->addWidget(figures(window, 0, "Pstat"), 1);
  column->addWidget(figures(window, 5, "Mstat"), 1);
  return column;
}

// The warning, the blows dealt, the blows taken.
QVBoxLayout* reports(FormWindow& window) {
  layOutReport(window, kDealt);
  layOutReport(window, kTaken);
  QLabel& warning = words(window, "Uwaga", Type::heading, Qt::AlignVCenter);
  warning.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  window.unit().fixed(warning, 0, kHead);
  keepRoom(warning);
  auto* column = bare<QVBoxLayout>(window, 8);
  column->addWidget(&warning);
  column->addLayout(over(window, kDealt.frame, "kosci.png", {107, 187}), 1);
  column->addLayout(over(window, kTaken.frame, "herb.png", {150, 150}), 1);
  return column;
}

// The monster's picture; how many are left stands in its corner.
QFrame* monster(FormWindow& window) {
  QFrame* const frame = panel(window);
  QGridLayout& scene = *gridIn(window, *frame, 0, 0);
  auto& picture = window.at<PictureWidget>("Potwór");
  window.unit().fixed(picture, kMonster, kMonster);
  TextLabel& left = label(window, "LIle", Type::bigFigure);
  theme::makeBadge(left);
  theme::makeRinged(left);
  window.unit().atLeast(left, 52, 0);
  window.unit().fixed(left, 0, 52);
  alignCentre(left);
  scene.addWidget(&picture, 0, 0);
  auto* corner = bare<QVBoxLayout>(window, 0);
  window.unit().margins(*corner, {0, 0, 8, 8});
  corner->addWidget(&left);
  scene.addLayout(corner, 0, 0, Qt::AlignRight | Qt::AlignBottom);
  left.raise();
  return frame;
}

// A list over the button that does what is chosen in it.
struct Action {
  const char* list;
  const char* button;
  const char* beside = nullptr;  // a box beside the list
};

constexpr std::array kActions = {Action{"Bron", "Atak"}, Action{"Czar", "Rzuc", "mana"}, Action{"Przedmiot", "Uzyj"}};

QFrame* actions(FormWindow& window) {
  QFrame* const frame = panel(window);
  QGridLayout& grid = *gridIn(window, *frame, 8, 6);
  window.unit().spacing(grid, 8, 6);
  int column = 0;
  for (const Action& action : kActions) {
    auto& list = window.at<QComboBox>(action.list);
    auto& button = window.at<QPushButton>(action.button);
    window.unit().atLeast(list, 160, 32);
    window.unit().atLeast(button, 110, 38);
    grid.addWidget(&list, 0, column, 1, action.beside == nullptr ? 2 : 1);
    grid.addWidget(&button, 1, column, 1, 2);
    if (action.beside != nullptr) {
      auto& box = window.at<QLineEdit>(action.beside);
      window.unit().fixed(box, 52, 32);
      grid.addWidget(&box, 0, column + 1);
    }
    grid.setColumnStretch(column, 1);
    window.unit().column(grid, column + 2, 18);
    column += 3;
  }
  auto& next = window.at<QPushButton>("NastTura");
  setType(window, next, Type::heading);
  window.unit().atLeast(next, 190, 76);
  grid.addWidget(&next, 0, column, 2, 1);
  return frame;
}

}  // namespace

void layOutFight(FormWindow& window) {
  window.setBackground("walka.jpg");
  auto* scene = bare<QHBoxLayout>(window, 14);
  scene->addLayout(figuresOfBoth(window), 1);
  scene->addWidget(monster(window), 0, Qt::AlignCenter);
  scene->addLayout(reports(window), 1);
  auto* all = within<QVBoxLayout>(window, window.page(), {66, 56, 66, 54}, 8);
  all->addLayout(scene, 1);
  all->addWidget(actions(window));
}

}  // namespace brolgan::desktop
