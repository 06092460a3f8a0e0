// OthersDisabled: while a box or a dialog waits, it alone takes mouse and keyboard.
#pragma once

#include <windows.h>

#include <vector>

namespace varlo {

// Disables every window of the thread that could be used, and enables it again at its end. `owner` is left to the
// modal window that belongs to it, which disables it too, and makes it active again when it goes.
class OthersDisabled {
 public:
  explicit OthersDisabled(HWND owner);
  ~OthersDisabled();
  OthersDisabled(const OthersDisabled&) = delete;
  OthersDisabled& operator=(const OthersDisabled&) = delete;

 private:
  std::vector<HWND> windows_;
};

}  // namespace varlo
