// WorkingText: a text that is composed under a counted capacity. The text itself grows as it must; the
// count is behaviour, since what does not fit it is cut or left out.
#pragma once

#include <cstddef>
#include <string>

namespace varlo {

// What a working text counts as its capacity at the start.
inline constexpr std::size_t kWorkingCapacity = 20000;

// What EnsureRoom adds beyond the need.
inline constexpr std::size_t kWorkingGrowth = 10000;

struct WorkingText {
  std::string text;
  std::size_t capacity = kWorkingCapacity;
};

// Raises the capacity, once, by `need` and 10,000 when the text and `need` bytes more exceed it.
inline void EnsureRoom(WorkingText& working, std::size_t need) {
  if (working.text.size() + need > working.capacity) working.capacity += need + kWorkingGrowth;
}

}  // namespace varlo
