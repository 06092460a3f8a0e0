// The program without a mouse: every key as the keyboard sends it.

#include <array>

#include "platform/main_window.h"
#include "shell/tabs/inventory_page.h"
#include "tests/desktop/desktop_fixture.h"

namespace varlo::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

const char* const kSaveQuestion = "Varlo PRO - Save Store Confirmation";

class Keyboard : public DesktopTest {
 protected:
  Keyboard() { start(); }

  // The control that has the focus, of a combo box the box itself; 0 for none.
  [[nodiscard]] int focus() {
    int id = 0;
    program().onWindowThread([&] {
      HWND focused = ::GetFocus();
      const HWND outer = focused == nullptr ? nullptr : ::GetParent(focused);
      std::array<char, 16> name{};
      if (outer != nullptr) ::GetClassNameA(outer, name.data(), static_cast<int>(name.size()));
      if (std::string_view(name.data()) == "ComboBox") focused = outer;
      id = focused == nullptr ? 0 : ::GetDlgCtrlID(focused);
    });
    return id;
  }
  // Goes on with Tab until a control has the focus.
  void tabTo(ControlId control) {
    for (int i = 0; i < 60 && focus() != control; ++i) PressKey(program(), VK_TAB);
    ASSERT_EQ(focus(), control);
  }
  // The branches down to a product are opened by key as well.
  void goToBlackTea() {
    tabTo(main_window::kTree);
    for (const int arrow : {VK_HOME, VK_RIGHT, VK_RIGHT, VK_RIGHT, VK_RIGHT})
      PressKey(program(), static_cast<WORD>(arrow));
    ASSERT_EQ(selectedItem(), "Black tea");
  }
  void key(WORD key) { PressKey(program(), key); }
  void ctrl(WORD key) { PressWith(program(), VK_CONTROL, key); }
  void alt(WORD key) { PressWith(program(), VK_MENU, key); }
  void shift(WORD key) { PressWith(program(), VK_SHIFT, key); }
  // Keys that open a modal window.
  HWND pressFor(WORD modifier, WORD key, const std::string& title) {
    PressWith(program(), modifier, key);
    return WaitForBox(title);
  }
  [[nodiscard]] std::pair<LONG, LONG> selectionOf(ControlId field) {
    DWORD from = 0;
    DWORD to = 0;
    ::SendMessageA(program().field(field), EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    return {static_cast<LONG>(from), static_cast<LONG>(to)};
  }
};

TEST_F(Keyboard, MenusOpenAndRunByTheirLetters) {
  ASSERT_TRUE(EntryChecked(window(), static_cast<UINT>(Command::ToggleButtons)));
  alt('V');
  HWND popup = WaitForPopup();
  ASSERT_NE(popup, nullptr);
  TakePicture(popup, "menu_view");
  key('B');
  EXPECT_FALSE(EntryChecked(window(), static_cast<UINT>(Command::ToggleButtons)));
  alt('O');
  key('P');
  const HWND preferences = WaitForBox("Varlo Preferences");
  ASSERT_NE(preferences, nullptr);
  key(VK_ESCAPE);
  EXPECT_TRUE(WaitFor([&] { return ::IsWindow(preferences) == FALSE; }));
}

TEST_F(Keyboard, MenuEntryThatIsGreyDoesNothing) {
  alt('F');
  const HWND popup = WaitForPopup();
  ASSERT_NE(popup, nullptr);
  key('S');
  LeavePopup(program(), popup);
  EXPECT_FALSE(std::filesystem::exists(installation_.demo() / "Backup")) << "Nothing was saved.";
  EXPECT_TRUE(program().runs());
}

TEST_F(Keyboard, TabGoesThroughTheWholeWindowAndBack) {
  tabTo(main_window::kTree);
  std::vector<int> order;
  do {
    order.push_back(focus());
    key(VK_TAB);
  } while (focus() != main_window::kTree && order.size() < 60);
  const std::vector<int> left{main_window::kTree,     main_window::kPreview, main_window::kProduct,
                              main_window::kCategory, main_window::kShelf,   main_window::kList,
                              main_window::kBuild,    main_window::kItemList};
  ASSERT_GT(order.size(), left.size());
  EXPECT_EQ(std::vector<int>(order.begin(), order.begin() + 8), left);
  EXPECT_THAT(order, Contains(inventory::kTitle));
  EXPECT_THAT(order, Contains(inventory::kDescription));
  EXPECT_EQ(order.back(), main_window::kTabs);
  std::vector<int> back;
  for (std::size_t i = 0; i < order.size(); ++i) {
    shift(VK_TAB);
    back.push_back(focus());
  }
  EXPECT_EQ(std::vector<int>(back.rbegin(), back.rend()), order);
}

TEST_F(Keyboard, ArrowsMoveAmongTheCommandButtonsOnly) {
  tabTo(main_window::kPreview);
  key(VK_UP);
  EXPECT_EQ(focus(), main_window::kBuild);
  key(VK_DOWN);
  key(VK_DOWN);
  EXPECT_EQ(focus(), main_window::kProduct);
}

TEST_F(Keyboard, ArrowsChangeTheTab) {
  tabTo(main_window::kTabs);
  key(VK_RIGHT);
  EXPECT_EQ(::SendMessageA(tabs(), TCM_GETCURSEL, 0, 0), 1);
  EXPECT_EQ(program().field(inventory::kTitle), nullptr);
  key(VK_LEFT);
  EXPECT_EQ(formTitle(), "Home");
}

TEST_F(Keyboard, LettersOfTheLabelsGoToTheirFields) {
  tabTo(inventory::kPreview);
  const std::array<std::pair<WORD, ControlId>, 15> fields{{{'I', inventory::kTitle},
                                                           {'P', inventory::kPageTitle},
                                                           {'N', inventory::kFileName},
                                                           {'U', inventory::kProductCode},
                                                           {'K', inventory::kMetaKeywords},
                                                           {'M', inventory::kMetaDescription},
                                                           {'G', inventory::kImage},
                                                           {'L', inventory::kImageLink},
                                                           {'T', inventory::kTemplate},
                                                           {'C', inventory::kCost},
                                                           {'W', inventory::kWeight},
                                                           {'R', inventory::kFreight},
                                                           {'A', inventory::kTax},
                                                           {'D', inventory::kDescription},
                                                           {'I', inventory::kTitle}}};
  for (const auto& [letter, field] : fields) {
    alt(letter);
    EXPECT_EQ(focus(), field) << static_cast<char>(letter);
  }
  EXPECT_FALSE(canSave());
}

TEST_F(Keyboard, CtrlCAndCtrlVCopyAndPasteANodeInTheTree) {
  goToBlackTea();
  ASSERT_FALSE(isEnabled(Command::Paste));
  ctrl('C');
  EXPECT_TRUE(isEnabled(Command::Paste));
  ctrl('V');
  EXPECT_EQ(below(kBlackTea).back(), "Black tea");
  EXPECT_THAT(below(kBlackTea), SizeIs(7));
  EXPECT_TRUE(canSave());
}

TEST_F(Keyboard, CtrlCAndCtrlVCopyAndPasteTextInAField) {
  goToBlackTea();
  ctrl('C');  // a node that must not be pasted
  alt('I');
  tabTo(inventory::kTitle);
  key(VK_HOME);
  PressWith(program(), VK_SHIFT, VK_END);
  ctrl('C');
  key(VK_END);
  ctrl('V');
  EXPECT_EQ(formTitle(), "Black teaBlack tea");
  EXPECT_THAT(below(kTea),
              ElementsAre("Black teaBlack tea", "Green and white tea", "Herbal infusions", "The Tea Taster's Chest"));
  EXPECT_THAT(below({"Home", "Tea", "Black teaBlack tea"}), SizeIs(6)) << "No node came of it.";
}

TEST_F(Keyboard, DeleteInAFieldDeletesALetterAndNoNode) {
  goToBlackTea();
  tabTo(inventory::kTitle);
  key(VK_HOME);
  key(VK_DELETE);
  EXPECT_EQ(formTitle(), "lack tea");
  EXPECT_THAT(below(kTea),
              ElementsAre("lack tea", "Green and white tea", "Herbal infusions", "The Tea Taster's Chest"));
  EXPECT_FALSE(BoxIsOpen("Confirmation"));
}

TEST_F(Keyboard, DeleteInTheTreeAsksAndDeletesTheNode) {
  goToBlackTea();
  key(VK_DELETE);
  const HWND box = WaitForBox("Confirmation");
  ASSERT_NE(box, nullptr);
  key('Y');
  EXPECT_TRUE(WaitFor([&] { return ::IsWindow(box) == FALSE; }));
  program().settle();
  EXPECT_THAT(below(kTea), ElementsAre("Green and white tea", "Herbal infusions", "The Tea Taster's Chest"));
}

TEST_F(Keyboard, CtrlASelectsAllRowsInTheListAlone) {
  goToBlackTea();
  tabTo(main_window::kItemList);
  ctrl('A');
  EXPECT_THAT(SelectedRows(list()), SizeIs(6));
  key(VK_HOME);
  ASSERT_THAT(SelectedRows(list()), SizeIs(1));
  tabTo(inventory::kTitle);
  ctrl('A');
  EXPECT_THAT(SelectedRows(list()), SizeIs(1));
  EXPECT_EQ(formTitle(), "Assam Breakfast") << "Nothing was typed.";
}

TEST_F(Keyboard, CtrlASelectsTheWholeTextInTheRichEdit) {
  goToBlackTea();
  tabTo(inventory::kDescription);
  key(VK_RIGHT);
  ctrl('A');
  EXPECT_EQ(selectionOf(inventory::kDescription).first, 0);
  EXPECT_GE(selectionOf(inventory::kDescription).second, static_cast<LONG>(formText(inventory::kDescription).size()));
  EXPECT_THAT(SelectedRows(list()), IsEmpty());
  alt('E');
  const HWND popup = WaitForPopup();
  ASSERT_NE(popup, nullptr);
  EXPECT_EQ(EntriesOf(popup).front(), (PopupEntry{"&Copy", true})) << "A selected text can be copied.";
  LeavePopup(program(), popup);
}

TEST_F(Keyboard, TabLeavesTheRichEditAndPutsNothingIntoIt) {
  tabTo(inventory::kDescription);
  const std::string before = formText(inventory::kDescription);
  ASSERT_FALSE(before.empty());
  key(VK_TAB);
  EXPECT_EQ(focus(), main_window::kTabs);
  shift(VK_TAB);
  EXPECT_EQ(focus(), inventory::kDescription);
  shift(VK_TAB);
  EXPECT_NE(focus(), inventory::kDescription);
  EXPECT_EQ(formText(inventory::kDescription), before);
  EXPECT_FALSE(canSave());
}

// Each key alone shows the row that it goes to, wherever it comes from.
TEST_F(Keyboard, KeysInTheListShowTheNodeOfTheRow) {
  goToBlackTea();
  tabTo(main_window::kItemList);
  ASSERT_THAT(SelectedRows(list()), IsEmpty());
  const auto expectAfter = [&](WORD pressed, int row) {
    key(pressed);
    EXPECT_THAT(SelectedRows(list()), ElementsAre(row)) << pressed;
    EXPECT_EQ(formTitle(), CellOf(list(), row, 0)) << pressed;
  };
  expectAfter(VK_DOWN, 0);  // nothing was selected before
  expectAfter(VK_DOWN, 1);
  expectAfter(VK_DOWN, 2);
  expectAfter(VK_UP, 1);
  expectAfter(VK_END, 5);
  expectAfter(VK_HOME, 0);
  expectAfter(VK_NEXT, 5);
  expectAfter(VK_PRIOR, 0);
  expectAfter('L', 3);
  EXPECT_EQ(selectedItem(), "Black tea") << "The tree stays.";
  shift(VK_DOWN);
  EXPECT_THAT(SelectedRows(list()), ElementsAre(3, 4));
  EXPECT_EQ(formTitle(), CellOf(list(), 4, 0));
  shift(VK_DOWN);
  EXPECT_EQ(formTitle(), CellOf(list(), 5, 0));
  shift(VK_UP);
  EXPECT_THAT(SelectedRows(list()), ElementsAre(3, 4));
  EXPECT_EQ(formTitle(), CellOf(list(), 4, 0));
  expectAfter(VK_UP, 3);  // several were selected
  ctrl('A');
  expectAfter(VK_HOME, 0);
  EXPECT_FALSE(canSave());
}

TEST_F(Keyboard, CtrlWithAnArrowMovesInTheListWithoutShowingTheRow) {
  goToBlackTea();
  tabTo(main_window::kItemList);
  key(VK_HOME);
  ASSERT_EQ(formTitle(), CellOf(list(), 0, 0));
  ctrl(VK_DOWN);
  EXPECT_EQ(formTitle(), CellOf(list(), 0, 0));
  EXPECT_THAT(SelectedRows(list()), ElementsAre(0));
}

TEST_F(Keyboard, TheMenuKeyOpensThePopupOfTheTree) {
  goToBlackTea();
  key(VK_APPS);
  const HWND popup = WaitForPopup();
  ASSERT_NE(popup, nullptr);
  EXPECT_EQ(EntriesOf(popup).front().label, "Pre&view");
  key('C');
  EXPECT_TRUE(WaitFor([&] { return ::IsWindow(popup) == FALSE || ::IsWindowVisible(popup) == FALSE; }));
  program().settle();
  EXPECT_TRUE(isEnabled(Command::Paste));
}

TEST_F(Keyboard, ReturnPressesTheDefaultButtonOfADialog) {
  program().post(Command::SaveAs);
  const HWND dialog = WaitForBox("Save Project As");
  ASSERT_NE(dialog, nullptr);
  key(VK_RETURN);
  EXPECT_NE(::IsWindow(dialog), FALSE) << "OK is grey without a name.";
  TypeText(program(), "By Key");
  key(VK_RETURN);
  EXPECT_TRUE(WaitFor([&] { return ::IsWindow(dialog) == FALSE; }));
  EXPECT_EQ(TextOf(window()), "Varlo PRO - By Key");
}

TEST_F(Keyboard, ReturnInTheMainWindowDoesNotQuit) {
  tabTo(inventory::kTitle);
  key(VK_RETURN);
  EXPECT_TRUE(program().runs());
  EXPECT_EQ(formTitle(), "Home");
}

TEST_F(Keyboard, EscapeLeavesDialogs) {
  for (const auto& [command, title] :
       {std::pair{Command::Preferences, "Varlo Preferences"}, std::pair{Command::SaveAs, "Save Project As"},
        std::pair{Command::RestoreBackup, "Restore project from Backup"},
        std::pair{Command::BuildStore, "Store Build"}, std::pair{Command::PreviewPage, "Build"}}) {
    program().post(command);
    const HWND dialog = WaitForBox(title);
    ASSERT_NE(dialog, nullptr) << title;
    program().settle();
    key(VK_ESCAPE);
    EXPECT_TRUE(WaitFor([&] { return ::IsWindow(dialog) == FALSE; })) << title;
  }
  EXPECT_TRUE(program().runs());
}

TEST_F(Keyboard, EscapeQuitsTheProgramFromTheTree) {
  tabTo(main_window::kTree);
  key(VK_ESCAPE);
  EXPECT_TRUE(program().waitForEnd());
}

TEST_F(Keyboard, EscapeInTheRichEditQuitsAfterTheQuestion) {
  tabTo(inventory::kDescription);
  TypeText(program(), "x");
  ASSERT_TRUE(canSave());
  key(VK_ESCAPE);
  HWND box = WaitForBox(kSaveQuestion);
  ASSERT_NE(box, nullptr);
  key('N');
  EXPECT_TRUE(program().waitForEnd());
}

TEST_F(Keyboard, AltF4Quits) {
  tabTo(inventory::kTitle);
  alt(VK_F4);
  EXPECT_TRUE(program().waitForEnd());
}

}  // namespace
}  // namespace varlo::test
