// The machine's clock on POSIX systems.
#pragma once

#include "platform/clock.h"

namespace varlo {

struct PosixClock : Clock {
  std::int64_t now() override;
  bool localTime(std::int64_t time, CalendarTime& result) override;
};

}  // namespace varlo
