#include "generator/build/store_build_dialog.h"

#include <string>

#include <gtest/gtest.h>

#include "core/program/work.h"
#include "tests/support/fake_window.h"
#include "tests/support/project_text.h"
#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;
using namespace store_build;
using testing::ElementsAre;

class StoreBuild : public testing::Test {
 protected:
  TestShop t;
  StoreBuildDialog logic{t.generator};
  FakeWindow window{logic};

  void SetUp() override { t.generator.log.buildWindow = nullptr; }
};

TEST_F(StoreBuild, OpensWithTheProjectsWebFolderWhateverWebDirHolds) {
  window.open();
  EXPECT_EQ(window.text(kDirectory), "C:\\Varlo\\Projects\\Shop\\Web\\");
  EXPECT_EQ(window.text(kTitle), "Toys");
  EXPECT_THAT(window.rows(kLog), ElementsAre("Varlo PRO v1.07.001 - Ready"));
  EXPECT_TRUE(window.isEnabled(kBuild));
}

TEST_F(StoreBuild, AnAbsentTitleShowsAsAnEmptyFieldAndIsStoredEmpty) {
  t.project().storeTitle.release();
  window.open();
  EXPECT_EQ(window.text(kTitle), "");
  window.press(kBuild);
  EXPECT_FALSE(t.project().storeTitle.isNull());
  EXPECT_STREQ(t.project().storeTitle.get(), "");
}

TEST_F(StoreBuild, TheDirectoryTakes512CharactersAndTheTitleAnyNumber) {
  window.open();
  EXPECT_EQ(window.limitOf(kDirectory), 512);
  EXPECT_EQ(window.limitOf(kTitle), 0) << "no limit was set";
  const std::string title(5000, 't');
  window.type(kTitle, title);
  window.press(kBuild);
  EXPECT_EQ(t.project().storeTitle.view(), title);
}

TEST_F(StoreBuild, BuildIsOfferedOnlyWithADirectory) {
  window.open();
  window.type(kDirectory, "");
  EXPECT_FALSE(window.isEnabled(kBuild));
  window.type(kDirectory, "C:\\x");
  EXPECT_TRUE(window.isEnabled(kBuild));
}

TEST_F(StoreBuild, TheBarsTopIsTheNumberOfNodesThatWereRead) {
  t.project().nodesRead = 42;
  window.open();
  EXPECT_EQ(window.progressTop(kProgress), 42);
}

TEST_F(StoreBuild, NodesMadeAfterReadingAreNotCounted) {
  LoadCurrent(t, "NODE0=Home\n#BRANCH\nNODE1=Ball\nNODE1=Car\n#EOB\n");
  AddProduct(t.project(), "New", t.project().root);
  EXPECT_EQ(t.project().nodesRead, 3);
  LoadCurrent(t, "NODE0=Home\n");
  EXPECT_EQ(t.project().nodesRead, 1);
}

TEST_F(StoreBuild, BuildsIntoTheDirectoryOfTheFieldAndKeepsTheLog) {
  window.open();
  window.type(kDirectory, "C:\\Web");
  window.type(kTitle, "New");
  window.press(kBuild);
  EXPECT_THAT(window.rows(kLog),
              ElementsAre("Varlo PRO v1.07.001 - Ready", "", "", "Store Build Complete. (0 errors, 0 warnings)"));
  EXPECT_EQ(window.shownRow(kLog), 3);
  EXPECT_GE(window.repaints(kLog), 5) << "each line is painted at once";
  EXPECT_STREQ(t.project().storeTitle.get(), "New");
  EXPECT_TRUE(t.files.content("C:\\Web\\index.html").has_value());
  EXPECT_TRUE(window.isOpen());
}

TEST_F(StoreBuild, CanBuildAgainWithAFreshLog) {
  window.open();
  window.press(kBuild);
  window.press(kBuild);
  EXPECT_EQ(window.rows(kLog).size(), 4U);
  EXPECT_EQ(window.shownRow(kLog), 3);
}

TEST_F(StoreBuild, ShowsThePageInWorkAndStepsTheBar) {
  t.project().nodesRead = 10;
  window.open();
  BuildWindow& shown = *t.generator.log.buildWindow;
  shown.showLabel("2.htm");
  shown.stepProgress();
  shown.stepProgress();
  EXPECT_EQ(window.text(kLabel), "2.htm");
  EXPECT_EQ(window.progress(kProgress), 2);
  EXPECT_EQ(window.repaints(kLabel), 1);
  EXPECT_EQ(window.repaints(kProgress), 2);
}

TEST_F(StoreBuild, LabelAndBarAreEmptyAfterABuild) {
  t.project().nodesRead = 10;
  window.open();
  window.press(kBuild);
  EXPECT_EQ(window.text(kLabel), "");
  EXPECT_EQ(window.progress(kProgress), 0);
}

TEST_F(StoreBuild, BrowsePutsTheChosenFolderIntoTheField) {
  window.open();
  t.screen.folders = {"D:\\Site"};
  window.press(kBrowse);
  EXPECT_EQ(window.text(kDirectory), "D:\\Site");
  EXPECT_THAT(t.screen.folderTitles, ElementsAre("Select Web Directory"));
  window.press(kBrowse);
  EXPECT_EQ(window.text(kDirectory), "D:\\Site") << "a cancelled chooser changes nothing";
}

TEST_F(StoreBuild, HelpOpensThePaneOnThisWindow) {
  window.open();
  window.press(kHelp);
  EXPECT_THAT(t.view.calls, ElementsAre("openHelpPane 1300"));
}

TEST_F(StoreBuild, CancelRaisesTheStopFlagAndClosesTheLog) {
  window.open();
  EXPECT_EQ(t.generator.log.buildWindow, &logic);
  window.press(kCancel);
  EXPECT_TRUE(t.generator.log.stopRequested);
  EXPECT_EQ(t.generator.log.buildWindow, nullptr);
  EXPECT_FALSE(window.isOpen());
}

TEST_F(StoreBuild, TheCloseBoxDoesTheSame) {
  window.open();
  window.close();
  EXPECT_TRUE(t.generator.log.stopRequested);
  EXPECT_EQ(t.generator.log.buildWindow, nullptr);
  EXPECT_FALSE(window.isOpen());
}

TEST_F(StoreBuild, AWindowThatIsGoneIsNotLoggedTo) {
  {
    StoreBuildDialog other(t.generator);
    FakeWindow otherWindow(other);
    otherWindow.open();
  }
  EXPECT_EQ(t.generator.log.buildWindow, nullptr);
  LogBuild(t.generator.log, "nowhere");
}

TEST_F(StoreBuild, OpensAgainAfterItWasClosed) {
  window.open();
  window.press(kCancel);
  FakeWindow again(logic);
  again.open();
  EXPECT_THAT(again.rows(kLog), ElementsAre("Varlo PRO v1.07.001 - Ready"));
  again.press(kBuild);
  EXPECT_FALSE(t.generator.log.stopRequested);
}

TEST_F(StoreBuild, ABadDirectoryIsToldAndNothingIsBuilt) {
  window.open();
  window.type(kDirectory, "C:/x");
  window.press(kBuild);
  EXPECT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_THAT(t.files.names(), testing::IsEmpty());
}

TEST_F(StoreBuild, WhatWasTypedDuringTheBuildIsForgotten) {
  window.open();
  window.press(kBuild);
  EXPECT_EQ(t.screen.inputDrops, 1);
}

TEST_F(StoreBuild, BeginsNothingWhileSomethingIsAtWork) {
  window.open();
  const std::vector<std::string> before = window.rows(kLog);
  const Work work(t.program);
  window.press(kBuild);
  window.press(kBrowse);
  EXPECT_EQ(window.rows(kLog), before);
  EXPECT_TRUE(t.screen.folderTitles.empty());
}

}  // namespace
}  // namespace varlo
