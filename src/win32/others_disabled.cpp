#include "win32/others_disabled.h"

namespace varlo {
namespace {

BOOL CALLBACK collect(HWND window, LPARAM windows) {
  if (::IsWindowVisible(window) != FALSE && ::IsWindowEnabled(window) != FALSE) {
    reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
  }
  return TRUE;
}

}  // namespace

OthersDisabled::OthersDisabled(HWND owner) {
  ::EnumThreadWindows(::GetCurrentThreadId(), collect, reinterpret_cast<LPARAM>(&windows_));
  std::erase(windows_, owner);
  for (const HWND window : windows_) ::EnableWindow(window, FALSE);
}

OthersDisabled::~OthersDisabled() {
  for (const HWND window : windows_) ::EnableWindow(window, TRUE);
}

}  // namespace varlo
