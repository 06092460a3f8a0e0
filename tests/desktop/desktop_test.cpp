// The program in its real window, on the demo store.

#include "platform/main_window.h"
#include "shell/tabs/inventory_page.h"
#include "tests/desktop/desktop_fixture.h"

namespace varlo::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class Desktop : public DesktopTest {};

TEST_F(Desktop, OpensTheProjectOfTheConfigurationAsATreeWithItsFirstPageInTheForm) {
  start();
  EXPECT_EQ(TextOf(program().window()), "Varlo PRO - Demo");
  EXPECT_THAT(LabelsBelow(tree(), nullptr), ElementsAre("Home"));
  EXPECT_THAT(below({"Home"}), ElementsAre("Tea", "Teaware", "Kitchen", "Table", "Larder", "Gifts",
                                           "Delivery and returns", "About us"));
  EXPECT_EQ(CellsOf(list(), 0), below({"Home"}));
  EXPECT_EQ(TextOf(program().field(inventory::kTitle)), "Home");
  EXPECT_FALSE(canSave());
  TakePicture(program().window(), "main_window");
}

TEST_F(Desktop, ShowsWhatIsSelectedInTheTree) {
  start();
  pick(kBlackTea);
  EXPECT_EQ(TextOf(program().field(inventory::kTitle)), "Black tea");
  EXPECT_EQ(TextOf(program().field(inventory::kFileName)), "black.htm");
  EXPECT_EQ(CellsOf(list(), 0).size(), 6U);
  EXPECT_EQ(CellOf(list(), 0, 0), "Assam Breakfast");
  pick({"Home", "Tea", "Black tea", "Earl Grey with Cornflower"});
  EXPECT_EQ(TextOf(program().field(inventory::kProductCode)).empty(), false);
  EXPECT_THAT(CellsOf(list(), 0), IsEmpty());
  TakePicture(program().window(), "product");
}

TEST_F(Desktop, LetsTheTreeFollowTheTitleWithEachKey) {
  start();
  pick(kBlackTea);
  typeInto(inventory::kTitle, "s");
  EXPECT_EQ(below({"Home", "Tea"}).at(0), "Black teas");
  typeInto(inventory::kTitle, "!");
  EXPECT_EQ(below({"Home", "Tea"}).at(0), "Black teas!");
  EXPECT_TRUE(canSave());
}

TEST_F(Desktop, KeepsOnlyDigitsAndPointsInACost) {
  start();
  pick({"Home", "Tea", "Black tea", "Assam Breakfast"});
  Click(program(), CentreOf(program().field(inventory::kCost)));
  PressWith(program(), VK_CONTROL, VK_END);
  for (std::size_t rest = TextOf(program().field(inventory::kCost)).size(); rest > 0; --rest) {
    PressKey(program(), VK_BACK);
  }
  TypeText(program(), "12a.5");
  EXPECT_EQ(TextOf(program().field(inventory::kCost)), "12.5");
  TypeText(program(), "0");
  EXPECT_EQ(TextOf(program().field(inventory::kCost)), "12.50") << "The caret stays behind the text.";
}

TEST_F(Desktop, SortsTheListByTheColumnThatIsClicked) {
  start();
  pick(kBlackTea);
  const HWND header = reinterpret_cast<HWND>(::SendMessageA(list(), LVM_GETHEADER, 0, 0));
  RECT place{};
  ::SendMessageA(header, HDM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&place));
  POINT point{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
  ::ClientToScreen(header, &point);
  Click(program(), point);
  EXPECT_THAT(CellsOf(list(), 0),
              ElementsAre("Assam Breakfast", "Ceylon Orange Pekoe", "Darjeeling First Flush",
                          "Earl Grey with Cornflower", "Keemun, Hand Rolled", "Lapsang Souchong"));
  EXPECT_EQ(below(kBlackTea).at(1), "Darjeeling First Flush") << "The store's order stays.";
  EXPECT_FALSE(canSave());
}

TEST_F(Desktop, DeletesTheRowsThatAreSelected) {
  start();
  pick(kBlackTea);
  Click(program(), CentreOfRow(list(), 1));
  ClickWith(program(), VK_CONTROL, CentreOfRow(list(), 3));
  ASSERT_THAT(SelectedRows(list()), ElementsAre(1, 3));
  PressKey(program(), VK_DELETE);
  program().settle();
  EXPECT_THAT(below(kBlackTea), ElementsAre("Assam Breakfast", "Earl Grey with Cornflower", "Ceylon Orange Pekoe",
                                            "Keemun, Hand Rolled"));
  EXPECT_TRUE(canSave());
}

TEST_F(Desktop, AsksBeforeItDeletesACategory) {
  start();
  pick(kGreenTea);
  PressKey(program(), VK_DELETE);
  HWND box = WaitForBox("Confirmation");
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(BoxText(box), "You are about to delete a Category and all nodes below it. Do you wish to proceed?");
  TakePicture(box, "delete_question");
  AnswerBox(program(), box, IDNO);
  EXPECT_THAT(below({"Home", "Tea"}), Contains("Green and white tea"));
  PressKey(program(), VK_DELETE);
  box = WaitForBox("Confirmation");
  ASSERT_NE(box, nullptr);
  AnswerBox(program(), box, IDYES);
  EXPECT_THAT(below({"Home", "Tea"}), Not(Contains("Green and white tea")));
}

TEST_F(Desktop, DragsAProductFromTheTreeToAnotherCategory) {
  start();
  pick(kGreenTea);
  pick({"Home", "Tea", "Black tea", "Assam Breakfast"});
  const HTREEITEM from = FindItem(tree(), {"Home", "Tea", "Black tea", "Assam Breakfast"});
  const HTREEITEM to = FindItem(tree(), kGreenTea);
  const POINT target = CentreOfItem(tree(), to);
  Drag(program(), CentreOfItem(tree(), from), target);
  EXPECT_THAT(below(kBlackTea), Not(Contains("Assam Breakfast")));
  EXPECT_EQ(below(kGreenTea).back(), "Assam Breakfast");
  EXPECT_FALSE(canSave()) << "A move alone is not taken for a change.";
}

TEST_F(Desktop, DragsRowsOfTheListIntoTheTree) {
  start();
  pick(kBlackTea);
  Click(program(), CentreOfRow(list(), 0));
  ClickWith(program(), VK_CONTROL, CentreOfRow(list(), 2));
  const POINT target = CentreOfItem(tree(), FindItem(tree(), kGreenTea));
  Drag(program(), CentreOfRow(list(), 2), target);
  const std::vector<std::string> moved = below(kGreenTea);
  ASSERT_EQ(moved.size(), 7U);
  EXPECT_EQ(moved.at(5), "Assam Breakfast");
  EXPECT_EQ(moved.at(6), "Earl Grey with Cornflower");
  EXPECT_EQ(CellsOf(list(), 0), moved);
}

TEST_F(Desktop, MovesANodeAmongItsSiblingsByKey) {
  start();
  pick(kBlackTea);
  PressKey(program(), VK_ADD);
  EXPECT_THAT(below({"Home", "Tea"}),
              ElementsAre("Green and white tea", "Black tea", "Herbal infusions", "The Tea Taster's Chest"));
  PressKey(program(), VK_SUBTRACT);
  EXPECT_EQ(below({"Home", "Tea"}).at(1), "Green and white tea");
  PressWith(program(), VK_CONTROL, VK_DOWN);
  EXPECT_EQ(below({"Home", "Tea"}).at(1), "Black tea");
  EXPECT_FALSE(canSave());
}

TEST_F(Desktop, OffersThePopupMenuOfTheTree) {
  start();
  pick({"Home"});
  RightClick(program(), CentreOfItem(tree(), FindItem(tree(), {"Home", "Tea"})));
  HWND popup = WaitForPopup();
  ASSERT_NE(popup, nullptr);
  const std::vector<PopupEntry> entries = EntriesOf(popup);
  std::vector<std::string> labels;
  for (const PopupEntry& entry : entries) labels.push_back(entry.label);
  EXPECT_THAT(labels, ElementsAre("Pre&view", "&New", "&Copy", "&Paste", "Delete", "Disable", "Enable"));
  EXPECT_FALSE(entries.at(3).enabled) << "Nothing was copied yet.";
  EXPECT_TRUE(entries.at(5).enabled);
  EXPECT_FALSE(entries.at(6).enabled);
  TakePicture(popup, "tree_popup");
  ChooseEntry(program(), popup, 2);
  EXPECT_EQ(TextOf(program().field(inventory::kTitle)), "Tea") << "The item under the mouse is current.";
  RightClick(program(), CentreOfItem(tree(), FindItem(tree(), {"Home", "Tea"})));
  popup = WaitForPopup();
  ASSERT_NE(popup, nullptr);
  EXPECT_TRUE(EntriesOf(popup).at(3).enabled);
  LeavePopup(program(), popup);
}

TEST_F(Desktop, OffersThePopupMenuOfTheList) {
  start();
  pick(kBlackTea);
  RightClick(program(), CentreOfRow(list(), 1));
  const HWND popup = WaitForPopup();
  ASSERT_NE(popup, nullptr);
  EXPECT_EQ(EntriesOf(popup).back().label, "Select &All");
  ChooseEntry(program(), popup, static_cast<int>(EntriesOf(popup).size()) - 1);
  EXPECT_EQ(SelectedRows(list()).size(), 6U);
}

TEST_F(Desktop, HasAPageForEachTab) {
  start();
  const HWND tabs = program().control(main_window::kTabs);
  for (int tab = 6; tab >= 0; --tab) {
    RECT place{};
    ::SendMessageA(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&place));
    POINT point{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
    ::ClientToScreen(tabs, &point);
    Click(program(), point);
    EXPECT_NE(program().page(), nullptr) << tab;
    TakePicture(program().window(), "tab_" + std::to_string(tab));
  }
  EXPECT_EQ(TextOf(program().field(inventory::kTitle)), "Home");
}

TEST_F(Desktop, LosesNothingWhenTheTabIsChangedWhileTyping) {
  start();
  pick(kBlackTea);
  typeInto(inventory::kTitle, "x");
  ::SendMessageA(program().control(main_window::kTabs), TCM_SETCURFOCUS, 1, 0);
  program().settle();
  ::SendMessageA(program().control(main_window::kTabs), TCM_SETCURFOCUS, 0, 0);
  program().settle();
  EXPECT_EQ(TextOf(program().field(inventory::kTitle)), "Black teax");
}

TEST_F(Desktop, HidesToolbarAndButtons) {
  start();
  const auto top = [&] {
    RECT place{};
    ::GetWindowRect(tree(), &place);
    return place;
  };
  const RECT before = top();
  program().command(Command::ToggleToolbar);
  EXPECT_LT(top().top, before.top);
  EXPECT_FALSE(EntryChecked(program().window(), static_cast<UINT>(Command::ToggleToolbar)));
  program().command(Command::ToggleButtons);
  EXPECT_GT(top().right, before.right);
  EXPECT_EQ(::IsWindowVisible(program().control(main_window::kProduct)), FALSE);
  TakePicture(program().window(), "without_toolbar_and_buttons");
}

TEST_F(Desktop, QuitsWithoutSavingOnNo) {
  const std::string before = BytesOf(installation_.demo() / "Demo.stp");
  start();
  pick(kBlackTea);
  typeInto(inventory::kTitle, "x");
  program().post(Command::Quit);
  const HWND box = WaitForBox("Varlo PRO - Save Store Confirmation");
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(BoxText(box), "The current project has changed.  Do you wish to save your changes?");
  ::PostMessageA(box, WM_COMMAND, IDNO, 0);
  EXPECT_TRUE(program().waitForEnd());
  EXPECT_FALSE(BoxIsOpen("Varlo PRO - Save Store Confirmation")) << "There is no second question.";
  EXPECT_EQ(BytesOf(installation_.demo() / "Demo.stp"), before);
}

TEST_F(Desktop, SavesOnYesBeforeItQuits) {
  start();
  pick(kBlackTea);
  typeInto(inventory::kTitle, "x");
  program().post(Command::Quit);
  const HWND box = WaitForBox("Varlo PRO - Save Store Confirmation");
  ASSERT_NE(box, nullptr);
  ::PostMessageA(box, WM_COMMAND, IDYES, 0);
  EXPECT_TRUE(program().waitForEnd());
  EXPECT_THAT(BytesOf(installation_.demo() / "Demo.stp"), ::testing::HasSubstr("Black teax"));
}

}  // namespace
}  // namespace varlo::test
