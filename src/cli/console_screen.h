// The screen of the command-line program: message boxes become lines on standard error, and every
// question is answered so that nothing is overwritten.
#pragma once

#include "platform/screen.h"

namespace varlo {

class ConsoleScreen : public Screen {
 public:
  // Prints "TITLE: text"; answers No where there is a choice.
  Answer messageBox(const MessageBoxRequest& request) override;
  int runTask(std::string_view title, std::string_view text, const std::function<int()>& task) override;
  void showTaskCount(int /*count*/) override {}
  void setWaitCursor(bool /*on*/) override {}
  // There is nobody to choose: as if everything were cancelled.
  std::optional<std::string> chooseFile(const FileChooserRequest& /*request*/) override { return std::nullopt; }
  std::optional<std::string> chooseFolder(std::string_view /*title*/) override { return std::nullopt; }
  std::optional<std::uint32_t> chooseColour(std::uint32_t /*start*/, CustomColours& /*custom*/) override {
    return std::nullopt;
  }
  int runDialog(DialogLogic& /*logic*/) override { return 0; }
  Dialog* openDialog(std::shared_ptr<DialogLogic> /*logic*/) override { return nullptr; }
  Command popupMenu(const PopupMenu& /*menu*/) override { return Command::None; }
  void postCommand(Command /*command*/) override {}
};

}  // namespace varlo
