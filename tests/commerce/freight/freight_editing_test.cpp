#include "commerce/freight/freight_editing.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commerce/freight/freight_rows.h"
#include "core/program/project_close.h"
#include "tests/support/freight.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;
using testing::Contains;

class FreightEditing : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
  FreightRegion* au = AddRegion(project, "AU");
  FreightRegion* nz = AddRegion(project, "NZ");
  FreightRegion* us = AddRegion(project, "US");

  void SetUp() override {
    Serve(au, 0, {{0, "5"}, {11, "2"}});
    Serve(nz, 0, {{1, "7"}});
    Serve(nz, 1, {{1, "8"}});
    project.currentRegion = au;
  }
  // Filled cells, rule and offer of a table of the first or another method.
  static std::string show(const FreightRegion* region, std::size_t slot = 0) {
    const FreightMethod& table = *region->method[slot];
    std::string text;
    for (const Text& cell : table.value) text += cell.isSet() ? cell.orEmpty() : "-";
    return text + " " + table.rule.orEmpty() + " " + std::to_string(table.active);
  }
  void copy(FreightRegion* region) {
    project.currentRegion = region;
    FreightCopy(t.program);
  }
  std::vector<FreightRegion*> all() { return StoreRegions(project); }
};

TEST_F(FreightEditing, PasteGivesCellsRuleAndOfferToEveryRow) {
  au->method[0]->rule.assign("5<=100v");
  copy(au);
  FreightPaste(t.program, std::vector{nz, us});
  EXPECT_EQ(show(nz), "5----------2 5<=100v 1");
  EXPECT_EQ(show(us), "5----------2 5<=100v 1");
  EXPECT_EQ(nz->name.view(), "NZ");
}

TEST_F(FreightEditing, PasteReachesTheTablesOfTheCurrentMethodAlone) {
  copy(au);
  project.currentMethod = 1;
  FreightPaste(t.program, std::vector{nz});
  EXPECT_EQ(show(nz, 0), "-7----------  1");
  EXPECT_EQ(show(nz, 1), "5----------2  1");
}

TEST_F(FreightEditing, CopyingFromADisabledTableAndPastingDisablesTheTarget) {
  au->method[0]->active = 0;
  copy(au);
  FreightPaste(t.program, std::vector{nz});
  EXPECT_EQ(show(nz), "5----------2  0");
}

TEST_F(FreightEditing, ALaterCopyReplacesTheEarlierOne) {
  copy(au);
  copy(nz);
  FreightPaste(t.program, std::vector{us});
  EXPECT_EQ(show(us), "-7----------  1");
}

TEST_F(FreightEditing, PasteWithoutACopyEmptiesTheTables) {
  nz->method[0]->rule.assign("free");
  FreightPaste(t.program, all());
  for (const FreightRegion* region : all()) EXPECT_EQ(show(region), "------------  0");
  EXPECT_EQ(project.dirty, 1);
}

TEST_F(FreightEditing, TheCopyIsOfTheTableAsItWas) {
  copy(au);
  au->method[0]->value[0].assign(std::string_view(std::string(300, '9')));
  FreightPaste(t.program, std::vector{us});
  EXPECT_EQ(show(us), "5----------2  1");
}

TEST_F(FreightEditing, TheClipboardLivesOnAcrossProjects) {
  copy(au);
  ProjectClose(t.program);
  FreightRegion* fr = AddRegion(project, "FR");
  FreightPaste(t.program, std::vector{fr});
  EXPECT_EQ(show(fr), "5----------2  1");
}

TEST_F(FreightEditing, CopyWithoutACurrentRegionKeepsTheClipboard) {
  copy(au);
  copy(nullptr);
  FreightPaste(t.program, std::vector{us});
  EXPECT_EQ(show(us), "5----------2  1");
}

TEST_F(FreightEditing, ClearEmptiesTheCellsAndDisables) {
  FreightClear(t.program, std::vector{au, nz});
  EXPECT_EQ(show(au), "------------  0");
  EXPECT_EQ(show(nz), "------------  0");
  EXPECT_EQ(show(nz, 1), "-8----------  1");
}

TEST_F(FreightEditing, ClearKeepsARuleSoAClearedRegionMayStillShowADash) {
  au->method[0]->rule.assign("5<=100v");
  FreightClear(t.program, std::vector{au});
  EXPECT_EQ(FreightCellText(project, *au, 1), " - ");
  EXPECT_EQ(au->method[0]->active, 0);
}

TEST_F(FreightEditing, EnableAndDisableSetTheOfferAndMarkNothing) {
  FreightEnable(t.program, all());
  for (const FreightRegion* region : all()) EXPECT_EQ(region->method[0]->active, 1);
  FreightDisable(t.program, std::vector{au, us});
  EXPECT_EQ(au->method[0]->active, 0);
  EXPECT_EQ(nz->method[0]->active, 1);
  EXPECT_EQ(us->method[0]->active, 0);
  EXPECT_EQ(nz->method[1]->active, 1);
  EXPECT_EQ(us->method[1]->active, 0);
  EXPECT_EQ(project.dirty, 0);
}

TEST_F(FreightEditing, DeleteTakesTheRegionsOutWithoutAQuestion) {
  FreightDelete(t.program, std::vector{au, us});
  EXPECT_EQ(all(), std::vector{nz});
  EXPECT_EQ(project.currentRegion, nz);
  EXPECT_TRUE(t.screen.boxes.empty());
  EXPECT_EQ(project.dirty, 1);
}

TEST_F(FreightEditing, PasteClearAndDeleteReloadTheFormAndMarkTheProject) {
  const std::vector<void (*)(Program&, FreightRows)> changes{FreightPaste, FreightClear, FreightDelete};
  for (const auto change : changes) {
    t.view.calls.clear();
    project.dirty = 0;
    change(t.program, std::vector{project.regions});
    EXPECT_THAT(t.view.calls, Contains("loadForm"));
    EXPECT_EQ(project.dirty, 1);
  }
}

TEST_F(FreightEditing, WithAMethodThatIsNoneNothingHappensToTheTables) {
  project.currentMethod = 3;
  copy(au);
  EXPECT_EQ(project.freightClipboard, nullptr);
  FreightPaste(t.program, all());
  FreightClear(t.program, all());
  FreightDisable(t.program, all());
  EXPECT_EQ(show(au), "5----------2  1");
}

}  // namespace
}  // namespace varlo
