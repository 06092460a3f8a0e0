#include "cli/console_screen.h"

#include <iostream>

#include "platform/machine.h"

namespace varlo {

Answer ConsoleScreen::messageBox(const MessageBoxRequest& request) {
  std::cerr << TerminalText(request.title) << ": " << TerminalText(request.text) << '\n';
  return request.buttons == Buttons::Ok ? Answer::Ok : Answer::No;
}

int ConsoleScreen::runTask(std::string_view /*title*/, std::string_view /*text*/, const std::function<int()>& task) {
  return task();
}

}  // namespace varlo
