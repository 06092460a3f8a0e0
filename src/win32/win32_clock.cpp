#include "win32/win32_clock.h"

#include <time.h>

namespace varlo {

std::int64_t Win32Clock::now() { return ::_time64(nullptr); }

bool Win32Clock::localTime(std::int64_t time, CalendarTime& result) {
  const __time64_t moment = time;
  const tm* local = time < 0 ? nullptr : ::_localtime64(&moment);
  if (local == nullptr) return false;
  result = {.year = local->tm_year + 1900,
            .month = local->tm_mon + 1,
            .day = local->tm_mday,
            .hour = local->tm_hour,
            .minute = local->tm_min,
            .second = local->tm_sec};
  return true;
}

}  // namespace varlo
