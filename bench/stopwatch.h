// Times of runs, as processor time of the running thread with what the system does for it: on a machine
// that is busy with other things the clock on the wall would measure those.
#pragma once

#include <algorithm>
#include <limits>

#include <sys/resource.h>
#include <time.h>

namespace varlo::bench {

// Processor time of this thread so far, in seconds.
inline double ThreadSeconds() {
  timespec time{};
  ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

// Processor time of the processes that this one has started and waited for, in seconds.
inline double ChildSeconds() {
  rusage usage{};
  ::getrusage(RUSAGE_CHILDREN, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

// Seconds that `run` takes.
template <typename Run>
double SecondsOf(Run&& run) {
  const double start = ThreadSeconds();
  run();
  return ThreadSeconds() - start;
}

// The shortest of the times it was given, in seconds: what the work takes when least disturbs it.
class BestTime {
 public:
  void add(double seconds) { best_ = std::min(best_, seconds); }
  [[nodiscard]] double seconds() const { return best_; }

 private:
  double best_ = std::numeric_limits<double>::infinity();
};

}  // namespace varlo::bench
