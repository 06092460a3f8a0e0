// What the program asks of the machine to show pages in a web browser.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace varlo {

// A conversation with a running program about one topic (DDE); it ends with the object.
struct Conversation {
  virtual ~Conversation() = default;
  // Asks for an item, waiting at most `milliseconds`. What is answered, and whether, does not matter.
  virtual void request(const std::string& item, int milliseconds) = 0;
};

struct BrowserSystem {
  virtual ~BrowserSystem() = default;
  // The window that started programs belong to, as the machine knows it; null for none.
  virtual void setOwner(void* /*window*/) {}
  // Connects to a running program by its service name; null when none answers, or where the machine knows
  // no such conversations.
  virtual std::unique_ptr<Conversation> connect(const std::string& service, const std::string& topic) = 0;
  // Starts a program with one argument, in a restored window; an empty program is the machine's own for the
  // kind of the argument. False when it can't be started.
  virtual bool start(const std::string& program, const std::string& argument) = 0;
  // The data of the first value below a key of the classes' registry, as in "htmlfile\DefaultIcon"; none
  // when there is no such key or value.
  virtual std::optional<std::string> classesValue(const std::string& key) = 0;
};

}  // namespace varlo
