#pragma once

#include <QHash>
#include <QList>
#include <QMainWindow>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <vector>

#include "ui/form.h"
#include "ui/qt/canvas.h"
#include "ui/qt/clientArea.h"
#include "ui/qt/formWindow.h"
#include "ui/view.h"

namespace zelvs {

/// The window of each loaded form, kept as the model says: shown, placed, stacked and painted once per return to the
/// event loop. What the user does to a window itself (moving, closing, turning to it) goes back as gestures.
class Windows final : public QObject, public View {
  Q_OBJECT
 public:
  Windows();
  ~Windows() override;

  void formLoaded(Form& form) override;
  void formShown(Form& form) override;
  void formHidden(Form& form) override;
  void formUnloaded(Form& form) override;
  void formChanged(Form& form) override;
  void orderChanged() override;
  void controlsChanged(Form& form) override;
  void repaint(Form& form) override;

  /// Shows now what has changed since the last time.
  void flush();
  Canvas* canvasOf(const Form& form) const;
  /// What the screen holds of a form: with its caption bar where the program draws that itself.
  QWidget* windowOf(const Form& form) const;
  /// The window that whatever shall be in front has to belong to: that of the front one of those that stay in front, or
  /// the frame. Window managers keep a modal window together with its owner, and would put one of the frame's under
  /// whatever stays in front of the frame.
  QWidget* frontWindow() const;
  /// The frame's window, or null while it is not loaded.
  QMainWindow* frame() const { return frame_; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Shown {
    Canvas* canvas = nullptr;
    QWidget* window = nullptr;  // the frame's main window, or a FormWindow
  };
  void markChanged(QSet<Form*>& forms, Form& form);
  void schedule();
  QWidget* makeFrame(Canvas* canvas);
  void showFrame();
  void place(Form& form, const Shown& shown);
  void placeChild(const Form& form, FormWindow& child);
  void placeChildren();
  void stack();
  void turnKeyboard();
  /// Asks the desktop for the last window that it was asked for, again and again until it answers or has been asked
  /// often enough: a request is lost when it comes before the window that it overtook.
  void askDesktop();
  /// Turns to the window that the desktop has turned to. It is asked when all the news are in: while windows open, the
  /// desktop turns to one after the other, and tells of them late.
  void followDesktop();
  void takePlace(Form& form, const QWidget& window);
  void takeSize(Form& form, const QWidget& window);
  bool windowEvent(Form& form, QWidget& window, QEvent& event);
  void watchHand(QObject* watched, QEvent* event);
  Form* formOf(const QObject* window) const;

  QHash<const Form*, Shown> shown_;
  QSet<Form*> changed_;             // controls of these are to be looked at
  QSet<Form*> placed_;              // title and place of these are
  std::vector<Form*> stacked_;      // front to back, as the windows lie now
  const Form* turnedTo_ = nullptr;  // as the desktop has been told
  QList<QWidget*> asked_;           // what the desktop was asked to turn to and has not yet, in this order
  QTimer answer_;
  int tries_ = 0;
  QMainWindow* frame_ = nullptr;
  ClientArea* area_ = nullptr;
  bool scheduled_ = false;
  bool orderChanged_ = false;
  bool following_ = false;  // the windows follow the model: their events are no doing of the user's
};

}  // namespace zelvs
