#include "win32/dialog_host.h"

#include <commctrl.h>
#include <richedit.h>

#include <array>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "generator/build/first_build_dialog.h"
#include "generator/build/store_build_dialog.h"
#include "persist/dialogs/preferences_dialog.h"
#include "persist/dialogs/restore_dialog.h"
#include "persist/dialogs/save_as_dialog.h"
#include "shell/tabs/inventory_page.h"
#include "tests/win32/recording_logic.h"
#include "tests/win32/window_support.h"
#include "win32/dialog_template.h"

namespace varlo::test {
namespace {

using testing::Contains;
using testing::ElementsAre;

// A plain window that a page lives in; it keeps the commands that it gets.
class PageParent {
 public:
  PageParent() {
    window_ = ::CreateWindowExA(0, "Static", "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 800, 600, nullptr, nullptr,
                                nullptr, nullptr);
    ::SetWindowSubclass(window_, keep, 1, reinterpret_cast<DWORD_PTR>(this));
  }
  ~PageParent() { ::DestroyWindow(window_); }
  [[nodiscard]] HWND get() const { return window_; }
  std::vector<WPARAM> commands;

 private:
  static LRESULT CALLBACK keep(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR self) {
    if (message == WM_COMMAND) reinterpret_cast<PageParent*>(self)->commands.push_back(wParam);
    return ::DefSubclassProc(window, message, wParam, lParam);
  }
  HWND window_;
};

class OpenDialog : public testing::Test {
 protected:
  RecordingLogic logic;

  void SetUp() override { logic.itsShape.form = Form::Modeless; }

  void open(const DialogShape& shape) {
    logic.itsShape = shape;
    logic.itsShape.form = Form::Modeless;
    ASSERT_NE(OpenModelessDialog(nullptr, logic.shared()), nullptr);
    pump(logic.handle());
    logic.told.clear();
  }
  void TearDown() override {
    if (logic.window != nullptr) ::DestroyWindow(logic.handle());
  }
  Dialog& dialog() { return *logic.window; }
};

TEST(ModalDialog, EndsWithTheResultOfItsLogicAndTellsItLastThatTheWindowIsGone) {
  RecordingLogic logic;
  logic.whenOpened = [](Dialog& dialog) { dialog.end(7); };
  EXPECT_EQ(RunModalDialog(nullptr, logic), 7);
  EXPECT_EQ(logic.told.front(), "opened");
  EXPECT_EQ(logic.told.back(), "closed");
}

TEST(ModalDialog, RunsItsPostedNoticeAfterTheCallThatPostedIt) {
  RecordingLogic logic;
  logic.whenOpened = [&](Dialog& dialog) {
    dialog.post(12);
    logic.told.emplace_back("still opening");
  };
  logic.whenNotified = [](Dialog& dialog, const ControlEvent& event) {
    if (event.notice == Notice::Posted) dialog.end(event.control);
  };
  EXPECT_EQ(RunModalDialog(nullptr, logic), 12);
  EXPECT_EQ(logic.count("still opening"), 1);
}

TEST_F(OpenDialog, TellsItsSizeOnceAfterItIsOpened) {
  ASSERT_NE(OpenModelessDialog(nullptr, logic.shared()), nullptr);
  ASSERT_GE(logic.told.size(), 2U);
  EXPECT_EQ(logic.told[0], "opened");
  EXPECT_EQ(logic.told[1], "resized");
}

TEST_F(OpenDialog, LogicThatEndsItWhileItOpensGetsNoMoreCalls) {
  logic.whenOpened = [](Dialog& dialog) { dialog.end(0); };
  EXPECT_EQ(OpenModelessDialog(nullptr, logic.shared()), nullptr);
  EXPECT_THAT(logic.told, ElementsAre("opened", "closed"));
}

TEST_F(OpenDialog, LogicMayUseItsDialogAfterEndingIt) {
  open(SaveAsDialog::kShape);
  std::string text = "something";
  logic.whenNotified = [&](Dialog& ended, const ControlEvent& event) {
    if (event.notice != Notice::Clicked) return;
    ended.end(1);
    text = ended.text(save_as::kName);
    ended.setText(save_as::kName, "x");
    ended.enable(kOk, false);
    ended.bringToFront();
    ended.end(1);
  };
  ::SendMessageA(logic.item(kOk), BM_CLICK, 0, 0);
  EXPECT_EQ(text, "");
  EXPECT_EQ(logic.window, nullptr);
  EXPECT_EQ(logic.told.back(), "closed");
}

TEST_F(OpenDialog, KeepsTextsAndTellsOfEachChange) {
  open(SaveAsDialog::kShape);
  dialog().setText(save_as::kName, "Caf\xe9");
  EXPECT_EQ(dialog().text(save_as::kName), "Caf\xe9");
  EXPECT_EQ(logic.count("Changed 1101"), 1);
}

TEST_F(OpenDialog, LimitsWhatIsTyped) {
  open(SaveAsDialog::kShape);
  dialog().limitText(save_as::kName, 3);
  for (const char letter : {'a', 'b', 'c', 'd'}) {
    ::SendMessageA(logic.item(save_as::kName), WM_CHAR, static_cast<WPARAM>(letter), 1);
  }
  EXPECT_EQ(dialog().text(save_as::kName), "abc");
}

TEST_F(OpenDialog, PutsTheCaretBehindTheText) {
  open(SaveAsDialog::kShape);
  dialog().setText(save_as::kName, "12.5");
  dialog().caretToEnd(save_as::kName);
  EXPECT_EQ(::SendMessageA(logic.item(save_as::kName), EM_GETSEL, 0, 0), MAKELONG(4, 4));
}

TEST_F(OpenDialog, TellsWhereTheFocusGoes) {
  open(PreferencesDialog::kShape);
  dialog().focus(preferences::kProxy);
  EXPECT_EQ(::GetFocus(), logic.item(preferences::kProxy));
  dialog().focus(preferences::kServer);
  EXPECT_EQ(logic.count("GotFocus 1002"), 1);
  EXPECT_EQ(logic.count("LostFocus 1002"), 1);
  EXPECT_EQ(logic.count("GotFocus 1004"), 1);
}

TEST_F(OpenDialog, FocusThatTheLogicChoseWhileOpeningStays) {
  logic.whenOpened = [](Dialog& opened) { opened.focus(kOk); };
  open(PreferencesDialog::kShape);
  EXPECT_EQ(::GetFocus(), logic.item(kOk));
}

TEST_F(OpenDialog, DisablingTheFocusedControlMovesTheFocusOn) {
  open(PreferencesDialog::kShape);
  dialog().focus(preferences::kPort);
  dialog().enable(preferences::kPort, false);
  EXPECT_NE(::GetFocus(), logic.item(preferences::kPort));
  EXPECT_NE(::IsChild(logic.handle(), ::GetFocus()), FALSE);
}

TEST_F(OpenDialog, ChecksABox) {
  open(PreferencesDialog::kShape);
  EXPECT_FALSE(dialog().isChecked(preferences::kDirectoryLink));
  dialog().check(preferences::kDirectoryLink, true);
  EXPECT_TRUE(dialog().isChecked(preferences::kDirectoryLink));
  ::SendMessageA(logic.item(preferences::kDirectoryLink), BM_CLICK, 0, 0);
  EXPECT_FALSE(dialog().isChecked(preferences::kDirectoryLink));
  EXPECT_EQ(logic.count("Clicked 1007"), 1);
}

TEST_F(OpenDialog, ComboBoxKeepsTheTextAboveWhenItsRowsGo) {
  open(PreferencesDialog::kShape);
  dialog().addRow(preferences::kBrowser, "one.exe");
  dialog().addRow(preferences::kBrowser, "two.exe");
  dialog().setText(preferences::kBrowser, "one.exe");
  dialog().clearRows(preferences::kBrowser);
  EXPECT_EQ(::SendMessageA(logic.item(preferences::kBrowser), CB_GETCOUNT, 0, 0), 0);
  EXPECT_EQ(dialog().text(preferences::kBrowser), "one.exe");
}

TEST_F(OpenDialog, ComboBoxTellsOfARowThatIsChosenAndOfATextThatIsTyped) {
  open(PreferencesDialog::kShape);
  dialog().addRow(preferences::kBrowser, "one.exe");
  const HWND combo = logic.item(preferences::kBrowser);
  dialog().focus(preferences::kBrowser);
  logic.told.clear();
  ::SendMessageA(combo, WM_KEYDOWN, VK_DOWN, 1);
  EXPECT_EQ(logic.count("SelectionChanged 1001"), 1);
  EXPECT_EQ(dialog().text(preferences::kBrowser), "one.exe");
  ::SendMessageA(::GetWindow(combo, GW_CHILD), WM_CHAR, 'x', 1);
  EXPECT_GE(logic.count("Changed 1001"), 1);
}

TEST_F(OpenDialog, ListBoxShowsItsRowsAndScrollsSidewaysToTheLongest) {
  open(StoreBuildDialog::kShape);
  const HWND list = logic.item(store_build::kLog);
  dialog().addRow(store_build::kLog, "short");
  dialog().addRow(store_build::kLog, std::string(200, 'W'));
  dialog().showRow(store_build::kLog, 1);
  EXPECT_EQ(::SendMessageA(list, LB_GETCOUNT, 0, 0), 2);
  EXPECT_EQ(::SendMessageA(list, LB_GETCARETINDEX, 0, 0), 1);
  EXPECT_GT(::SendMessageA(list, LB_GETHORIZONTALEXTENT, 0, 0), 1000);
  dialog().clearRows(store_build::kLog);
  EXPECT_EQ(::SendMessageA(list, LB_GETCOUNT, 0, 0), 0);
  EXPECT_EQ(::SendMessageA(list, LB_GETHORIZONTALEXTENT, 0, 0), 0);
}

TEST_F(OpenDialog, ProgressGoesFromZeroToItsTopBySteps) {
  open(StoreBuildDialog::kShape);
  const HWND bar = logic.item(store_build::kProgress);
  dialog().setProgressTop(store_build::kProgress, 100000);
  EXPECT_EQ(::SendMessageA(bar, PBM_GETRANGE, FALSE, 0), 100000);
  dialog().stepProgress(store_build::kProgress);
  dialog().stepProgress(store_build::kProgress);
  EXPECT_EQ(::SendMessageA(bar, PBM_GETPOS, 0, 0), 2);
  dialog().setProgress(store_build::kProgress, 0);
  EXPECT_EQ(::SendMessageA(bar, PBM_GETPOS, 0, 0), 0);
}

TEST_F(OpenDialog, ListInColumnsAsksForItsCellsAndTellsTheSelectedRow) {
  open(RestoreDialog::kShape);
  const std::array columns{ListColumn{"Date", 140}, ListColumn{"Size", 70}};
  dialog().setColumns(restore::kList, columns);
  dialog().setRowCount(restore::kList, 3);
  EXPECT_EQ(dialog().selectedRow(restore::kList), kNoRow);
  dialog().selectRow(restore::kList, 2);
  EXPECT_EQ(dialog().selectedRow(restore::kList), 2);
  EXPECT_GE(logic.count("SelectionChanged 1201"), 1);
  std::array<char, 40> text{};
  LVITEMA cell{};
  cell.iSubItem = 1;
  cell.pszText = text.data();
  cell.cchTextMax = static_cast<int>(text.size());
  ::SendMessageA(logic.item(restore::kList), LVM_GETITEMTEXTA, 2, reinterpret_cast<LPARAM>(&cell));
  EXPECT_STREQ(text.data(), "cell 2,1");
  dialog().selectRow(restore::kList, kNoRow);
  EXPECT_EQ(dialog().selectedRow(restore::kList), kNoRow);
}

TEST_F(OpenDialog, AListTellsOnceForAKeyOfTheRowGoneTo) {
  open(RestoreDialog::kShape);
  dialog().setColumns(restore::kList, std::array{ListColumn{"Date", 140}});
  dialog().setRowCount(restore::kList, 3);
  dialog().focus(restore::kList);
  dialog().selectRow(restore::kList, 0);
  logic.told.clear();
  ControlEvent last;
  logic.whenNotified = [&](Dialog&, const ControlEvent& event) {
    if (event.notice == Notice::SelectionChanged) last = event;
  };
  ::SendMessageA(logic.item(restore::kList), WM_KEYDOWN, VK_DOWN, 1);
  EXPECT_EQ(logic.count("SelectionChanged 1201"), 1);
  EXPECT_EQ(last.row, 1);
  EXPECT_TRUE(last.byKey);
}

TEST_F(OpenDialog, AListShowsItsRowsInAnotherOrderAndKeepsTheSelection) {
  open(RestoreDialog::kShape);
  dialog().setColumns(restore::kList, std::array{ListColumn{"Date", 140}});
  dialog().setRowCount(restore::kList, 3);
  dialog().selectRow(restore::kList, 2);
  logic.told.clear();
  dialog().orderRows(restore::kList, std::array{2, 0, 1});
  EXPECT_EQ(dialog().selectedRow(restore::kList), 2);
  EXPECT_TRUE(logic.told.empty());
  std::array<char, 40> text{};
  LVITEMA cell{};
  cell.pszText = text.data();
  cell.cchTextMax = static_cast<int>(text.size());
  ::SendMessageA(logic.item(restore::kList), LVM_GETITEMTEXTA, 0, reinterpret_cast<LPARAM>(&cell));
  EXPECT_STREQ(text.data(), "cell 2,0");
}

TEST_F(OpenDialog, MadeAnewHasTheControlsOfItsNewShape) {
  open(SaveAsDialog::kShape);
  logic.itsShape = FirstBuildDialog::kShape;
  dialog().reshape();
  EXPECT_EQ(logic.item(save_as::kName), nullptr);
  EXPECT_NE(logic.item(first_build::kDirectory), nullptr);
  EXPECT_EQ(dialog().text(first_build::kDirectory), "");
}

TEST_F(OpenDialog, AMultiLineTextKeepsItsCaretWhenTheFocusComes) {
  static constexpr Row kRows[] = {{{{.id = 71, .kind = Kind::Lines, .label = "Text:", .labelWidth = kLabelAbove}}}};
  static constexpr DialogShape kShape{.id = 70, .form = Form::Modeless, .size = {300, 0}, .rows = kRows};
  open(kShape);
  dialog().setText(71, "some words");
  ::SendMessageA(logic.item(71), EM_SETSEL, 4, 4);
  dialog().focus(71);
  EXPECT_EQ(::SendMessageA(logic.item(71), EM_GETSEL, 0, 0), MAKELONG(4, 4));
}

TEST_F(OpenDialog, PlacesShowsAndHidesControls) {
  open(PreferencesDialog::kShape);
  const HWND field = logic.item(preferences::kProxy);
  const std::array placements{Placement{preferences::kProxy, {10, 20, 300, 24}, true},
                              Placement{preferences::kPort, {0, 0, 0, 0}, false}};
  dialog().place(placements);
  RECT place{};
  ::GetWindowRect(field, &place);
  POINT corner{place.left, place.top};
  ::ScreenToClient(logic.handle(), &corner);
  EXPECT_EQ(corner.x, 10);
  EXPECT_EQ(corner.y, 20);
  EXPECT_EQ(place.right - place.left, 300);
  EXPECT_EQ(place.bottom - place.top, 24);
  EXPECT_EQ(::IsWindowVisible(logic.item(preferences::kPort)), FALSE);
}

TEST_F(OpenDialog, TabReturnAndEscapeWorkInTheLoopOfAnotherDialog) {
  open(PreferencesDialog::kShape);
  dialog().focus(preferences::kProxy);
  DialogShape hidden = SaveAsDialog::kShape;
  hidden.form = Form::Modeless;
  const DialogTemplate otherTemplate(hidden);
  const HWND other = ::CreateDialogIndirectParamA(
      ::GetModuleHandleA(nullptr), otherTemplate.get(), nullptr,
      [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; }, 0);
  press(other, logic.item(preferences::kProxy), VK_TAB);
  EXPECT_EQ(::GetFocus(), logic.item(preferences::kPort));
  press(other, logic.item(preferences::kPort), VK_RETURN);
  EXPECT_EQ(logic.count("Clicked 1"), 1);
  press(other, logic.item(preferences::kPort), VK_ESCAPE);
  EXPECT_EQ(logic.count("Clicked 2"), 1);
  ::DestroyWindow(other);
}

TEST_F(OpenDialog, EscapeAndTheCloseBoxAskTheLogicWhereCancelIsDisabled) {
  open(SaveAsDialog::kShape);
  dialog().enable(kCancel, false);
  ::SendMessageA(logic.handle(), WM_COMMAND, IDCANCEL, 0);
  EXPECT_THAT(logic.told, Contains("closeRequested"));
  EXPECT_EQ(logic.count("Clicked 2"), 0);
}

TEST_F(OpenDialog, ReturnDoesNothingWhereOkIsDisabled) {
  open(SaveAsDialog::kShape);
  dialog().enable(kOk, false);
  ::SendMessageA(logic.handle(), WM_COMMAND, IDOK, 0);
  EXPECT_EQ(logic.count("Clicked 1"), 0);
}

TEST_F(OpenDialog, CloseBoxAsksTheLogic) {
  open(StoreBuildDialog::kShape);
  ::SendMessageA(logic.handle(), WM_CLOSE, 0, 0);
  EXPECT_EQ(logic.told.front(), "closeRequested");
  EXPECT_EQ(logic.told.back(), "closed");
}

class Page : public testing::Test {
 protected:
  PageParent parent;
  RecordingLogic logic{InventoryPage::kShape};
  static constexpr ControlId kText = inventory::kDescription;

  void SetUp() override {
    ASSERT_NE(OpenPageDialog(parent.get(), logic.shared()), nullptr);
    ::ShowWindow(logic.handle(), SW_SHOW);
    logic.told.clear();
  }
  Dialog& dialog() { return *logic.window; }
};

TEST_F(Page, LeavesTheFocusWhereItIs) { EXPECT_EQ(::IsChild(parent.get(), ::GetFocus()), FALSE); }

TEST_F(Page, ThatIsTooLowScrollsToTheControlWithTheFocus) {
  ::SetWindowPos(logic.handle(), nullptr, 0, 0, 400, 200, SWP_NOZORDER);
  EXPECT_NE(::GetWindowLongPtrA(logic.handle(), GWL_STYLE) & WS_VSCROLL, 0);
  ::SetFocus(logic.item(kText));
  RevealFocus(logic.handle());
  RECT page{};
  RECT field{};
  ::GetWindowRect(logic.handle(), &page);
  ::GetWindowRect(logic.item(kText), &field);
  EXPECT_LE(field.bottom, page.bottom);
  EXPECT_GE(field.top, page.top);
  ::SetWindowPos(logic.handle(), nullptr, 0, 0, 700, 700, SWP_NOZORDER);
  EXPECT_EQ(::GetWindowLongPtrA(logic.handle(), GWL_STYLE) & WS_VSCROLL, 0);
}

TEST_F(Page, EscapeInItGoesToItsParent) {
  ::SendMessageA(logic.handle(), WM_COMMAND, IDCANCEL, 0);
  pump(parent.get());
  EXPECT_THAT(parent.commands, ElementsAre(static_cast<WPARAM>(IDCANCEL)));
  EXPECT_TRUE(logic.told.empty());
}

TEST_F(Page, RichEditTellsOfChangesFocusAndSelection) {
  dialog().setText(kText, "one two");
  EXPECT_EQ(logic.count("Changed 2026"), 1);
  dialog().focus(kText);
  EXPECT_EQ(logic.count("GotFocus 2026"), 1);
  dialog().caretToEnd(kText);
  EXPECT_FALSE(dialog().hasSelection(kText));
  dialog().selectAll(kText);
  EXPECT_TRUE(dialog().hasSelection(kText));
  dialog().replaceSelection(kText, "three");
  EXPECT_EQ(dialog().text(kText).substr(0, 5), "three");
}

TEST_F(Page, EmptyRichEditHasNoSelectionEvenWhenAllIsSelected) {
  dialog().setText(kText, "");
  dialog().selectAll(kText);
  EXPECT_FALSE(dialog().hasSelection(kText));
}

TEST_F(Page, RichEditCopiesAndPastes) {
  dialog().setText(kText, "abc");
  ::SendMessageA(logic.item(kText), EM_SETSEL, 0, 2);
  dialog().copySelection(kText);
  dialog().setText(kText, "");
  dialog().paste(kText);
  EXPECT_EQ(dialog().text(kText), "ab");
}

TEST_F(Page, RichEditThatIsDisabledHasTheColourOfItsPage) {
  const auto grey = static_cast<LPARAM>(::GetSysColor(COLOR_3DFACE));
  const auto isGrey = [&] { return ::SendMessageA(logic.item(kText), EM_SETBKGNDCOLOR, FALSE, grey) == grey; };
  dialog().enable(kText, false);
  EXPECT_TRUE(isGrey());
  dialog().enable(kText, true);
  EXPECT_FALSE(isGrey());
}

TEST_F(Page, TabCharacterDoesNotEnterTheRichEdit) {
  dialog().setText(kText, "");
  ::SendMessageA(logic.item(kText), WM_CHAR, VK_TAB, 1);
  ::SendMessageA(logic.item(kText), WM_CHAR, 'x', 1);
  EXPECT_EQ(dialog().text(kText), "x");
}

}  // namespace
}  // namespace varlo::test
