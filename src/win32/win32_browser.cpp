#include "win32/win32_browser.h"

#include <windows.h>

#include <shellapi.h>

namespace varlo {

std::unique_ptr<Conversation> Win32Browser::connect(const std::string& /*service*/, const std::string& /*topic*/) {
  return nullptr;
}

// What ShellExecute gives is a number in the guise of a handle; below 32 it is an error.
bool Win32Browser::start(const std::string& program, const std::string& argument) {
  const char* opened = program.empty() ? argument.c_str() : program.c_str();
  const char* given = program.empty() ? nullptr : argument.c_str();
  const HINSTANCE result = ::ShellExecuteA(nullptr, "Open", opened, given, nullptr, SW_RESTORE);
  return reinterpret_cast<INT_PTR>(result) >= 32;
}

std::optional<std::string> Win32Browser::classesValue(const std::string& /*key*/) { return std::nullopt; }

}  // namespace varlo
