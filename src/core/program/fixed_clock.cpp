#include "core/program/fixed_clock.h"

#include <chrono>

namespace varlo {

bool FixedClock::localTime(std::int64_t time, CalendarTime& result) {
  constexpr std::int64_t kLastYear9999 = 253402300799;
  if (time < 0 || time > kLastYear9999) return false;
  const std::chrono::sys_seconds moment{std::chrono::seconds(time)};
  const auto day = std::chrono::floor<std::chrono::days>(moment);
  const std::chrono::year_month_day date{day};
  const std::chrono::hh_mm_ss clock{moment - day};
  result.year = static_cast<int>(date.year());
  result.month = static_cast<int>(static_cast<unsigned>(date.month()));
  result.day = static_cast<int>(static_cast<unsigned>(date.day()));
  result.hour = static_cast<int>(clock.hours().count());
  result.minute = static_cast<int>(clock.minutes().count());
  result.second = static_cast<int>(clock.seconds().count());
  return true;
}

}  // namespace varlo
