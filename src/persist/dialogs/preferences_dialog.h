// The logic of the dialog "Varlo Preferences": the user's view of the installation's settings, and of
// the web directory of the open project.
#pragma once

#include "platform/dialog.h"

namespace varlo {

struct Program;

namespace preferences {
enum : ControlId {
  kWindow = 1000,
  kBrowser,
  kProxy,
  kPort,
  kServer,
  kBrowseServers,
  kWebDirectory,
  kDirectoryLink,
};
}

class PreferencesDialog : public DialogLogic {
 public:
  explicit PreferencesDialog(Program& program) : program_(program) {}

  static const DialogShape kShape;
  [[nodiscard]] const DialogShape& shape() const override { return kShape; }

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
