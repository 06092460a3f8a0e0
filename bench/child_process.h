// Running a piece of work in a process of its own: with memory that nothing has touched yet, and with a
// peak of memory that can be told.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <type_traits>
#include <vector>

namespace varlo::bench {

template <typename Result>
struct ChildReport {
  Result result{};
  std::size_t peakBytes = 0;  // the most memory that the process had resident
};

// Forks, runs `run` in the child, and brings the `size` bytes at `result` as they stand there over to
// the caller's. Gives the child's peak of memory in bytes; throws std::runtime_error when the child
// fails. The caller should be small itself: what it has touched counts for the child too.
std::size_t RunForked(const std::function<void()>& run, void* result, std::size_t size);

// Gives what `run` returns, from a process of its own.
template <typename Run>
auto RunInChild(Run&& run) -> ChildReport<std::invoke_result_t<Run>> {
  using Result = std::invoke_result_t<Run>;
  static_assert(std::is_trivially_copyable_v<Result>);
  ChildReport<Result> report;
  report.peakBytes = RunForked([&] { report.result = run(); }, &report.result, sizeof(Result));
  return report;
}

// What a program cost.
struct ProgramCost {
  double seconds = 0;  // processor time, with what the system did for it
  double wall = 0;     // on the clock
  std::size_t peakBytes = 0;
};

// Runs a program with its output thrown away. Throws std::runtime_error when it can't be run or does not
// end with 0.
ProgramCost RunProgram(const std::vector<std::string>& command);

}  // namespace varlo::bench
