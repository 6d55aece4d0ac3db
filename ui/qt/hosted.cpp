#include "ui/qt/hosted.h"

#include <QAbstractItemView>
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
#include <QStyledItemDelegate>
#include <QTabBar>
#include <algorithm>
#include <cstdlib>

#include "text/utf8.h"
#include "ui/controls.h"
#include "ui/desk.h"
#include "ui/gesture.h"
#include "ui/keyboard.h"
#include "ui/listRows.h"
#include "ui/qt/keys.h"
#include "ui/qt/qtPainter.h"

namespace zelvs {

namespace {

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
class Field final : public QLineEdit {
 public:
  Field(TextBox& text, QWidget* canvas) : QLineEdit(canvas), text_(text) {
    // What comes by no key, an input method's text for one, would be put back: digits are typed plainly here.
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(false);
    // What the widget has cut, undone or deleted by itself is put back.
    connect(this, &QLineEdit::textEdited, this, [this] { showText(text_, *this); });
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    QLineEdit::mousePressEvent(event);
    pressedAt_ = cursorPositionAt(event->pos());
  }

  void mouseReleaseEvent(QMouseEvent* event) override {
    QLineEdit::mouseReleaseEvent(event);
    // The widget's own caret may be the model's again already: the focus that the press brought has moved it.
    const int end = cursorPositionAt(event->pos());
    gesture::placeCaret(text_, std::min(pressedAt_, end), std::abs(end - pressedAt_));
  }

 private:
  TextBox& text_;
  int pressedAt_ = 0;
};

/// A button of which every place can be clicked, as of every other control, and not its text alone.
template <class Button>
class ClickButton final : public Button {
 public:
  ClickButton(Control& control, QWidget* canvas) : Button(canvas) {
    QObject::connect(this, &Button::clicked, this, [&control] { gesture::click(control.form(), &control); });
  }

 protected:
  bool hitButton(const QPoint& place) const override { return this->rect().contains(place); }
};

QWidget* dropDown(Control& control, QWidget* canvas) {
  auto* combo = new QComboBox(canvas);
  QObject::connect(combo, &QComboBox::activated, combo, [&control](int row) { gesture::pick(control, row); });
  return combo;
}

/// Rows as high as the model counts them.
class RowDelegate final : public QStyledItemDelegate {
 public:
  RowDelegate(const Control& list, QObject* parent) : QStyledItemDelegate(parent), list_(list) {}
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {QStyledItemDelegate::sizeHint(option, index).width(), qRound(rowHeightOf(list_) / kTwipsPerPixel)};
  }

 private:
  const Control& list_;
};

class OpenList final : public QListWidget {
 public:
  OpenList(Control& control, QWidget* canvas) : QListWidget(canvas) {
    setItemDelegate(new RowDelegate(control, this));
    connect(this, &QListWidget::itemClicked, this,
            [&control](QListWidgetItem* item) { gesture::pick(control, item->listWidget()->row(item)); });
  }

 protected:
  /// Exactly one row is selected, whatever keys are held: a list cannot take its selection back.
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex&, const QEvent*) const override {
    return QItemSelectionModel::ClearAndSelect;
  }
};

QWidget* tabBar(Control& control, QWidget* canvas) {
  auto* tabs = new QTabBar(canvas);
  tabs->setExpanding(false);
  QObject::connect(tabs, &QTabBar::currentChanged, tabs, [&control](int tab) { gesture::pick(control, tab); });
  return tabs;
}

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
  return control.kind() == ControlKind::ListBox || isOpenList(&control);
}

}  // namespace

QWidget* hostedWidget(Control& control, QWidget* canvas) {
  switch (control.kind()) {
    case ControlKind::TextBox:
      return new Field(static_cast<TextBox&>(control), canvas);
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
      return unrolled(control) ? new OpenList(control, canvas) : dropDown(control, canvas);
    case ControlKind::TabStrip:
      return tabBar(control, canvas);
    default:
      return nullptr;
  }
}

void showHosted(Control& control, QWidget& widget) {
  widget.setFont(fontOf(control.FontSize, control.FontBold));
  widget.setToolTip(QString::fromStdString(control.ToolTipText.get()));
  // The toolkit would hand the focus to the next widget.
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
      button.setDefault(desk().active() == &control.form() && answersEnter(control.form()) == &control);
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
}

int rowAt(const QWidget& widget, QPoint place) {
  const auto* list = qobject_cast<const QListWidget*>(&widget);
  return list != nullptr ? list->indexAt(place).row() : -1;
}

bool fieldKey(Control& field, QWidget& widget, QKeyEvent& key) {
  if (field.kind() == ControlKind::TextBox && key.matches(QKeySequence::Copy)) {
    static_cast<QLineEdit&>(widget).copy();
    return true;
  }
  if (field.kind() == ControlKind::TextBox && key.matches(QKeySequence::Paste)) {
    for (const char32_t character : charactersOf(QApplication::clipboard()->text().toStdString())) {
      if (character >= U' ') gesture::type(field, character);
    }
    return true;
  }
  return desk().hand.key(modelKeyOf(key)) || field.kind() == ControlKind::TextBox;
}

bool dropsDown(const QComboBox& combo, const QEvent& event) {
  if (combo.view()->isVisible()) return true;
  const auto& key = static_cast<const QKeyEvent&>(event);
  return key.key() == Qt::Key_F4 || key.key() == Qt::Key_Space || key.modifiers().testFlag(Qt::AltModifier);
}

}  // namespace zelvs
