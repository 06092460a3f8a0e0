// The real program in its real window, run by a test: its main function runs in a thread of the test's process, on
// a desktop of its own, and the test acts as the person in front of it.
#pragma once

#include <windows.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "platform/command.h"
#include "platform/dialog.h"
#include "platform/machine.h"

namespace varlo::test {

// Makes a desktop of the process and moves the calling thread to it, so that focus and mouse of test programs that
// run at once stay apart. Every thread that makes or looks for windows calls it first.
void UseOwnDesktop();

// Calls `isDone` until it is true, for at most ten seconds; gives the last answer.
bool WaitFor(const std::function<bool()>& isDone);

class DesktopProgram {
 public:
  // Starts the program in an installation, at the time of all tests, and waits for its window.
  explicit DesktopProgram(const std::filesystem::path& installation);
  // Ends it without saving, if it still runs.
  ~DesktopProgram();
  DesktopProgram(const DesktopProgram&) = delete;
  DesktopProgram& operator=(const DesktopProgram&) = delete;

  [[nodiscard]] HWND window() const { return window_; }
  [[nodiscard]] HWND control(ControlId id) const { return ::GetDlgItem(window_, id); }
  // The page of the open tab, and a control of it.
  [[nodiscard]] HWND page() const;
  [[nodiscard]] HWND field(ControlId id) const { return ::GetDlgItem(page(), id); }
  [[nodiscard]] bool runs() const;

  // Waits until what was asked for before is done.
  void settle() const;
  // Runs `work` in the thread of the window.
  void onWindowThread(const std::function<void()>& work) const;
  // Sends a command as the menu does, and waits until it is done. A command that opens a modal window is posted:
  // the test then waits for the window.
  void command(Command command) const;
  void post(Command command) const;
  // Waits until the program has ended; false when it does not.
  bool waitForEnd();

 private:
  void run();

  std::filesystem::path installation_;
  std::thread thread_;
  DWORD threadId_ = 0;
  HWND window_ = nullptr;
};

// A copy of the shipped installation in a folder of its own, gone with the object.
class Installation {
 public:
  Installation();
  ~Installation();
  Installation(const Installation&) = delete;
  Installation& operator=(const Installation&) = delete;

  [[nodiscard]] const std::filesystem::path& folder() const { return folder_; }
  [[nodiscard]] std::filesystem::path demo() const { return folder_ / "Projects" / "Demo"; }
  // Writes config.ini: the demo project and an order server, and `more`, whole lines.
  void configure(const std::string& more = {}) const;
  // Makes the bookshop the project instead.
  void configureProject(const std::filesystem::path& project, const std::string& more = {}) const;

 private:
  std::filesystem::path folder_;
};

// The bytes of a file; throws std::runtime_error when there is none.
std::string BytesOf(const std::filesystem::path& file);

// All files below a folder, by their relative names.
std::vector<std::string> FilesBelow(const std::filesystem::path& folder);

}  // namespace varlo::test
