// TaskDialog: the small modal dialog around a long task. It posts itself the start of the task, so it is on the
// screen first, and the window's messages wait until the task ends.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/dialog.h"

namespace varlo {

namespace task {
enum : ControlId { kWindow = 700, kText, kCount };
}

class TaskDialog : public DialogLogic {
 public:
  TaskDialog(std::string_view title, std::string_view text, const std::function<int()>& run)
      : title_(title), text_(text), run_(run) {}

  static const DialogShape kShape;
  [[nodiscard]] const DialogShape& shape() const override { return kShape; }
  void opened(Dialog& dialog) override;
  void notified(Dialog& dialog, const ControlEvent& event) override;
  // It stays until the task has ended.
  void closeRequested(Dialog& /*dialog*/) override {}

  // Shows a running count, at once.
  void showCount(int count);
  [[nodiscard]] bool hasRun() const { return hasRun_; }
  [[nodiscard]] int result() const { return result_; }

 private:
  std::string title_;
  std::string text_;
  const std::function<int()>& run_;
  Dialog* window_ = nullptr;
  bool hasRun_ = false;
  int result_ = 0;
};

}  // namespace varlo
