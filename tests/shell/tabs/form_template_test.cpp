#include "shell/tabs/form_template.h"

#include <string>

#include <gtest/gtest.h>

#include "core/program/messages.h"
#include "core/program/scheme.h"
#include "tests/support/test_form.h"

namespace varlo {
namespace {

using namespace test;

const std::string kFolder = "C:\\Varlo\\Projects\\Shop\\";
const std::string kChosen = "C:\\Varlo\\chosen.htm";

struct FormTemplateTest : testing::Test, TestForm {
  FormTemplateTest() {
    project().projectDir.assign("C:\\Varlo\\Projects\\Shop");
    project().webDir.assign("C:\\Varlo\\Projects\\Shop\\Web");
    project().orderTemplate.assign("order $MESSAGE");
    project().confirmTemplate.assign("confirm $CONFIRM");
    project().orderMessage.assign("Hello");
    project().confirmMessage.assign("Thanks");
    project().projectScheme = &scheme;
    files.putFolder("C:\\Varlo\\Projects\\Shop\\Web");
    files.put(kChosen, ";chosen\r\ntext");
    config().browser.assign("b.exe");
    config().newWindow = 1;
  }
  ~FormTemplateTest() override { project().projectScheme = nullptr; }

  std::string text(const FormTemplate& form) { return (project().*form.text).orEmpty(); }

  Scheme scheme;
};

TEST_F(FormTemplateTest, LoadReplacesTheTextAndDoesNotMarkTheProject) {
  for (const FormTemplate* form : {&kOrderFormTemplate, &kConfirmationTemplate}) {
    screen.files.push_back(kChosen);
    chooseFormTemplate(shell, *form);
    EXPECT_EQ(text(*form), ";chosen\r\ntext");
  }
  EXPECT_EQ(project().dirty, 0);
  EXPECT_EQ(screen.fileRequests.at(1).title, "Open Template File");
  EXPECT_EQ(files.content(kFolder + "template\\order.htm"), std::nullopt) << "Only a save writes it.";
}

TEST_F(FormTemplateTest, LoadThatIsCancelledOrCannotReadTheFileChangesNothing) {
  shell.heldTemplateName.assign("product.htm");
  chooseFormTemplate(shell, kOrderFormTemplate);
  EXPECT_TRUE(shell.heldTemplateName.isSet());
  screen.files.push_back("C:\\Varlo\\none.htm");
  chooseFormTemplate(shell, kOrderFormTemplate);
  EXPECT_EQ(text(kOrderFormTemplate), "order $MESSAGE");
  EXPECT_TRUE(shell.heldTemplateName.isNull());
}

TEST_F(FormTemplateTest, LoadTakesTextsOfEveryLength) {
  for (const std::size_t length : {1U, 20U, 64U, 255U, 256U, 300U, 60000U}) {
    const std::string content(length, 'x');
    files.put(kChosen, content);
    screen.files.push_back(kChosen);
    chooseFormTemplate(shell, kOrderFormTemplate);
    EXPECT_EQ(text(kOrderFormTemplate), content) << length;
  }
}

TEST_F(FormTemplateTest, DefaultAsksTakesTheShippedTextAndMarksTheProject) {
  files.put("template\\order.dat", "shipped order");
  files.put("template\\confirm.dat", "shipped confirm");
  for (const FormTemplate* form : {&kOrderFormTemplate, &kConfirmationTemplate}) {
    project().dirty = 0;
    screen.answers.push_back(Answer::Yes);
    resetFormTemplate(shell, *form);
    EXPECT_EQ(project().dirty, 1);
    EXPECT_EQ(screen.boxes.back().text, message::kResetTemplate);
    EXPECT_EQ(screen.boxes.back().title, "Confirmation");
    EXPECT_EQ(screen.boxes.back().buttons, Buttons::YesNoCancel);
  }
  EXPECT_EQ(text(kOrderFormTemplate), "shipped order");
  EXPECT_EQ(text(kConfirmationTemplate), "shipped confirm");
}

TEST_F(FormTemplateTest, DefaultThatIsNotAnsweredWithYesChangesNothing) {
  files.put("template\\order.dat", "shipped order");
  for (const Answer answer : {Answer::No, Answer::Cancel}) {
    screen.answers.push_back(answer);
    resetFormTemplate(shell, kOrderFormTemplate);
  }
  EXPECT_EQ(text(kOrderFormTemplate), "order $MESSAGE");
  EXPECT_EQ(project().dirty, 0);
}

TEST_F(FormTemplateTest, DefaultWithoutTheShippedFileTakesTheTextThatWasReadBefore) {
  files.put("template\\order.dat", "shipped order");
  screen.answers.assign(2, Answer::Yes);
  resetFormTemplate(shell, kOrderFormTemplate);
  project().orderTemplate.assign("changed");
  (void)files.remove("template\\order.dat");
  resetFormTemplate(shell, kOrderFormTemplate);
  EXPECT_EQ(text(kOrderFormTemplate), "shipped order");
  EXPECT_EQ(screen.boxes.size(), 2U) << "No message but the two questions.";
}

TEST_F(FormTemplateTest, DefaultOfTheOrderFormAloneDropsWhatIsKnownToBeShown) {
  screen.answers.assign(2, Answer::Yes);
  shell.descriptionCache = "shown";
  resetFormTemplate(shell, kConfirmationTemplate);
  EXPECT_EQ(shell.descriptionCache, "shown");
  resetFormTemplate(shell, kOrderFormTemplate);
  EXPECT_EQ(shell.descriptionCache, std::nullopt);
}

TEST_F(FormTemplateTest, ViewWritesThePreviewOfTheTabAndShowsIt) {
  viewFormTemplate(shell, kOrderFormTemplate);
  EXPECT_EQ(files.content(kFolder + "Web\\preview.htm"), "order Hello");
  viewFormTemplate(shell, kConfirmationTemplate);
  EXPECT_EQ(files.content(kFolder + "Web\\preview.htm"), "confirm Thanks");
  const std::string started = "start b.exe | " + kFolder + "web\\preview.htm";
  EXPECT_EQ(browsers.calls, (std::vector{started, started}));
}

TEST_F(FormTemplateTest, ViewWithAWebDirectoryElsewhereShowsThePageBelowTheProject) {
  project().webDir.assign("C:\\Web");
  files.putFolder("C:\\Web");
  viewFormTemplate(shell, kOrderFormTemplate);
  EXPECT_TRUE(files.content("C:\\Web\\preview.htm").has_value());
  EXPECT_EQ(browsers.calls, std::vector{"start b.exe | " + kFolder + "web\\preview.htm"});
}

TEST_F(FormTemplateTest, ViewThatFailsTellsSoAndShowsNothing) {
  project().projectScheme = nullptr;
  viewFormTemplate(shell, kOrderFormTemplate);
  ASSERT_EQ(screen.boxes.size(), 1U);
  EXPECT_EQ(screen.boxes[0].text, message::kNoScheme);
  project().projectScheme = &scheme;
  files.shallFail = [](const std::string&) { return true; };
  viewFormTemplate(shell, kConfirmationTemplate);
  ASSERT_EQ(screen.boxes.size(), 2U);
  EXPECT_EQ(screen.boxes[1].text, message::kPageWriteError);
  EXPECT_TRUE(browsers.calls.empty());
}

}  // namespace
}  // namespace varlo
