#include "win32/win32_main_window.h"

#include <array>
#include <string>

#include "shell/tabs/inventory_page.h"
#include "tests/win32/main_window_fixture.h"
#include "tests/win32/recording_logic.h"
#include "win32/main_window.h"
#include "win32/win32_screen.h"

namespace varlo::test {
namespace {

class Win32MainWindowTest : public MainWindowTest {
 protected:
  [[nodiscard]] static int number(Command command) { return static_cast<int>(command); }
  [[nodiscard]] UINT stateOf(Command command) const {
    return ::GetMenuState(::GetMenu(handle), static_cast<UINT>(command), MF_BYCOMMAND);
  }
  void createToolbar() {
    const std::array buttons{ToolbarButton{Command::NewStore, 0}, ToolbarButton{}, ToolbarButton{Command::Save, 2}};
    window->createToolbar(buttons);
  }
  // A key together with Ctrl, as the loop of the dialog gets it.
  void pressWithControl(HWND control, WPARAM key) {
    const HeldKey held(VK_CONTROL);
    press(handle, control, key);
  }
};

TEST_F(Win32MainWindowTest, EnablesAndTicksEntriesOfTheMenu) {
  window->enableEntry(Command::Save, false);
  EXPECT_NE(stateOf(Command::Save) & MF_GRAYED, 0U);
  window->enableEntry(Command::Save, true);
  EXPECT_EQ(stateOf(Command::Save) & MF_GRAYED, 0U);
  window->checkEntry(Command::ToggleToolbar, true);
  EXPECT_NE(stateOf(Command::ToggleToolbar) & MF_CHECKED, 0U);
  window->checkEntry(Command::ToggleToolbar, false);
  EXPECT_EQ(stateOf(Command::ToggleToolbar) & MF_CHECKED, 0U);
}

TEST_F(Win32MainWindowTest, MenuAndCommandButtonsSendCommands) {
  ::SendMessageA(handle, WM_COMMAND, static_cast<WPARAM>(Command::Save), 0);
  EXPECT_EQ(logic.count("command " + std::to_string(number(Command::Save))), 1);
  constexpr std::array<std::pair<ControlId, Command>, 6> kButtons{{{main_window::kPreview, Command::PreviewPage},
                                                                   {main_window::kProduct, Command::NewProduct},
                                                                   {main_window::kCategory, Command::NewCategory},
                                                                   {main_window::kShelf, Command::NewShelf},
                                                                   {main_window::kList, Command::NewList},
                                                                   {main_window::kBuild, Command::BuildStore}}};
  for (const auto& [button, command] : kButtons) {
    ::SendMessageA(item(button), BM_CLICK, 0, 0);
    EXPECT_EQ(logic.count("command " + std::to_string(number(command))), 1) << button;
  }
}

TEST_F(Win32MainWindowTest, EscapeAndTheCloseBoxAskToClose) {
  press(handle, treeHandle(), VK_ESCAPE);
  EXPECT_EQ(logic.count("closeRequested"), 1);
  ::SendMessageA(handle, WM_CLOSE, 0, 0);
  EXPECT_EQ(logic.count("closeRequested"), 2);
}

TEST_F(Win32MainWindowTest, RunsCommandsThatTheScreenPosted) {
  Win32Screen screen(handle);
  screen.postCommand(Command::RefillTree);
  EXPECT_EQ(logic.count("command " + std::to_string(number(Command::RefillTree))), 0);
  pump(handle);
  EXPECT_EQ(logic.count("command " + std::to_string(number(Command::RefillTree))), 1);
}

TEST_F(Win32MainWindowTest, ToolbarSendsCommandsAndAsksForItsTips) {
  createToolbar();
  const HWND toolbar = item(main_window::kToolbar);
  EXPECT_EQ(::SendMessageA(toolbar, TB_BUTTONCOUNT, 0, 0), 3);
  window->enableTool(Command::Save, false);
  EXPECT_EQ(::SendMessageA(toolbar, TB_ISBUTTONENABLED, static_cast<WPARAM>(Command::Save), 0), FALSE);
  window->enableTool(Command::Save, true);
  EXPECT_NE(::SendMessageA(toolbar, TB_ISBUTTONENABLED, static_cast<WPARAM>(Command::Save), 0), FALSE);

  NMTTDISPINFOA tip{};
  tip.hdr = {reinterpret_cast<HWND>(::SendMessageA(toolbar, TB_GETTOOLTIPS, 0, 0)),
             static_cast<UINT_PTR>(Command::Save), TTN_NEEDTEXTA};
  ::SendMessageA(handle, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&tip));
  EXPECT_STREQ(tip.lpszText, "The tip");
  EXPECT_EQ(logic.count("toolTip " + std::to_string(number(Command::Save))), 1);
}

TEST_F(Win32MainWindowTest, TellsOfTheTabThatIsChosen) {
  constexpr std::array<std::string_view, 3> kTabs{"Inventory", "Template", "Freight"};
  window->setTabs(kTabs);
  EXPECT_EQ(::SendMessageA(item(main_window::kTabs), TCM_GETITEMCOUNT, 0, 0), 3);
  ::SendMessageA(item(main_window::kTabs), TCM_SETCURFOCUS, 2, 0);
  EXPECT_EQ(logic.count("tab 2"), 1);
}

TEST_F(Win32MainWindowTest, OpensOnePageAtATimeBetweenButtonsAndTabs) {
  RecordingLogic first(InventoryPage::kShape);
  static constexpr DialogShape kEmpty{.id = 71, .form = Form::Page};
  RecordingLogic second(kEmpty);
  Dialog* page = window->openPage(first.shared());
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(first.told.front(), "opened");
  ASSERT_NE(window->openPage(second.shared()), nullptr);
  EXPECT_EQ(first.told.back(), "closed");
  EXPECT_EQ(::GetWindow(second.handle(), GW_HWNDPREV), item(main_window::kItemList));
  EXPECT_EQ(::GetWindow(second.handle(), GW_HWNDNEXT), item(main_window::kTabs));
  window->placePage({300, 40, 200, 100});
  EXPECT_EQ(second.window->clientSize(), (Size{200, 100}));
  EXPECT_EQ(second.told.back(), "resized");
  window->closePage();
  EXPECT_EQ(second.told.back(), "closed");
  window->closePage();
}

TEST_F(Win32MainWindowTest, KnowsWhereTheFocusIs) {
  const auto kept = std::make_shared<RecordingLogic>(InventoryPage::kShape);
  RecordingLogic& page = *kept;
  window->openPage(kept);
  ::SetFocus(treeHandle());
  EXPECT_EQ(window->focus().place, Focus::Place::Tree);
  ::SetFocus(listHandle());
  EXPECT_EQ(window->focus().place, Focus::Place::ItemList);
  ::SetFocus(item(main_window::kTabs));
  EXPECT_EQ(window->focus().place, Focus::Place::Elsewhere);
  ::SetFocus(page.item(inventory::kTitle));
  EXPECT_EQ(window->focus().place, Focus::Place::Page);
  EXPECT_EQ(window->focus().control, inventory::kTitle);
  ::SetFocus(::GetWindow(page.item(inventory::kTemplate), GW_CHILD));
  EXPECT_EQ(window->focus().control, inventory::kTemplate);
}

TEST_F(Win32MainWindowTest, ClosingThePageUnderTheFocusLeavesItOnTheTabs) {
  const auto kept = std::make_shared<RecordingLogic>(InventoryPage::kShape);
  RecordingLogic& page = *kept;
  window->openPage(kept);
  ::SetFocus(page.item(inventory::kTitle));
  window->closePage();
  EXPECT_EQ(::GetFocus(), item(main_window::kTabs));
}

TEST_F(Win32MainWindowTest, TellsWhenTheFocusHasMoved) {
  ::SetFocus(listHandle());
  EXPECT_EQ(logic.count("focusMoved"), 0);
  pump(handle);
  EXPECT_GE(logic.count("focusMoved"), 1);
}

TEST_F(Win32MainWindowTest, CopyAndPasteKeysAreCommandsInTreeAndListOnly) {
  const auto kept = std::make_shared<RecordingLogic>(InventoryPage::kShape);
  RecordingLogic& page = *kept;
  window->openPage(kept);
  const std::string copy = "command " + std::to_string(number(Command::Copy));
  ::SetFocus(treeHandle());
  pressWithControl(treeHandle(), 'C');
  EXPECT_EQ(logic.count(copy), 1);
  ::SetFocus(listHandle());
  pressWithControl(listHandle(), 'C');
  EXPECT_EQ(logic.count(copy), 2);
  pressWithControl(listHandle(), 'V');
  EXPECT_EQ(logic.count("command " + std::to_string(number(Command::Paste))), 1);
  ::SetFocus(page.item(inventory::kTitle));
  pressWithControl(page.item(inventory::kTitle), 'C');
  EXPECT_EQ(logic.count(copy), 2);
}

TEST_F(Win32MainWindowTest, KeysOfGreyEntriesDoNothing) {
  window->enableEntry(Command::Copy, false);
  ::SetFocus(treeHandle());
  pressWithControl(treeHandle(), 'C');
  EXPECT_EQ(logic.count("command " + std::to_string(number(Command::Copy))), 0);
}

TEST_F(Win32MainWindowTest, FindAndSelectAllKeysAreCommandsInARichEdit) {
  const auto kept = std::make_shared<RecordingLogic>(InventoryPage::kShape);
  RecordingLogic& page = *kept;
  window->openPage(kept);
  const HWND text = page.item(inventory::kDescription);
  ::SetFocus(text);
  pressWithControl(text, 'F');
  EXPECT_EQ(logic.count("command " + std::to_string(number(Command::Find))), 1);
  pressWithControl(text, 'A');
  EXPECT_EQ(logic.count("command " + std::to_string(number(Command::SelectAll))), 1);
}

TEST_F(Win32MainWindowTest, MenuLooksAtTheStatesWhenItOpens) {
  ::SendMessageA(handle, WM_INITMENU, reinterpret_cast<WPARAM>(::GetMenu(handle)), 0);
  EXPECT_EQ(logic.count("focusMoved"), 1);
}

TEST_F(Win32MainWindowTest, DragsATreeItemWithTicksUntilTheMouseIsReleased) {
  const TreeItem a = window->tree().insert({.label = "a", .icon = 10});
  ::UpdateWindow(treeHandle());
  ASSERT_TRUE(window->beginTreeDrag(a));
  EXPECT_EQ(::GetCapture(), handle);
  ::SendMessageA(handle, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(50, 60));
  EXPECT_EQ(logic.count("dragMoved"), 1);
  window->moveDrag(window->cursor());
  for (int i = 0; i < 20 && logic.count("dragTicked") < 2; ++i) {
    ::Sleep(20);
    pump(handle);
  }
  EXPECT_GE(logic.count("dragTicked"), 2);
  ::SendMessageA(handle, WM_LBUTTONUP, 0, MAKELPARAM(50, 60));
  EXPECT_EQ(logic.count("dragReleased"), 1);
  window->endDrag();
  EXPECT_NE(::GetCapture(), handle);
  EXPECT_EQ(logic.count("dragReleased"), 1);
  window->endDrag();
  settle();
  ::Sleep(120);
  pump(handle);
  EXPECT_EQ(logic.count("dragTicked"), 0);
}

TEST_F(Win32MainWindowTest, LosingTheMouseReleasesADrag) {
  const TreeItem a = window->tree().insert({.label = "a"});
  ::UpdateWindow(treeHandle());
  ASSERT_TRUE(window->beginTreeDrag(a));
  ::ReleaseCapture();
  EXPECT_EQ(logic.count("dragReleased"), 1);
  window->endDrag();
}

TEST_F(Win32MainWindowTest, EscapeWhileDraggingDoesNotQuit) {
  const TreeItem a = window->tree().insert({.label = "a"});
  ::UpdateWindow(treeHandle());
  ASSERT_TRUE(window->beginTreeDrag(a));
  press(handle, treeHandle(), VK_ESCAPE);
  EXPECT_EQ(logic.count("closeRequested"), 0);
  window->endDrag();
}

TEST_F(Win32MainWindowTest, DragOfWhatIsNotThereDoesNotBegin) {
  EXPECT_FALSE(window->beginTreeDrag(4711));
  EXPECT_FALSE(window->beginListDrag(3));
  EXPECT_NE(::GetCapture(), handle);
}

TEST_F(Win32MainWindowTest, DragsARow) {
  std::string name = "row";
  const std::array columns{ListColumn{"Product", 140}};
  window->list().setColumns(columns);
  window->list().append(&name);
  ::UpdateWindow(listHandle());
  EXPECT_TRUE(window->beginListDrag(0));
  window->endDrag();
}

TEST_F(Win32MainWindowTest, TellsItsMeasures) {
  EXPECT_GT(window->rowHeight(), 15);
  EXPECT_EQ(window->clientSize().width, window->scaled(MainWindowShape().size.width));
}

TEST_F(Win32MainWindowTest, KeyForThePopupMenuOpensItForWhatIsSelected) {
  ::SendMessageA(handle, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(treeHandle()), -1);
  EXPECT_EQ(logic.count("treeRightClicked"), 0);
  window->tree().select(window->tree().insert({.label = "a"}));
  ::SendMessageA(handle, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(treeHandle()), -1);
  EXPECT_EQ(logic.count("treeRightClicked"), 1);
  // A right click has a place, and was told by the tree already. (On the caption it would open the window's own
  // menu.)
  RECT place{};
  ::GetWindowRect(treeHandle(), &place);
  ::SendMessageA(handle, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(treeHandle()),
                 MAKELPARAM(place.left + 5, place.top + 5));
  EXPECT_EQ(logic.count("treeRightClicked"), 1);
}

// Ends the window as soon as it is open.
class EndingLogic : public RecordingMainLogic {
 public:
  void opened(MainWindow& window) override {
    RecordingMainLogic::opened(window);
    window.end();
  }
};

TEST(MainWindowRun, EndsAndTellsItsLogicThatItCloses) {
  EndingLogic logic;
  HWND created = nullptr;
  EXPECT_TRUE(RunMainWindow(logic, [&](HWND window) { created = window; }));
  EXPECT_NE(created, nullptr);
  EXPECT_EQ(logic.count("closing"), 1);
}

}  // namespace
}  // namespace varlo::test
