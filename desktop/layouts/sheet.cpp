// The hero sheet: name and class, six figures, two lists.
#include "sheet/sheet.h"

#include <QListWidget>
#include <QStyledItemDelegate>

#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"
#include "desktop/text.h"

namespace brolgan::desktop {

namespace {

constexpr int kRows = 3;
constexpr int kHead = 24;
constexpr int kBetweenHalves = 28;

// Rows with the head of their monster before its name. A head is decoded when its row comes into sight; a
// monster without one has its name alone.
class Heads : public QStyledItemDelegate {
 public:
  Heads(FormWindow& window, QObject* parent) : QStyledItemDelegate(parent), window_(window) {}

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index).expandedTo({0, window_.unit().pixels(kHead + 2)});
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const int side = window_.unit().pixels(kHead);
    const QPixmap head = headOf(index.row(), side);
    if (head.isNull()) return;
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = {side, side};
    option->icon.addPixmap(head, QIcon::Normal);
    option->icon.addPixmap(head, QIcon::Selected);
  }

 private:
  [[nodiscard]] QPixmap headOf(int row, int side) const {
    const auto* const sheet = dynamic_cast<const FHero*>(window_.form());
    if (sheet == nullptr || row >= sheet->Stwory.ListCount()) return {};
    const qreal ratio = window_.devicePixelRatioF();
    const int pixels = qRound(side * ratio);
    QPixmap head = window_.pictures().pixmap("glowa-" + toQt(sheet->pictureOfKill(row)), {pixels, pixels});
    head.setDevicePixelRatio(ratio);
    return head;
  }

  FormWindow& window_;
};

// A long name breaks its line, and is set smaller when that is not enough.
QLabel& name(FormWindow& window, const char* control, Type type, Qt::Alignment alignment) {
  TextLabel& found = label(window, control, type);
  found.setWordWrap(true);
  found.keepToRoom();
  found.setAlignment(Qt::AlignLeft | alignment);
  return found;
}

QGridLayout* head(FormWindow& window) {
  auto* grid = bare<QGridLayout>(window, 2);
  window.unit().spacing(*grid, 14, 2);
  auto& close = window.at<PictureButton>("HeroClose");
  window.unit().fixed(close, 48, 48);
  grid->addWidget(decoration(window, "herb.png", {104, 104}), 0, 0, 2, 1);
  grid->addWidget(&name(window, "Imie", Type::title, Qt::AlignBottom), 0, 1);
  grid->addWidget(&name(window, "klasa", Type::heading, Qt::AlignTop), 1, 1);
  grid->addWidget(&close, 0, 2, 2, 1, Qt::AlignTop);
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(0, 3);
  grid->setRowStretch(1, 2);
  return grid;
}

// Each half of the figures stands over one of the lists.
QHBoxLayout* figures(FormWindow& window) {
  auto* halves = bare<QHBoxLayout>(window, kBetweenHalves);
  for (const int first : {0, kRows}) {
    auto* grid = bare<QGridLayout>(window);
    for (int row = 0; row < kRows; ++row) {
      grid->addWidget(&window.at<QLabel>("pstatl", first + row), row, 0);
      grid->addWidget(&figure(window, member("Pstat", first + row), Type::figure), row, 1);
    }
    grid->setColumnStretch(1, 1);
    halves->addLayout(grid, 1);
  }
  return halves;
}

QVBoxLayout* list(FormWindow& window, const char* heading, const char* rows) {
  auto* column = bare<QVBoxLayout>(window, 4);
  auto& words = window.at<QLabel>(heading);
  makeBold(words);
  column->addWidget(&words);
  auto& list = window.at<QListWidget>(rows);
  window.unit().atLeast(list, 120, 120);
  column->addWidget(&list, 1);
  return column;
}

}  // namespace

void layOutSheet(FormWindow& window) {
  auto* all = within<QVBoxLayout>(window, window.page(), {18, 14, 18, 16}, 10);
  all->addLayout(head(window));
  all->addLayout(figures(window));
  auto* lists = bare<QHBoxLayout>(window, kBetweenHalves);
  lists->addLayout(list(window, "Label1", "Bron"), 1);
  lists->addLayout(list(window, "Label2", "Stwory"), 1);
  auto& kills = window.at<QListWidget>("Stwory");
  kills.setItemDelegate(new Heads(window, &kills));
  all->addLayout(lists, 1);
}

}  // namespace brolgan::desktop
