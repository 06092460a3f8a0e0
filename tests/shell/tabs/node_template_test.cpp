#include "shell/tabs/node_template.h"

#include <string>

#include <gtest/gtest.h>

#include "core/program/messages.h"
#include "core/program/scheme.h"
#include "tests/support/failing_files.h"
#include "tests/support/test_form.h"

namespace varlo {
namespace {

using namespace test;

const std::string kFolder = "C:\\Varlo\\Projects\\Shop\\template\\";

struct NodeTemplateTest : testing::Test, TestForm {
  NodeTemplateTest() {
    project().projectDir.assign("C:\\Varlo\\Projects\\Shop");
    files.put(kFolder + "category.htm", "<category>");
    files.put(kFolder + "product.htm", "<product>");
    files.put("C:\\Varlo\\chosen.htm", "; chosen\r\n<b>");
  }

  std::string content(const std::string& name) { return files.content(kFolder + name).value_or("(none)"); }
  std::string held() { return shell.heldTemplateName.isNull() ? "(none)" : shell.heldTemplateName.get(); }
};

TEST_F(NodeTemplateTest, LoadingReadsTheTemplateOfTheNodeAndHoldsItsName) {
  loadTemplate(shell, *ball);
  EXPECT_EQ(templateText(shell), "<product>");
  EXPECT_EQ(held(), "product.htm");
  ball->templateName.assign("category.htm");
  loadTemplate(shell, *ball);
  EXPECT_EQ(templateText(shell), "<category>");
  EXPECT_EQ(held(), "category.htm");
}

TEST_F(NodeTemplateTest, LoadingKeepsLinesThatBeginWithASemicolon) {
  files.put(kFolder + "product.htm", ";a\r\nb");
  loadTemplate(shell, *ball);
  EXPECT_EQ(templateText(shell), ";a\r\nb");
}

TEST_F(NodeTemplateTest, AMissingTemplateLeavesTheTextOfTheOneBeforeAndNoName) {
  loadTemplate(shell, *ball);
  ball->templateName.assign("missing.htm");
  loadTemplate(shell, *ball);
  EXPECT_EQ(templateText(shell), "<product>");
  EXPECT_EQ(held(), "(none)");
}

TEST_F(NodeTemplateTest, AMissingTemplateIsEmptyInAFreshProgram) {
  ball->templateName.assign("missing.htm");
  loadTemplate(shell, *ball);
  EXPECT_EQ(templateText(shell), "");
}

TEST_F(NodeTemplateTest, ANameThatLeadsOutOfTheFolderIsNeitherReadNorWritten) {
  files.put("C:\\Varlo\\Projects\\Shop\\outside.htm", "outside");
  ball->templateName.assign("..\\outside.htm");
  loadTemplate(shell, *ball);
  EXPECT_EQ(templateText(shell), "");
  EXPECT_EQ(held(), "(none)");
  EXPECT_TRUE(project().templateNames[0].isNull());
  storeTemplate(shell, *ball, "x");
  EXPECT_EQ(files.content("C:\\Varlo\\Projects\\Shop\\outside.htm"), "outside");
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_EQ(screen.boxes[0].text, "ERROR S104: Saving template file");
}

TEST_F(NodeTemplateTest, LoadingPutsThePathAtTheHeadOfTheTemplatesUsedLately) {
  loadTemplate(shell, *ball);
  loadTemplate(shell, *home);
  loadTemplate(shell, *ball);
  EXPECT_EQ(project().templateNames[0].view(), kFolder + "category.htm");
  EXPECT_EQ(project().templateNames[1].view(), kFolder + "product.htm");
  EXPECT_TRUE(project().templateNames[2].isNull());
}

TEST_F(NodeTemplateTest, StoringWritesTheTextAsItIsAndDropsTheName) {
  loadTemplate(shell, *ball);
  storeTemplate(shell, *ball, "<product>\r\nx");
  EXPECT_EQ(content("product.htm"), "<product>\r\nx");
  EXPECT_EQ(held(), "(none)");
  EXPECT_EQ(project().dirty, 0) << "The field that changed marks the project.";
}

TEST_F(NodeTemplateTest, StoringWritesATextThatTheFileHasAlreadyAgain) {
  storeTemplate(shell, *ball, "<product>");
  EXPECT_EQ(content("product.htm"), "<product>");
  EXPECT_EQ(held(), "(none)");
}

TEST_F(NodeTemplateTest, StoringWritesNothingWhereTheFileIsMissingAndTheTextIsTheOneBefore) {
  loadTemplate(shell, *ball);
  ball->templateName.assign("missing.htm");
  storeTemplate(shell, *ball, "<product>");
  EXPECT_EQ(content("missing.htm"), "(none)");
  EXPECT_EQ(held(), "(none)");
}

TEST_F(NodeTemplateTest, StoringMakesAMissingFileOnceTheTextIsAnother) {
  loadTemplate(shell, *ball);
  ball->templateName.assign("missing.htm");
  storeTemplate(shell, *ball, "<product>x");
  EXPECT_EQ(content("missing.htm"), "<product>x");
}

TEST_F(NodeTemplateTest, StoringOverwritesWhatAnotherProgramMadeOfTheFileMeanwhile) {
  loadTemplate(shell, *ball);
  files.put(kFolder + "product.htm", "made elsewhere");
  storeTemplate(shell, *ball, "<product>x");
  EXPECT_EQ(content("product.htm"), "<product>x");
}

TEST_F(NodeTemplateTest, ATemplateSharedByTwoNodesChangesForBoth) {
  home->templateName.assign("shared.htm");
  ball->templateName.assign("shared.htm");
  storeTemplate(shell, *home, "<shared>");
  loadTemplate(shell, *ball);
  EXPECT_EQ(templateText(shell), "<shared>");
}

TEST_F(NodeTemplateTest, StoringWritesTextsOfEveryLength) {
  for (const std::size_t length : {0U, 1U, 20U, 64U, 255U, 256U, 300U, 19999U}) {
    const std::string text(length, 't');
    storeTemplate(shell, *ball, text);
    EXPECT_EQ(content("product.htm"), text) << length;
  }
}

TEST_F(NodeTemplateTest, AFileThatCannotBeCreatedIsTold) {
  FailingFiles failing(files, 2, Failure::Denied);  // after the removal of the old one
  Program other(failing, clock, screen, clipboard, view);
  Shell otherShell(other, browsers);
  other.project.projectDir.assign("C:\\Varlo\\Projects\\Shop");
  StoreNode node;
  storeTemplate(otherShell, node, "new");
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_EQ(screen.boxes[0], (ShownBox{"ERROR S104: Saving template file", "Error"}));
  EXPECT_EQ(failing.failedOperation(), "create");
  EXPECT_TRUE(otherShell.heldTemplateName.isNull());
}

TEST_F(NodeTemplateTest, LoadWritesTheChosenFileOverTheTemplateOfTheNode) {
  ball->templateName.assign("own.htm");
  files.put(kFolder + "own.htm", "own");
  screen.files.push_back("C:\\Varlo\\chosen.htm");
  chooseTemplate(shell);
  EXPECT_EQ(content("own.htm"), "; chosen\r\n<b>");
  EXPECT_EQ(ball->templateName.view(), "own.htm") << "Its path does not become that of the chosen file.";
  EXPECT_EQ(project().dirty, 0);
  ASSERT_EQ(screen.fileRequests.size(), 1U);
  EXPECT_EQ(screen.fileRequests[0].folder, "C:\\Varlo\\Projects\\Shop\\template");
  EXPECT_EQ(screen.fileRequests[0].title, "Open Template File");
  EXPECT_EQ(screen.fileRequests[0].filter, message::kTemplateFilter);
}

TEST_F(NodeTemplateTest, LoadTakesAFileOfAnyLength) {
  const std::string text(50000, 'x');
  files.put("C:\\Varlo\\chosen.htm", text);
  screen.files.push_back("C:\\Varlo\\chosen.htm");
  chooseTemplate(shell);
  EXPECT_EQ(content("product.htm"), text);
}

TEST_F(NodeTemplateTest, LoadThatIsCancelledOrCannotReadTheFileWritesNothing) {
  loadTemplate(shell, *ball);
  chooseTemplate(shell);
  EXPECT_EQ(held(), "product.htm");
  screen.files.push_back("C:\\Varlo\\none.htm");
  chooseTemplate(shell);
  EXPECT_EQ(held(), "(none)");
  EXPECT_EQ(content("product.htm"), "<product>");
}

TEST_F(NodeTemplateTest, WithoutANodeTheButtonsDoNothing) {
  project().currentNode = nullptr;
  screen.files.push_back("C:\\Varlo\\chosen.htm");
  screen.answers.push_back(Answer::Yes);
  chooseTemplate(shell);
  resetTemplate(shell);
  viewTemplate(shell);
  EXPECT_TRUE(screen.fileRequests.empty());
  EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(NodeTemplateTest, DefaultAsksAndWritesTheShippedTemplateOfTheKind) {
  Scheme scheme;
  scheme.directory.assign("classic");
  project().projectScheme = &scheme;
  files.put("template\\classic\\product.htm", "shipped");
  screen.answers.push_back(Answer::Yes);
  resetTemplate(shell);
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_EQ(screen.boxes[0].text,
            "This will reset the template to an Varlo default. All changes will be lost.  Do you wish to proceed?");
  EXPECT_EQ(screen.boxes[0].title, "Confirmation");
  EXPECT_EQ(screen.boxes[0].buttons, Buttons::YesNoCancel);
  EXPECT_EQ(content("product.htm"), "shipped");
  EXPECT_EQ(project().dirty, 0);
  project().projectScheme = nullptr;
}

TEST_F(NodeTemplateTest, DefaultUsesTheCurrentSchemeWhereTheProjectHasNone) {
  Scheme current;
  current.directory.assign("modern");
  config().currentScheme = &current;
  files.put("template\\modern\\category.htm", "modern");
  files.put("template\\category.htm", "plain");
  project().currentNode = home;
  screen.answers.assign(3, Answer::Yes);
  resetTemplate(shell);
  EXPECT_EQ(content("category.htm"), "modern");
  current.directory.assign("");
  resetTemplate(shell);
  EXPECT_EQ(content("category.htm"), "plain") << "A scheme that names no folder.";
  config().currentScheme = nullptr;
  files.put(kFolder + "category.htm", "changed");
  resetTemplate(shell);
  EXPECT_EQ(content("category.htm"), "plain") << "No scheme at all.";
}

TEST_F(NodeTemplateTest, DefaultIsWrittenOverTheTemplateThatTheNodeNames) {
  ball->templateName.assign("own.htm");
  files.put("template\\product.htm", "shipped");
  screen.answers.push_back(Answer::Yes);
  resetTemplate(shell);
  EXPECT_EQ(content("own.htm"), "shipped");
  EXPECT_EQ(content("product.htm"), "<product>");
}

TEST_F(NodeTemplateTest, DefaultThatIsNotAnsweredWithYesWritesNothing) {
  files.put("template\\product.htm", "shipped");
  for (const Answer answer : {Answer::No, Answer::Cancel}) {
    screen.answers.push_back(answer);
    resetTemplate(shell);
    EXPECT_EQ(content("product.htm"), "<product>");
  }
}

TEST_F(NodeTemplateTest, DefaultWithoutTheShippedFileWritesTheTextBefore) {
  loadTemplate(shell, *home);
  screen.answers.push_back(Answer::Yes);
  resetTemplate(shell);
  EXPECT_EQ(content("product.htm"), "<category>");
  EXPECT_EQ(screen.boxes.size(), 1U) << "No message but the question.";
}

TEST_F(NodeTemplateTest, ViewShowsTheTemplateWhileItsNameIsHeld) {
  config().browser.assign("b.exe");
  config().newWindow = 1;
  viewTemplate(shell);
  EXPECT_TRUE(browsers.calls.empty());
  loadTemplate(shell, *ball);
  viewTemplate(shell);
  EXPECT_EQ(browsers.calls, std::vector{"start b.exe | " + kFolder + "product.htm"});
  storeTemplate(shell, *ball, "x");
  viewTemplate(shell);
  EXPECT_EQ(browsers.calls.size(), 1U);
}

}  // namespace
}  // namespace varlo
