// The web browser on Windows: DDE with one that runs, ShellExecute for a new one, and the registry to find one.
#pragma once

#include "platform/browser_system.h"

namespace varlo {

class Win32Browser : public BrowserSystem {
 public:
  std::unique_ptr<Conversation> connect(const std::string& service, const std::string& topic) override;
  bool start(const std::string& program, const std::string& argument) override;
  std::optional<std::string> classesValue(const std::string& key) override;
};

}  // namespace varlo
