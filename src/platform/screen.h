// What the program asks of the person at the screen: message boxes, choosers, the small dialog
// around a long task, the wait cursor, and commands to run after the current one.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

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

// Commands that are queued behind the running one instead of being called.
enum class PostedCommand {
  Upgrade,           // start the upgrade program
  NewStore,          // start the store wizard
  NewTopCategory,    // append a category to the top-level list
  ResizeMainWindow,  // lay the main window out again
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
  virtual void postCommand(PostedCommand command) = 0;
};

}  // namespace varlo
