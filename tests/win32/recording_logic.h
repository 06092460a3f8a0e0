// The logic of a dialog that keeps what it is told.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "persist/dialogs/save_as_dialog.h"
#include "platform/dialog.h"
#include "win32/win32_dialog.h"

namespace varlo::test {

class RecordingLogic : public DialogLogic {
 public:
  explicit RecordingLogic(const DialogShape& shape = SaveAsDialog::kShape) : itsShape(shape) {}

  DialogShape itsShape;
  std::vector<std::string> told;
  std::function<void(Dialog&)> whenOpened;
  std::function<void(Dialog&, const ControlEvent&)> whenNotified;
  Dialog* window = nullptr;

  [[nodiscard]] HWND handle() const { return static_cast<Win32Dialog*>(window)->window(); }
  [[nodiscard]] HWND item(ControlId control) const { return ::GetDlgItem(handle(), control); }
  [[nodiscard]] int count(const std::string& line) const {
    int number = 0;
    for (const std::string& each : told) number += each == line ? 1 : 0;
    return number;
  }

  // For windows that keep their logic; the test keeps this one.
  [[nodiscard]] std::shared_ptr<DialogLogic> shared() { return {std::shared_ptr<void>(), this}; }

  [[nodiscard]] const DialogShape& shape() const override { return itsShape; }
  void opened(Dialog& dialog) override {
    window = &dialog;
    told.emplace_back("opened");
    if (whenOpened) whenOpened(dialog);
  }
  void notified(Dialog& dialog, const ControlEvent& event) override {
    static constexpr const char* kNames[] = {"Changed",       "GotFocus",     "LostFocus",      "Clicked",
                                             "DoubleClicked", "RightClicked", "HeadingClicked", "SelectionChanged",
                                             "KeyPressed",    "Posted"};
    told.push_back(std::string(kNames[static_cast<int>(event.notice)]) + " " + std::to_string(event.control));
    if (whenNotified) whenNotified(dialog, event);
  }
  std::string cellText(ControlId /*list*/, int row, int column) override {
    return "cell " + std::to_string(row) + "," + std::to_string(column);
  }
  void closeRequested(Dialog& dialog) override {
    told.emplace_back("closeRequested");
    dialog.end(0);
  }
  void resized(Dialog& /*dialog*/) override { told.emplace_back("resized"); }
  void closed() override {
    told.emplace_back("closed");
    window = nullptr;
  }
};

}  // namespace varlo::test
