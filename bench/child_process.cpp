#include "bench/child_process.h"

#include <cstdio>
#include <exception>
#include <stdexcept>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace varlo::bench {
namespace {

[[noreturn]] void runChild(const std::function<void()>& run, int pipeEnd, const void* result, std::size_t size) {
  try {
    run();
    const bool told = ::write(pipeEnd, result, size) == static_cast<ssize_t>(size);
    ::_exit(told ? 0 : 1);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    ::_exit(1);
  }
}

}  // namespace

std::size_t RunForked(const std::function<void()>& run, void* result, std::size_t size) {
  int ends[2];
  if (::pipe(ends) != 0) throw std::runtime_error("No pipe could be made.");
  const pid_t child = ::fork();
  if (child < 0) throw std::runtime_error("No process could be started.");
  if (child == 0) runChild(run, ends[1], result, size);
  ::close(ends[1]);
  // A result is far smaller than what a pipe passes in one piece.
  const bool told = ::read(ends[0], result, size) == static_cast<ssize_t>(size);
  ::close(ends[0]);
  int status = 0;
  rusage usage{};
  ::wait4(child, &status, 0, &usage);
  if (!told || status != 0) throw std::runtime_error("A measurement failed.");
  return static_cast<std::size_t>(usage.ru_maxrss) * 1024;
}

}  // namespace varlo::bench
