// Every window as a person sees it: nothing is cut off, everything can be reached by key, every field has a label.
// With VARLO_SCREENSHOTS set, each is photographed.

#include "tests/desktop/desktop_fixture.h"
#include "tests/desktop/window_faults.h"

namespace varlo::test {
namespace {

using ::testing::IsEmpty;

class Windows : public DesktopTest {
 protected:
  Windows() { start(); }

  void looksAt(Command command, const std::string& title, const std::string& picture) {
    program().post(command);
    const HWND dialog = WaitForBox(title);
    ASSERT_NE(dialog, nullptr) << title;
    program().settle();
    TakePicture(dialog, picture);
    EXPECT_THAT(FaultsOf(dialog), IsEmpty()) << title;
    // Escape leaves every dialog.
    ::PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    EXPECT_TRUE(WaitFor([&] { return !BoxIsOpen(title); })) << title;
  }
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
  EXPECT_THAT(FaultsOf(program().page()), IsEmpty());
  for (const SIZE size : {SIZE{800, 600}, SIZE{1024, 740}, SIZE{1000, 700}}) {
    ::SetWindowPos(program().window(), nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER);
    program().settle();
    const std::string name = std::to_string(size.cx) + "x" + std::to_string(size.cy);
    TakePicture(program().window(), "main_" + name);
    EXPECT_THAT(FaultsOf(program().page()), IsEmpty()) << name;
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
