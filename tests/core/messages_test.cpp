#include "core/messages.h"

#include <gtest/gtest.h>

#include "core/limits.h"

namespace varlo {
namespace {

TEST(Messages, TitlesAreToTheLetter) {
  EXPECT_EQ(kProductName, "Varlo PRO");
  EXPECT_EQ(message::kConfirmation, "Confirmation");
  EXPECT_EQ(message::kSavePromptTitle, "Varlo PRO - Save Store Confirmation");
  EXPECT_EQ(message::kUpgradeTitle, "Project Upgrade");
}

TEST(Messages, TheSaveQuestionHasTwoBlanksBetweenItsSentences) {
  EXPECT_EQ(message::kSavePrompt, "The current project has changed.  Do you wish to save your changes?");
}

TEST(Messages, TheDeleteQuestionHasOne) {
  EXPECT_EQ(message::kDeleteCategory,
            "You are about to delete a Category and all nodes below it. Do you wish to proceed?");
}

TEST(Messages, LongTasksEndInEightDots) {
  EXPECT_EQ(message::kLoadingProject, "Loading store project. Please wait........");
  EXPECT_EQ(message::kSavingProject, "Saving store project. Please wait........");
}

TEST(Messages, ErrorsOfFilesCarryTheirCodes) {
  EXPECT_EQ(message::kProjectWriteError, "S101: File Write Error");
  EXPECT_EQ(message::kProjectReadError, "S103: Unable to read project file '%s'");
  EXPECT_EQ(message::kTemplateWriteError, "ERROR S104: Saving template file");
  EXPECT_EQ(message::kPageWriteError, "ERROR R106: Unable to open HTML output file");
}

TEST(Messages, TheUpgradeQuestionsNameTheTemplatesTheyReplace) {
  EXPECT_EQ(
      message::kUpgradeShelfOrderConfirm,
      "Your project was saved with an older version of Varlo PRO.\r\n\r\nFor compatibility, Varlo needs to replace "
      "your Shelf, Order form, and Confirmation page templates.  If you have made changes to these templates, a "
      "copy of the changed versions will be saved as shelf.bak, order.bak and confirm.bak in your project's "
      "template directory.");
  EXPECT_EQ(
      message::kUpgradeOrderConfirm,
      "Your project was saved with an older version of Varlo PRO.\r\n\r\nFor compatibility, Varlo needs to replace "
      "your Order form, and Confirmation page templates.  If you have made changes to these templates, a copy of "
      "the changed versions will be saved as order.bak and confirm.bak in your project's template directory.");
}

TEST(Messages, TheLongestFitsAMessageBox) {
  EXPECT_LT(message::kUpgradeShelfOrderConfirm.size(), kMessageText);
  EXPECT_LT(message::kUpgradeOrderConfirm.size(), kMessageText);
}

TEST(FillMessage, PutsTheValueInPlaceOfItsMark) {
  EXPECT_EQ(FillMessage(message::kProjectReadError, "C:\\shop\\a.stp"),
            "S103: Unable to read project file 'C:\\shop\\a.stp'");
}

TEST(FillMessage, FillsTheFirstMarkOnly) { EXPECT_EQ(FillMessage("%s and %s", "a"), "a and %s"); }
TEST(FillMessage, AMarkInTheValueStays) { EXPECT_EQ(FillMessage("'%s'", "100%s"), "'100%s'"); }
TEST(FillMessage, LeavesAMessageWithoutMark) { EXPECT_EQ(FillMessage("100%", "a"), "100%"); }
TEST(FillMessage, TakesAnEmptyValue) { EXPECT_EQ(FillMessage("'%s'", ""), "''"); }

}  // namespace
}  // namespace varlo
