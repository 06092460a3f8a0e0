// The web browser on Windows: DDE with one that runs, ShellExecute for a new one, and the registry to find one.
#pragma once

#include <windows.h>

#include "platform/browser_system.h"

namespace varlo {

class Win32Browser : public BrowserSystem {
 public:
  void setOwner(void* window) override { owner_ = static_cast<HWND>(window); }
  std::unique_ptr<Conversation> connect(const std::string& service, const std::string& topic) override;
  bool start(const std::string& program, const std::string& argument) override;
  std::optional<std::string> classesValue(const std::string& key) override;

 private:
  HWND owner_ = nullptr;
  // The client's instance of DDE. Made on first use, for the thread that uses it, and kept to the end.
  DWORD instance_ = 0;
};

}  // namespace varlo
