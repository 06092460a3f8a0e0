// DesktopProgram: the program with its main window, on a machine.
#pragma once

#include <windows.h>

#include "core/program/program.h"
#include "platform/machine.h"
#include "shell/state/shell.h"
#include "shell/window/main_window_shell.h"
#include "shell/window/shell_view.h"
#include "win32/win32_screen.h"

namespace varlo {

class DesktopProgram {
 public:
  // Reads the installation in the working folder. Windows belong to the thread that makes the program.
  explicit DesktopProgram(Machine& machine);
  ~DesktopProgram();
  DesktopProgram(const DesktopProgram&) = delete;
  DesktopProgram& operator=(const DesktopProgram&) = delete;

  // Shows the main window until it is closed; false when it can't be shown.
  bool run();

 private:
  void setOwner(HWND window);

  BrowserSystem& browsers_;
  Win32Screen screen_;
  ShellView view_;
  Program program_;
  Shell shell_;
  MainWindowShell logic_{shell_};
};

// The program as a person starts it, in the installation that is the working folder. Gives the exit code of the
// process.
int RunDesktop(Machine& machine);

}  // namespace varlo
