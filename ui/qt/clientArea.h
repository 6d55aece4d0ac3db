#pragma once

#include <QAbstractScrollArea>

#include "ui/form.h"

namespace zelvs {

/// The frame's area in which children show. How far it is scrolled is the model's: the bars show that and change it.
class ClientArea final : public QAbstractScrollArea {
  Q_OBJECT
 public:
  explicit ClientArea(QWidget* parent);
  /// Brings ranges and positions of the bars up to date with the frame.
  void follow(Form& frame);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  Form* frame_ = nullptr;
  bool following_ = false;
};

}  // namespace zelvs
