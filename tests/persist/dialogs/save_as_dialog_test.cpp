#include "persist/dialogs/save_as_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/program/messages.h"
#include "core/program/scheme.h"
#include "tests/support/fake_window.h"
#include "tests/support/project_text.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using namespace save_as;

class SaveAsDialogTest : public testing::Test {
 protected:
  TestProgram t;
  SaveAsDialog logic{t.program};
  FakeWindow window{logic};

  void SetUp() override {
    t.files.put("template\\order.dat", "shipped order");
    t.files.put("template\\confirm.dat", "shipped confirm");
    t.files.put("Projects\\Shop\\Template\\order.htm", "own order");
    LoadCurrent(t, "NODE0=Home\n");
    window.open();
  }
  void saveAs(std::string_view name) {
    window.type(kName, name);
    window.press(kOk);
  }
  std::string_view projectFile() { return t.project().projectFile.view(); }
};

TEST_F(SaveAsDialogTest, OkIsEnabledExactlyWhileThereIsAName) {
  EXPECT_FALSE(window.isEnabled(kOk));
  EXPECT_TRUE(window.isEnabled(kCancel));
  EXPECT_EQ(window.limitOf(kName), 50);
  window.type(kName, "a");
  EXPECT_TRUE(window.isEnabled(kOk));
  window.type(kName, "");
  EXPECT_FALSE(window.isEnabled(kOk));
}

TEST_F(SaveAsDialogTest, WithoutAProjectItCanOnlyBeLeftByNamingOne) {
  t.project().projectFile.release();
  FakeWindow other(logic);
  other.open();
  EXPECT_FALSE(other.isEnabled(kCancel));
  other.close();
  EXPECT_TRUE(other.isOpen());
  other.type(kName, "New");
  other.press(kOk);
  EXPECT_FALSE(other.isOpen());
  EXPECT_EQ(projectFile(), "C:\\Varlo\\Projects\\New\\New.stp");
}

TEST_F(SaveAsDialogTest, ANameMakesTheFoldersAndTheNewNames) {
  t.view.calls.clear();
  saveAs("New");
  EXPECT_FALSE(window.isOpen());
  EXPECT_EQ(projectFile(), "C:\\Varlo\\Projects\\New\\New.stp");
  EXPECT_EQ(t.project().projectDir.view(), "C:\\Varlo\\Projects\\New");
  EXPECT_EQ(t.files.makeFolder("Projects\\New\\Web"), MakeFolderResult::Exists);
  EXPECT_EQ(t.files.content("Projects\\New\\Template\\order.htm"), "shipped order");
  EXPECT_EQ(t.files.content("Projects\\New\\Template\\confirm.htm"), "shipped confirm");
  EXPECT_FALSE(t.files.content("Projects\\New\\New.stp").has_value());
  EXPECT_EQ(t.project().dirty, 0);
  EXPECT_THAT(t.view.calls, testing::ElementsAre("setWindowTitle Varlo PRO - New"));
}

TEST_F(SaveAsDialogTest, TheNameIsCutAtItsFirstComma) {
  saveAs("a,b");
  EXPECT_EQ(projectFile(), "C:\\Varlo\\Projects\\a\\a.stp");
}

TEST_F(SaveAsDialogTest, ANameThatIsEmptyBeforeItsCommaStays) {
  saveAs(",b");
  EXPECT_TRUE(window.isOpen());
  EXPECT_EQ(projectFile(), kProjectPath);
}

TEST_F(SaveAsDialogTest, AnExistingFolderIsAskedAboutAndNoStays) {
  t.files.put("Projects\\Old\\Template\\order.htm", "old order");
  t.screen.answers = {Answer::No};
  saveAs("Old");
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(t.screen.boxes[0].text,
            "A Project Directory with the same name already exists.  Would you like to overwrite it?");
  EXPECT_EQ(t.screen.boxes[0].title, "Confirmation");
  EXPECT_EQ(t.screen.boxes[0].buttons, Buttons::YesNoCancel);
  EXPECT_TRUE(window.isOpen());
  EXPECT_EQ(projectFile(), kProjectPath);
  EXPECT_EQ(t.files.content("Projects\\Old\\Template\\order.htm"), "old order");
}

TEST_F(SaveAsDialogTest, IntoAnExistingFolderWithYesItsFilesStayAndTheFormsAreReplaced) {
  t.files.put("Projects\\Old\\Template\\order.htm", "old order");
  t.files.put("Projects\\Old\\Template\\own.htm", "own");
  t.files.put("Projects\\Old\\Old.stp", "old");
  t.screen.answers = {Answer::Yes};
  saveAs("Old");
  EXPECT_FALSE(window.isOpen());
  EXPECT_EQ(t.files.content("Projects\\Old\\Template\\order.htm"), "shipped order");
  EXPECT_EQ(t.files.content("Projects\\Old\\Template\\own.htm"), "own");
  EXPECT_EQ(t.files.content("Projects\\Old\\Old.stp"), "old");
}

TEST_F(SaveAsDialogTest, AFolderThatCannotBeMadeIsToldWithItsPath) {
  saveAs("a\\b");
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(t.screen.boxes[0].text, "Unable to create a new Project Directory 'C:\\Varlo\\Projects\\a\\b'.");
  EXPECT_EQ(t.screen.boxes[0].title, "Error");
  EXPECT_TRUE(window.isOpen());
  EXPECT_EQ(projectFile(), kProjectPath);
}

TEST_F(SaveAsDialogTest, ANameThatLeadsOutOfTheProjectsIsAFolderThatCannotBeMade) {
  for (const char* name :
       {"..\\Esc", "../Esc", "a\\..\\..\\Esc", "C:\\Esc", "\\Esc", "..", ".", "Old\\..", "...\\Esc"}) {
    t.files.log.clear();
    t.screen.boxes.clear();
    t.screen.answers = {Answer::Yes};
    saveAs(name);
    ASSERT_EQ(t.screen.boxes.size(), 1U) << name;
    EXPECT_EQ(t.screen.boxes[0].text,
              std::string("Unable to create a new Project Directory 'C:\\Varlo\\Projects\\") + name + "'.");
    EXPECT_TRUE(window.isOpen()) << name;
    EXPECT_EQ(projectFile(), kProjectPath);
    EXPECT_TRUE(t.files.log.empty()) << name;
    t.screen.answers.clear();
  }
}

TEST_F(SaveAsDialogTest, InANormalProjectNothingIsCopiedBesideTheForms) {
  SchemeStyle* style = t.config().schemeStyles = SchemeInit(nullptr);
  t.config().currentScheme = style->schemes = SchemeInit(nullptr);
  style->schemes->prev = style;
  style->schemes->directory.assign("Blue");
  t.files.put("Projects\\Shop\\Template\\own.htm", "own");
  t.files.put("Projects\\Shop\\Web\\Shop.htm", "page");
  saveAs("New");
  std::vector<std::string> copies;
  for (const std::string& operation : t.files.log) {
    if (operation.starts_with("copy")) copies.push_back(operation.substr(0, operation.find(" to ")));
  }
  EXPECT_THAT(
      copies,
      ElementsAre("copy C:\\Varlo\\template\\order.dat", "copy C:\\Varlo\\template\\confirm.dat",
                  "copy C:\\Varlo\\template\\Blue\\category.htm", "copy C:\\Varlo\\template\\Blue\\product.htm",
                  "copy C:\\Varlo\\template\\Blue\\shelf.htm", "copy C:\\Varlo\\template\\Blue\\list.htm",
                  "copy C:\\Varlo\\template\\Blue\\order.htm", "copy C:\\Varlo\\template\\Blue\\confirm.htm"));
}

TEST_F(SaveAsDialogTest, TheOldProjectFileIsNoCompanionHoweverItsNameIsSpelt) {
  t.project().projectFile.assign("C:\\Varlo\\Projects\\Shop\\SHOP.stp");
  t.files.log.clear();
  saveAs("New");
  EXPECT_FALSE(t.files.content("Projects\\New\\New.stp").has_value());
  EXPECT_EQ(t.files.content("Projects\\New\\Template\\order.htm"), "shipped order");
}

TEST_F(SaveAsDialogTest, OnlyTheFirstCompanionLandsWhereItShould) {
  t.files.put("Projects\\Shop\\Shop.abc", "first");
  t.files.put("Projects\\Shop\\Shop.xyz", "second");
  saveAs("New");
  EXPECT_EQ(t.files.content("Projects\\New\\New.abc"), "first");
  EXPECT_FALSE(t.files.content("Projects\\New\\New.xyz").has_value());
  EXPECT_EQ(t.screen.waitCursor.size(), 4U);  // the loading before, and this
  EXPECT_TRUE(t.screen.boxes.empty());
}

TEST_F(SaveAsDialogTest, BrowseTakesTheNameWithoutItsFolderAndEveryExtension) {
  t.screen.files = {"C:\\Varlo\\Projects\\Old\\Old.STP.stp"};
  window.press(kBrowse);
  EXPECT_EQ(window.text(kName), "Old");
  ASSERT_EQ(t.screen.fileRequests.size(), 1U);
  const FileChooserRequest& request = t.screen.fileRequests[0];
  EXPECT_EQ(request.folder, "C:\\Varlo\\Projects");
  EXPECT_EQ(request.title, "Save Project As");
  EXPECT_EQ(request.filter, "Store Project (*.stp)$*.stp$$");
  EXPECT_TRUE(request.mustExist);
}

TEST_F(SaveAsDialogTest, ACancelledBrowseChangesNothing) {
  window.type(kName, "mine");
  window.press(kBrowse);
  EXPECT_EQ(window.text(kName), "mine");
}

TEST_F(SaveAsDialogTest, AMissingShippedFormIsToldAndTheRestGoesOn) {
  t.files.remove("template\\order.dat");
  saveAs("New");
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(t.screen.boxes[0].text, "ERROR M101: Copying 'template\\order.dat' template");
  EXPECT_FALSE(window.isOpen());
}

TEST_F(SaveAsDialogTest, CancelEndsTheDialog) {
  window.press(kCancel);
  EXPECT_FALSE(window.isOpen());
  EXPECT_EQ(projectFile(), kProjectPath);
}

}  // namespace
}  // namespace varlo
