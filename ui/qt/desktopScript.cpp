#include "ui/qt/desktopScript.h"

#include <unistd.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QBuffer>
#include <QComboBox>
#include <QFile>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QTabBar>
#include <QWindow>
#include <cstdio>
#include <optional>
#include <utility>

#include "files/writeFile.h"
#include "ui/desk.h"
#include "ui/listRows.h"
#include "ui/qt/keys.h"
#include "ui/qt/qtPainter.h"
#include "ui/qt/qtPlatform.h"
#include "ui/qt/windows.h"
#include "ui/reach.h"
#include "ui/view.h"
#include "ui/windowFrame.h"

// The doors by which the toolkit's own tests let events in, as if the window system had sent them.
QT_BEGIN_NAMESPACE
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow* window, const QPointF& local, const QPointF& global,
                                      Qt::MouseButtons state, Qt::MouseButton button, QEvent::Type type,
                                      Qt::KeyboardModifiers mods, int timestamp);
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow* window, QEvent::Type type, int key, Qt::KeyboardModifiers mods,
                                    const QString& text, bool autorep, ushort count);
QT_END_NAMESPACE

namespace zelvs {

namespace {

class WindowedScriptPlatform final : public ScriptedPlatform {
 public:
  Screen screen() override { return screenOfQt(); }
};

/// A gesture that is made by its name: it goes straight to the widget, and nothing interrupts it.
void send(QWidget& widget, QEvent::Type type, QPointF place, bool down) {
  const QPointF global = widget.mapToGlobal(place);
  QMouseEvent event(type, place, place, global, type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                    down ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier, Qt::MouseEventSynthesizedByApplication);
  QApplication::sendEvent(&widget, &event);
}

class WindowedHands final : public Hands {
 public:
  explicit WindowedHands(Windows& windows) : windows_(windows) {}

  std::string press(Form& form, Control* control) override {
    return atPlace(form, control,
                   [](QWidget& widget, QPointF place) { send(widget, QEvent::MouseButtonPress, place, true); });
  }

  std::string release(Form& form, Control* control) override {
    // The press may be another one's by now: each that was made by its name waits for its own release.
    const bool field = control != nullptr && widgetOf(*control) != nullptr;
    if (!field && !(desk().hand.heldForm() == &form && desk().hand.heldControl() == control)) {
      return gesture::release(form, control);
    }
    return atPlace(form, control,
                   [](QWidget& widget, QPointF place) { send(widget, QEvent::MouseButtonRelease, place, false); });
  }

  std::string click(Form& form, Control* control) override {
    std::string why = press(form, control);
    if (why.empty() && gesture::refusal(form, control).empty()) release(form, control);
    return why;
  }

  std::string doubleClick(Form& form, Control* control, bool lastRelease) override {
    std::string why = click(form, control);
    if (!why.empty() || !gesture::refusal(form, control).empty()) return why;
    atPlace(form, control,
            [](QWidget& widget, QPointF place) { send(widget, QEvent::MouseButtonDblClick, place, true); });
    if (lastRelease && gesture::refusal(form, control).empty()) release(form, control);
    return {};
  }

  std::string move(Form& form, Control* control) override {
    return atPlace(form, control,
                   [](QWidget& widget, QPointF place) { send(widget, QEvent::MouseMove, place, false); });
  }

  std::string pick(Control& control, int row) override {
    settle();
    QWidget* widget = widgetOf(control);
    if (auto* list = qobject_cast<QListWidget*>(widget)) {
      if (row < 0 || row >= list->count()) return noRow(control, row);
      QListWidgetItem* item = list->item(row);
      list->scrollToItem(item);
      const QPointF place = list->visualItemRect(item).center();
      send(*list->viewport(), QEvent::MouseButtonPress, place, true);
      send(*list->viewport(), QEvent::MouseButtonRelease, place, false);
      return {};
    }
    if (auto* combo = qobject_cast<QComboBox*>(widget)) {
      if (row < 0 || row >= combo->count()) return noRow(control, row);
      combo->setCurrentIndex(row);
      emit combo->activated(row);
      return {};
    }
    if (auto* tabs = qobject_cast<QTabBar*>(widget)) {
      if (row < 0 || row >= tabs->count()) return noRow(control, row);
      const QPointF place = tabs->tabRect(row).center();
      send(*tabs, QEvent::MouseButtonPress, place, true);
      send(*tabs, QEvent::MouseButtonRelease, place, false);
      return {};
    }
    return gesture::pick(control, row);
  }

  std::string focus(Control& control) override {
    std::string why = gesture::focus(control);
    settle();
    return why;
  }

  std::string type(Control& control, char32_t character) override {
    if (control.kind() != ControlKind::TextBox) return gesture::type(control, character);
    return sendKey(control, Qt::Key_unknown, QString::fromUcs4(&character, 1));
  }

  std::string keyDown(Control& control, int code) override {
    if (!control.takesFocus()) return gesture::keyDown(control, code);
    const Qt::Key key = qtKeyOf(code);
    if (key == Qt::Key_unknown || (code >= '0' && code <= 'Z')) return gesture::keyDown(control, code);
    return sendKey(control, key, {});
  }

  std::string close(Form& form) override {
    if (!form.hasCloseBox()) return gesture::close(form);
    settle();
    windows_.windowOf(form)->close();
    return {};
  }

  std::optional<Point> placeOf(Form& form, Control* control, std::optional<int> row) override {
    settle();
    QWidget* widget = control != nullptr ? widgetOf(*control) : nullptr;
    if (widget == nullptr) {
      const Area area = control != nullptr ? control->area() : Area{0, 0, form.clientWidth(), form.clientHeight()};
      return onScreen(*windows_.canvasOf(form), zelvs::pixelsOf(area).center());
    }
    if (!row) return onScreen(*widget, QPointF(widget->rect().center()));
    if (*row < 0 || *row >= rowCountOf(*control)) return std::nullopt;
    if (auto* tabs = qobject_cast<QTabBar*>(widget)) return onScreen(*tabs, QPointF(tabs->tabRect(*row).center()));
    auto* combo = qobject_cast<QComboBox*>(widget);
    auto* list = combo != nullptr ? combo->view() : qobject_cast<QAbstractItemView*>(widget);
    const QModelIndex index = list->model()->index(*row, 0);
    list->scrollTo(index);
    return onScreen(*list->viewport(), QPointF(list->visualRect(index).center()));
  }

  void handMove(Point place) override {
    place_ = QPointF(place.x, place.y);
    handEvent(QEvent::MouseMove);
  }

  void handDown() override {
    buttons_ = Qt::LeftButton;
    handEvent(QEvent::MouseButtonPress);
  }

  void handUp() override {
    buttons_ = Qt::NoButton;
    handEvent(QEvent::MouseButtonRelease);
  }

  void handKey(const Key& key) override {
    settle();
    QWindow* window = QGuiApplication::focusWindow();
    if (window == nullptr) window = windows_.frame()->windowHandle();
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ControlModifier, key.control);
    modifiers.setFlag(Qt::AltModifier, key.alt);
    modifiers.setFlag(Qt::ShiftModifier, key.shift);
    const QString text = key.character != 0 ? QString::fromUcs4(&key.character, 1) : QString();
    const bool back = key.code == key::kTab && key.shift;
    const int code = back ? Qt::Key_Backtab : key.code != 0 ? qtKeyOf(key.code) : Qt::Key_unknown;
    qt_handleKeyEvent(window, QEvent::KeyPress, code, modifiers, text, false, 1);
    qt_handleKeyEvent(window, QEvent::KeyRelease, code, modifiers, text, false, 1);
    settle();
  }

  std::string screenshot(Form* form, const std::string& file) override {
    settle();
    const QPixmap picture = form == nullptr ? wholeScreen() : windows_.windowOf(*form)->grab();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!picture.save(&buffer, "PNG")) return "cannot write " + file;
    const std::string why = writeFile(file, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
    return why.empty() ? why : "cannot write " + file + ": " + why;
  }

 private:
  static Point onScreen(const QWidget& widget, QPointF place) {
    const QPoint global = widget.mapToGlobal(place).toPoint();
    return {global.x(), global.y()};
  }

  /// The mouse as the window system tells of it, to the window in front.
  void handEvent(QEvent::Type type) {
    settle();
    const Seen seen = windowAt(place_.x() * kTwipsPerPixel, place_.y() * kTwipsPerPixel);
    QWidget* target = QApplication::activePopupWidget();
    if (target == nullptr && seen.form != nullptr) target = windows_.windowOf(*seen.form)->window();
    // While the button is down the window that took the press goes on getting everything.
    if (type == QEvent::MouseButtonPress) grabber_ = target;
    if (grabber_ != nullptr && grabber_->isVisible()) target = grabber_;
    if (type == QEvent::MouseButtonRelease) grabber_ = nullptr;
    if (target != nullptr && target->windowHandle() != nullptr) {
      constexpr int kLaterThanTheStart = 10000;
      const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
      qt_handleMouseEvent(target->windowHandle(), target->mapFromGlobal(place_), place_, buttons_, button, type,
                          Qt::NoModifier, static_cast<int>(desk().clock.now()) + kLaterThanTheStart);
    }
    settle();
  }

  static std::string noRow(const Control& control, int row) {
    return control.fullName() + " has no row " + std::to_string(row);
  }

  /// Lets windows take their places before a hand reaches for them.
  void settle() {
    windows_.flush();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    windows_.flush();
  }

  QWidget* widgetOf(const Control& control) const {
    const Canvas* canvas = windows_.canvasOf(control.form());
    return canvas == nullptr ? nullptr : canvas->widgetOf(control);
  }

  template <class Action>
  std::string atPlace(Form& form, Control* control, Action action) {
    settle();
    Canvas* canvas = windows_.canvasOf(form);
    if (control != nullptr) {
      if (QWidget* widget = canvas->widgetOf(*control)) {
        action(*widget, QPointF(widget->rect().center()));
        return {};
      }
    }
    const auto place = freePlace(form, control);
    if (!place) return (control != nullptr ? control->fullName() : form.name()) + " is covered";
    action(*canvas, QPointF(place->x, place->y) / kTwipsPerPixel);
    return {};
  }

  std::string sendKey(Control& control, Qt::Key key, const QString& text) {
    std::string why = focus(control);
    if (!why.empty()) return why;
    QWidget* widget = widgetOf(control);
    if (widget == nullptr) widget = windows_.canvasOf(control.form());
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(widget, &event);
    return {};
  }

  /// The frame's caption bar is the desktop's and no part of its window: one like the other windows' stands for it.
  void drawCaptionOfFrame(QPainter& painter) const {
    const Form* active = desk().active();
    const QPointF place = windows_.frame()->geometry().topLeft() - QPointF(0, kCaptionHeight / kTwipsPerPixel);
    QtPainter through(painter);
    painter.translate(place);
    drawCaption(through, *desk().frame(), active != nullptr && active->kind() != FormKind::Window);
    painter.translate(-place);
  }

  QPixmap wholeScreen() const {
    const Screen screen = screenOfQt();
    const qreal ratio = windows_.frame()->devicePixelRatioF();
    QPixmap picture((QSizeF(screen.width, screen.height) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(colourOf(0x604020));
    QPainter painter(&picture);
    drawCaptionOfFrame(painter);
    const std::vector<Form*>& order = desk().forms();
    for (auto at = order.rbegin(); at != order.rend(); ++at) {
      if ((*at)->kind() == FormKind::Child || !(*at)->visible()) continue;
      QWidget* window = windows_.windowOf(**at);
      painter.drawPixmap(window->geometry().topLeft(), window->grab());
    }
    return picture;
  }

  Windows& windows_;
  QPointF place_;
  Qt::MouseButtons buttons_;
  QPointer<QWidget> grabber_;
};

/// Off-screen there is no window manager and no session, which Qt tells again and again; that is known.
void tellButOffscreen(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.startsWith("This plugin does not support") || message.startsWith("QStandardPaths:")) return;
  std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

/// A variable of the environment, which is put back in the end.
class Variable {
 public:
  explicit Variable(const char* name) : name_(name) {}
  ~Variable() {
    if (before_.isNull()) {
      qunsetenv(name_);
    } else {
      qputenv(name_, before_);
    }
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

  const QByteArray& before() const { return before_; }
  void set(const QByteArray& value) { qputenv(name_, value); }

 private:
  const char* name_;
  const QByteArray before_ = qgetenv(name_);
};

/// While the toolkit comes up: chooses the off-screen platform where there is no display, with a screen as large as a
/// desk usually has. Nothing of it is ever on the disk, so nothing is left there however the program ends.
class PlatformChoice {
 public:
  PlatformChoice() {
    const bool display = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (!(platform_.before() == "offscreen" || (platform_.before().isEmpty() && !display))) return;
    qInstallMessageHandler(tellButOffscreen);
    // Where no session has a folder for its sockets the toolkit makes one in the temporary folder and leaves it there.
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) temporaryFolder_.set("/dev/null");
    // A screen is told by the name of a file, which a pipe has as well.
    int ends[2];
    if (pipe(ends) != 0) return;
    screen_.open(ends[0], QFile::ReadOnly, QFile::AutoCloseHandle);
    QFile told;
    told.open(ends[1], QFile::WriteOnly, QFile::AutoCloseHandle);
    told.write(R"({"screens": [{"name": "desk", "x": 0, "y": 0, "width": 1920, "height": 1080,
                   "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    platform_.set("offscreen:configfile=/dev/fd/" + QByteArray::number(screen_.handle()));
  }

 private:
  Variable platform_{"QT_QPA_PLATFORM"};
  Variable temporaryFolder_{"TMPDIR"};
  QFile screen_;
};

}  // namespace

struct DesktopScript::Parts {
  Parts(int& argc, char** argv) : choice(std::in_place), application(argc, argv) {
    choice.reset();
    setUpLook();
  }

  std::optional<PlatformChoice> choice;
  QApplication application;
  Windows windows;
  WindowedScriptPlatform platform;
  WindowedHands hands{windows};
};

DesktopScript::DesktopScript(int& argc, char** argv) : parts_(std::make_unique<Parts>(argc, argv)) {
  setPlatform(&parts_->platform);
  setView(&parts_->windows);
}

DesktopScript::~DesktopScript() {
  setView(nullptr);
}

ScriptedPlatform& DesktopScript::platform() {
  return parts_->platform;
}

const Windows& DesktopScript::windows() const {
  return parts_->windows;
}

Hands& DesktopScript::hands() {
  return parts_->hands;
}

}  // namespace zelvs
