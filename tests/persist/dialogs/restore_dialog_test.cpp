#include "persist/dialogs/restore_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/fake_window.h"
#include "tests/support/project_text.h"
#include "tests/support/tree.h"

namespace varlo {
namespace {

using namespace test;
using restore::kList;

class RestoreDialogTest : public testing::Test {
 protected:
  TestProgram t;
  RestoreDialog logic{t.program};
  FakeWindow window{logic};

  void SetUp() override {
    LoadCurrent(t, "NODE0=Now\n");
    t.files.put("Projects\\Shop\\Backup\\Shop.stp.1", "TIME=1044072306\nVERSION=107001\nNODE0=Before\n");
    t.files.put("Projects\\Shop\\Backup\\Shop.stp.2", "VERSION=107001\nNODE0=Untimed\n");
    t.files.put("Projects\\Shop\\Backup\\a note.txt", "hello");
    t.view.calls.clear();
    window.open();
  }
};

TEST_F(RestoreDialogTest, ListsEveryFileWithItsTimeAndSize) {
  ASSERT_EQ(window.columns(kList).size(), 2U);
  EXPECT_EQ(window.columns(kList)[0].heading, "Backup Date/Time");
  EXPECT_EQ(window.columns(kList)[0].width, 140);
  EXPECT_EQ(window.columns(kList)[1].heading, "Size");
  EXPECT_EQ(window.columns(kList)[1].width, 70);
  ASSERT_EQ(window.rowCount(kList), 3);
  EXPECT_EQ(window.cell(kList, 0, 0), "01/01/70 00:00:00");
  EXPECT_EQ(window.cell(kList, 0, 1), "5");
  EXPECT_EQ(window.cell(kList, 1, 0), "01/02/03 04:05:06");
  EXPECT_EQ(window.cell(kList, 1, 1), "44");
  EXPECT_EQ(window.cell(kList, 2, 0), "01/01/70 00:00:00");
}

TEST_F(RestoreDialogTest, OkIsEnabledWhileARowIsSelected) {
  EXPECT_FALSE(window.isEnabled(kOk));
  window.pickRow(kList, 1);
  EXPECT_TRUE(window.isEnabled(kOk));
  EXPECT_THAT(t.view.calls, testing::ElementsAre("showHelp 1200"));
  window.pickRow(kList, kNoRow);
  EXPECT_FALSE(window.isEnabled(kOk));
}

TEST_F(RestoreDialogTest, YesBringsTheBackupBackAndLosesUnsavedChanges) {
  t.project().root->title.assign("Unsaved");
  t.project().dirty = 1;
  t.screen.answers = {Answer::Yes};
  window.pickRow(kList, 1);
  window.press(kOk);
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(
      t.screen.boxes[0].text,
      "You are about to revert to a previously saved version of the store project.  All current changes will be "
      "lost. Do you wish to proceed? ");
  EXPECT_EQ(t.screen.boxes[0].title, "Confirmation");
  EXPECT_EQ(t.screen.boxes[0].buttons, Buttons::YesNoCancel);
  EXPECT_FALSE(window.isOpen());
  EXPECT_EQ(TreeText(t.project()), "Before");
  EXPECT_EQ(t.files.content(kProjectPath), "TIME=1044072306\nVERSION=107001\nNODE0=Before\n");
  // The restored backup stays at its place, and no backup of the other is made.
  EXPECT_TRUE(t.files.content("Projects\\Shop\\Backup\\Shop.stp.1").has_value());
  EXPECT_EQ(BackupListRead(t.program).size(), 3U);
}

TEST_F(RestoreDialogTest, ABackupWithoutATimeRestoresLikeAnyOther) {
  t.screen.answers = {Answer::Yes};
  window.pickRow(kList, 2);
  window.press(kOk);
  EXPECT_EQ(TreeText(t.project()), "Untimed");
}

TEST_F(RestoreDialogTest, NoAndCancelStayInTheDialog) {
  t.screen.answers = {Answer::No, Answer::Cancel};
  window.pickRow(kList, 1);
  window.press(kOk);
  window.press(kOk);
  EXPECT_TRUE(window.isOpen());
  EXPECT_EQ(TreeText(t.project()), "Now");
}

TEST_F(RestoreDialogTest, AFailedCopyGoesUnnoticedAndShowsTheOldFileAgain) {
  t.screen.answers = {Answer::Yes};
  window.pickRow(kList, 1);
  t.files.shallFail = [](const std::string& operation) { return operation.starts_with("copy"); };
  window.press(kOk);
  EXPECT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(TreeText(t.project()), "Now");
  EXPECT_FALSE(window.isOpen());
}

TEST_F(RestoreDialogTest, WithoutAProjectFileOkDoesNothing) {
  window.pickRow(kList, 1);
  t.project().projectFile.release();
  window.press(kOk);
  EXPECT_TRUE(t.screen.boxes.empty());
  EXPECT_TRUE(window.isOpen());
}

TEST_F(RestoreDialogTest, CancelEndsAndHelpOpensThePane) {
  window.press(kHelp);
  EXPECT_EQ(t.view.calls.back(), "openHelpPane 1200");
  window.press(kCancel);
  EXPECT_FALSE(window.isOpen());
}

}  // namespace
}  // namespace varlo
