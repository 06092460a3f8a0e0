// The logic of the window "Store Build": the user names directory and title, builds, and follows the log.
#pragma once

#include "generator/state/build_log.h"
#include "platform/dialog.h"

namespace varlo {

struct Generator;

// While the window is open it is where the generator logs to. There is one at a time.
class StoreBuildDialog : public DialogLogic, public BuildWindow {
 public:
  explicit StoreBuildDialog(Generator& generator) : generator_(generator) {}
  ~StoreBuildDialog() override { leave(); }
  StoreBuildDialog(const StoreBuildDialog&) = delete;
  StoreBuildDialog& operator=(const StoreBuildDialog&) = delete;

  void opened(Dialog& dialog) override;
  void notified(Dialog& dialog, const ControlEvent& event) override;
  void closeRequested(Dialog& dialog) override;

  void clearLog() override;
  void addLogLine(std::string_view line) override;
  void stepProgress() override;
  void resetProgress() override;
  void showLabel(std::string_view label) override;

 private:
  void pressed(Dialog& dialog, ControlId button);
  void build(Dialog& dialog);
  void browse(Dialog& dialog);
  void leave();

  Generator& generator_;
  Dialog* window_ = nullptr;  // while it is open
  int rows_ = 0;              // of the log
};

}  // namespace varlo
