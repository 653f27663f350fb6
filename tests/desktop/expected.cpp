#include "tests/desktop/expected.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPalette>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <set>

namespace brolgan::test {

namespace {

bool isOfKind(const QWidget& widget, Kind kind) {
  const bool option = qobject_cast<const QRadioButton*>(&widget) != nullptr;
  switch (kind) {
    case Kind::label:
      return qobject_cast<const QLabel*>(&widget) != nullptr;
    case Kind::textBox:
      return qobject_cast<const QLineEdit*>(&widget) != nullptr;
    case Kind::notes:
      return qobject_cast<const QPlainTextEdit*>(&widget) != nullptr;
    case Kind::button:
      return qobject_cast<const QAbstractButton*>(&widget) != nullptr && !option;
    case Kind::option:
      return option;
    case Kind::frame:
      return qobject_cast<const QGroupBox*>(&widget) != nullptr || widget.metaObject() == &QFrame::staticMetaObject;
    case Kind::comboBox: {
      const auto* const combo = qobject_cast<const QComboBox*>(&widget);
      return combo != nullptr && !combo->isEditable();
    }
    case Kind::listBox:
      return qobject_cast<const QListWidget*>(&widget) != nullptr;
    case Kind::picture:
      return true;
  }
  return false;
}

bool isDrawn(const QColor& colour, Ink ink) {
  switch (ink) {
    case Ink::plain:
      return colour == QApplication::palette().color(QPalette::Active, QPalette::ButtonText);
    case Ink::red:
      return colour == QColor(255, 0, 0);
    case Ink::green:
      return colour == QColor(0, 128, 0);
    case Ink::purple:
      return colour == QColor(128, 0, 128);
    case Ink::black:
      return colour == QColor(0, 0, 0);
    case Ink::grey:
      return colour == QApplication::palette().color(QPalette::Disabled, QPalette::WindowText);
    case Ink::current:
      return colour.green() > 90 && colour.red() < 40 && colour.blue() < 40;
    case Ink::pale:
      return colour == QApplication::palette().color(QPalette::Active, QPalette::PlaceholderText);
    case Ink::badge:
      return colour.lightness() > 200;
  }
  return false;
}

std::string frameOf(const Stage& stage, const std::string& form, const std::string& control) {
  for (QWidget* up = stage.at(form, control).parentWidget(); up != nullptr; up = up->parentWidget()) {
    if (up == &stage.window(form)) return {};
    if (!up->objectName().isEmpty()) return up->objectName().toStdString();
  }
  return "lies in no window";
}

void expectLook(const Stage& stage, const std::string& form, const Expected& row) {
  const QWidget& widget = stage.at(form, row.name);
  if (row.kind == Kind::label) {
    const QColor colour = stage.colour(form, row.name);
    EXPECT_TRUE(isDrawn(colour, row.ink)) << colour.name().toStdString();
    EXPECT_TRUE(row.ink != Ink::red || widget.font().bold());
  }
  EXPECT_EQ(widget.toolTip().toStdString(), row.toolTip);
  EXPECT_EQ(stage.isVisible(form, row.name), row.visible);
  EXPECT_EQ(widget.isEnabled(), row.enabled);
}

void expectWidget(const Stage& stage, const std::string& form, const Expected& row) {
  SCOPED_TRACE(form + "." + row.name);
  ASSERT_NO_THROW((void)stage.at(form, row.name));
  EXPECT_TRUE(isOfKind(stage.at(form, row.name), row.kind));
  EXPECT_EQ(stage.text(form, row.name), row.text);
  EXPECT_EQ(frameOf(stage, form, row.name), row.frame);
  expectLook(stage, form, row);
}

}  // namespace

void expectScreen(const Stage& stage, const std::string& form, const Expectations& rows) {
  std::set<std::string> names;
  for (const Expected& row : rows) {
    EXPECT_TRUE(names.insert(row.name).second) << row.name << " twice";
    expectWidget(stage, form, row);
  }
  for (const ControlEntry& entry : stage.runtime.find(form)->controls().entries()) {
    if (std::holds_alternative<MediaPlayer*>(entry.control)) continue;
    EXPECT_TRUE(names.contains(entry.fullName())) << form << "." << entry.fullName() << " is nobody's";
  }
}

}  // namespace brolgan::test
