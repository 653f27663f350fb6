#include "desktop/form_window.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QSignalBlocker>
#include <utility>

#include "desktop/access.h"
#include "desktop/control_widget.h"
#include "desktop/layouts/layouts.h"
#include "desktop/picture_store.h"
#include "desktop/style.h"
#include "desktop/text.h"
#include "desktop/widgets.h"
#include "game/guide/keys.h"
#include "game/guide/spoken.h"

namespace brolgan::desktop {

FormWindow::FormWindow(std::string name, Form& form, PictureStore& pictures, const Events& events)
    : name_(std::move(name)), form_(&form), pictures_(pictures), close_(events.close), escape_(events.escape) {
  setObjectName(toQt(name_));
  makeWidgets(events);
  mirrorAll();
  layOut(name_, *this);
  orderTabs();
  addKeys(events);
}

void FormWindow::makeWidgets(const Events& events) {
  const auto& entries = form_->controls().entries();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const Gestures gestures = {[this, i, events] { events.click(name_, i); },
                               [this, i, events](int row) { events.select(name_, i, row); },
                               [this, i, events](const QString& text) { events.type(name_, i, text); }};
    QWidget* const widget = makeWidget(entries[i], parentOf(entries[i]), pictures_, gestures);
    inOrder_.push_back(widget);
    if (widget == nullptr) continue;
    widget->setObjectName(toQt(entries[i].fullName()));
    tell(name_, entries[i], *widget);
    widgets_[entries[i].fullName()] = widget;
  }
}

QWidget* FormWindow::parentOf(const ControlEntry& entry) {
  if (entry.frame == nullptr) return this;
  const auto& entries = form_->controls().entries();
  for (std::size_t i = 0; i < inOrder_.size(); ++i) {
    const auto* const* const frame = std::get_if<Frame*>(&entries[i].control);
    if (frame != nullptr && *frame == entry.frame) return inOrder_[i];
  }
  return this;
}

void FormWindow::orderTabs() {
  QWidget* previous = nullptr;
  for (QWidget* const widget : inOrder_) {
    if (widget == nullptr || (widget->focusPolicy() & Qt::TabFocus) == 0) continue;
    if (previous != nullptr) setTabOrder(previous, widget);
    previous = widget;
  }
}

// Letters pressed with Alt: they press a button and put the keyboard on a list.
void FormWindow::addKeys(const Events& events) {
  const auto& entries = form_->controls().entries();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const char key = accessKey(name_, entries[i]);
    if (key == '\0' || inOrder_[i] == nullptr) continue;
    inOrder_[i]->setProperty(kAccessKey, QString(QLatin1Char(key)));
    auto* const shortcut = new QShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(key)), this);
    connect(shortcut, &QShortcut::activated, this, [this, i, events] { reach(i, events); });
  }
}

void FormWindow::reach(std::size_t index, const Events& events) {
  QWidget& widget = *inOrder_[index];
  if (!widget.isVisible() || !widget.isEnabled()) return;
  widget.setFocus(Qt::ShortcutFocusReason);
  if (qobject_cast<QAbstractButton*>(&widget) != nullptr) events.click(name_, index);
}

void FormWindow::bind(Form& form) {
  form_ = &form;
  for (QWidget* const widget : inOrder_) {
    if (auto* list = qobject_cast<QListWidget*>(widget)) {
      const QSignalBlocker quiet(list);
      list->setCurrentRow(-1);
      list->scrollToTop();
    }
    if (auto* notes = qobject_cast<QPlainTextEdit*>(widget)) notes->clear();
  }
  mirrorAll();
}

void FormWindow::mirrorAll() {
  const QString title = toQt(form_->Caption);
  if (windowTitle() != title) setWindowTitle(title);
  const auto& entries = form_->controls().entries();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (inOrder_[i] != nullptr) mirror(entries[i], *inOrder_[i]);
  }
  tellAll();
}

// Names follow their values; a report is announced when it appears and when it changes.
void FormWindow::tellAll() {
  const auto& entries = form_->controls().entries();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    QWidget* const widget = inOrder_[i];
    if (widget == nullptr) continue;
    tell(name_, entries[i], *widget);
    if (!isAnnounced(name_, entries[i])) continue;
    const QString words = widget->isVisible() ? widget->property("text").toString() : QString();
    if (!words.isEmpty() && announced_[widget] != words) announce(*widget);
    announced_[widget] = words;
  }
}

void FormWindow::expectNews(const std::string& used) {
  const auto& entries = form_->controls().entries();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (isToldAnew(name_, used, entries[i])) announced_.erase(inOrder_[i]);
  }
}

void FormWindow::leaveScreen() {
  forgetMouse();
  hide();
  destroy();
  shownBackground_ = {};
}

// A button that was under the mouse would be lit when the window comes back.
void FormWindow::forgetMouse() {
  for (QWidget* const widget : findChildren<QWidget*>()) {
    if (!widget->underMouse()) continue;
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(widget, &leave);
    widget->setAttribute(Qt::WA_UnderMouse, false);
  }
}

void FormWindow::preparePictures() {
  if (!background_.isEmpty()) pictures_.prepare(background_, pixels(), Qt::IgnoreAspectRatio);
  for (QWidget* const widget : inOrder_) {
    auto* const picture = dynamic_cast<PictureWidget*>(widget);
    if (picture != nullptr && picture->isVisibleTo(this)) picture->prepare();
  }
}

void FormWindow::focusOn(const std::string& control) {
  const auto found = widgets_.find(control);
  if (found != widgets_.end() && !found->second->hasFocus()) found->second->setFocus(Qt::OtherFocusReason);
}

std::string FormWindow::focused() const {
  const QWidget* const widget = focusWidget();
  return widget == nullptr ? std::string() : widget->objectName().toStdString();
}

QWidget& FormWindow::at(const std::string& fullName) const { return *widgets_.at(fullName); }

QWidget& FormWindow::at(const std::string& name, int index) const {
  return at(name + "(" + std::to_string(index) + ")");
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  close_(name_);
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    escape_(name_);
  } else {
    QWidget::keyPressEvent(event);
  }
}

void FormWindow::paintEvent(QPaintEvent*) {
  if (background_.isEmpty()) return;
  if (shownBackground_.size() != pixels()) {
    shownBackground_ = pictures_.pixmap(background_, pixels(), Qt::IgnoreAspectRatio);
    shownBackground_.setDevicePixelRatio(devicePixelRatioF());
  }
  QPainter(this).drawPixmap(0, 0, shownBackground_);
}

}  // namespace brolgan::desktop
