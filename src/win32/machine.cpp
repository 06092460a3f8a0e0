#include "platform/machine.h"

#include <windows.h>

#include "win32/win32_browser.h"
#include "win32/win32_clipboard.h"
#include "win32/win32_clock.h"
#include "win32/win32_files.h"

namespace varlo {

// The working folder is the process's own, since every relative name is taken against it.
Machine MakeMachine(const std::string& folder) {
  if (!folder.empty()) ::SetCurrentDirectoryA(folder.c_str());
  return {.files = std::make_unique<Win32Files>(),
          .clock = std::make_unique<Win32Clock>(),
          .clipboard = std::make_unique<Win32Clipboard>(),
          .browsers = std::make_unique<Win32Browser>()};
}

std::string TextFromArgument(std::string_view argument) { return std::string(argument); }

std::string TerminalText(std::string_view text) { return std::string(text); }

bool ErrorsGoToTerminal() {
  DWORD mode = 0;
  return ::GetConsoleMode(::GetStdHandle(STD_ERROR_HANDLE), &mode) != 0;
}

}  // namespace varlo
