#include "tests/desktop/stage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTest>
#include <QWindow>
#include <memory>
#include <stdexcept>
#include <utility>

#include "desktop/application.h"
#include "desktop/text.h"
#include "game/game.h"

namespace brolgan::test {

namespace {

// Stands in for the start form and shows the screens that a test begins with, each afresh.
class Opener : public Form {
 public:
  Opener(Runtime& runtime, std::vector<std::string> forms) : runtime_(runtime), forms_(std::move(forms)) {}

  void Form_Load() override {
    for (const std::string& name : forms_) runtime_.Reopen(name);
    runtime_.Unload("Starter");
  }

 protected:
  void listControls(ControlTable&) override {}

 private:
  Runtime& runtime_;
  std::vector<std::string> forms_;
};

int rowOf(const std::vector<std::string>& rows, const std::string& wanted) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i] == wanted) return static_cast<int>(i);
  }
  throw std::logic_error("no row " + wanted);
}

// Where a person aims at a widget: an option button at its text, all others in the middle.
QPoint aimAt(const QWidget& widget) {
  const QPoint middle = widget.rect().center();
  return qobject_cast<const QRadioButton*>(&widget) != nullptr ? QPoint(24, middle.y()) : middle;
}

}  // namespace

Stage::Stage() : runtime({world.files, world.clock, world.pictures, world.sounds}), face(runtime, pictures) {
  prepare();
}

Stage::Stage(RealPictures) : runtime({world.files, world.clock, pictures, world.sounds}), face(runtime, pictures) {
  prepare();
}

namespace {

desktop::Application& application() { return dynamic_cast<desktop::Application&>(*QCoreApplication::instance()); }

}  // namespace

// What was thrown after the end is not told to the next stage.
Stage::~Stage() {
  application().onThrown = nullptr;
  QCoreApplication::removePostedEvents(&application(), QEvent::MetaCall);
}

void Stage::prepare() {
  offerScreens(runtime, world.scripted);
  application().onThrown = [this](const std::exception_ptr& error) { face.fail(error); };
  face.onError = [this](const QString& text) { errors.push_back(text.toStdString()); };
}

void Stage::settle() {
  constexpr int kWindows = 7;
  for (int i = 0; i <= kWindows; ++i) QApplication::processEvents();
}

void Stage::start() {
  face.start();
  settle();
}

void Stage::open(const std::vector<std::string>& forms) {
  runtime.offer("Starter", [forms](Runtime& owner) { return std::make_unique<Opener>(owner, forms); });
  start();
}

desktop::FormWindow& Stage::window(const std::string& form) const {
  desktop::FormWindow* const found = face.window(form);
  if (found == nullptr) throw std::logic_error("never shown: " + form);
  return *found;
}

bool Stage::isShown(const std::string& form) const {
  const desktop::FormWindow* const found = face.window(form);
  return found != nullptr && found->isVisible();
}

QWidget& Stage::at(const std::string& form, const std::string& control) const {
  const auto found = window(form).findChildren<QWidget*>(desktop::toQt(control));
  if (found.size() != 1) throw std::logic_error(form + " has not one " + control);
  return *found.front();
}

std::string Stage::text(const std::string& form, const std::string& control) const {
  QWidget& widget = at(form, control);
  if (auto* label = qobject_cast<QLabel*>(&widget)) return label->text().toStdString();
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) return button->text().toStdString();
  if (auto* edit = qobject_cast<QLineEdit*>(&widget)) return edit->text().toStdString();
  if (auto* notes = qobject_cast<QPlainTextEdit*>(&widget)) return notes->toPlainText().toStdString();
  if (auto* combo = qobject_cast<QComboBox*>(&widget)) return combo->currentText().toStdString();
  if (auto* box = qobject_cast<QGroupBox*>(&widget)) return box->title().toStdString();
  if (auto* list = qobject_cast<QListWidget*>(&widget)) {
    return list->selectedItems().isEmpty() ? "" : list->selectedItems().front()->text().toStdString();
  }
  return {};
}

QColor Stage::colour(const std::string& form, const std::string& control) const {
  const QWidget& widget = at(form, control);
  return widget.palette().color(widget.foregroundRole());
}

bool Stage::isRed(const std::string& form, const std::string& control) const {
  return colour(form, control) == QColor(255, 0, 0) && at(form, control).font().bold();
}

bool Stage::isVisible(const std::string& form, const std::string& control) const {
  return at(form, control).isVisibleTo(&window(form));
}

bool Stage::isEnabled(const std::string& form, const std::string& control) const {
  return at(form, control).isEnabled();
}

std::vector<std::string> Stage::rows(const std::string& form, const std::string& control) const {
  std::vector<std::string> found;
  if (auto* combo = qobject_cast<QComboBox*>(&at(form, control))) {
    for (int i = 0; i < combo->count(); ++i) found.push_back(combo->itemText(i).toStdString());
  } else {
    auto& list = get<QListWidget>(form, control);
    for (int i = 0; i < list.count(); ++i) found.push_back(list.item(i)->text().toStdString());
  }
  return found;
}

void Stage::clickAt(QWidget& top, const QWidget& widget, QPoint place) {
  QTest::mouseClick(top.windowHandle(), Qt::LeftButton, {}, widget.mapTo(&top, place));
  settle();
}

void Stage::click(const std::string& form, const std::string& control) {
  const QWidget& widget = at(form, control);
  clickAt(window(form), widget, aimAt(widget));
}

void Stage::clickRow(QWidget& top, QAbstractItemView& view, int row) {
  const QModelIndex index = view.model()->index(row, 0);
  view.scrollTo(index);
  clickAt(top, *view.viewport(), view.visualRect(index).center());
}

void Stage::choose(const std::string& form, const std::string& control, const std::string& row) {
  const int wanted = rowOf(rows(form, control), row);
  if (auto* list = qobject_cast<QListWidget*>(&at(form, control))) {
    clickRow(window(form), *list, wanted);
    return;
  }
  auto& combo = get<QComboBox>(form, control);
  click(form, control);
  QWidget* const popup = QApplication::activePopupWidget();
  if (popup == nullptr) throw std::logic_error("no rows to choose from in " + control);
  clickRow(*popup, *combo.view(), wanted);
}

void Stage::write(const std::string& form, const std::string& control, const std::string& text) {
  click(form, control);
  press(form, Qt::Key_A, Qt::ControlModifier);
  typeKeys(form, text);
}

void Stage::close(const std::string& form) {
  window(form).close();
  settle();
}

void Stage::press(const std::string& form, Qt::Key key, Qt::KeyboardModifiers with) {
  QTest::keyClick(window(form).windowHandle(), key, with);
  settle();
}

void Stage::typeKeys(const std::string& form, const std::string& text) {
  QWindow* const window = this->window(form).windowHandle();
  for (const QChar letter : desktop::toQt(text)) {
    QTest::sendKeyEvent(QTest::Click, window, Qt::Key_unknown, QString(letter), Qt::NoModifier);
  }
  settle();
}

std::string Stage::focus(const std::string& form) const {
  const QWidget* const widget = window(form).focusWidget();
  return widget == nullptr ? "" : widget->objectName().toStdString();
}

bool Stage::tabTo(const std::string& form, const std::string& control) {
  const QWidget& wanted = at(form, control);
  for (int i = 0; i < 150 && window(form).focusWidget() != &wanted; ++i) press(form, Qt::Key_Tab);
  return window(form).focusWidget() == &wanted;
}

void Stage::chooseWithArrows(const std::string& form, const std::string& control, const std::string& row) {
  const int wanted = rowOf(rows(form, control), row);
  press(form, Qt::Key_Home);
  for (int i = 0; i < wanted; ++i) press(form, Qt::Key_Down);
  if (text(form, control) == row) return;
  press(form, qobject_cast<QComboBox*>(&at(form, control)) != nullptr ? Qt::Key_Down : Qt::Key_Space);
}

}  // namespace brolgan::test
