#include "ui/qt/accessibility.h"

#include <QAccessibleActionInterface>
#include <QAccessibleWidget>
#include <QHash>

#include "ui/gesture.h"
#include "ui/qt/canvas.h"
#include "ui/qt/qtPainter.h"

namespace zelvs {

namespace {

QAccessible::Role roleOf(const Control& control) {
  switch (control.kind()) {
    case ControlKind::Label:
      return QAccessible::StaticText;
    case ControlKind::Frame:
      return QAccessible::Grouping;
    case ControlKind::PictureBox:
      return control.onClick || control.onDblClick || control.onMouseDown ? QAccessible::PushButton
                                                                          : QAccessible::Graphic;
    default:
      return QAccessible::Graphic;
  }
}

/// One control that the canvas paints.
class PaintedControl final : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  PaintedControl(Canvas& canvas, Control& control) : canvas_(canvas), control_(control) {}

  bool isValid() const override { return canvas_.form() != nullptr; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return canvas_.window()->windowHandle(); }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&canvas_); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  void setText(QAccessible::Text, const QString&) override {}

  QString text(QAccessible::Text kind) const override {
    if (!isValid()) return {};
    if (kind == QAccessible::Name) return QString::fromStdString(control_.fullName());
    if (kind == QAccessible::Description) return QString::fromStdString(control_.ToolTipText.get());
    // What a switch or lamp stands at is its Tag.
    if (kind == QAccessible::Value) {
      return QString::fromStdString(control_.Caption.get().empty() ? control_.Tag.get() : control_.Caption.get());
    }
    return {};
  }

  QRect rect() const override {
    if (!isValid()) return {};
    const QRect place = pixelsOf(control_.area()).toAlignedRect();
    return {canvas_.mapToGlobal(place.topLeft()), place.size()};
  }

  QAccessible::Role role() const override { return isValid() ? roleOf(control_) : QAccessible::NoRole; }

  QAccessible::State state() const override {
    QAccessible::State state;
    state.invisible = !isValid() || !control_.shown();
    state.disabled = !isValid() || !control_.usable();
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }

  QStringList actionNames() const override {
    return isValid() && roleOf(control_) == QAccessible::PushButton ? QStringList{pressAction()} : QStringList{};
  }
  void doAction(const QString& name) override {
    if (!isValid() || name != pressAction()) return;
    if (control_.onDblClick) {
      gesture::doubleClick(control_.form(), &control_);
    } else {
      gesture::click(control_.form(), &control_);
    }
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  Canvas& canvas_;
  Control& control_;
};

/// A canvas: first the widgets that it holds, then the controls that it paints.
class AccessibleCanvas final : public QAccessibleWidget {
 public:
  explicit AccessibleCanvas(Canvas* canvas) : QAccessibleWidget(canvas, QAccessible::Client) {}
  ~AccessibleCanvas() override {
    for (const QAccessible::Id id : std::as_const(known_))
      QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override { return QAccessibleWidget::childCount() + static_cast<int>(painted().size()); }

  QAccessibleInterface* child(int index) const override {
    const int widgets = QAccessibleWidget::childCount();
    if (index < widgets) return QAccessibleWidget::child(index);
    const std::vector<Control*> controls = painted();
    const auto position = static_cast<std::size_t>(index - widgets);
    return position < controls.size() ? interfaceOf(*controls[position]) : nullptr;
  }

  QAccessibleInterface* childAt(int x, int y) const override {
    if (QAccessibleInterface* widget = QAccessibleWidget::childAt(x, y)) return widget;
    if (canvas().form() == nullptr) return nullptr;
    const QPoint place = canvas().mapFromGlobal(QPoint(x, y));
    Control* control = canvas().form()->controlAt(place.x() * kTwipsPerPixel, place.y() * kTwipsPerPixel);
    return control == nullptr ? nullptr : interfaceOf(*control);
  }

  int indexOfChild(const QAccessibleInterface* child) const override {
    // Looked through once: a memory window paints thousands.
    const std::vector<Control*> controls = painted();
    for (std::size_t position = 0; position < controls.size(); ++position) {
      if (interfaceOf(*controls[position]) == child) {
        return QAccessibleWidget::childCount() + static_cast<int>(position);
      }
    }
    return QAccessibleWidget::indexOfChild(child);
  }

 private:
  Canvas& canvas() const { return *static_cast<Canvas*>(widget()); }

  std::vector<Control*> painted() const {
    std::vector<Control*> controls;
    if (canvas().form() == nullptr) return controls;
    for (Control* control : canvas().form()->controls()) {
      const bool faceless = control->kind() == ControlKind::Timer || control->kind() == ControlKind::Sound;
      if (!faceless && control->shown() && canvas().widgetOf(*control) == nullptr) controls.push_back(control);
    }
    return controls;
  }

  QAccessibleInterface* interfaceOf(Control& control) const {
    const auto found = known_.constFind(&control);
    if (found != known_.constEnd()) return QAccessible::accessibleInterface(*found);
    auto* made = new PaintedControl(canvas(), control);
    known_.insert(&control, QAccessible::registerAccessibleInterface(made));
    return made;
  }

  mutable QHash<const Control*, QAccessible::Id> known_;
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
  auto* canvas = qobject_cast<Canvas*>(object);
  return canvas == nullptr ? nullptr : new AccessibleCanvas(canvas);
}

}  // namespace

void setUpAccessibility() {
  QAccessible::installFactory(makeInterface);
}

}  // namespace zelvs
