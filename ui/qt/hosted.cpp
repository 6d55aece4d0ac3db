#include "ui/qt/hosted.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTabBar>
#include <algorithm>
#include <cstdlib>

#include "text/utf8.h"
#include "ui/controls.h"
#include "ui/desk.h"
#include "ui/gesture.h"
#include "ui/qt/drawing.h"
#include "ui/qt/keys.h"

namespace zelvs {

namespace {

/// The focus that the window system gives a widget is the user's turning to its control.
template <class Widget>
class Hosted : public Widget {
 public:
  Hosted(Control& control, QWidget* canvas) : Widget(canvas), control_(control) {}

 protected:
  Control& control() const { return control_; }

  void focusInEvent(QFocusEvent* event) override {
    Widget::focusInEvent(event);
    const auto reason = event->reason();
    if (reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) {
      gesture::focus(control_);
    }
  }

 private:
  Control& control_;
};

void showText(const TextBox& text, QLineEdit& field) {
  const QSignalBlocker quiet(field);
  const QString shown = QString::fromStdString(text.Text.get());
  if (field.text() != shown) field.setText(shown);
  // Programs set longer texts than a person may type.
  field.setMaxLength(text.MaxLength > 0 ? std::max<int>(text.MaxLength, static_cast<int>(shown.size())) : 32767);
  if (text.SelLength > 0) {
    field.setSelection(text.SelStart, text.SelLength);
  } else {
    field.setCursorPosition(text.SelStart);
  }
}

/// A field whose every edit is made by the model: the widget shows text and caret and passes the keys on.
class Field final : public Hosted<QLineEdit> {
 public:
  Field(Control& control, QWidget* canvas) : Hosted(control, canvas) {
    // What comes by no key, an input method's text for one, would be put back: digits are typed plainly here.
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(false);
    // What the widget has cut, undone or deleted by itself is put back.
    connect(this, &QLineEdit::textEdited, this, [this] { showText(static_cast<TextBox&>(this->control()), *this); });
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->matches(QKeySequence::Paste)) {
      typeAll(QApplication::clipboard()->text());
      return;
    }
    const bool plain = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
    const QString text = event->text();
    if (plain && !text.isEmpty() && text[0].isPrint()) {
      typeAll(text);
    } else if (plain && keyCodeOf(event->key()) != 0) {
      gesture::keyDown(control(), keyCodeOf(event->key()));
    } else {
      QLineEdit::keyPressEvent(event);
    }
  }

  void mousePressEvent(QMouseEvent* event) override {
    QLineEdit::mousePressEvent(event);
    pressedAt_ = cursorPositionAt(event->pos());
  }

  void mouseReleaseEvent(QMouseEvent* event) override {
    QLineEdit::mouseReleaseEvent(event);
    // The widget's own caret may be the model's again already: the focus that the press brought has moved it.
    const int end = cursorPositionAt(event->pos());
    gesture::placeCaret(static_cast<TextBox&>(control()), std::min(pressedAt_, end), std::abs(end - pressedAt_));
  }

 private:
  int pressedAt_ = 0;

  void typeAll(const QString& text) {
    for (const char32_t character : charactersOf(text.toStdString()))
      gesture::type(control(), character);
  }
};

template <class Button>
class ClickButton final : public Hosted<Button> {
 public:
  ClickButton(Control& control, QWidget* canvas) : Hosted<Button>(control, canvas) {
    QObject::connect(this, &Button::clicked, this, [&control] { gesture::click(control.form(), &control); });
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const int code = keyCodeOf(event->key());
    if (code == key::kEnter || code == key::kEscape) {
      gesture::keyDown(this->control(), code);
    } else {
      Hosted<Button>::keyPressEvent(event);
    }
  }
};

class DropDown final : public Hosted<QComboBox> {
 public:
  DropDown(Control& control, QWidget* canvas) : Hosted(control, canvas) {
    connect(this, &QComboBox::activated, this, [&control](int row) { gesture::pick(control, row); });
  }
};

class OpenList final : public Hosted<QListWidget> {
 public:
  OpenList(Control& control, QWidget* canvas) : Hosted(control, canvas) {
    connect(this, &QListWidget::itemClicked, this,
            [&control](QListWidgetItem* item) { gesture::pick(control, item->listWidget()->row(item)); });
    connect(this, &QListWidget::itemDoubleClicked, this, [&control] {
      if (control.onDblClick) gesture::pressAgain(control.form(), &control);
    });
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const int code = keyCodeOf(event->key());
    const bool list = control().kind() == ControlKind::ListBox;
    const bool arrow = code == key::kUp || code == key::kDown;
    if (code == key::kEscape || code == key::kEnter || (arrow && !list)) {
      gesture::keyDown(control(), code);
      return;
    }
    // Everything else (a letter that a row begins with, a page) is the widget's own way to a row.
    QListWidget::keyPressEvent(event);
    if (list) {
      if (currentRow() >= 0) gesture::pick(control(), currentRow());
    } else {
      static_cast<ComboBox&>(control()).Marked = currentRow();
    }
  }

  /// Exactly one row is selected, whatever keys are held: a list cannot take its selection back.
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex&, const QEvent*) const override {
    return QItemSelectionModel::ClearAndSelect;
  }
};

class Tabs final : public Hosted<QTabBar> {
 public:
  Tabs(Control& control, QWidget* canvas) : Hosted(control, canvas) {
    setExpanding(false);
    connect(this, &QTabBar::currentChanged, this, [&control](int tab) { gesture::pick(control, tab); });
  }
};

QStringList rowsOf(const ListControl& list) {
  QStringList rows;
  for (int row = 0; row < list.ListCount(); ++row)
    rows << QString::fromStdString(list.List(row));
  return rows;
}

void showRows(const ListControl& list, QComboBox& combo) {
  const QSignalBlocker quiet(combo);
  const QStringList rows = rowsOf(list);
  bool same = combo.count() == rows.size();
  for (int row = 0; same && row < rows.size(); ++row)
    same = combo.itemText(row) == rows[row];
  if (!same) {
    combo.clear();
    combo.addItems(rows);
  }
  combo.setCurrentIndex(list.ListIndex);
}

void showRows(const ListControl& list, QListWidget& widget) {
  const QSignalBlocker quiet(widget);
  const QStringList rows = rowsOf(list);
  bool same = widget.count() == rows.size();
  for (int row = 0; same && row < rows.size(); ++row)
    same = widget.item(row)->text() == rows[row];
  if (!same) {
    widget.clear();
    widget.addItems(rows);
  }
  const int row = list.kind() == ControlKind::ComboBox ? static_cast<const ComboBox&>(list).Marked : list.ListIndex;
  if (widget.currentRow() != row) widget.setCurrentRow(row);
}

void showTabs(const TabStrip& tabs, QTabBar& bar) {
  const QSignalBlocker quiet(bar);
  while (bar.count() > tabs.Tabs)
    bar.removeTab(bar.count() - 1);
  while (bar.count() < tabs.Tabs)
    bar.addTab(QString());
  for (int tab = 0; tab < tabs.Tabs; ++tab)
    bar.setTabText(tab, QString::fromStdString(tabs.TabCaption(tab)));
  bar.setCurrentIndex(tabs.Tab);
}

bool unrolled(const Control& control) {
  return control.kind() == ControlKind::ListBox || static_cast<const ComboBox&>(control).Unrolled;
}

}  // namespace

QWidget* hostedWidget(Control& control, QWidget* canvas) {
  switch (control.kind()) {
    case ControlKind::TextBox:
      return new Field(control, canvas);
    case ControlKind::CommandButton:
      return new ClickButton<QPushButton>(control, canvas);
    case ControlKind::CheckBox:
      return new ClickButton<QCheckBox>(control, canvas);
    case ControlKind::OptionButton: {
      auto* button = new ClickButton<QRadioButton>(control, canvas);
      button->setAutoExclusive(false);  // the model knows which ones belong together
      return button;
    }
    case ControlKind::ListBox:
    case ControlKind::ComboBox:
      if (unrolled(control)) return new OpenList(control, canvas);
      return new DropDown(control, canvas);
    case ControlKind::TabStrip:
      return new Tabs(control, canvas);
    default:
      return nullptr;
  }
}

void showHosted(Control& control, QWidget& widget) {
  widget.setFont(fontOf(control.FontSize, control.FontBold));
  widget.setToolTip(QString::fromStdString(control.ToolTipText.get()));
  // The toolkit would hand the focus to the next control, and the same key would go on there.
  if (!(control.usable() && control.shown()) && widget.hasFocus())
    widget.parentWidget()->setFocus(Qt::OtherFocusReason);
  widget.setEnabled(control.usable());
  QRect place = pixelsOf(control.area()).toAlignedRect();
  const QString caption = QString::fromStdString(control.Caption.get());
  switch (control.kind()) {
    case ControlKind::TextBox:
      showText(static_cast<TextBox&>(control), static_cast<QLineEdit&>(widget));
      break;
    case ControlKind::CommandButton: {
      auto& button = static_cast<QPushButton&>(widget);
      button.setText(caption);
      button.setDefault(static_cast<CommandButton&>(control).Default);
      break;
    }
    case ControlKind::CheckBox: {
      const QSignalBlocker quiet(widget);
      auto& box = static_cast<QCheckBox&>(widget);
      box.setText(caption);
      box.setChecked(static_cast<CheckBox&>(control).Value != 0);
      break;
    }
    case ControlKind::OptionButton: {
      const QSignalBlocker quiet(widget);
      auto& button = static_cast<QRadioButton&>(widget);
      button.setText(caption);
      button.setChecked(static_cast<OptionButton&>(control).Value);
      break;
    }
    case ControlKind::ListBox:
    case ControlKind::ComboBox:
      if (unrolled(control)) {
        showRows(static_cast<ListControl&>(control), static_cast<QListWidget&>(widget));
      } else {
        showRows(static_cast<ListControl&>(control), static_cast<QComboBox&>(widget));
      }
      break;
    case ControlKind::TabStrip:
      showTabs(static_cast<TabStrip&>(control), static_cast<QTabBar&>(widget));
      place.setHeight(widget.sizeHint().height());
      break;
    default:
      break;
  }
  widget.setGeometry(place);
  const bool shown = control.shown();
  if (shown && !widget.isVisibleTo(widget.parentWidget())) widget.raise();
  widget.setVisible(shown);
  if (shown && desk().focused() == &control && !widget.hasFocus()) widget.setFocus(Qt::OtherFocusReason);
}

}  // namespace zelvs
