// The shell on a fake main window, for tests to start from.
#pragma once

#include "core/fixed_clock.h"
#include "core/process_clipboard.h"
#include "core/program.h"
#include "shell/main_window_shell.h"
#include "shell/shell.h"
#include "shell/shell_view.h"
#include "tests/support/fake_browsers.h"
#include "tests/support/fake_files.h"
#include "tests/support/fake_main_window.h"
#include "tests/support/fake_screen.h"
#include "tests/support/test_program.h"

namespace varlo::test {

struct TestShell {
  FakeFiles files;
  FixedClock clock{kTestTime};
  FakeScreen screen;
  ProcessClipboard clipboard;
  FakeBrowsers browsers;
  ShellView view;
  Program program{files, clock, screen, clipboard, view};
  Shell shell{program, browsers};
  MainWindowShell logic{shell};
  FakeMainWindow window{logic};

  TestShell() { view.setShell(&shell); }
  ~TestShell() { view.setShell(nullptr); }

  StoreProject& project() { return program.project; }
  AppConfig& config() { return program.config; }

  // The window opens; what it posts stays in screen.posted.
  void open() { logic.opened(window); }
  // Runs what was posted, and what that posts.
  void runPosted() {
    while (!screen.posted.empty()) {
      const Command command = screen.posted.front();
      screen.posted.erase(screen.posted.begin());
      logic.command(command);
    }
  }
};

}  // namespace varlo::test
