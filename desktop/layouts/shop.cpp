// The shop: the hero and the zones at the left, the departments in the middle and at the right.
// Behind each department lies the picture that shows when it is closed.
#include <QLineEdit>
#include <memory>

#include "desktop/emblem.h"
#include "desktop/layouts/departments.h"
#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"

namespace brolgan::desktop {

namespace {

constexpr WeaponHeadings kHeadings = {{0, 1, 2, 3}, {7, 6, 5, 4}};
constexpr int kZones = 12;
constexpr int kEmblem = 30;
constexpr int kAroundStall = 8;
// The shares of the shelf and of the lantern that leave the same room at both sides of each.
constexpr int kShelfShare = 9;
constexpr int kLanternShare = 4;

// A department and the picture behind it share one place.
QGridLayout* stacked(FormWindow& window, const char* frame, int picture) {
  auto* place = bare<QGridLayout>(window, 0);
  auto& shut = window.at<PictureWidget>("pics", picture);
  shut.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  shut.setCover(window.at(frame));
  keepRoom(window.at(frame));
  auto* behind = bare<QVBoxLayout>(window, 0);
  window.unit().margins(*behind, {0, kAroundStall, 0, kAroundStall});
  behind->addWidget(&shut);
  place->addLayout(behind, 0, 0);
  place->addWidget(&window.at(frame), 0, 0);
  shut.lower();
  return place;
}

QWidget* zones(FormWindow& window) {
  QWidget& frame = window.at("Frame5");
  auto* column = within<QVBoxLayout>(window, frame, {10, 8, 10, 8}, 4);
  const auto emblems = std::make_shared<EmblemRow>(window.pictures(), "strefy.png", kZones);
  emblems->prepare((QSizeF(kEmblem, kEmblem) * window.unit().value() * window.devicePixelRatioF()).toSize());
  for (int i = 0; i < kZones; ++i) {
    auto& zone = window.at<QPushButton>("w" + std::to_string(i + 1));
    window.unit().atLeast(zone, 0, 36);
    theme::makeTinted(zone, theme::kZones[static_cast<std::size_t>(i)]);
    auto* const emblem = new Emblem(emblems, i, &zone);
    window.unit().fixed(*emblem, kEmblem, kEmblem);
    within<QHBoxLayout>(window, zone, {8, 2, 0, 4}, 0)->addWidget(emblem, 0, Qt::AlignLeft | Qt::AlignVCenter);
    column->addWidget(&zone);
  }
  return &frame;
}

QGridLayout* person(FormWindow& window) {
  auto* grid = bare<QGridLayout>(window);
  auto& sheet = window.at<PictureButton>("Heroshow");
  window.unit().fixed(sheet, 64, 64);
  grid->addWidget(&label(window, "Label1", Type::title), 0, 0, 1, 2);
  grid->addWidget(&sheet, 0, 2, 2, 1, Qt::AlignRight);
  grid->addWidget(&window.at<QLineEdit>("Imie"), 1, 0, 1, 2);
  grid->addWidget(&label(window, "Label2", Type::heading), 2, 0, 1, 2);
  grid->addWidget(&points(window), 2, 2);
  grid->addWidget(&label(window, "Label15", Type::heading), 3, 0, 1, 2);
  grid->addWidget(&figure(window, "Tura", Type::figure), 3, 2);
  grid->setColumnStretch(1, 1);
  return grid;
}

QWidget* leftColumn(FormWindow& window) {
  auto* left = new QWidget(&window.page());
  auto* column = bare<QVBoxLayout>(window, 8);
  left->setLayout(column);
  window.unit().fixed(*left, 264, 0);
  column->addLayout(person(window));
  TextLabel& warning = label(window, "Label14", Type::small);
  warning.setWordWrap(true);
  makeBold(warning);
  column->addWidget(&warning);
  column->addWidget(zones(window), 1);
  return left;
}

QHBoxLayout* signs(FormWindow& window) {
  auto* row = bare<QHBoxLayout>(window, 0);
  for (const int i : {0, 4}) {
    auto& picture = window.at<PictureWidget>("pics", i);
    window.unit().atLeast(picture, 60, 60);
    picture.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    row->addWidget(&picture, i == 0 ? kShelfShare : kLanternShare);
  }
  return row;
}

}  // namespace

void layOutShop(FormWindow& window) {
  layOutStatistics(window);
  layOutWeapons(window, kHeadings);
  layOutSpells(window);
  layOutGear(window);
  auto* middle = bare<QVBoxLayout>(window, 10);
  middle->addLayout(stacked(window, "fstat", 3));
  middle->addLayout(stacked(window, "fbron", 2), 1);
  auto* right = bare<QVBoxLayout>(window, 10);
  right->addLayout(stacked(window, "fczar", 1));
  right->addWidget(&window.at("Frame4"));
  right->addLayout(signs(window), 1);
  auto* columns = within<QHBoxLayout>(window, window.page(), {12, 10, 12, 10}, 10);
  columns->addWidget(leftColumn(window));
  columns->addLayout(middle, 11);
  columns->addLayout(right, 10);
}

}  // namespace brolgan::desktop
