#include "desktop/form_window.h"

#include <QCloseEvent>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <utility>

#include "desktop/control_widget.h"
#include "desktop/layouts/layouts.h"
#include "desktop/picture_store.h"
#include "desktop/spoken_names.h"
#include "desktop/text.h"
#include "desktop/widgets.h"

namespace brolgan::desktop {

FormWindow::FormWindow(std::string name, Form& form, PictureStore& pictures, const Events& events)
    : name_(std::move(name)), form_(&form), pictures_(pictures), close_(events.close) {
  setObjectName(toQt(name_));
  makeWidgets(events);
  mirrorAll();
  layOut(name_, *this);
  orderTabs();
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
    widget->setAccessibleName(spokenName(name_, entries[i]));
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
}

void FormWindow::leaveScreen() {
  hide();
  destroy();
  shownBackground_ = {};
}

void FormWindow::preparePictures() {
  if (!background_.isEmpty()) pictures_.prepare(background_, pixels(), Qt::IgnoreAspectRatio);
  for (QWidget* const widget : inOrder_) {
    auto* const picture = dynamic_cast<PictureWidget*>(widget);
    if (picture != nullptr && picture->isVisibleTo(this)) picture->prepare();
  }
}

void FormWindow::focusFirst() {
  for (QWidget* const widget : inOrder_) {
    if (widget == nullptr || (widget->focusPolicy() & Qt::TabFocus) == 0 || !widget->isEnabled()) continue;
    if (!widget->isVisibleTo(this)) continue;
    widget->setFocus(Qt::OtherFocusReason);
    return;
  }
}

QWidget& FormWindow::at(const std::string& fullName) const { return *widgets_.at(fullName); }

QWidget& FormWindow::at(const std::string& name, int index) const {
  return at(name + "(" + std::to_string(index) + ")");
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  close_(name_);
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
