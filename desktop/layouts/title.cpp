// The title: two pictures side by side, or one above the other in a tall window, on black.
#include <QResizeEvent>

#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"
#include "desktop/picture_store.h"

namespace brolgan::desktop {

namespace {

constexpr int kGap = 8;
constexpr QSize kPicture(640, 404);

// Turns the row of pictures into a column when the window is taller than wide.
class Turner : public QObject {
 public:
  Turner(QBoxLayout& row, QWidget& window) : QObject(&window), row_(row) { window.installEventFilter(this); }

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
  for (const char* name : {"tytul.jpg", "tytul-noc.jpg"}) pictures.prepare(name, (QSizeF(kPicture) * ratio).toSize());
}

void layOutTitle(FormWindow& window) {
  QPalette palette = window.palette();
  palette.setColor(QPalette::Window, theme::kInk);
  window.setPalette(palette);
  auto* row = new QBoxLayout(QBoxLayout::LeftToRight, &window);
  row->setContentsMargins(kGap, kGap, kGap, kGap);
  row->setSpacing(kGap);
  for (int i = 0; i < 2; ++i) {
    QWidget& picture = window.at("pics", i);
    picture.setMinimumSize(160, 100);
    picture.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    row->addWidget(&picture, 1);
  }
  new Turner(*row, window);
  window.resize(2 * kPicture.width() + 3 * kGap, kPicture.height() + 2 * kGap);
}

}  // namespace brolgan::desktop
