// Every window as a person sees it: nothing is cut off, everything can be reached by key, every field has a label.
// With VARLO_SCREENSHOTS set, each is photographed.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <map>
#include <set>

#include "platform/control_ids.h"
#include "tests/desktop/desktop_program.h"
#include "tests/desktop/window_driving.h"
#include "tests/desktop/window_reading.h"

namespace varlo::test {
namespace {

using ::testing::IsEmpty;

std::string classOf(HWND window) {
  std::array<char, 64> name{};
  ::GetClassNameA(window, name.data(), static_cast<int>(name.size()));
  return name.data();
}

bool isVisible(HWND control) { return (::GetWindowLongA(control, GWL_STYLE) & WS_VISIBLE) != 0; }

std::vector<HWND> controlsOf(HWND dialog) {
  std::vector<HWND> controls;
  for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
    if (isVisible(child)) controls.push_back(child);
  }
  return controls;
}

// A text without the "&" of its mnemonic, and the mnemonic.
std::pair<std::string, char> partsOf(const std::string& text) {
  const std::size_t mark = text.find('&');
  if (mark == std::string::npos || mark + 1 >= text.size() || text[mark + 1] == '&') return {text, '\0'};
  return {std::string(text).erase(mark, 1), static_cast<char>(std::toupper(text[mark + 1]))};
}

// What a text needs in the width of its control; on buttons it stays in one line.
SIZE extentOf(HWND control, const std::string& text, int width, bool wraps) {
  const HDC canvas = ::GetDC(control);
  const HGDIOBJ before = ::SelectObject(canvas, reinterpret_cast<HGDIOBJ>(::SendMessageA(control, WM_GETFONT, 0, 0)));
  RECT needed{0, 0, width, 0};
  const UINT format = DT_CALCRECT | DT_NOPREFIX | (wraps ? DT_WORDBREAK : DT_SINGLELINE);
  ::DrawTextA(canvas, text.c_str(), -1, &needed, format);
  ::SelectObject(canvas, before);
  ::ReleaseDC(control, canvas);
  return {needed.right, needed.bottom};
}

// A static text, or the title of a group.
bool isLabel(HWND control) {
  if (control == nullptr || TextOf(control).empty()) return false;
  const bool group = (::GetWindowLongA(control, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
  return classOf(control) == "Static" || (classOf(control) == "Button" && group);
}

// What is wrong with a dialog, in words.
std::vector<std::string> faultsOf(HWND dialog) {
  std::vector<std::string> faults;
  RECT inside{};
  ::GetClientRect(dialog, &inside);
  ::MapWindowPoints(dialog, nullptr, reinterpret_cast<POINT*>(&inside), 2);
  std::set<char> mnemonics;
  HWND before = nullptr;
  for (const HWND control : controlsOf(dialog)) {
    const std::string kind = classOf(control);
    const auto [text, mnemonic] = partsOf(TextOf(control));
    const std::string name = kind + " " + std::to_string(::GetDlgCtrlID(control)) + " \"" + text.substr(0, 40) + "\"";
    RECT place{};
    ::GetWindowRect(control, &place);
    if (place.left < inside.left || place.top < inside.top || place.right > inside.right ||
        place.bottom > inside.bottom) {
      faults.push_back(name + " leaves its window");
    }
    if (kind == "Static" || kind == "Button") {
      const SIZE room{place.right - place.left, place.bottom - place.top};
      const SIZE needed = extentOf(control, text, room.cx, kind == "Static");
      if (needed.cx > room.cx || needed.cy > room.cy) faults.push_back(name + " is cut off");
      if (mnemonic != '\0' && !mnemonics.insert(mnemonic).second) faults.push_back(name + " shares its mnemonic");
    }
    const bool isField =
        kind == "Edit" || kind == "ComboBox" || kind == "RICHEDIT" || kind == "ListBox" || kind == "SysListView32";
    if (isField && !isLabel(before)) {
      faults.push_back(name + " has no label before it");
    }
    const auto style = ::GetWindowLongA(control, GWL_STYLE);
    if ((isField || kind == "Button") && (style & (WS_TABSTOP | BS_GROUPBOX)) == 0) {
      faults.push_back(name + " can't be reached by key");
    }
    before = control;
  }
  return faults;
}

class Windows : public ::testing::Test {
 protected:
  Windows() {
    installation_.configure();
    program_ = std::make_unique<DesktopProgram>(installation_.folder());
  }
  DesktopProgram& program() { return *program_; }

  void looksAt(Command command, const std::string& title, const std::string& picture) {
    program().post(command);
    const HWND dialog = WaitForBox(title);
    ASSERT_NE(dialog, nullptr) << title;
    program().settle();
    TakePicture(dialog, picture);
    EXPECT_THAT(faultsOf(dialog), IsEmpty()) << title;
    // Escape leaves every dialog.
    ::PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    EXPECT_TRUE(WaitFor([&] { return !BoxIsOpen(title); })) << title;
  }

  Installation installation_;
  std::unique_ptr<DesktopProgram> program_;
};

TEST_F(Windows, AreWhole) {
  looksAt(Command::Preferences, "Varlo Preferences", "preferences");
  looksAt(Command::SaveAs, "Save Project As", "save_as");
  program().command(Command::NewList);
  program().command(Command::Save);
  looksAt(Command::RestoreBackup, "Restore project from Backup", "restore");
  looksAt(Command::BuildStore, "Store Build", "store_build_empty");
  looksAt(Command::PreviewPage, "Build", "first_build_empty");
}

TEST_F(Windows, HaveAWholeInventoryPage) {
  EXPECT_THAT(faultsOf(program().page()), IsEmpty());
  for (const SIZE size : {SIZE{800, 600}, SIZE{1024, 740}, SIZE{1000, 700}}) {
    ::SetWindowPos(program().window(), nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER);
    program().settle();
    const std::string name = std::to_string(size.cx) + "x" + std::to_string(size.cy);
    TakePicture(program().window(), "main_" + name);
    EXPECT_THAT(faultsOf(program().page()), IsEmpty()) << name;
  }
}

// The controls that Tab reaches, in its order.
TEST_F(Windows, LetTabGoThroughTheFormInReadingOrder) {
  using namespace control::inventory;
  std::vector<int> reached;
  HWND control = program().field(kTitle);
  do {
    reached.push_back(::GetDlgCtrlID(control));
    control = ::GetNextDlgTabItem(program().page(), control, FALSE);
  } while (control != nullptr && control != program().field(kTitle) && reached.size() < 100);
  std::vector<int> texts;
  for (const int id : reached) {
    if (id >= kTitle && id <= kDescription) texts.push_back(id);
  }
  // Label and value of a custom field come together.
  std::vector<int> expected;
  for (int id = kTitle; id < kLabel1; ++id) expected.push_back(id);
  for (int field = 0; field < 6; ++field) {
    expected.push_back(kLabel1 + field);
    expected.push_back(kValue1 + field);
  }
  expected.push_back(kDescription);
  EXPECT_EQ(texts, expected);
}

}  // namespace
}  // namespace varlo::test
