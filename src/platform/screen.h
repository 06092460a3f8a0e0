// What the program asks of the person at the screen: message boxes, choosers, the small dialog
// around a long task, the wait cursor, and commands to run after the current one.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/command.h"
#include "platform/dialog.h"
#include "platform/popup_menu.h"

namespace varlo {

enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Icon { None, Question, Exclamation, Stop };
enum class Answer { Ok, Yes, No, Cancel };

struct MessageBoxRequest {
  std::string_view text;
  std::string_view title;
  Buttons buttons = Buttons::Ok;
  Icon icon = Icon::None;
};

// A chooser for one file. The filter is written with "$" for the separators, as in
// "Store Project (*.stp)$*.stp$$".
struct FileChooserRequest {
  std::string folder;  // shown first
  std::string_view title;
  std::string_view filter;
  std::string_view extension;  // appended to a name without one
  bool mustExist = true;
};

// The sixteen custom colours of a colour chooser, four bytes each.
using CustomColours = std::array<std::uint8_t, 64>;

struct Screen {
  virtual ~Screen() = default;
  // Shows a box and waits for its answer.
  virtual Answer messageBox(const MessageBoxRequest& request) = 0;
  // Runs `task` inside a small dialog that is on the screen before the task starts; gives its result.
  virtual int runTask(std::string_view title, std::string_view text, const std::function<int()>& task) = 0;
  // Shows a running count in the dialog of the current task.
  virtual void showTaskCount(int count) = 0;
  virtual void setWaitCursor(bool on) = 0;
  // The full path of the chosen file; none when the user cancelled.
  virtual std::optional<std::string> chooseFile(const FileChooserRequest& request) = 0;
  // The full path of the chosen folder; none when the user cancelled.
  virtual std::optional<std::string> chooseFolder(std::string_view title) = 0;
  // The chosen colour (red in the lowest byte, then green, blue), starting from `start`; none when the
  // user cancelled. The chooser shows the custom colours and changes them in place.
  virtual std::optional<std::uint32_t> chooseColour(std::uint32_t start, CustomColours& custom) = 0;
  // Runs a modal dialog; the result that it ended with, 0 when it can't be shown.
  virtual int runDialog(DialogLogic& logic) = 0;
  // Opens a modeless dialog; null when it can't be shown. The window keeps the logic until it is gone and what the
  // logic does has returned.
  virtual Dialog* openDialog(std::shared_ptr<DialogLogic> logic) = 0;
  // Shows a menu at the mouse; the command that was chosen, none when it was left.
  virtual Command popupMenu(const PopupMenu& menu) = 0;
  // Forgets what was typed and clicked and nobody has taken yet: it was meant for what has ended now.
  virtual void dropWaitingInput() {}
  // Queues a command behind the running one instead of calling it.
  virtual void postCommand(Command command) = 0;
};

}  // namespace varlo
