#include "bench/child_process.h"

#include <chrono>
#include <cstdio>
#include <exception>
#include <stdexcept>

#include <fcntl.h>
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

ProgramCost RunProgram(const std::vector<std::string>& command) {
  std::vector<char*> arguments;
  for (const std::string& part : command) arguments.push_back(const_cast<char*>(part.c_str()));
  arguments.push_back(nullptr);
  const auto start = std::chrono::steady_clock::now();
  const pid_t child = ::fork();
  if (child < 0) throw std::runtime_error("No process could be started.");
  if (child == 0) {
    const int nowhere = ::open("/dev/null", O_WRONLY);
    ::dup2(nowhere, 1);
    ::execvp(arguments[0], arguments.data());
    ::_exit(127);
  }
  int status = 0;
  rusage usage{};
  ::wait4(child, &status, 0, &usage);
  if (status != 0) throw std::runtime_error(command[0] + " failed.");
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
  };
  return {.seconds = seconds(usage.ru_utime) + seconds(usage.ru_stime),
          .wall = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(),
          .peakBytes = static_cast<std::size_t>(usage.ru_maxrss) * 1024};
}

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
