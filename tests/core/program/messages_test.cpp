#include "core/program/messages.h"

#include <gtest/gtest.h>

#include "core/text/limits.h"

namespace varlo {
namespace {

TEST(Messages, TitlesAreToTheLetter) {
  EXPECT_EQ(kProductName, "Varlo PRO");
  EXPECT_EQ(message::kConfirmation, "Confirmation");
  EXPECT_EQ(message::kSavePromptTitle, "Varlo PRO - Save Store Confirmation");
  EXPECT_EQ(message::kUpgradeTitle, "Project Upgrade");
}

TEST(Messages, OfTheMainWindow) {
  EXPECT_EQ(message::kServerMissing,
            "No Varlo server selected.  Please select an Varlo server address in Preferences.");
  EXPECT_EQ(message::kConfigurationError, "Configuration Error");
  EXPECT_EQ(message::kResizeError, "Window resizing failed!");
  EXPECT_EQ(message::kUpgradeError, "Unable to execute Upgrade Wizard 'upgrade.exe'");
  EXPECT_EQ(message::kUpgradeErrorTitle, "Upgrade Error");
}

TEST(Messages, OfTemplatesAndTheSearchInATextAreToTheLetter) {
  EXPECT_EQ(message::kOpenTemplateTitle, "Open Template File");
  EXPECT_EQ(message::kTemplateFilter,
            "Template File (*.htm)$*.htm$Template File (*.html)$*.html$Template File (*.txt)$*.txt$All Files "
            "(*.*)$*.*$$");
  EXPECT_EQ(message::kResetTemplate,
            "This will reset the template to an Varlo default. All changes will be lost.  Do you wish to proceed?");
  EXPECT_EQ(message::kNotFoundInText, "Cannot find the string: '%s'");
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

TEST(Messages, ProjectsThatAreOpenedMadeAndCopied) {
  EXPECT_EQ(message::kProjectOpenError, "ERROR S105: Unable to open project file");
  EXPECT_EQ(message::kOtherProjectReadError, "S105: Unable to read project file '%s'");
  EXPECT_EQ(message::kInvalidProjectName,
            "Invalid Project Name.  The name must not include forward/back slash characters or commas.");
  EXPECT_EQ(message::kOrderCopyError, "ERROR M101: Copying 'template\\order.dat' template");
  EXPECT_EQ(message::kConfirmCopyError, "ERROR M101: Copying 'template\\confirm.dat' template");
  EXPECT_EQ(message::kFolderError, "Unable to create a new Project Directory '%s'.");
  EXPECT_EQ(message::kFolderExists,
            "A Project Directory with the same name already exists.  Would you like to overwrite it?");
  EXPECT_EQ(message::kOpenTitle, "Open Project");
  EXPECT_EQ(message::kSaveAsTitle, "Save Project As");
  EXPECT_EQ(message::kImportTitle, "Import from Project");
  EXPECT_EQ(message::kProjectFilter, "Store Project (*.stp)$*.stp$$");
}

TEST(Messages, TheRestoreQuestionEndsInABlank) {
  EXPECT_EQ(
      message::kRestore,
      "You are about to revert to a previously saved version of the store project.  All current changes will be "
      "lost. Do you wish to proceed? ");
}

TEST(Messages, ErrorsOfTheInstallationsFilesCarryTheirCodes) {
  EXPECT_EQ(message::kRegionsError, "ERROR W106: Unable to Load Domains List 'domain.dat'");
  EXPECT_EQ(message::kCardsError, "ERROR W107: Unable to open credit card list file 'cc.dat'");
  EXPECT_EQ(message::kCatalogueError, "ERROR W124: Unable to open file 'scheme.ini'");
  EXPECT_EQ(message::kNoScheme, "No scheme defined for current store.");
}

TEST(Messages, TheErrorOfTheConfigurationNamesAnotherFile) {
  EXPECT_EQ(message::kConfigError, "ERROR W114: Unable to open file 'drelk.ini'");
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
  EXPECT_LT(message::kRestore.size(), kMessageText);
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
