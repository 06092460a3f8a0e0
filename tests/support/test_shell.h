// The shell on a fake main window, for tests to start from.
#pragma once

#include <vector>

#include "core/program/fixed_clock.h"
#include "core/program/process_clipboard.h"
#include "core/program/program.h"
#include "shell/state/shell.h"
#include "shell/window/main_window_shell.h"
#include "shell/window/shell_view.h"
#include "tests/support/fake_browsers.h"
#include "tests/support/fake_files.h"
#include "tests/support/fake_main_window.h"
#include "tests/support/fake_screen.h"
#include "tests/support/test_program.h"

namespace varlo::test {

inline constexpr const char* kShopPath = "C:\\Varlo\\Projects\\Shop\\Shop.stp";
inline constexpr const char* kShopText =
    "VERSION=107001\nNODE0=Home\n#BRANCH\nNODE0=Toys\n#BRANCH\nNODE1=Ball\n#EOB\nNODE2=Bats\nNODE3=Rows\n#EOB\n"
    "VAR=$OWN|1\nCURR=$\n";

// The view of a shell, which also records what help it is asked for.
class HelpedView : public ShellView {
 public:
  HelpedView();
  ~HelpedView() override;

  std::vector<int> helps;

  void showHelp(int id) override {
    helps.push_back(id);
    ShellView::showHelp(id);
  }
};

struct TestShell {
  FakeFiles files;
  FixedClock clock{kTestTime};
  FakeScreen screen;
  ProcessClipboard clipboard;
  FakeBrowsers browsers;
  HelpedView view;
  Program program{files, clock, screen, clipboard, view};
  Shell shell{program, browsers};
  MainWindowShell logic{shell};
  FakeMainWindow window{logic};

  TestShell();
  ~TestShell();

  StoreProject& project() { return program.project; }
  AppConfig& config() { return program.config; }

  // The window stands there as if it had been set up, without all that doing so brings.
  void attach() { shell.mainWindow = &window; }
  // A store on the disk: Home(Toys(Ball),Bats,Rows), in which Bats is a shelf and Rows a list.
  void putShop() {
    files.put("Projects\\Shop\\Shop.stp", kShopText);
    files.put("Projects\\Shop\\Template\\order.htm", "order");
    files.put("Projects\\Shop\\Template\\confirm.htm", "confirm");
  }
  // That store is the one that the configuration names.
  void nameShop() {
    putShop();
    project().projectFile.assign(kShopPath);
  }

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
