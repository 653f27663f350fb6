#include "desktop/form_window.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QLayout>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QSignalBlocker>
#include <utility>

#include "desktop/access.h"
#include "desktop/control_widget.h"
#include "desktop/motion.h"
#include "desktop/picture_store.h"
#include "desktop/style.h"
#include "desktop/text.h"
#include "desktop/theme.h"
#include "desktop/widgets.h"
#include "game/guide/inviting.h"
#include "game/guide/keys.h"
#include "game/guide/spoken.h"

namespace brolgan::desktop {

namespace {

// How long a window that was pulled is left alone before its pictures are made sharp, and how long
// they are given to be decoded.
constexpr int kRestMs = 120;
constexpr int kDecodeMs = 60;

// By how much a page may be wider or higher than its unit asks for.
constexpr qreal kMostStretch = 1.25;

}  // namespace

// What lies behind the controls.
class FormWindow::Page : public QWidget {
 public:
  explicit Page(FormWindow& window) : window_(window) {}

  // Begins to decode the background at the size of the page, unless it is drawn so already.
  void prepare() const {
    const bool isShown = shown_.size() == pixels();
    if (!isShown && !window_.background().isEmpty()) {
      window_.pictures().prepare(window_.background(), pixels(), kMode);
    }
  }
  void forget() { shown_ = {}; }

  // The height below which the page scrolls; a list can do with less than it would like.
  [[nodiscard]] int heightForWidth(int width) const override { return layout()->totalMinimumHeightForWidth(width); }
  // A page that scrolls is as large as at the least unit.
  [[nodiscard]] QSize minimumSizeHint() const override {
    if (window_.layoutOf().shrinks) return QWidget::minimumSizeHint();
    return QWidget::minimumSizeHint().expandedTo((QSizeF(window_.unit().size()) * Unit::kLeast).toSize());
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    if (window_.background().isEmpty()) return;
    if (shown_.isNull() || (shown_.size() != pixels() && !Unit::isMoving(this))) {
      shown_ = window_.pictures().pixmap(window_.background(), pixels(), kMode);
    }
    QPainter(this).drawPixmap(rect(), shown_);
  }

 private:
  static constexpr Qt::AspectRatioMode kMode = Qt::IgnoreAspectRatio;

  [[nodiscard]] QSize pixels() const { return (QSizeF(size()) * devicePixelRatioF()).toSize(); }

  FormWindow& window_;
  QPixmap shown_;  // at the page's size, kept while the window shows
};

FormWindow::FormWindow(std::string name, Form& form, PictureStore& pictures, const Events& events, qreal unit)
    : name_(std::move(name)),
      layout_(screenLayout(name_)),
      form_(&form),
      pictures_(pictures),
      close_(events.close),
      escape_(events.escape),
      unit_(*this, layout_.size, unit) {
  setObjectName(toQt(name_));
  makePage();
  makeWidgets(events);
  mirrorAll();
  watchTips();
  layout_.layOut(*this);
  // All places are worked out at once, so that showing the window takes less time.
  page().layout()->activate();
  orderTabs();
  addKeys(events);
}

// The window is its own background; only the controls have names.
void FormWindow::makePage() {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  setWidget(new Page(*this));
  page().setAutoFillBackground(false);
  viewport()->setAutoFillBackground(false);
  viewport()->setObjectName({});
  resize((QSizeF(unit_.size()) * unit_.value()).toSize());
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

void FormWindow::watchTips() {
  for (QWidget* const widget : inOrder_) {
    if (widget != nullptr && !widget->toolTip().isEmpty()) widget->installEventFilter(&tips_);
  }
}

QWidget* FormWindow::parentOf(const ControlEntry& entry) {
  if (entry.frame == nullptr) return &page();
  const auto& entries = form_->controls().entries();
  for (std::size_t i = 0; i < inOrder_.size(); ++i) {
    const auto* const* const frame = std::get_if<Frame*>(&entries[i].control);
    if (frame != nullptr && *frame == entry.frame) return inOrder_[i];
  }
  return &page();
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
    shortcut->setAutoRepeat(false);
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
  news_ = {};
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

// Names follow their values, what calls for a click the state of the screen, and the picture the fate of
// the group.
void FormWindow::tellAll() {
  const auto& entries = form_->controls().entries();
  const std::string step = invitedStep(name_, *form_);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (inOrder_[i] == nullptr) continue;
    tell(name_, entries[i], *inOrder_[i]);
    theme::makePrimary(*inOrder_[i], isInviting(name_, *form_, entries[i], step));
  }
  if (has(kMonsterPicture)) at<PictureWidget>(kMonsterPicture).setDimmed(isGroupGone(name_, *form_));
}

void FormWindow::tellNews() {
  for (const std::string& report : news_.take(name_, *form_)) {
    announce(at(report));
    stir(report);
  }
}

// News is felt: its report comes in with a movement, and the monster answers a blow.
void FormWindow::stir(const std::string& report) {
  slideIn(at(report));
  if (isBlowDealt(report)) flinch(at(kMonsterPicture));
}

void FormWindow::expectNews(const std::string& used) { news_.expect(name_, *form_, used); }

void FormWindow::leaveScreen() {
  forgetMouse();
  hide();
  destroy();
  static_cast<Page&>(page()).forget();
  rest_.stop();
  unit_.setMoving(false);
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
  static_cast<Page&>(page()).prepare();
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

QWidget* FormWindow::find(const std::string& fullName) const {
  const auto found = widgets_.find(fullName);
  return found == widgets_.end() ? nullptr : found->second;
}

std::vector<QRect> FormWindow::keptClear() const {
  std::vector<QRect> places;
  for (const char* const name : layout_.keptClear) {
    const QWidget& widget = at(name);
    places.emplace_back(widget.mapToGlobal(QPoint(0, 0)), widget.size());
  }
  return places;
}

void FormWindow::setBackground(const QString& pictureName) { background_ = pictureName; }

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  close_(name_);
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    escape_(name_);
  } else {
    QScrollArea::keyPressEvent(event);
  }
}

bool FormWindow::event(QEvent* event) {
  if (event->type() == QEvent::Resize) fit();
  return QScrollArea::event(event);
}

// The places are worked out before the window asks whether it has to scroll.
void FormWindow::fit() {
  unit_.follow(size());
  page().layout()->activate();
  if (layout_.takesTurns()) keepProportion();
  if (!isVisible()) return;
  unit_.setMoving(true);
  isDecoding_ = false;
  rest_.start(kRestMs, this);
}

// In a window of quite another shape the page stands in the middle.
void FormWindow::keepProportion() {
  const QSize most = (QSizeF(unit_.size()) * unit_.value() * kMostStretch).toSize();
  const QSize spare = (size() - most).expandedTo({0, 0}) / 2;
  const QMargins around(spare.width(), spare.height(), spare.width(), spare.height());
  if (viewportMargins() != around) setViewportMargins(around);
}

void FormWindow::timerEvent(QTimerEvent* event) {
  if (event->timerId() == rest_.timerId()) {
    sharpen();
  } else {
    QScrollArea::timerEvent(event);
  }
}

// The pictures are decoded beside the event thread, and drawn when that has had its time.
void FormWindow::sharpen() {
  if (!isDecoding_) {
    isDecoding_ = true;
    preparePictures();
    rest_.start(kDecodeMs, this);
    return;
  }
  rest_.stop();
  unit_.setMoving(false);
  page().update();
}

}  // namespace brolgan::desktop
