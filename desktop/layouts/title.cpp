// The title: two pictures side by side, or one above the other in a tall window, on black.
#include <QGuiApplication>
#include <QResizeEvent>

#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"
#include "desktop/picture_store.h"
#include "desktop/places.h"

namespace brolgan::desktop {

namespace {

constexpr int kGap = 8;

// Turns the row of pictures into a column when the page is taller than wide.
class Turner : public QObject {
 public:
  Turner(QBoxLayout& row, QWidget& page) : QObject(&page), row_(row) { page.installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Resize) {
      const QSize size = static_cast<QResizeEvent*>(event)->size();
      row_.setDirection(size.width() >= size.height() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  QBoxLayout& row_;
};

}  // namespace

void prepareTitle(PictureStore& pictures, qreal ratio) {
  const qreal unit = Places::unitOn(*QGuiApplication::primaryScreen());
  const QSize window = (QSizeF(screenLayout("Brolgan").size) * unit).toSize();
  const int gap = qRound(kGap * unit);
  const int both = window.width() - 3 * gap;
  const auto prepare = [&](const char* name, int width) {
    pictures.prepare(name, (QSizeF(width, window.height() - 2 * gap) * ratio).toSize());
  };
  prepare("tytul.jpg", (both + 1) / 2);
  prepare("tytul-noc.jpg", both / 2);
}

void layOutTitle(FormWindow& window) {
  QPalette palette = window.palette();
  palette.setColor(QPalette::Window, theme::kInk);
  window.setPalette(palette);
  auto* row = new QBoxLayout(QBoxLayout::LeftToRight, &window.page());
  window.unit().margins(*row, {kGap, kGap, kGap, kGap});
  window.unit().spacing(*row, kGap);
  for (int i = 0; i < 2; ++i) {
    auto& picture = window.at<PictureWidget>("pics", i);
    picture.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    row->addWidget(&picture, 1);
  }
  new Turner(*row, window.page());
}

}  // namespace brolgan::desktop
