// The menu and the images as they are in the resources, and all windows as they are made from their shapes.

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <cctype>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/command.h"
#include "platform/main_window.h"
#include "tests/support/all_shapes.h"
#include "tests/win32/window_support.h"
#include "win32/dialog_host.h"
#include "win32/resource_ids.h"
#include "win32/screen_scale.h"
#include "win32/toolbar_window.h"
#include "win32/window_text.h"

namespace varlo::test {
namespace {

// A window made from a shape, with a logic that does nothing.
class BareDialog {
 public:
  explicit BareDialog(const DialogShape& shape) {
    LoadControlClasses();
    parent_ =
        ::CreateWindowExA(0, "Static", "", WS_OVERLAPPEDWINDOW, 0, 0, 900, 760, nullptr, nullptr, nullptr, nullptr);
    const auto logic = std::make_shared<NoLogic>(shape);
    Win32Dialog* dialog =
        shape.form == Form::Page ? OpenPageDialog(parent_, logic) : OpenModelessDialog(parent_, logic);
    window_ = dialog->window();
    if (shape.form == Form::Page)
      ::SetWindowPos(window_, nullptr, 0, 0, ScaledPixels(560), ScaledPixels(640), SWP_NOZORDER);
  }
  ~BareDialog() {
    ::DestroyWindow(window_);
    ::DestroyWindow(parent_);
  }
  BareDialog(const BareDialog&) = delete;
  BareDialog& operator=(const BareDialog&) = delete;

  [[nodiscard]] HWND get() const { return window_; }

 private:
  struct NoLogic : DialogLogic {
    explicit NoLogic(const DialogShape& shape) : itsShape(shape) {}
    const DialogShape& itsShape;
    [[nodiscard]] const DialogShape& shape() const override { return itsShape; }
    void opened(Dialog& /*dialog*/) override {}
    void notified(Dialog& /*dialog*/, const ControlEvent& /*event*/) override {}
  };
  HWND parent_ = nullptr;
  HWND window_ = nullptr;
};

std::string classOf(HWND window) {
  std::array<char, 64> name{};
  ::GetClassNameA(window, name.data(), static_cast<int>(name.size()));
  return name.data();
}

bool isStatic(HWND window) { return ::lstrcmpiA(classOf(window).c_str(), "Static") == 0; }
bool isButton(HWND window) { return KindOf(window) == ControlKind::Button; }
bool isGroup(HWND window) {
  return isButton(window) && (::GetWindowLongPtrA(window, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
}
bool isField(HWND window) {
  const ControlKind kind = KindOf(window);
  return kind == ControlKind::Edit || kind == ControlKind::RichEdit || kind == ControlKind::ComboBox ||
         kind == ControlKind::ListBox || kind == ControlKind::Columns;
}
std::string nameOf(HWND window) { return std::to_string(::GetDlgCtrlID(window)) + " \"" + WindowText(window) + "\""; }

TEST(RealWindows, EveryFieldAndButtonIsReachedByTab) {
  for (const DialogShape* shape : kAllShapes) {
    const int id = shape->id;
    const BareDialog made(*shape);
    for (const HWND child : childrenOf(made.get())) {
      if (!isField(child) && (!isButton(child) || isGroup(child))) continue;
      EXPECT_NE(::GetWindowLongPtrA(child, GWL_STYLE) & WS_TABSTOP, 0) << id << ": " << nameOf(child);
    }
  }
}

// Width of a text as its control draws it, and the room that the control has for it.
SIZE drawnSize(HWND control, int width) {
  const HDC screen = ::GetDC(control);
  const HGDIOBJ old = ::SelectObject(screen, reinterpret_cast<HGDIOBJ>(::SendMessageA(control, WM_GETFONT, 0, 0)));
  RECT text{0, 0, width, 0};
  ::DrawTextA(screen, WindowText(control).c_str(), -1, &text, DT_CALCRECT | DT_WORDBREAK);
  ::SelectObject(screen, old);
  ::ReleaseDC(control, screen);
  return {text.right, text.bottom};
}

TEST(RealWindows, TextsFitIntoTheirControls) {
  for (const DialogShape* shape : kAllShapes) {
    const int id = shape->id;
    const BareDialog made(*shape);
    for (const HWND child : childrenOf(made.get())) {
      if ((!isStatic(child) && !isButton(child)) || ::IsWindowVisible(child) == FALSE) continue;
      RECT room{};
      ::GetClientRect(child, &room);
      // A choice of several lines wraps beside its tick.
      const bool wraps = isButton(child) && (::GetWindowLongPtrA(child, GWL_STYLE) & BS_MULTILINE) != 0;
      const LONG inner = room.right - (wraps ? ScaledPixels(20) : isButton(child) ? ScaledPixels(4) : 0);
      const SIZE drawn = drawnSize(child, inner);
      EXPECT_LE(drawn.cx, inner) << id << ": " << nameOf(child);
      EXPECT_LE(drawn.cy, room.bottom) << id << ": " << nameOf(child);
    }
  }
}

struct Entry {
  Command command;
  const char* label;
};

TEST(Resources, MenuHasEveryEntryInItsOrder) {
  const std::vector<std::pair<const char*, std::vector<Entry>>> menus{
      {"&File",
       {{Command::NewStore, "&New Store"},
        {Command::OpenStore, "&Open Store"},
        {Command::Save, "&Save"},
        {Command::SaveAs, "Sa&ve As"},
        {Command::RestoreBackup, "&Restore from Backup"},
        {Command::Import, "&Import"},
        {Command::Merge, "&Merge"},
        {Command::Upgrade, "&Upgrade"},
        {Command::Quit, "&Quit\x08\tALT+F4"}}},
      {"&Edit",
       {{Command::Copy, "&Copy"},
        {Command::Paste, "&Paste"},
        {Command::Disable, "Disable"},
        {Command::Enable, "&Enable"},
        {Command::Delete, "&Delete"},
        {Command::NewCategory, "New Cate&gory"},
        {Command::NewProduct, "&New Product"},
        {Command::NewShelf, "New &Shelf"},
        {Command::NewList, "New &List"},
        {Command::Find, "&Find"},
        {Command::SelectAll, "Select &All"}}},
      {"&View",
       {{Command::ViewOrders, "&Orders"},
        {Command::ToggleToolbar, "&Toolbar"},
        {Command::ToggleButtons, "&Buttons"}}},
      {"&Options",
       {{Command::Preferences, "&Preferences"},
        {Command::PreviewPage, "Pre&view Page"},
        {Command::BuildStore, "&Build Store"},
        {Command::CreditCards, "Add/Remove &Credit Cards"},
        {Command::FreightRegions, "Add/Remove &Freight Regions"},
        {Command::TaxOptions, "Tax Options"},
        {Command::ImportFreight, "&Import Freight Tables"}}},
      {"&Help",
       {{Command::About, "&About..."},
        {Command::Help, "&Help"},
        {Command::Faq, "&FAQ"},
        {Command::Manual, "&Manual"}}}};
  const HMENU bar = ::LoadMenuA(::GetModuleHandleA(nullptr), MAKEINTRESOURCEA(RESOURCE_MAIN_MENU));
  ASSERT_EQ(::GetMenuItemCount(bar), static_cast<int>(menus.size()));
  for (int place = 0; place < static_cast<int>(menus.size()); ++place) {
    std::array<char, 80> label{};
    ::GetMenuStringA(bar, static_cast<UINT>(place), label.data(), 80, MF_BYPOSITION);
    const auto& [title, entries] = menus[static_cast<std::size_t>(place)];
    EXPECT_STREQ(label.data(), title);
    const HMENU menu = ::GetSubMenu(bar, place);
    std::vector<Entry> expected = entries;
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
      if ((::GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION) & MF_SEPARATOR) != 0) continue;
      ASSERT_FALSE(expected.empty());
      ::GetMenuStringA(menu, static_cast<UINT>(i), label.data(), 80, MF_BYPOSITION);
      EXPECT_STREQ(label.data(), expected.front().label);
      EXPECT_EQ(::GetMenuItemID(menu, i), static_cast<UINT>(expected.front().command));
      expected.erase(expected.begin());
    }
    EXPECT_TRUE(expected.empty()) << title;
  }
  ::DestroyMenu(bar);
}

TEST(Resources, ThereAreThirtyOneIconsOfItems) {
  const HIMAGELIST images = LoadItemImages();
  ASSERT_NE(images, nullptr);
  EXPECT_EQ(::ImageList_GetImageCount(images), 31);
  int width = 0;
  int height = 0;
  ::ImageList_GetIconSize(images, &width, &height);
  EXPECT_EQ(width, height);
  ::ImageList_Destroy(images);
}

TEST(Resources, ScaleOfImagesFollowsTheScreen) {
  const ScaledResource chosen = ChooseScaledResource(1, 2, 3);
  EXPECT_EQ(chosen.percent, ScreenDpi() >= 192 ? 200 : ScreenDpi() >= 144 ? 150 : 100);
  EXPECT_EQ(chosen.id, chosen.percent == 100 ? 1 : chosen.percent == 150 ? 2 : 3);
}

TEST(RealWindows, Pictures) {
  for (const DialogShape* shape : kAllShapes) {
    const int id = shape->id;
    const BareDialog made(*shape);
    ::ShowWindow(::GetParent(made.get()), SW_SHOW);
    ::ShowWindow(made.get(), SW_SHOW);
    pump(made.get());
    ::RedrawWindow(made.get(), nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    takePicture(made.get(), "dialog_" + std::to_string(id));
    EXPECT_NE(::IsWindowVisible(made.get()), FALSE);
  }
}

}  // namespace
}  // namespace varlo::test
