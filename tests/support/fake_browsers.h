// Browsers for tests: records what is said to them.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/browser_system.h"

namespace varlo::test {

class FakeBrowsers : public BrowserSystem {
 public:
  FakeBrowsers();
  ~FakeBrowsers() override;

  std::set<std::string> conversations;         // "service/topic" that answer
  bool starts = true;                          // whether programs can be started
  std::map<std::string, std::string> classes;  // the registry
  std::vector<std::string> calls;              // one line each
  std::function<void()> whileWaiting;          // happens during a conversation

  std::unique_ptr<Conversation> connect(const std::string& service, const std::string& topic) override {
    const std::string name = service + "/" + topic;
    const bool answers = conversations.count(name) != 0;
    calls.push_back((answers ? "connect " : "no answer ") + name);
    return answers ? std::make_unique<Recording>(*this) : nullptr;
  }
  bool start(const std::string& program, const std::string& argument) override {
    calls.push_back("start " + program + " | " + argument);
    return starts;
  }
  std::optional<std::string> classesValue(const std::string& key) override {
    const auto found = classes.find(key);
    if (found == classes.end()) return std::nullopt;
    return found->second;
  }

 private:
  struct Recording : Conversation {
    explicit Recording(FakeBrowsers& theBrowsers) : browsers(theBrowsers) {}
    ~Recording() override { browsers.calls.emplace_back("disconnect"); }
    void request(const std::string& item, int milliseconds) override {
      browsers.calls.push_back("request " + item + " within " + std::to_string(milliseconds));
      if (browsers.whileWaiting) browsers.whileWaiting();
    }
    FakeBrowsers& browsers;
  };
};

}  // namespace varlo::test
