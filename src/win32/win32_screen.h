// The person at the screen, on Windows: message boxes, choosers, dialogs, popup menus, the small dialog around a
// long task, the wait cursor, and commands posted to the main window.
#pragma once

#include <windows.h>

#include "platform/screen.h"

namespace varlo {

// Posted to the main window for a queued command; the command stands in wParam.
inline constexpr UINT kPostedCommandMessage = WM_APP + 1;

class Win32Screen : public Screen {
 public:
  // `owner` is the main window, or null before there is one.
  explicit Win32Screen(HWND owner = nullptr) : owner_(owner) {}
  void setOwner(HWND owner) { owner_ = owner; }

  Answer messageBox(const MessageBoxRequest& request) override;
  int runTask(std::string_view title, std::string_view text, const std::function<int()>& task) override;
  void showTaskCount(int count) override;
  void setWaitCursor(bool on) override;
  void dropWaitingInput() override;
  std::optional<std::string> chooseFile(const FileChooserRequest& request) override;
  std::optional<std::string> chooseFolder(std::string_view title) override;
  std::optional<std::uint32_t> chooseColour(std::uint32_t start, CustomColours& custom) override;
  int runDialog(DialogLogic& logic) override;
  Dialog* openDialog(std::shared_ptr<DialogLogic> logic) override;
  Command popupMenu(const PopupMenu& menu) override;
  void postCommand(Command command) override;

 private:
  [[nodiscard]] HWND boxOwner() const;

  HWND owner_;
  class TaskDialog* task_ = nullptr;  // whose task is running
};

}  // namespace varlo
