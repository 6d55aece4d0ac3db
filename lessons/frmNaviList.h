#pragma once

#include <functional>

#include "ui/controls.h"
#include "ui/form.h"

namespace zelvs {

/// The lessons to choose from. Modal; hidden, not unloaded, also by the close box, so that the choice stays.
class FrmNaviList final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmNaviList();

  Label Label2{this, "Label2"};
  ListBox lstTitle{this, "lstTitle"};
  Label lblNoFile{this, "lblNoFile"};  // in the list's place when there is no lesson
  Label Label1{this, "Label1"};
  CommandButton cmdStart{this, "cmdStart"};
  CommandButton cmdCancel{this, "cmdCancel"};

 protected:
  void load() override;
  void activated() override;
};

inline FormRef<FrmNaviList> frmNaviList{"frmNaviList"};

/// What is done before a lesson begins: the bench is started anew with the maker's values.
inline std::function<void()> beforeLesson;

/// Shows the list in the right bottom corner of the screen; returns when it is hidden again.
void openNaviList();

}  // namespace zelvs
