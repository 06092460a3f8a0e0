#include "win32/desktop_program.h"

#include <windows.h>

#include <commctrl.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "platform/control_ids.h"
#include "tests/win32/window_support.h"
#include "win32/window_text.h"

namespace varlo::test {
namespace {

// The program runs in a thread of its own, in a copy of the shipped installation, and a user acts on its window.
class DesktopProgramTest : public testing::Test {
 protected:
  std::filesystem::path before;
  std::filesystem::path folder;
  std::thread thread;
  HWND window = nullptr;
  int result = -1;

  void SetUp() override {
    before = std::filesystem::current_path();
    folder = std::filesystem::temp_directory_path() / "varlo_desktop_test";
    std::filesystem::remove_all(folder);
    std::filesystem::copy(VARLO_INSTALLATION, folder, std::filesystem::copy_options::recursive);
  }
  void TearDown() override {
    if (thread.joinable()) {
      if (::IsWindow(window) != FALSE) ::EndDialog(window, 0);
      thread.join();
    }
    std::filesystem::current_path(before);
    std::filesystem::remove_all(folder);
  }

  void write(const char* name, const std::string& text) const {
    std::ofstream(folder / name, std::ios::binary) << text;
  }
  void start() {
    thread = std::thread([this] { result = RunDesktop(folder.string()); });
    ASSERT_TRUE(waitFor([this] {
      window = ::FindWindowA("#32770", nullptr);
      while (window != nullptr && ::GetDlgItem(window, control::main::kTree) == nullptr) {
        window = ::FindWindowExA(nullptr, window, "#32770", nullptr);
      }
      return window != nullptr && ::IsWindowVisible(window) != FALSE;
    }));
    settle();
  }
  static bool waitFor(const std::function<bool()>& condition) {
    for (int i = 0; i < 1000; ++i) {
      if (condition()) return true;
      ::Sleep(10);
    }
    return false;
  }
  // What is posted before this has run after it.
  void settle() const {
    for (int i = 0; i < 3; ++i) {
      ::SendMessageA(window, WM_NULL, 0, 0);
      ::Sleep(100);
    }
  }
  [[nodiscard]] HWND item(ControlId control) const { return ::GetDlgItem(window, control); }
  void command(Command command) const { ::PostMessageA(window, WM_COMMAND, static_cast<WPARAM>(command), 0); }
  void quit() {
    command(Command::Quit);
    thread.join();
  }
};

TEST_F(DesktopProgramTest, OpensTheProjectOfItsSettingsAndQuits) {
  write("config.ini", "varlo=http://orders.example/\nfile=" + (folder / "Projects\\Demo\\Demo.stp").string() + "\n");
  start();
  EXPECT_EQ(WindowText(window), "Varlo PRO - Demo");
  EXPECT_GT(::SendMessageA(item(control::main::kTree), TVM_GETCOUNT, 0, 0), 20);
  EXPECT_EQ(::SendMessageA(item(control::main::kTabs), TCM_GETITEMCOUNT, 0, 0), 7);
  EXPECT_EQ(::SendMessageA(item(control::main::kToolbar), TB_BUTTONCOUNT, 0, 0), 21);
  takePicture(window, "main_demo");
  quit();
  EXPECT_EQ(result, 0);
}

}  // namespace
}  // namespace varlo::test
