// The creation screen: who he is at the left, statistics and weapons in the middle, spells and
// gear at the right.
#include <QLineEdit>
#include <QRadioButton>
#include <array>
#include <vector>

#include "desktop/layouts/departments.h"
#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"
#include "rules/development.h"

namespace brolgan::desktop {

namespace {

constexpr WeaponHeadings kHeadings = {{0, 1, 2, 3}, {4, 5, 6, 7}};

constexpr std::array<const char*, kClasses> kEmblems = {"klasa-1.png", "klasa-2.png", "klasa-3.png", "klasa-4.png",
                                                        "klasa-5.png", "klasa-6.png", "klasa-7.png", "klasa-8.png",
                                                        "klasa-9.png", "klasa-10.png"};
constexpr int kEmblem = 104;
constexpr int kBook = 96;

// The emblem of the class in hand.
class ClassEmblem : public PictureWidget {
 public:
  ClassEmblem(FormWindow& window, QWidget* parent) : PictureWidget(window.pictures(), parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    for (int i = 0; i < kClasses; ++i) {
      auto& option = window.at<QRadioButton>("Klasa", i);
      options_.push_back(&option);
      connect(&option, &QRadioButton::toggled, this, [this] { update(); });
    }
  }

 protected:
  // A fresh hero brings his class without a word; what is checked is asked for when it is drawn.
  void paintEvent(QPaintEvent* event) override {
    for (std::size_t i = 0; i < options_.size(); ++i) {
      if (options_[i]->isChecked()) setName(kEmblems.at(i));
    }
    PictureWidget::paintEvent(event);
  }

 private:
  std::vector<QRadioButton*> options_;
};

// The emblem stands beside the first classes, whose names are short.
QWidget* classes(FormWindow& window) {
  QWidget& frame = window.at("Frame6");
  auto& grid = *within<QGridLayout>(window, frame, {6, 7, 12, 7}, 3);
  window.unit().column(grid, 0, 6);
  grid.addWidget(&label(window, "Label14", Type::heading), 0, 1);
  for (int i = 0; i < kClasses; ++i) {
    auto& option = window.at<QRadioButton>("Klasa", i);
    setType(window, option, Type::choice);
    option.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    grid.addWidget(&option, i + 1, 0, 1, 2);
    window.unit().row(grid, i + 1, 21);
    grid.setRowStretch(i + 1, 1);
  }
  auto* const emblem = new ClassEmblem(window, &frame);
  window.unit().fixed(*emblem, kEmblem, kEmblem);
  window.pictures().prepare(kEmblems.front(), (QSizeF(emblem->minimumSize()) * window.devicePixelRatioF()).toSize());
  grid.setColumnStretch(1, 1);
  grid.addWidget(emblem, 0, 0, kClasses + 1, 2, Qt::AlignRight | Qt::AlignTop);
  return &frame;
}

QWidget* advice(FormWindow& window) {
  auto& words = alignTop(window.at<QLabel>("Label15"));
  words.setWordWrap(true);
  QFrame* const frame = panel(window);
  within<QVBoxLayout>(window, *frame, {12, 6, 12, 6}, 0)->addWidget(&words);
  return frame;
}

QWidget* saving(FormWindow& window) {
  QWidget& frame = window.at("Frame5");
  auto* row = within<QHBoxLayout>(window, frame, {12, 8, 12, 8}, 6);
  auto& save = window.at<QPushButton>("Save");
  window.unit().atLeast(save, 96, 40);
  row->addWidget(&label(window, "Label4(3)", Type::heading));
  row->addWidget(&save);
  return &frame;
}

QHBoxLayout* budget(FormWindow& window) {
  auto* row = bare<QHBoxLayout>(window, 8);
  row->addWidget(&label(window, "Label2", Type::heading));
  row->addStretch();
  row->addWidget(&points(window));
  return row;
}

QVBoxLayout* person(FormWindow& window) {
  auto* column = bare<QVBoxLayout>(window, 7);
  column->addWidget(&label(window, "Label1", Type::title));
  column->addWidget(&window.at<QLineEdit>("Imie"));
  column->addLayout(budget(window));
  column->addWidget(classes(window), 1);
  column->addWidget(advice(window));
  column->addWidget(saving(window));
  return column;
}

// A department and its picture, where its controls leave room: at the edges that the alignment names, so
// far from them.
QGridLayout* withPicture(FormWindow& window, const char* department, int picture, int side, Qt::Alignment alignment,
                         const QMargins& margins) {
  auto& found = window.at<PictureWidget>("pics", picture);
  window.unit().fixed(found, side, side);
  auto* aside = bare<QVBoxLayout>(window, 0);
  window.unit().margins(*aside, margins);
  aside->addWidget(&found);
  auto* place = bare<QGridLayout>(window, 0);
  place->addWidget(&window.at(department), 0, 0);
  place->addLayout(aside, 0, 0, alignment);
  found.raise();
  return place;
}

}  // namespace

void layOutCreation(FormWindow& window) {
  layOutStatistics(window);
  layOutWeapons(window, kHeadings);
  layOutSpells(window, kBook);
  layOutGear(window);
  auto* middle = bare<QVBoxLayout>(window, 10);
  middle->addWidget(&window.at("fstat"));
  middle->addLayout(withPicture(window, "fbron", 0, 36, Qt::AlignRight | Qt::AlignTop, {0, 4, 12, 0}), 1);
  auto* right = bare<QVBoxLayout>(window, 10);
  right->addLayout(withPicture(window, "fczar", 1, kBook, Qt::AlignRight | Qt::AlignBottom, {0, 0, 14, 10}), 3);
  right->addLayout(withPicture(window, "Frame4", 2, 58, Qt::AlignLeft | Qt::AlignBottom, {12, 0, 0, 8}), 1);
  auto* left = new QWidget(&window.page());
  left->setLayout(person(window));
  window.unit().fixed(*left, 280, 0);
  auto* columns = within<QHBoxLayout>(window, window.page(), {12, 10, 12, 10}, 10);
  columns->addWidget(left);
  columns->addLayout(middle, 1);
  columns->addLayout(right, 1);
}

}  // namespace brolgan::desktop
