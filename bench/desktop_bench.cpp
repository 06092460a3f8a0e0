// Measures the desktop program from outside: how long it takes to a usable window, with and without a large project,
// how long a category of 1,000 products takes to select, and what memory it needs.
//
// desktop_bench VARLO.EXE INSTALLATION: the installation is copied to a folder of its own.

#include <windows.h>

#include <commctrl.h>
#include <psapi.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "bench/made_project.h"
#include "platform/command.h"
#include "platform/main_window.h"

namespace varlo::bench {
namespace {

namespace fs = std::filesystem;
using Time = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr const char* kProgramName = "varlo.exe";
constexpr std::size_t kProducts = 10000;
constexpr std::size_t kInCategory = 1000;
constexpr int kRuns = 5;

double millisecondsSince(Time::time_point start) {
  return std::chrono::duration<double, std::milli>(Time::now() - start).count();
}

double medianOf(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values.at(values.size() / 2);
}

// A program that was started, until it has ended.
class RunningProgram {
 public:
  // `folder` is an installation with the program in it.
  explicit RunningProgram(const fs::path& folder) {
    STARTUPINFOA start{};
    start.cb = sizeof start;
    if (::CreateProcessA((folder / kProgramName).string().c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr,
                         nullptr, &start, &process_) == 0) {
      throw std::runtime_error("The program can't be started.");
    }
    // The window comes up first and fills itself then, the item list last.
    waitFor([&] { return (window_ = mainWindow()) != nullptr; });
    waitFor([&] { return ::SendMessageA(list(), LVM_GETITEMCOUNT, 0, 0) > 0; });
    settle();
  }
  ~RunningProgram() {
    ::PostMessageA(window_, WM_COMMAND, static_cast<WPARAM>(Command::Quit), 0);
    if (::WaitForSingleObject(process_.hProcess, 20000) != WAIT_OBJECT_0) ::TerminateProcess(process_.hProcess, 1);
    ::CloseHandle(process_.hThread);
    ::CloseHandle(process_.hProcess);
  }
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;

  // Waits until the window has done what it was asked for.
  void settle() const { ::SendMessageA(window_, WM_NULL, 0, 0); }
  [[nodiscard]] HWND tree() const { return ::GetDlgItem(window_, main_window::kTree); }
  [[nodiscard]] HWND list() const { return ::GetDlgItem(window_, main_window::kItemList); }
  [[nodiscard]] double peakMegabytes() const {
    PROCESS_MEMORY_COUNTERS counters{};
    ::GetProcessMemoryInfo(process_.hProcess, &counters, sizeof counters);
    return static_cast<double>(counters.PeakWorkingSetSize) / (1024 * 1024);
  }

 private:
  static void waitFor(const std::function<bool()>& isDone) {
    const auto end = Time::now() + 60s;
    while (!isDone()) {
      if (Time::now() > end) throw std::runtime_error("The window does not come up.");
      std::this_thread::sleep_for(1ms);
    }
  }
  [[nodiscard]] HWND mainWindow() const {
    HWND window = nullptr;
    while ((window = ::FindWindowExA(nullptr, window, "#32770", nullptr)) != nullptr) {
      DWORD process = 0;
      ::GetWindowThreadProcessId(window, &process);
      const bool own = process == process_.dwProcessId && ::GetDlgItem(window, main_window::kTree) != nullptr;
      if (own && ::IsWindowVisible(window) != 0) return window;
    }
    return nullptr;
  }

  PROCESS_INFORMATION process_{};
  HWND window_ = nullptr;
};

HTREEITEM next(HWND tree, UINT which, HTREEITEM item) {
  return reinterpret_cast<HTREEITEM>(::SendMessageA(tree, TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(item)));
}

void writeConfig(const fs::path& folder, const fs::path& project) {
  fs::path name = project;
  std::ofstream(folder / "config.ini", std::ios::binary)
      << "file=" << name.make_preferred().string() << "\r\nserver=orders.example\r\n";
}

// Start to a usable window, the median of some runs, after one that warms up.
double startTime(const fs::path& folder) {
  std::vector<double> times;
  for (int run = 0; run <= kRuns; ++run) {
    const auto start = Time::now();
    const RunningProgram running(folder);
    if (run > 0) times.push_back(millisecondsSince(start));
  }
  return medianOf(times);
}

// Selecting categories of the made project: home page, department, its categories.
double selectionTime(const RunningProgram& running) {
  const HWND tree = running.tree();
  HTREEITEM category = next(tree, TVGN_CHILD, next(tree, TVGN_CHILD, next(tree, TVGN_ROOT, nullptr)));
  std::vector<double> times;
  for (; category != nullptr; category = next(tree, TVGN_NEXT, category)) {
    const auto start = Time::now();
    ::SendMessageA(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(category));
    running.settle();
    times.push_back(millisecondsSince(start));
    if (::SendMessageA(running.list(), LVM_GETITEMCOUNT, 0, 0) != static_cast<LRESULT>(kInCategory)) {
      throw std::runtime_error("The list does not show the category.");
    }
  }
  return medianOf(times);
}

void measure(const fs::path& program, const fs::path& installation) {
  const fs::path folder = fs::temp_directory_path() / "varlo_desktop_bench";
  fs::remove_all(folder);
  fs::copy(installation, folder, fs::copy_options::recursive);
  fs::copy_file(program, folder / kProgramName);
  writeConfig(folder, folder / "Projects" / "Demo" / "Demo.stp");
  std::printf("start to a usable window, demo store    %8.1f ms\n", startTime(folder));
  {
    const RunningProgram running(folder);
    std::printf("peak memory, demo store                 %8.1f MiB\n", running.peakMegabytes());
  }
  const fs::path large = folder / "Projects" / "Large";
  fs::create_directories(large);
  WriteMadeProject({.products = kProducts, .inCategory = kInCategory}, large.string(), "Large.stp");
  writeConfig(folder, large / "Large.stp");
  std::printf("start with %zu products              %8.1f ms\n", kProducts, startTime(folder));
  const RunningProgram running(folder);
  std::printf("select a category of %zu products     %8.1f ms\n", kInCategory, selectionTime(running));
  std::printf("peak memory with %zu products        %8.1f MiB\n", kProducts, running.peakMegabytes());
}

}  // namespace
}  // namespace varlo::bench

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: desktop_bench VARLO.EXE INSTALLATION\n", stderr);
    return 2;
  }
  try {
    varlo::bench::measure(std::filesystem::absolute(argv[1]), std::filesystem::absolute(argv[2]));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "desktop_bench: %s\n", error.what());
    return 1;
  }
  return 0;
}
