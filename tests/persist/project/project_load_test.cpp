#include "persist/project/project_load.h"

#include <gtest/gtest.h>

#include "tests/support/project_text.h"
#include "tests/support/tree.h"

namespace varlo {
namespace {

using namespace test;

class ProjectLoadTest : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
};

TEST_F(ProjectLoadTest, RootIsCurrentAndSelected) {
  EXPECT_EQ(LoadCurrent(t, "NODE0=Home\nNODE0=More\n"), 1);
  EXPECT_EQ(project.currentNode, project.root);
  EXPECT_EQ(project.treeNode, project.root);
  EXPECT_EQ(project.projectDir.view(), "C:\\Varlo\\Projects\\Shop");
  EXPECT_EQ(t.files.openHandles(), 0U);
  ExpectPlainTree(project);
}

TEST_F(ProjectLoadTest, TheCurrencyIsADollarWhenTheFileHasNone) {
  LoadCurrent(t, "");
  EXPECT_STREQ(project.currency.get(), "$");
  LoadCurrent(t, "CURR=\n");
  EXPECT_STREQ(project.currency.get(), "");
}

TEST_F(ProjectLoadTest, TheTitleOfTheWindowNamesTheFile) {
  LoadCurrent(t, "");
  EXPECT_THAT(t.view.calls, testing::Contains("setWindowTitle Varlo PRO - Shop"));
  EXPECT_EQ(t.screen.posted, std::vector{Command::ResizeMainWindow});
}

TEST_F(ProjectLoadTest, RunsInItsDialogWithTheWaitCursor) {
  LoadCurrent(t, "");
  EXPECT_EQ(t.screen.tasks, std::vector<std::string>{"Varlo PRO: Loading store project. Please wait........"});
  EXPECT_EQ(t.screen.waitCursor, (std::vector<bool>{true, false}));
}

TEST_F(ProjectLoadTest, WithoutAProjectFileNothingHappens) {
  EXPECT_EQ(ProjectLoad(t.program), 0);
  EXPECT_TRUE(t.screen.boxes.empty());
}

TEST_F(ProjectLoadTest, AFileThatIsGoneIsToldAndTheOpenTreeStays) {
  LoadCurrent(t, "NODE0=Home\n");
  project.projectFile.assign("C:\\gone.stp");
  EXPECT_EQ(ProjectLoad(t.program), 0);
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(t.screen.boxes[0],
            (ShownBox{"S103: Unable to read project file 'C:\\gone.stp'", "Error", Buttons::Ok, Icon::None}));
  EXPECT_TRUE(project.projectFile.isNull());
  EXPECT_EQ(TreeText(project), "Home");
}

TEST_F(ProjectLoadTest, AnotherProjectReplacesTheTree) {
  LoadCurrent(t, "NODE0=Home\nVAR=$A|1\nCC=1:Visa\n$AU0,1,|1\nWEB=w\nTPL=a\n");
  LoadCurrent(t, "NODE0=Other\n");
  EXPECT_EQ(TreeText(project), "Other");
  EXPECT_EQ(project.variables, nullptr);
  EXPECT_EQ(project.acceptedCards, nullptr);
  EXPECT_EQ(project.regions, nullptr);
  EXPECT_TRUE(project.webDir.isNull());
  EXPECT_TRUE(project.templateNames[0].isNull());
}

TEST_F(ProjectLoadTest, ReadsTheFormTemplates) {
  t.files.put("Projects\\Shop\\Template\\order.htm", "; kept\r\norder");
  t.files.put("Projects\\Shop\\Template\\confirm.htm", "confirm");
  LoadCurrent(t, "");
  EXPECT_STREQ(project.orderTemplate.get(), "; kept\r\norder");
  EXPECT_STREQ(project.confirmTemplate.get(), "confirm");
}

TEST_F(ProjectLoadTest, AMissingFormTemplateIsTheEmptyTextOfItsSlot) {
  LoadCurrent(t, "");
  EXPECT_STREQ(project.orderTemplate.get(), "");
}

TEST_F(ProjectLoadTest, AMissingFormTemplateIsWhatTheSlotHeldBefore) {
  t.files.put("Projects\\Shop\\Template\\order.htm", "order");
  LoadCurrent(t, "");
  t.files.remove("Projects\\Shop\\Template\\order.htm");
  LoadCurrent(t, "");
  EXPECT_STREQ(project.orderTemplate.get(), "order");
}

TEST_F(ProjectLoadTest, ALoadLeavesDirtyAsItWas) {
  project.dirty = 1;
  LoadCurrent(t, "NODE0=Home\n");
  EXPECT_EQ(project.dirty, 1);
}

}  // namespace
}  // namespace varlo
