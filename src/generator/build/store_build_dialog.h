// The logic of the window "Store Build": the user names directory and title, builds, and follows the log.
#pragma once

#include "core/forms/modeless_window.h"
#include "generator/state/build_log.h"

namespace varlo {

struct Generator;

namespace store_build {
enum : ControlId {
  kBuild = kOk,
  kWindow = 1300,
  kDirectory,
  kBrowse,
  kTitle,
  kLog,
  kProgress,
  kLabel,
};
}

// While the window is open it is where the generator logs to. There is one at a time.
class StoreBuildDialog : public ModelessLogic, public BuildWindow {
 public:
  explicit StoreBuildDialog(Generator& generator) : generator_(generator) {}
  ~StoreBuildDialog() override { leave(); }
  StoreBuildDialog(const StoreBuildDialog&) = delete;
  StoreBuildDialog& operator=(const StoreBuildDialog&) = delete;

  static const DialogShape kShape;
  [[nodiscard]] const DialogShape& shape() const override { return kShape; }

  void opened(Dialog& dialog) override;
  void notified(Dialog& dialog, const ControlEvent& event) override;
  void closeRequested(Dialog& dialog) override;
  void closed() override;

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
  int rows_ = 0;  // of the log
};

}  // namespace varlo
