#include "tests/desktop/desktop_program.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

#include "core/program/fixed_clock.h"
#include "platform/main_window.h"
#include "tests/support/test_program.h"
#include "win32/desktop_program.h"

namespace varlo::test {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr UINT kRunWork = WM_APP + 0x321;

HDESK ownDesktop() {
  static const HDESK desktop = ::CreateDesktopA(("varlo" + std::to_string(::GetCurrentProcessId())).c_str(), nullptr,
                                                nullptr, 0, GENERIC_ALL, nullptr);
  return desktop;
}

WNDPROC originalProcedure = nullptr;

LRESULT CALLBACK workProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != kRunWork) return ::CallWindowProcA(originalProcedure, window, message, wParam, lParam);
  (*reinterpret_cast<const std::function<void()>*>(lParam))();
  return 0;
}

BOOL CALLBACK keepMainWindow(HWND window, LPARAM found) {
  if (::GetDlgItem(window, main_window::kTree) == nullptr || ::IsWindowVisible(window) == 0) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

HWND mainWindowOf(DWORD thread) {
  HWND found = nullptr;
  ::EnumThreadWindows(thread, keepMainWindow, reinterpret_cast<LPARAM>(&found));
  return found;
}

[[noreturn]] void giveUp(const char* why) {
  std::fprintf(stderr, "%s\n", why);
  std::_Exit(3);
}

}  // namespace

void UseOwnDesktop() {
  constexpr UINT kDoubleClickTime = 200;  // what has to pass between two clicks that are no double click
  ::SetDoubleClickTime(kDoubleClickTime);
  ::SetThreadDesktop(ownDesktop());
}

bool WaitFor(const std::function<bool()>& isDone) {
  for (const auto end = std::chrono::steady_clock::now() + 10s; std::chrono::steady_clock::now() < end;) {
    if (isDone()) return true;
    std::this_thread::sleep_for(5ms);
  }
  return isDone();
}

DesktopProgram::DesktopProgram(const fs::path& installation) : installation_(installation) {
  UseOwnDesktop();
  std::atomic<DWORD> id = 0;
  thread_ = std::thread([this, &id] {
    UseOwnDesktop();
    id = ::GetCurrentThreadId();
    run();
  });
  WaitFor([&] { return id != 0; });
  threadId_ = id;
  WaitFor([&] { return (window_ = mainWindowOf(threadId_)) != nullptr; });
  // A thread that hangs can't be joined; the whole test ends with it.
  if (window_ == nullptr) giveUp("The main window does not come up.");
  originalProcedure = reinterpret_cast<WNDPROC>(
      ::SetWindowLongPtrA(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(workProcedure)));
  settle();
  ::SetForegroundWindow(window_);
  settle();
}

DesktopProgram::~DesktopProgram() {
  if (runs()) {
    // Whatever is still open is left with No, or with Cancel.
    WaitFor([&] {
      const HWND box = ::GetLastActivePopup(window_);
      if (box == nullptr || box == window_) {
        post(Command::Quit);
      } else {
        for (const int button : {IDNO, IDCANCEL}) ::PostMessageA(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
      }
      return !runs();
    });
  }
  if (runs()) giveUp("The program does not end.");
  if (thread_.joinable()) thread_.join();
}

void DesktopProgram::run() {
  Machine machine = MakeMachine(installation_.string());
  machine.clock = std::make_unique<FixedClock>(kTestTime);
  RunDesktop(machine);
}

HWND DesktopProgram::page() const {
  for (HWND child = ::GetWindow(window_, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
    std::array<char, 16> name{};
    ::GetClassNameA(child, name.data(), static_cast<int>(name.size()));
    if (std::string_view(name.data()) == "#32770") return child;
  }
  return nullptr;
}

bool DesktopProgram::runs() const { return window_ != nullptr && ::IsWindow(window_) != 0; }

// Nothing may wait in the thread of the window, several times in a row: what is handled may be followed by more.
void DesktopProgram::settle() const {
  constexpr int kIdleLooks = 4;
  for (int idle = 0, looks = 0; idle < kIdleLooks && looks < 2000; ++looks) {
    bool waits = false;
    onWindowThread([&] { waits = HIWORD(::GetQueueStatus(QS_INPUT | QS_POSTMESSAGE)) != 0; });
    idle = waits ? 0 : idle + 1;
    std::this_thread::sleep_for(2ms);
  }
}

void DesktopProgram::onWindowThread(const std::function<void()>& work) const {
  ::SendMessageA(window_, kRunWork, 0, reinterpret_cast<LPARAM>(&work));
}

void DesktopProgram::command(Command command) const {
  ::SendMessageA(window_, WM_COMMAND, static_cast<WPARAM>(command), 0);
  settle();
}

void DesktopProgram::post(Command command) const {
  ::PostMessageA(window_, WM_COMMAND, static_cast<WPARAM>(command), 0);
}

bool DesktopProgram::waitForEnd() {
  const bool ended = WaitFor([&] { return !runs(); });
  if (ended && thread_.joinable()) thread_.join();
  return ended;
}

Installation::Installation() {
  static int made = 0;
  folder_ = fs::temp_directory_path() /
            ("varlo_desktop_" + std::to_string(::GetCurrentProcessId()) + "_" + std::to_string(++made));
  fs::remove_all(folder_);
  fs::copy(VARLO_INSTALLATION, folder_, fs::copy_options::recursive);
}

Installation::~Installation() {
  std::error_code ignored;
  fs::current_path(fs::temp_directory_path(), ignored);
  fs::remove_all(folder_, ignored);
}

void Installation::configure(const std::string& more) const { configureProject(demo() / "Demo.stp", more); }

void Installation::configureProject(const fs::path& project, const std::string& more) const {
  fs::path name = project;
  std::ofstream(folder_ / "config.ini", std::ios::binary)
      << "file=" << name.make_preferred().string() << "\r\nserver=orders.example\r\n"
      << more;
}

std::string BytesOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in.is_open()) throw std::runtime_error("There is no file " + file.string());
  return {std::istreambuf_iterator<char>(in), {}};
}

std::vector<std::string> FilesBelow(const fs::path& folder) {
  std::vector<std::string> names;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) names.push_back(fs::relative(entry.path(), folder).generic_string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace varlo::test
