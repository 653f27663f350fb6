#include "desktop/control_widget.h"

#include <QComboBox>
#include <QGroupBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "desktop/picture_store.h"
#include "desktop/style.h"
#include "desktop/text.h"
#include "desktop/text_label.h"
#include "desktop/theme.h"
#include "desktop/widgets.h"

namespace brolgan::desktop {

namespace {

// A button that the Enter key presses too.
class Button : public QPushButton {
 public:
  using QPushButton::QPushButton;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (isPress(*event) && event->key() != Qt::Key_Space) {
      click();
    } else {
      QPushButton::keyPressEvent(event);
    }
  }
};

struct Maker {
  QWidget* parent;
  PictureStore& pictures;
  const Gestures& gestures;

  QWidget* operator()(const Label* label) const {
    QLabel* widget =
        label->Click ? static_cast<QLabel*>(new ClickLabel(gestures.click, parent)) : new TextLabel(parent);
    widget->setTextFormat(Qt::PlainText);
    widget->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return widget;
  }

  QWidget* operator()(const TextBox* box) const { return box->MultiLine ? makeNotes() : makeEdit(*box); }

  QWidget* operator()(const CommandButton* button) const {
    QAbstractButton* widget = *button->Picture != '\0'
                                  ? static_cast<QAbstractButton*>(new PictureButton(pictures, button->Picture, parent))
                                  : new Button(parent);
    QObject::connect(widget, &QAbstractButton::clicked, widget, gestures.click);
    return widget;
  }

  QWidget* operator()(const OptionButton*) const {
    auto* widget = new OptionRow(parent);
    QObject::connect(widget, &QRadioButton::clicked, widget, gestures.click);
    return widget;
  }

  QWidget* operator()(const Frame* frame) const {
    if (!frame->Caption.empty()) return new QGroupBox(parent);
    auto* widget = new QFrame(parent);
    theme::makePanel(*widget);
    return widget;
  }

  QWidget* operator()(const PictureBox*) const { return new PictureWidget(pictures, parent); }

  QWidget* operator()(const ComboBox*) const {
    auto* widget = new QComboBox(parent);
    QObject::connect(widget, &QComboBox::activated, widget, gestures.select);
    return widget;
  }

  QWidget* operator()(const ListBox*) const {
    auto* widget = new RowList(parent);
    widget->setUniformItemSizes(true);
    const auto select = gestures.select;
    QObject::connect(widget, &QListWidget::itemSelectionChanged, widget, [widget, select] {
      if (!widget->selectedItems().isEmpty()) select(widget->currentRow());
    });
    return widget;
  }

  QWidget* operator()(const MediaPlayer*) const { return nullptr; }

 private:
  [[nodiscard]] QWidget* makeNotes() const {
    auto* widget = new QPlainTextEdit(parent);
    widget->setTabChangesFocus(true);
    const auto type = gestures.type;
    QObject::connect(widget, &QPlainTextEdit::textChanged, widget, [widget, type] { type(widget->toPlainText()); });
    return widget;
  }

  [[nodiscard]] QWidget* makeEdit(const TextBox& box) const {
    QLineEdit* widget = box.Click ? new ClickEdit(gestures.click, parent) : new QLineEdit(parent);
    QObject::connect(widget, &QLineEdit::textEdited, widget, gestures.type);
    return widget;
  }
};

// The font of a widget, as one to be set anew: letters of the size of those around it go on following them.
QFont fontOf(const QWidget& widget) {
  QFont font = widget.font();
  const QWidget* const around = widget.parentWidget();
  if (around != nullptr && around->font().pointSizeF() == font.pointSizeF()) {
    font.setResolveMask(font.resolveMask() & ~static_cast<unsigned>(QFont::SizeResolved));
  }
  return font;
}

// Red text is bold, so that it stays readable on the light panels, and underlined, so that it is told by
// more than its colour.
void setColour(QWidget& widget, Colour colour) {
  const QColor wanted = theme::colourOf(colour);
  QPalette palette = widget.palette();
  if (palette.color(QPalette::Active, QPalette::WindowText) == wanted) return;
  // What a rule has coloured is not paler where plain words are.
  const QColor pale = colour == Colour::buttonText ? theme::kDisabledText : wanted;
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::WindowText, wanted);
    palette.setColor(group, QPalette::PlaceholderText, pale);
  }
  widget.setPalette(palette);
  QFont font = fontOf(widget);
  font.setBold(colour == Colour::red || widget.property(kIsBold).toBool());
  font.setUnderline(colour == Colour::red);
  widget.setFont(font);
}

void mirrorRows(const Rows& rows, QComboBox& widget) {
  bool same = widget.count() == rows.ListCount();
  for (int i = 0; same && i < rows.ListCount(); ++i) same = widget.itemText(i) == toQt(rows.List(i));
  if (!same) {
    widget.clear();
    for (int i = 0; i < rows.ListCount(); ++i) widget.addItem(toQt(rows.List(i)));
  }
  if (!same || widget.currentIndex() != rows.ListIndex()) widget.setCurrentIndex(rows.ListIndex());
}

void mirrorRows(const Rows& rows, QListWidget& widget) {
  bool same = widget.count() == rows.ListCount();
  for (int i = 0; same && i < rows.ListCount(); ++i) same = widget.item(i)->text() == toQt(rows.List(i));
  if (!same) {
    widget.clear();
    for (int i = 0; i < rows.ListCount(); ++i) widget.addItem(toQt(rows.List(i)));
  }
  if (rows.ListIndex() < 0) {
    widget.clearSelection();
  } else if (!same || widget.currentRow() != rows.ListIndex() || widget.selectedItems().isEmpty()) {
    widget.setCurrentRow(rows.ListIndex());
  }
}

struct Mirror {
  QWidget& widget;

  void operator()(const Label* label) const {
    auto& shown = static_cast<QLabel&>(widget);
    const QString text = toQt(label->Caption);
    if (shown.text() != text) shown.setText(text);
    setColour(shown, label->ForeColor);
    setToolTip(label->ToolTipText);
  }

  void operator()(const TextBox* box) const {
    const QString text = toQt(box->Text);
    if (auto* notes = qobject_cast<QPlainTextEdit*>(&widget)) {
      if (notes->toPlainText() != text) {
        notes->setPlainText(text);
        notes->moveCursor(QTextCursor::End);  // A person's words go behind those of the game.
      }
      return;
    }
    auto& shown = static_cast<QLineEdit&>(widget);
    if (shown.text() != text) {
      shown.setText(text);
      // What is only read shows its beginning.
      if (box->Locked) shown.setCursorPosition(0);
    }
    shown.setReadOnly(box->Locked);
    shown.setFocusPolicy(box->TabStop ? Qt::StrongFocus : Qt::ClickFocus);
  }

  void operator()(const CommandButton* button) const {
    auto& shown = static_cast<QAbstractButton&>(widget);
    const QString text = toQt(button->Caption);
    if (shown.text() != text) shown.setText(text);
  }

  void operator()(const OptionButton* option) const {
    auto& shown = static_cast<QRadioButton&>(widget);
    const QString text = toQt(option->Caption);
    if (shown.text() != text) shown.setText(text);
    if (option->Value && !shown.isChecked()) shown.setChecked(true);
    setToolTip(option->ToolTipText);
  }

  void operator()(const Frame* frame) const {
    if (auto* box = qobject_cast<QGroupBox*>(&widget)) box->setTitle(toQt(frame->Caption));
  }

  void operator()(const PictureBox* box) const { static_cast<PictureWidget&>(widget).setName(toQt(box->Picture)); }

  void operator()(const ComboBox* rows) const { mirrorRows(*rows, static_cast<QComboBox&>(widget)); }

  void operator()(const ListBox* rows) const { mirrorRows(*rows, static_cast<QListWidget&>(widget)); }

  void operator()(const MediaPlayer*) const {}

 private:
  void setToolTip(const char* tip) const {
    const QString text = QString::fromUtf8(tip);
    if (widget.toolTip() != text) widget.setToolTip(text);
  }
};

void mirrorState(const ControlEntry& entry, QWidget& widget) {
  const auto state = [&widget](const auto* control) {
    if constexpr (requires { control->Visible; }) {
      if (widget.isHidden() == control->Visible) widget.setVisible(control->Visible);
    }
    if constexpr (requires { control->Enabled; }) widget.setEnabled(control->Enabled);
  };
  std::visit(state, entry.control);
}

}  // namespace

QWidget* makeWidget(const ControlEntry& entry, QWidget* parent, PictureStore& pictures, const Gestures& gestures) {
  return std::visit(Maker{parent, pictures, gestures}, entry.control);
}

void mirror(const ControlEntry& entry, QWidget& widget) {
  const QSignalBlocker quiet(widget);
  std::visit(Mirror{widget}, entry.control);
  mirrorState(entry, widget);
}

}  // namespace brolgan::desktop
