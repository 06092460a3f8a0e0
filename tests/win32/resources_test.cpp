// The menu, the dialogs and the pages as they are in the resources.

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <cctype>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/command.h"
#include "platform/control_ids.h"
#include "tests/win32/window_support.h"
#include "win32/dialog_host.h"
#include "win32/resource_ids.h"
#include "win32/screen_scale.h"
#include "win32/toolbar_window.h"
#include "win32/window_text.h"

namespace varlo::test {
namespace {

// A dialog made from its template, with no logic.
class BareDialog {
 public:
  explicit BareDialog(int dialogId) {
    LoadControlClasses();
    parent_ =
        ::CreateWindowExA(0, "Static", "", WS_OVERLAPPEDWINDOW, 0, 0, 900, 700, nullptr, nullptr, nullptr, nullptr);
    window_ = ::CreateDialogParamA(
        ::GetModuleHandleA(nullptr), MAKEINTRESOURCEA(static_cast<WORD>(dialogId)), parent_,
        [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; }, 0);
  }
  ~BareDialog() {
    ::DestroyWindow(window_);
    ::DestroyWindow(parent_);
  }
  BareDialog(const BareDialog&) = delete;
  BareDialog& operator=(const BareDialog&) = delete;

  [[nodiscard]] HWND get() const { return window_; }
  [[nodiscard]] HWND item(ControlId control) const { return ::GetDlgItem(window_, control); }

 private:
  HWND parent_ = nullptr;
  HWND window_ = nullptr;
};

constexpr std::array kDialogs{dialog::kMain,          dialog::kPreferences,      dialog::kSaveAs,
                              dialog::kRestore,       dialog::kStoreBuild,       dialog::kFirstBuild,
                              dialog::kInventoryPage, dialog::kTemplatePage,     dialog::kFreightPage,
                              dialog::kOrderFormPage, dialog::kConfirmationPage, dialog::kLayoutPage,
                              dialog::kVariablesPage};

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

TEST(Resources, EveryDialogCanBeMade) {
  for (const int id : kDialogs) EXPECT_NE(BareDialog(id).get(), nullptr) << id;
}

TEST(Resources, EveryNumberOfAControlIsInItsDialog) {
  const std::map<int, std::vector<ControlId>> controls{
      {dialog::kMain, {901, 902, 903, 904, 911, 912, 913, 914, 915, 916}},
      {dialog::kPreferences,
       {1001, 1002, 1003, 1004, 1005, 1006, 1007, control::kOk, control::kCancel, control::kHelp}},
      {dialog::kSaveAs, {1101, 1102, control::kOk, control::kCancel}},
      {dialog::kRestore, {1201, control::kOk, control::kCancel, control::kHelp}},
      {dialog::kStoreBuild, {1301, 1302, 1303, 1304, 1305, 1306, control::kOk, control::kCancel, control::kHelp}},
      {dialog::kFirstBuild, {1401, 1402, control::kOk, control::kCancel}},
      {dialog::kInventoryPage, {2031, 2032, 2033, 2034, 2035, 2036, 2037}}};
  for (const auto& [id, numbers] : controls) {
    const BareDialog made(id);
    for (const ControlId number : numbers) EXPECT_NE(made.item(number), nullptr) << id << ": " << number;
  }
}

TEST(Resources, FieldsOfTheInventoryPageHaveTheirLabelsBeforeThem) {
  const BareDialog page(dialog::kInventoryPage);
  for (ControlId field = control::inventory::kTitle; field <= control::inventory::kDescription; ++field) {
    ASSERT_NE(page.item(field), nullptr) << field;
    EXPECT_EQ(::GetDlgCtrlID(::GetWindow(page.item(field), GW_HWNDPREV)), field + 50);
  }
}

TEST(Resources, InventoryPageIsReadFromTopToBottom) {
  const BareDialog page(dialog::kInventoryPage);
  LONG last = 0;
  for (const HWND child : childrenOf(page.get())) {
    if (!isField(child)) continue;
    RECT place{};
    ::GetWindowRect(child, &place);
    EXPECT_GE(place.top, last) << nameOf(child);
    last = place.top;
  }
}

TEST(Resources, EveryFieldHasALabelOrAGroupDirectlyBeforeIt) {
  for (const int id : kDialogs) {
    if (id == dialog::kMain) continue;
    const BareDialog made(id);
    for (const HWND child : childrenOf(made.get())) {
      if (!isField(child)) continue;
      const HWND before = ::GetWindow(child, GW_HWNDPREV);
      ASSERT_NE(before, nullptr) << id << ": " << nameOf(child);
      EXPECT_TRUE(isStatic(before) || isGroup(before)) << id << ": " << nameOf(child);
      EXPECT_NE(WindowText(before), "") << id << ": " << nameOf(child);
    }
  }
}

TEST(Resources, EveryFieldAndButtonIsReachedByTab) {
  for (const int id : kDialogs) {
    const BareDialog made(id);
    for (const HWND child : childrenOf(made.get())) {
      if (!isField(child) && (!isButton(child) || isGroup(child))) continue;
      EXPECT_NE(::GetWindowLongPtrA(child, GWL_STYLE) & WS_TABSTOP, 0) << id << ": " << nameOf(child);
    }
  }
}

// The letter behind a single "&"; 0 without one.
char mnemonicOf(const std::string& text) {
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != '&') continue;
    if (text[i + 1] != '&') return static_cast<char>(std::toupper(static_cast<unsigned char>(text[i + 1])));
    ++i;
  }
  return 0;
}

TEST(Resources, NoTwoControlsOfADialogHaveOneMnemonic) {
  for (const int id : kDialogs) {
    const BareDialog made(id);
    std::set<char> used;
    for (const HWND child : childrenOf(made.get())) {
      if (!isStatic(child) && !isButton(child)) continue;
      const char letter = mnemonicOf(WindowText(child));
      EXPECT_TRUE(letter == 0 || used.insert(letter).second) << id << ": " << nameOf(child);
    }
  }
}

TEST(Resources, PagesLeaveTheLettersOfTheMenuAlone) {
  for (const int id : {dialog::kMain, dialog::kInventoryPage}) {
    const BareDialog made(id);
    for (const HWND child : childrenOf(made.get())) {
      const char letter = isStatic(child) || isButton(child) ? mnemonicOf(WindowText(child)) : '\0';
      EXPECT_EQ(std::string("FEVOH").find(letter == 0 ? '?' : letter), std::string::npos) << nameOf(child);
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

TEST(Resources, TextsFitIntoTheirControls) {
  for (const int id : kDialogs) {
    if (id == dialog::kMain) continue;
    const BareDialog made(id);
    for (const HWND child : childrenOf(made.get())) {
      if (!isStatic(child) && !isButton(child)) continue;
      RECT room{};
      ::GetClientRect(child, &room);
      const SIZE drawn = drawnSize(child, room.right);
      EXPECT_LE(drawn.cx, room.right - (isButton(child) ? ScaledPixels(4) : 0)) << id << ": " << nameOf(child);
      EXPECT_LE(drawn.cy, room.bottom) << id << ": " << nameOf(child);
    }
  }
}

TEST(Resources, ControlsLieInsideTheirDialogAndDoNotOverlap) {
  for (const int id : kDialogs) {
    if (id == dialog::kMain) continue;
    const BareDialog made(id);
    RECT inside{};
    ::GetClientRect(made.get(), &inside);
    ::MapWindowPoints(made.get(), nullptr, reinterpret_cast<POINT*>(&inside), 2);
    const std::vector<HWND> children = childrenOf(made.get());
    for (std::size_t i = 0; i < children.size(); ++i) {
      RECT place{};
      ::GetWindowRect(children[i], &place);
      EXPECT_LE(place.right, inside.right) << id << ": " << nameOf(children[i]);
      EXPECT_LE(place.bottom, inside.bottom) << id << ": " << nameOf(children[i]);
      for (std::size_t j = i + 1; j < children.size() && !isGroup(children[i]); ++j) {
        RECT other{};
        RECT common{};
        ::GetWindowRect(children[j], &other);
        EXPECT_EQ(::IntersectRect(&common, &place, &other), FALSE)
            << id << ": " << nameOf(children[i]) << " and " << nameOf(children[j]);
      }
    }
  }
}

TEST(Resources, CaptionsAndFixedTextsAreTheSystemsOwn) {
  EXPECT_EQ(WindowText(BareDialog(dialog::kMain).get()), "Varlo PRO");
  EXPECT_EQ(WindowText(BareDialog(dialog::kPreferences).get()), "Varlo Preferences");
  EXPECT_EQ(WindowText(BareDialog(dialog::kSaveAs).get()), "Save Project As");
  EXPECT_EQ(WindowText(BareDialog(dialog::kRestore).get()), "Restore project from Backup");
  EXPECT_EQ(WindowText(BareDialog(dialog::kFirstBuild).get()), "Build");
  const BareDialog build(dialog::kStoreBuild);
  EXPECT_EQ(WindowText(build.get()), "Store Build");
  EXPECT_EQ(
      WindowText(::GetWindow(build.get(), GW_CHILD)),
      "You are about to re-build the entire store.  Please specify a target directory where the store should be "
      "built and the store title.");
  EXPECT_EQ(WindowText(build.item(control::store_build::kBuild)), "&Build");
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

TEST(Resources, ThereAreTwentySevenIconsOfItems) {
  const HIMAGELIST images = LoadItemImages();
  ASSERT_NE(images, nullptr);
  EXPECT_EQ(::ImageList_GetImageCount(images), 27);
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

TEST(Resources, Pictures) {
  for (const int id : kDialogs) {
    const BareDialog made(id);
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
