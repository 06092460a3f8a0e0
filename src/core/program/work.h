// Work: what has the program to itself. Whatever changes, replaces or releases the store, and a build, is work from
// its first step to its last. While one is at work, also while a box, a chooser or a browser of it waits, no other
// begins: it would pull the store from under the one that waits.
#pragma once

namespace varlo {

struct Program;

// Begins where the program is free, and ends with the object. The view is told of both.
class Work {
 public:
  explicit Work(Program& program);
  ~Work();
  Work(const Work&) = delete;
  Work& operator=(const Work&) = delete;

  // Whether it began. If not, what was to be done must be left.
  [[nodiscard]] explicit operator bool() const { return program_ != nullptr; }

 private:
  Program* program_ = nullptr;
};

}  // namespace varlo
