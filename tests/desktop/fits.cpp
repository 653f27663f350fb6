#include "tests/desktop/fits.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QFontInfo>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <algorithm>

#include "desktop/style.h"
#include "desktop/text_label.h"

namespace brolgan::test {

namespace {

// About what a window manager adds at a side and above.
constexpr int kWindowFrame = 4;
constexpr int kSmallestText = 10;

std::string nameOf(const QWidget& widget) {
  return widget.window()->objectName().toStdString() + "." + widget.objectName().toStdString();
}

std::string spelled(QSize size) { return std::to_string(size.width()) + "x" + std::to_string(size.height()); }

bool fits(QSize size, QSize need) { return size.width() >= need.width() && size.height() >= need.height(); }

// The room that a label's words need: as wide as its longest word when it breaks its lines.
QSize needOf(const QLabel& label) {
  if (!label.wordWrap()) return label.sizeHint();
  int longest = 0;
  for (const QString& word : label.text().split(' ')) {
    longest = std::max(longest, label.fontMetrics().horizontalAdvance(word));
  }
  return {longest, label.heightForWidth(label.width())};
}

QSize roomOf(const QPushButton& button) {
  QStyleOptionButton option;
  option.initFrom(&button);
  option.text = button.text();
  return button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button).size();
}

QSize roomOf(const QComboBox& combo) {
  QStyleOptionComboBox option;
  option.initFrom(&combo);
  return combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo).size();
}

QSize textSize(const QWidget& widget, const QString& text) {
  return {widget.fontMetrics().horizontalAdvance(text), widget.fontMetrics().height()};
}

void expectRoom(const QWidget& widget, QSize room, QSize need, const QString& text) {
  EXPECT_TRUE(fits(room, need)) << nameOf(widget) << " \"" << text.toStdString() << "\" has " << spelled(room)
                                << " and needs " << spelled(need);
}

void expectTextFits(const QWidget& widget) {
  if (const auto* const words = dynamic_cast<const desktop::TextLabel*>(&widget)) {
    const auto set = words->set();
    expectRoom(widget, words->contentsRect().size(), set.size().toSize(), words->text());
    EXPECT_GE(QFontInfo(set.font).pixelSize(), kSmallestText) << nameOf(widget);
  } else if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    if (!label->text().isEmpty()) expectRoom(widget, label->size(), needOf(*label), label->text());
  } else if (const auto* button = qobject_cast<const QPushButton*>(&widget)) {
    expectRoom(widget, roomOf(*button), {textSize(widget, button->text()).width(), widget.fontMetrics().ascent()},
               button->text());
  } else if (const auto* option = qobject_cast<const QRadioButton*>(&widget)) {
    expectRoom(widget, option->size(), option->sizeHint(), option->text());
  } else if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) {
    expectRoom(widget, box->size(), {textSize(widget, box->title()).width() + 30, 30}, box->title());
  }
}

void expectRowsFit(const QWidget& widget) {
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
    for (int i = 0; i < combo->count(); ++i) {
      expectRoom(widget, roomOf(*combo), textSize(widget, combo->itemText(i)), combo->itemText(i));
    }
  } else if (const auto* list = qobject_cast<const QListWidget*>(&widget)) {
    for (int i = 0; i < list->count(); ++i) {
      const QRect row = list->visualItemRect(list->item(i));
      expectRoom(widget, {list->viewport()->width() - 4, row.height()}, textSize(widget, list->item(i)->text()),
                 list->item(i)->text());
    }
  }
}

bool isPicture(const QWidget& widget) {
  const auto* const label = qobject_cast<const QLabel*>(&widget);
  return label != nullptr && label->text().isEmpty();
}

bool isHolder(const QWidget& widget) {
  return qobject_cast<const QGroupBox*>(&widget) != nullptr || widget.metaObject() == &QFrame::staticMetaObject;
}

QRect placeOf(const QWidget& widget) { return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()}; }

// Where the page scrolls, a part of it may be out of sight.
void expectNoneCovered(const std::vector<QWidget*>& widgets, bool isScrolled) {
  for (std::size_t i = 0; i < widgets.size(); ++i) {
    if (isPicture(*widgets[i]) || isHolder(*widgets[i])) continue;
    if (!isScrolled) {
      EXPECT_EQ(widgets[i]->visibleRegion().boundingRect(), widgets[i]->rect()) << nameOf(*widgets[i]) << " is cut";
    }
    for (std::size_t j = i + 1; j < widgets.size(); ++j) {
      if (isPicture(*widgets[j]) || isHolder(*widgets[j])) continue;
      EXPECT_FALSE(placeOf(*widgets[i]).intersects(placeOf(*widgets[j])))
          << nameOf(*widgets[i]) << " lies on " << nameOf(*widgets[j]);
    }
  }
}

void expectNoneBelowSmallest(const std::vector<QWidget*>& widgets) {
  for (const QWidget* const widget : widgets) {
    EXPECT_GE(QFontInfo(widget->font()).pixelSize(), kSmallestText) << nameOf(*widget);
    EXPECT_GE(QFontInfo(desktop::keyFont(*widget)).pixelSize(), kSmallestText) << nameOf(*widget);
  }
}

// All that lies on the page lies within it.
void expectOnPage(const desktop::FormWindow& window, const std::vector<QWidget*>& widgets) {
  for (const QWidget* const widget : widgets) {
    const QRect place(widget->mapTo(&window.page(), QPoint(0, 0)), widget->size());
    EXPECT_TRUE(window.page().rect().contains(place)) << nameOf(*widget) << " leaves the page";
  }
}

}  // namespace

std::vector<QWidget*> seen(const Stage& stage, const std::string& form) {
  std::vector<QWidget*> widgets;
  for (const ControlEntry& entry : stage.runtime.find(form)->controls().entries()) {
    if (std::holds_alternative<MediaPlayer*>(entry.control)) continue;
    QWidget& widget = stage.at(form, entry.fullName());
    if (widget.isVisible()) widgets.push_back(&widget);
  }
  return widgets;
}

bool scrolls(const desktop::FormWindow& window) {
  const QSize need = window.page().minimumSizeHint();
  return need.width() > window.viewport()->width() || need.height() > window.viewport()->height();
}

void expectFits(const Stage& stage, const std::string& form) {
  const desktop::FormWindow& window = stage.window(form);
  QApplication::processEvents();
  const QSize frame(2 * kWindowFrame, kWindowFrame);
  EXPECT_TRUE(fits(window.screen()->availableSize() - frame, window.size()) || window.isMaximized())
      << form << " takes " << spelled(window.size());
  const auto widgets = seen(stage, form);
  for (const QWidget* const widget : widgets) {
    expectTextFits(*widget);
    expectRowsFit(*widget);
  }
  expectNoneBelowSmallest(widgets);
  expectOnPage(window, widgets);
  expectNoneCovered(widgets, scrolls(window));
}

}  // namespace brolgan::test
