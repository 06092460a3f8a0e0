// What the program asks of a clock.
#pragma once

#include <cstdint>

namespace varlo {

// A moment split into the parts of a calendar, in the way of the C library.
struct CalendarTime {
  int year = 0;   // full, as in 2026
  int month = 0;  // 1..12
  int day = 0;    // 1..31
  int hour = 0;
  int minute = 0;
  int second = 0;
};

struct Clock {
  virtual ~Clock() = default;
  // Seconds since 1970, UTC.
  virtual std::int64_t now() = 0;
  // Local calendar time of `time` (seconds since 1970); false when it can't be told, as for a
  // negative time.
  virtual bool localTime(std::int64_t time, CalendarTime& result) = 0;
};

}  // namespace varlo
