#include "win32/list_control.h"

#include <array>
#include <string>
#include <vector>

#include "tests/win32/main_window_fixture.h"

namespace varlo::test {
namespace {

class ListControlTest : public MainWindowTest {
 protected:
  std::array<std::string, 4> names{"pear", "apple", "fig", "Cherry"};

  void SetUp() override {
    MainWindowTest::SetUp();
    const std::array columns{ListColumn{"Product", 140}, ListColumn{"Price", 40}, ListColumn{"Tax", 40}};
    list().setColumns(columns);
    for (std::string& name : names) list().append(&name);
    settle();
  }
  ListWindow& list() { return window->list(); }
  std::string cell(int row, int column) {
    std::array<char, 100> text{};
    LVITEMA shown{};
    shown.iSubItem = column;
    shown.pszText = text.data();
    shown.cchTextMax = static_cast<int>(text.size());
    ::SendMessageA(listHandle(), LVM_GETITEMTEXTA, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&shown));
    return text.data();
  }
  POINT middleOf(int row) {
    RECT place{LVIR_LABEL, 0, 0, 0};
    ::SendMessageA(listHandle(), LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    return {place.left + 5, (place.top + place.bottom) / 2};
  }
  void click(int row, UINT down = WM_LBUTTONDOWN, UINT up = WM_LBUTTONUP) {
    const POINT place = middleOf(row);
    ::PostMessageA(listHandle(), up, 0, MAKELPARAM(place.x, place.y));
    ::SendMessageA(listHandle(), down, MK_LBUTTON, MAKELPARAM(place.x, place.y));
    pump(handle);
  }
  [[nodiscard]] std::vector<std::string> changesTold() const {
    std::vector<std::string> changes;
    for (const std::string& line : logic.told) {
      if (line.starts_with("rowChanged")) changes.push_back(line);
    }
    return changes;
  }
  void expectKeyTells(WPARAM key, int row) {
    logic.told.clear();
    press(handle, listHandle(), key);
    EXPECT_EQ(changesTold(), std::vector<std::string>(3, "rowChanged " + std::to_string(row)));
    EXPECT_TRUE(list().isSelected(row));
  }
};

TEST_F(ListControlTest, AsksForEveryCellAndIconWhenItNeedsThem) {
  EXPECT_EQ(list().count(), 4);
  EXPECT_EQ(cell(1, 0), "apple/0");
  EXPECT_EQ(cell(1, 2), "apple/2");
  names[1] = "plum";
  EXPECT_EQ(cell(1, 1), "plum/1");
  LVITEMA row{};
  row.mask = LVIF_IMAGE;
  row.iItem = 1;
  ::SendMessageA(listHandle(), LVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&row));
  EXPECT_EQ(row.iImage, 11);
}

TEST_F(ListControlTest, SortsRowsAndTheirSelectionWithThem) {
  list().setSelected(0, true);
  list().sort([](ItemData first, ItemData second) {
    return ::_stricmp(static_cast<std::string*>(first)->c_str(), static_cast<std::string*>(second)->c_str());
  });
  EXPECT_EQ(list().data(0), &names[1]);
  EXPECT_EQ(list().data(1), &names[3]);
  EXPECT_EQ(list().data(3), &names[0]);
  EXPECT_TRUE(list().isSelected(3));
  EXPECT_FALSE(list().isSelected(0));
}

TEST_F(ListControlTest, RemovesRows) {
  list().remove(0);
  EXPECT_EQ(list().data(0), &names[1]);
  list().removeAll();
  EXPECT_EQ(list().count(), 0);
  EXPECT_EQ(list().data(0), nullptr);
  EXPECT_FALSE(list().isSelected(0));
}

TEST_F(ListControlTest, TellsOfAClickOnARowAndBesideTheRows) {
  click(2);
  EXPECT_EQ(logic.count("rowClicked 2"), 1);
  EXPECT_TRUE(list().isSelected(2));
  click(2, WM_LBUTTONDBLCLK);
  EXPECT_EQ(logic.count("rowDoubleClicked 2"), 1);
}

// The shell acts on the third change of a key press.
TEST_F(ListControlTest, TellsThreeChangesOfTheRowThatAKeyGoesTo) {
  click(0);
  expectKeyTells(VK_DOWN, 1);
  expectKeyTells(VK_END, 3);
  expectKeyTells(VK_UP, 2);
  expectKeyTells(VK_HOME, 0);
}

TEST_F(ListControlTest, TellsThreeChangesWhereNoRowHadTheFocusBefore) { expectKeyTells(VK_DOWN, 0); }

TEST_F(ListControlTest, TellsThreeChangesWhereSeveralRowsAreSelectedOrWere) {
  click(0);
  {
    const HeldKey held(VK_SHIFT);
    expectKeyTells(VK_DOWN, 1);
    expectKeyTells(VK_DOWN, 2);
    expectKeyTells(VK_UP, 1);
    expectKeyTells(VK_END, 3);
  }
  expectKeyTells(VK_UP, 2);
}

// The selection moves with the character, after the key itself.
TEST_F(ListControlTest, TellsThreeChangesOfTheRowThatBeginsWithATypedLetter) {
  click(0);
  expectKeyTells('F', 2);
}

TEST_F(ListControlTest, TellsNothingOfAKeyThatGoesNowhere) {
  click(3);
  logic.told.clear();
  press(handle, listHandle(), VK_DOWN);
  EXPECT_EQ(changesTold(), (std::vector<std::string>{}));
}

// It moves the focus and leaves the selection alone.
TEST_F(ListControlTest, TellsFewerThanThreeChangesOfAKeyWithCtrl) {
  click(0);
  const HeldKey held(VK_CONTROL);
  logic.told.clear();
  press(handle, listHandle(), VK_DOWN);
  EXPECT_EQ(changesTold(), (std::vector<std::string>{"rowChanged 0", "rowChanged 1"}));
}

TEST_F(ListControlTest, TellsOfControlWithAKey) {
  const HeldKey held(VK_CONTROL);
  ::SendMessageA(listHandle(), WM_KEYDOWN, 'A', 1);
  EXPECT_EQ(logic.count("listKey ctrl " + std::to_string(static_cast<int>(Key::A))), 1);
}

TEST_F(ListControlTest, FindsTheRowAtAPointButNotInTheHeading) {
  POINT place = middleOf(2);
  ::ClientToScreen(listHandle(), &place);
  EXPECT_EQ(list().rowAt({place.x, place.y}), 2);
  RECT window_place{};
  ::GetWindowRect(listHandle(), &window_place);
  EXPECT_EQ(list().rowAt({window_place.left + 10, window_place.top + 5}), kNoRow);
  EXPECT_EQ(list().rowAt({window_place.left + 10, window_place.bottom + 5}), kNoRow);
}

TEST_F(ListControlTest, TellsOfAClickOnAHeading) {
  NMLISTVIEW clicked{};
  clicked.hdr = {listHandle(), static_cast<UINT_PTR>(main_window::kItemList), LVN_COLUMNCLICK};
  clicked.iSubItem = 1;
  ::SendMessageA(handle, WM_NOTIFY, clicked.hdr.idFrom, reinterpret_cast<LPARAM>(&clicked));
  EXPECT_EQ(logic.count("column 1"), 1);
}

TEST_F(ListControlTest, TakesAThousandRowsQuicklyWhilePaintingIsHeld) {
  const ULONGLONG start = ::GetTickCount64();
  list().holdPainting(true);
  for (int i = 0; i < 1000; ++i) list().append(&names[0]);
  list().holdPainting(false);
  EXPECT_EQ(list().count(), 1004);
  EXPECT_LT(::GetTickCount64() - start, 1000U);
}

}  // namespace
}  // namespace varlo::test
