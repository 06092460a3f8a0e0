#include "posix/posix_clock.h"

#include <time.h>

namespace varlo {

std::int64_t PosixClock::now() { return ::time(nullptr); }

// A negative time is refused, as the C library of Windows does.
bool PosixClock::localTime(std::int64_t time, CalendarTime& result) {
  const time_t moment = time;
  tm local{};
  if (time < 0 || ::localtime_r(&moment, &local) == nullptr) return false;
  result = {.year = local.tm_year + 1900,
            .month = local.tm_mon + 1,
            .day = local.tm_mday,
            .hour = local.tm_hour,
            .minute = local.tm_min,
            .second = local.tm_sec};
  return true;
}

}  // namespace varlo
