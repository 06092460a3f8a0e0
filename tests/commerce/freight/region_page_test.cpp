#include "commerce/freight/region_page.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commerce/freight/freight_rows.h"
#include "commerce/freight/region_lists.h"
#include "core/store/record.h"
#include "tests/support/fake_window.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;
using namespace regions;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

// A window with nothing but the page.
class RegionWindow : public DialogLogic {
 public:
  explicit RegionWindow(Program& program) : page(program) {}
  [[nodiscard]] const DialogShape& shape() const override {
    static constexpr DialogShape kShape{.size = {480, 300}, .rows = kRows};
    return kShape;
  }
  void opened(Dialog& dialog) override { RegionPageOpen(page, dialog); }
  void notified(Dialog& dialog, const ControlEvent& event) override { RegionPageControl(page, dialog, event); }
  std::string cellText(ControlId list, int row, int /*column*/) override { return RegionPageText(page, list, row); }

  RegionPage page;
};

class RegionPageTest : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
  RegionWindow logic{t.program};
  FakeWindow window{logic};

  void SetUp() override {
    for (const char* name : {"Australia", "Brazil", "Chile", "Denmark"}) know(name);
    window.open();
  }
  void know(const std::string& name) {
    FreightRegion* region = FreightRegionMake();
    region->name.assign(std::string_view(name));
    region->code.assign(std::string_view(name));
    RecordAppend(t.config().regionCatalogue, t.config().regionCatalogueTail, region);
  }
  std::vector<std::string> rows(ControlId list) {
    std::vector<std::string> rows;
    for (int row = 0; row < window.rowCount(list); ++row) rows.push_back(window.cell(list, row, 0));
    return rows;
  }
  std::vector<std::string> offered() { return rows(kOffered); }
  std::vector<std::string> store() { return rows(kStore); }
  void take(const std::vector<int>& picked) {
    window.pickRows(kOffered, picked);
    window.press(kAdd);
  }
};

TEST_F(RegionPageTest, OpensWithGreyButtons) {
  EXPECT_THAT(window.headings(kOffered), ElementsAre("Regions:"));
  EXPECT_THAT(window.headings(kStore), ElementsAre("Deliver to:"));
  for (const ControlId button : {kAdd, kRemove, kAddOther}) EXPECT_FALSE(window.isEnabled(button));
  EXPECT_THAT(offered(), SizeIs(4));
  EXPECT_THAT(store(), IsEmpty());
}

TEST_F(RegionPageTest, MovesEverySelectedRegion) {
  take({0, 2});
  EXPECT_THAT(offered(), ElementsAre("Brazil", "Denmark"));
  EXPECT_THAT(store(), ElementsAre("Australia", "Chile"));
  EXPECT_FALSE(window.isEnabled(kAdd)) << "nothing is selected any more";
  window.pickRows(kStore, {0, 1});
  window.press(kRemove);
  EXPECT_THAT(offered(), ElementsAre("Australia", "Brazil", "Chile", "Denmark"));
  EXPECT_THAT(store(), IsEmpty());
}

TEST_F(RegionPageTest, ASelectionInOneListTakesTheButtonOfTheOtherAway) {
  take({0});
  window.pickRow(kOffered, 0);
  EXPECT_TRUE(window.isEnabled(kAdd));
  window.pickRow(kStore, 0);
  EXPECT_TRUE(window.isEnabled(kRemove));
  EXPECT_FALSE(window.isEnabled(kAdd));
  window.pickRow(kStore, kNoRow);
  EXPECT_FALSE(window.isEnabled(kRemove));
}

TEST_F(RegionPageTest, TheDeleteKeyTakesOutOfTheRightListAlone) {
  take({0, 1});
  window.pickRows(kStore, {1});
  window.pressKey(kStore, Key::Delete);
  EXPECT_THAT(store(), ElementsAre("Australia"));
  window.pickRow(kOffered, 0);
  window.pressKey(kOffered, Key::Delete);
  EXPECT_THAT(store(), ElementsAre("Australia"));
  EXPECT_THAT(offered(), ElementsAre("Brazil", "Chile", "Denmark"));
}

TEST_F(RegionPageTest, TheMenuOfEitherListSelectsAllOfIt) {
  t.screen.onMenu = [](const PopupMenu& menu) { return menu.front().command; };
  window.rightClickRow(kOffered, 1);
  EXPECT_THAT(window.selectedRows(kOffered), SizeIs(4));
  ASSERT_THAT(t.screen.menus, SizeIs(1));
  ASSERT_THAT(t.screen.menus[0], SizeIs(1));
  EXPECT_EQ(t.screen.menus[0][0].label, "Select &All");
  window.press(kAdd);
  EXPECT_THAT(offered(), IsEmpty());
  window.rightClickRow(kStore, kNoRow);
  EXPECT_THAT(window.selectedRows(kStore), SizeIs(4));
  EXPECT_NE(t.screen.menus[0][0].command, t.screen.menus[1][0].command) << "each has its own help";
  window.press(kRemove);
  EXPECT_THAT(store(), IsEmpty());
}

TEST_F(RegionPageTest, AMenuThatIsLeftSelectsNothing) {
  window.rightClickRow(kOffered, 1);
  EXPECT_THAT(window.selectedRows(kOffered), ElementsAre(1));
}

TEST_F(RegionPageTest, ATypedRegionGoesToTheEndAndTheFieldKeepsItsText) {
  const std::string name(300, 'r');
  window.type(kOther, name);
  EXPECT_TRUE(window.isEnabled(kAddOther));
  window.press(kAddOther);
  window.press(kAddOther);
  EXPECT_THAT(store(), ElementsAre(name, name));
  EXPECT_EQ(window.text(kOther), name);
  window.type(kOther, "");
  EXPECT_FALSE(window.isEnabled(kAddOther));
}

TEST_F(RegionPageTest, AClickOnAHeadingSortsNothing) {
  take({3});
  take({0});
  window.clickHeading(kStore, 0);
  EXPECT_THAT(window.displayOrder(kStore), ElementsAre(0, 1));
  EXPECT_THAT(store(), ElementsAre("Denmark", "Australia"));
}

TEST_F(RegionPageTest, ControlsOfOthersAreNotItsOwn) {
  EXPECT_FALSE(RegionPageControl(logic.page, window, {.control = kOk}));
  EXPECT_TRUE(RegionPageControl(logic.page, window, {.control = kOther}));
}

TEST_F(RegionPageTest, TwoHundredAndFiftyRegionsMoveAtOnce) {
  for (int i = 0; i < 246; ++i) know("Region " + std::to_string(i));
  RegionPageOpen(logic.page, window);
  t.screen.onMenu = [](const PopupMenu& menu) { return menu.front().command; };
  window.rightClickRow(kOffered, 0);
  window.press(kAdd);
  EXPECT_THAT(store(), SizeIs(250));
  window.rightClickRow(kStore, 0);
  window.press(kRemove);
  EXPECT_THAT(offered(), SizeIs(250));
}

}  // namespace
}  // namespace varlo
