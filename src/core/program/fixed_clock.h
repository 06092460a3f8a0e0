// A clock that stands still, in UTC: for reproducible builds, and for tests.
#pragma once

#include <cstdint>

#include "platform/clock.h"

namespace varlo {

class FixedClock : public Clock {
 public:
  // `time` in seconds since 1970.
  explicit FixedClock(std::int64_t time) : time_(time) {}
  void set(std::int64_t time) { time_ = time; }

  std::int64_t now() override { return time_; }
  bool localTime(std::int64_t time, CalendarTime& result) override;

 private:
  std::int64_t time_;
};

}  // namespace varlo
