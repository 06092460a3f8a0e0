// The logic of the dialog "Varlo Preferences": the user's view of the installation's settings, and of
// the web directory of the open project.
#pragma once

#include "platform/dialog.h"

namespace varlo {

struct Program;

class PreferencesDialog : public DialogLogic {
 public:
  explicit PreferencesDialog(Program& program) : program_(program) {}

  void opened(Dialog& dialog) override;
  void notified(Dialog& dialog, const ControlEvent& event) override;

 private:
  void fill(Dialog& dialog);
  void edited(Dialog& dialog, ControlId control);
  void pressed(Dialog& dialog, ControlId button);
  void apply(Dialog& dialog);

  Program& program_;
  bool filling_ = false;
};

}  // namespace varlo
