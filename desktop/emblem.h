// One of the small pictures that stand side by side in a picture file, all of one size.
#pragma once

#include <QPixmap>
#include <QWidget>
#include <memory>

namespace brolgan::desktop {

class PictureStore;

// The picture file, decoded once for all emblems that show a part of it at one size.
class EmblemRow {
 public:
  EmblemRow(PictureStore& pictures, QString name, int count);

  // Begins to decode it for emblems of so many device pixels.
  void prepare(QSize emblem);
  [[nodiscard]] const QPixmap& pixmap(QSize emblem);

 private:
  [[nodiscard]] QSize size(QSize emblem) const { return {emblem.width() * count_, emblem.height()}; }

  PictureStore& pictures_;
  QString name_;
  int count_;
  QPixmap shown_;
  QSize shownFor_;
};

// Takes no part in what a person does with the widget that it lies on.
class Emblem : public QWidget {
 public:
  // index: which of the pictures, counted from 0.
  Emblem(std::shared_ptr<EmblemRow> row, int index, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::shared_ptr<EmblemRow> row_;
  int index_;
};

}  // namespace brolgan::desktop
