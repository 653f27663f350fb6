// The labels of the game. A label can keep to its room: words that do not fit at their own size are
// set smaller, then broken. Figures among serif letters are all of one height.
#pragma once

#include <QFont>
#include <QLabel>
#include <QTextLayout>
#include <memory>

namespace brolgan::desktop {

class TextLabel : public QLabel {
 public:
  using QLabel::QLabel;

  // From now on the words keep to the room that the layout gives them, in lines when wordWrap is on.
  void keepToRoom();
  // Sets the words of one that keeps to its room further apart, by that share of the letters' size.
  void spreadWords(qreal gap) { wordGap_ = gap; }

  // The words as they are drawn, laid out from the upper left corner, and the font that they take.
  struct Set {
    QFont font;
    std::shared_ptr<QTextLayout> words;
    [[nodiscard]] QSizeF size() const;
  };
  [[nodiscard]] Set set() const;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] bool hasHeightForWidth() const override { return !keepsToRoom_ && QLabel::hasHeightForWidth(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] bool isPlain() const;
  [[nodiscard]] Set set(const QFont& given, QTextOption::WrapMode wrap) const;
  [[nodiscard]] bool fits(const Set& set) const;

  bool keepsToRoom_ = false;
  qreal wordGap_ = 0;
};

}  // namespace brolgan::desktop
