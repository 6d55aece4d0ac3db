#include "ui/qt/desktopScript.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QTabBar>
#include <QTemporaryFile>
#include <cstdio>
#include <optional>

#include "ui/desk.h"
#include "ui/qt/drawing.h"
#include "ui/qt/keys.h"
#include "ui/qt/qtPlatform.h"
#include "ui/qt/windows.h"
#include "ui/view.h"

namespace zelvs {

namespace {

class WindowedScriptPlatform final : public ScriptedPlatform {
 public:
  Screen screen() override { return screenOfQt(); }
};

void send(QWidget& widget, QEvent::Type type, QPointF place, bool down) {
  QMouseEvent event(type, place, widget.mapToGlobal(place), type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                    down ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
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
      tabs->setCurrentIndex(row);
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

  std::string screenshot(Form* form, const std::string& file) override {
    settle();
    const QPixmap picture = form == nullptr                    ? wholeScreen()
                            : form->kind() == FormKind::Window ? withCaption(*form, *windows_.windowOf(*form))
                                                               : windows_.windowOf(*form)->grab();
    return picture.save(QString::fromStdString(file), "PNG") ? std::string() : "cannot write " + file;
  }

 private:
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

  /// A place of the form's inside, in twips, where the control is in front.
  static std::optional<QPointF> freePlace(const Form& form, const Control* control) {
    constexpr int kGrid = 8;
    const Area area = control != nullptr ? control->area() : Area{0, 0, form.clientWidth(), form.clientHeight()};
    const auto at = [&](int x, int y) {
      return QPointF(area.left + area.width * x / kGrid, area.top + area.height * y / kGrid);
    };
    // The middle first, then the rest of a grid.
    QPointF middle = at(kGrid / 2, kGrid / 2);
    if (form.controlAt(middle.x(), middle.y()) == control) return middle;
    for (int y = 1; y < kGrid; ++y) {
      for (int x = 1; x < kGrid; ++x) {
        const QPointF place = at(x, y);
        if (form.controlAt(place.x(), place.y()) == control) return place;
      }
    }
    return std::nullopt;
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
    action(*canvas, *place / kTwipsPerPixel);
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

  /// A window as a desk shows it. Off-screen nobody draws its caption bar: a plain one stands in.
  static QPixmap withCaption(const Form& form, QWidget& window) {
    const QPixmap inside = window.grab();
    if (form.border() == Border::None || QGuiApplication::platformName() != "offscreen") return inside;
    const int bar = qRound(kCaptionHeight / kTwipsPerPixel);
    QPixmap whole(inside.width(), inside.height() + qRound(bar * inside.devicePixelRatio()));
    whole.setDevicePixelRatio(inside.devicePixelRatio());
    whole.fill(QApplication::palette().color(QPalette::Highlight));
    QPainter painter(&whole);
    painter.setPen(Qt::white);
    painter.setFont(fontOf(9, true));
    painter.drawText(QRect(0, 0, window.width(), bar), Qt::AlignCenter, window.windowTitle());
    painter.drawPixmap(0, bar, inside);
    return whole;
  }

  QPixmap wholeScreen() const {
    QMainWindow* frame = windows_.frame();
    const Screen screen = screenOfQt();
    const qreal ratio = frame->devicePixelRatioF();
    QPixmap picture((QSizeF(screen.width, screen.height) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(colourOf(0x604020));
    QPainter painter(&picture);
    painter.drawPixmap(frame->pos(), frame->grab());
    const std::vector<Form*>& order = desk().forms();
    for (auto at = order.rbegin(); at != order.rend(); ++at) {
      if ((*at)->kind() != FormKind::Window || !(*at)->visible()) continue;
      QWidget* window = windows_.windowOf(**at);
      painter.drawPixmap(window->pos(), withCaption(**at, *window));
    }
    return picture;
  }

  Windows& windows_;
};

/// Off-screen there is no window manager and no session, which Qt tells again and again; that is known.
void tellButOffscreen(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.startsWith("This plugin does not support") || message.startsWith("QStandardPaths:")) return;
  std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

/// Chooses the off-screen platform where there is no display, with a screen as large as a desk usually has.
class PlatformChoice {
 public:
  PlatformChoice() {
    const bool display = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    const QByteArray wanted = qgetenv("QT_QPA_PLATFORM");
    if (!(wanted == "offscreen" || (wanted.isEmpty() && !display))) return;
    if (!screen_.open()) return;
    screen_.write(R"({"screens": [{"name": "desk", "x": 0, "y": 0, "width": 1920, "height": 1080,
                      "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    screen_.flush();
    qInstallMessageHandler(tellButOffscreen);
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen_.fileName().toUtf8());
  }

 private:
  QTemporaryFile screen_;
};

}  // namespace

struct DesktopScript::Parts {
  Parts(int& argc, char** argv) : application(argc, argv) { setUpLook(); }

  PlatformChoice choice;
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

Hands& DesktopScript::hands() {
  return parts_->hands;
}

}  // namespace zelvs
