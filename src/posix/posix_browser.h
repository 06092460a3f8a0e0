// The web browser on Linux: a program started with the address.
#pragma once

#include "platform/browser_system.h"

namespace varlo {

class PosixFiles;

class PosixBrowser : public BrowserSystem {
 public:
  // `files` knows where a file of the program's names lies.
  explicit PosixBrowser(PosixFiles& files) : files_(files) {}
  // No conversations, and no registry.
  std::unique_ptr<Conversation> connect(const std::string& /*service*/, const std::string& /*topic*/) override {
    return nullptr;
  }
  std::optional<std::string> classesValue(const std::string& /*key*/) override { return std::nullopt; }
  // An empty program is the desktop's own browser.
  bool start(const std::string& program, const std::string& argument) override;

 private:
  PosixFiles& files_;
};

}  // namespace varlo
