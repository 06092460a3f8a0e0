// HeadlessProgram: the program as a command of varlo-cli runs it, without a window.
#pragma once

#include <string>

#include "cli/console_screen.h"
#include "cli/console_view.h"
#include "core/program/program.h"
#include "platform/machine.h"

namespace varlo {

class HeadlessProgram {
 public:
  // Starts the program on `files`, which is the machine's or wraps it.
  HeadlessProgram(Machine& machine, Files& files);

  // Makes the project the one to work on, without reading it.
  void name(const std::string& project);

  // Loads the project; false when that can't be done, after a message.
  [[nodiscard]] bool load(const std::string& project);

  // From now on pages that the program shows go to the browser.
  void showPages() { view_.showPages(program_); }

  [[nodiscard]] Program& program() { return program_; }

 private:
  Files& files_;
  ConsoleScreen screen_;
  ConsoleView view_;
  Program program_;
};

}  // namespace varlo
