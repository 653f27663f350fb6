#include "desktop/access.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QLabel>

#include "desktop/text.h"
#include "desktop/widgets.h"
#include "game/guide/news.h"
#include "game/guide/spoken.h"

namespace brolgan::desktop {

namespace {

// What a label says of itself by a property of that name, set to true.
constexpr const char* kIsNotice = "notice";

// The name that a label was given, else its words; by itself it would take the title of its frame.
QString nameOf(const QLabel& label) { return label.accessibleName().isEmpty() ? label.text() : label.accessibleName(); }

// A label that is bought by a click on its name.
class CheckableLabel : public QAccessibleWidget {
 public:
  explicit CheckableLabel(ClickLabel* label) : QAccessibleWidget(label, QAccessible::CheckBox) {}

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = label().isChecked();
    return state;
  }
  [[nodiscard]] QStringList actionNames() const override { return {toggleAction()}; }
  [[nodiscard]] QString text(QAccessible::Text which) const override {
    return which == QAccessible::Name ? nameOf(label()) : QAccessibleWidget::text(which);
  }
  void doAction(const QString& action) override {
    if (action == toggleAction() && label().isEnabled()) label().click();
  }
  [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  [[nodiscard]] ClickLabel& label() const { return *static_cast<ClickLabel*>(widget()); }
};

// A label that tells of something that happens.
class Notice : public QAccessibleWidget {
 public:
  explicit Notice(QLabel* label) : QAccessibleWidget(label, QAccessible::Notification) {}

  [[nodiscard]] QString text(QAccessible::Text which) const override {
    return which == QAccessible::Name ? nameOf(*static_cast<QLabel*>(widget())) : QAccessibleWidget::text(which);
  }
};

// A drop-down list that is called by its name and its value; by itself it would tell the value alone.
class NamedChoice : public QAccessibleWidget {
 public:
  explicit NamedChoice(QComboBox* box) : QAccessibleWidget(box, QAccessible::ComboBox) {}

  [[nodiscard]] int childCount() const override { return 1; }
  [[nodiscard]] QAccessibleInterface* child(int index) const override {
    return index == 0 ? QAccessible::queryAccessibleInterface(box().view()) : nullptr;
  }
  [[nodiscard]] int indexOfChild(const QAccessibleInterface* one) const override {
    return one != nullptr && one->object() == box().view() ? 0 : -1;
  }
  [[nodiscard]] QString text(QAccessible::Text which) const override {
    return which == QAccessible::Value ? box().currentText() : QAccessibleWidget::text(which);
  }
  [[nodiscard]] QStringList actionNames() const override { return {showMenuAction()}; }
  void doAction(const QString& action) override {
    if (action == showMenuAction() && box().isEnabled()) box().showPopup();
  }

 private:
  [[nodiscard]] QComboBox& box() const { return *static_cast<QComboBox*>(widget()); }
};

QAccessibleInterface* interfaceOf(const QString&, QObject* object) {
  auto* const clicked = dynamic_cast<ClickLabel*>(object);
  if (clicked != nullptr && clicked->isCheckable()) return new CheckableLabel(clicked);
  auto* const label = qobject_cast<QLabel*>(object);
  if (label != nullptr && label->property(kIsNotice).toBool()) return new Notice(label);
  auto* const box = qobject_cast<QComboBox*>(object);
  return box == nullptr ? nullptr : new NamedChoice(box);
}

void tellChecked(ClickLabel& label, bool checked) {
  if (label.isChecked() == checked) return;
  label.setChecked(checked);
  QAccessible::State changed;
  changed.checked = true;
  QAccessibleStateChangeEvent event(&label, changed);
  QAccessible::updateAccessibility(&event);
}

}  // namespace

void installAccess() { QAccessible::installFactory(interfaceOf); }

void tell(const std::string& screen, const ControlEntry& entry, QWidget& widget) {
  // What a widget is must stand before its first name: it is asked once.
  if (isAnnounced(screen, entry)) widget.setProperty(kIsNotice, true);
  auto* const label = isCheckable(screen, entry) ? dynamic_cast<ClickLabel*>(&widget) : nullptr;
  if (label != nullptr) label->setCheckable();
  const QString name = toQt(spoken(screen, entry));
  if (widget.accessibleName() != name) widget.setAccessibleName(name);
  if (label != nullptr) tellChecked(*label, isChecked(entry));
}

void announce(QWidget& widget) {
  if (!QAccessible::isActive() || !widget.isVisible()) return;
  QAccessibleEvent appears(&widget, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&appears);
}

}  // namespace brolgan::desktop
