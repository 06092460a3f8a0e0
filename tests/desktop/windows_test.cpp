// Every window as a person sees it: nothing is cut off, everything can be reached by key, every field has a label.
// With VARLO_SCREENSHOTS set, each is photographed.

#include <cstdlib>

#include "platform/main_window.h"
#include "shell/tabs/inventory_page.h"
#include "tests/desktop/desktop_fixture.h"
#include "tests/desktop/window_faults.h"

namespace varlo::test {
namespace {

using ::testing::IsEmpty;

class Windows : public DesktopTest {
 protected:
  Windows() { start(); }

  [[nodiscard]] int dpi() const {
    const HDC screen = ::GetDC(nullptr);
    const int dots = ::GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    return dots;
  }
  [[nodiscard]] int scaled(int pixels) const { return ::MulDiv(pixels, dpi(), 96); }

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
    ::SetWindowPos(program().window(), nullptr, 0, 0, scaled(size.cx), scaled(size.cy), SWP_NOZORDER);
    program().settle();
    const std::string name = std::to_string(size.cx) + "x" + std::to_string(size.cy);
    TakePicture(program().window(), "main_" + name);
    EXPECT_THAT(FaultsOf(program().page()), IsEmpty()) << name;
  }
}

// At 150 and 200 percent there are images of their own.
TEST_F(Windows, AreScaledToTheScreen) {
  const char* expected = std::getenv("VARLO_DPI");
  if (expected != nullptr) {
    EXPECT_EQ(std::to_string(dpi()), expected);
  }
  const int icon = dpi() >= 192 ? 32 : dpi() >= 144 ? 24 : 16;
  const auto expectIcons = [&](HWND control, UINT message, WPARAM which) {
    int width = 0;
    int height = 0;
    ::ImageList_GetIconSize(reinterpret_cast<HIMAGELIST>(::SendMessageA(control, message, which, 0)), &width,
                            &height);
    EXPECT_EQ(width, icon);
    EXPECT_EQ(height, icon);
  };
  const HWND toolbar = program().control(main_window::kToolbar);
  expectIcons(tree(), TVM_GETIMAGELIST, TVSIL_NORMAL);
  expectIcons(list(), LVM_GETIMAGELIST, LVSIL_SMALL);
  expectIcons(toolbar, TB_GETIMAGELIST, 0);
  EXPECT_EQ(::SendMessageA(list(), LVM_GETCOLUMNWIDTH, 0, 0), scaled(140));
  EXPECT_EQ(::SendMessageA(list(), LVM_GETCOLUMNWIDTH, 5, 0), scaled(80));

  // The buttons find room in the toolbar, and the toolbar beside the tabs.
  RECT bar{};
  RECT tabsPlace{};
  RECT last{};
  ::GetWindowRect(toolbar, &bar);
  ::GetWindowRect(tabs(), &tabsPlace);
  ::SendMessageA(toolbar, TB_GETRECT, static_cast<WPARAM>(Command::PreviewPage), reinterpret_cast<LPARAM>(&last));
  EXPECT_LE(last.right, bar.right - bar.left);
  EXPECT_LE(last.bottom, bar.bottom - bar.top);
  EXPECT_LE(bar.right, tabsPlace.left);
}

// The controls that Tab reaches, in its order.
TEST_F(Windows, LetTabGoThroughTheFormInReadingOrder) {
  using namespace inventory;
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
