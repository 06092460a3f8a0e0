#include "win32/desktop_program.h"

#include "persist/life/start_up.h"
#include "shell/browser/browser_detection.h"
#include "win32/main_window.h"

namespace varlo {

DesktopProgram::DesktopProgram(Machine& machine)
    : browsers_(*machine.browsers),
      program_(*machine.files, *machine.clock, screen_, *machine.clipboard, view_),
      shell_(program_, *machine.browsers) {
  view_.setShell(&shell_);
  StartUp(program_);
  detectBrowsers(program_, *machine.browsers);
}

DesktopProgram::~DesktopProgram() { view_.setShell(nullptr); }

bool DesktopProgram::run() {
  const bool shown = RunMainWindow(logic_, [this](HWND window) { setOwner(window); });
  setOwner(nullptr);
  return shown;
}

void DesktopProgram::setOwner(HWND window) {
  screen_.setOwner(window);
  browsers_.setOwner(window);
}

int RunDesktop(Machine& machine) {
  DesktopProgram desktop(machine);
  return desktop.run() ? 0 : 1;
}

}  // namespace varlo
