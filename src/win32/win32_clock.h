// The machine's clock on Windows.
#pragma once

#include "platform/clock.h"

namespace varlo {

struct Win32Clock : Clock {
  std::int64_t now() override;
  bool localTime(std::int64_t time, CalendarTime& result) override;
};

}  // namespace varlo
