#include "shell/tabs/inventory_page.h"

#include "core/program/work.h"
#include "shell/tabs/form.h"
#include "shell/tabs/tab_switch.h"
#include "tests/support/test_form.h"
#include "tests/support/test_shell.h"

namespace varlo {
namespace {

using namespace test;
using namespace inventory;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class Inventory : public testing::Test {
 protected:
  TestForm t;

  void SetUp() override {
    t.project().projectDir.assign("C:\\Varlo\\Projects\\Shop");
    t.open();
  }
  [[nodiscard]] std::string enabledOfImages() const {
    std::string text;
    if (t.page->isEnabled(kShowImage)) text += "show ";
    if (t.page->isEnabled(kImageLink)) text += "link ";
    if (t.page->isEnabled(kChooseImageLink)) text += "chooseLink ";
    if (t.page->isEnabled(kShowImageLink)) text += "showLink ";
    return text;
  }
};

TEST_F(Inventory, Typing12aPoint5InCostLeaves12Point5WithTheCaretAtItsEnd) {
  t.page->type(kCost, "12a.5");
  EXPECT_EQ(t.page->text(kCost), "12.5");
  EXPECT_TRUE(t.page->caretAtEnd(kCost));
  EXPECT_EQ(t.ball->cost.view(), "12.5");
}

TEST_F(Inventory, CostTakesSeveralPoints) {
  t.page->type(kCost, "1.2.3");
  EXPECT_EQ(t.page->text(kCost), "1.2.3");
  EXPECT_EQ(t.ball->cost.view(), "1.2.3");
}

TEST_F(Inventory, CostFreightAndWeightTakeDigitsAndPointsOnly) {
  for (const ControlId control : {kCost, kFreight, kWeight}) {
    t.page->type(control, "$4.50 each");
    EXPECT_EQ(t.page->text(control), "4.50") << control;
  }
}

TEST_F(Inventory, TaxProductCodeAndCustomFieldsAreNotFiltered) {
  for (const ControlId control : {kTax, kProductCode, kLabel1, kValue1}) {
    t.page->type(control, "4% or so");
    EXPECT_EQ(t.page->text(control), "4% or so") << control;
  }
  EXPECT_EQ(t.ball->tax.view(), "4% or so");
}

TEST_F(Inventory, AnyNotificationFiltersAlsoWhileTheFormIsFilled) {
  t.ball->cost.assign("12 dollars");
  loadForm(t.shell);
  EXPECT_EQ(t.page->text(kCost), "12");
  EXPECT_EQ(t.ball->cost.view(), "12 dollars");
  EXPECT_EQ(t.project().dirty, 0);
}

TEST_F(Inventory, ABackSlashInImageIsStoredAsASlashWhileTheFieldStillShowsIt) {
  t.page->type(kImage, "images\\ball.gif");
  EXPECT_EQ(t.ball->image.view(), "images/ball.gif");
  EXPECT_EQ(t.page->text(kImage), "images\\ball.gif");
}

TEST_F(Inventory, ABackSlashInFilenameStays) {
  t.page->type(kFileName, "balls\\1.htm");
  EXPECT_EQ(t.ball->fileName.view(), "balls\\1.htm");
}

TEST_F(Inventory, WithoutAnImageItsLinkAndTheButtonsAreOff) {
  EXPECT_EQ(enabledOfImages(), "");
  t.page->type(kImage, "a.gif");
  EXPECT_EQ(enabledOfImages(), "show link chooseLink ");
  t.page->type(kImage, "");
  EXPECT_EQ(enabledOfImages(), "");
}

TEST_F(Inventory, TheLinksShowButtonIsOnWhenItsFieldIsNotEmpty) {
  t.page->type(kImage, "a.gif");
  t.page->type(kImageLink, "b");
  EXPECT_EQ(enabledOfImages(), "show link chooseLink showLink ");
  t.page->type(kImageLink, "");
  EXPECT_EQ(enabledOfImages(), "show link chooseLink ");
}

TEST_F(Inventory, TheLinksShowButtonStaysOnWhenTheImageGoes) {
  t.page->type(kImage, "a.gif");
  t.page->type(kImageLink, "b");
  t.page->type(kImage, "");
  EXPECT_EQ(enabledOfImages(), "showLink ");
}

TEST_F(Inventory, FillingTheFormSetsTheImageButtonsWithoutAGuard) {
  t.ball->image.assign("a.gif");
  t.ball->imageLink.assign("b.gif");
  loadForm(t.shell);
  EXPECT_EQ(enabledOfImages(), "show link chooseLink showLink ");
  Select(t.project(), nullptr);
  loadForm(t.shell);
  EXPECT_EQ(enabledOfImages(), "");
}

TEST_F(Inventory, ChooseImagePutsThePathIntoItsFieldAndRemembersTheFolder) {
  t.config().lastDir[2].assign("C:\\old");
  t.screen.files = {"C:\\pictures\\toys\\ball.gif"};
  t.page->press(kChooseImage);
  ASSERT_EQ(t.screen.fileRequests.size(), 1U);
  EXPECT_EQ(t.screen.fileRequests[0].title, "Open Image File");
  EXPECT_EQ(t.screen.fileRequests[0].filter, "Image Files (*.gif, *.jpg)$*.gif;*.jpg;*.jpeg$All Files (*.*)$*.*$$");
  EXPECT_EQ(t.screen.fileRequests[0].folder, "C:\\old");
  EXPECT_EQ(t.page->text(kImage), "C:\\pictures\\toys\\ball.gif");
  EXPECT_EQ(t.ball->image.view(), "C:/pictures/toys/ball.gif");
  EXPECT_EQ(t.config().lastDir[2].view(), "C:\\pictures\\toys");
  EXPECT_EQ(t.project().dirty, 1);
}

TEST_F(Inventory, ChooseImageLinkDoesTheSameForTheLink) {
  t.page->type(kImage, "a.gif");
  t.config().lastDir[2].assign("C:\\old");
  t.screen.files = {"C:\\pictures\\big.jpg"};
  t.page->press(kChooseImageLink);
  ASSERT_EQ(t.screen.fileRequests.size(), 1U);
  EXPECT_EQ(t.screen.fileRequests[0].title, "Open Image Link File");
  EXPECT_EQ(t.screen.fileRequests[0].filter, "Image Files (*.gif, *.jpg)$*.gif;*.jpg;*.jpeg$All Files (*.*)$*.*$$");
  EXPECT_EQ(t.screen.fileRequests[0].folder, "C:\\old");
  EXPECT_EQ(t.ball->imageLink.view(), "C:/pictures/big.jpg");
  EXPECT_EQ(t.ball->image.view(), "a.gif");
  EXPECT_EQ(t.config().lastDir[2].view(), "C:\\pictures");
}

TEST_F(Inventory, ACancelledChooserChangesNothing) {
  t.config().lastDir[2].assign("C:\\old");
  t.page->press(kChooseImage);
  EXPECT_EQ(t.screen.fileRequests.size(), 1U);
  EXPECT_TRUE(t.ball->image.isNull());
  EXPECT_EQ(t.config().lastDir[2].view(), "C:\\old");
  EXPECT_EQ(t.project().dirty, 0);
}

TEST_F(Inventory, TheShowButtonsOpenWhatIsStoredInTheBrowser) {
  t.config().browser.assign("C:\\b\\b.exe");
  t.config().newWindow = 1;
  t.page->type(kImage, "C:\\a\\ball.gif");
  t.page->type(kImageLink, "http://x/y.htm");
  t.page->press(kShowImage);
  t.page->press(kShowImageLink);
  EXPECT_THAT(t.browsers.calls,
              ElementsAre("start C:\\b\\b.exe | C:/a/ball.gif", "start C:\\b\\b.exe | http://x/y.htm"));
}

TEST_F(Inventory, TheShowButtonsDoNothingWithoutAText) {
  for (const ControlId button : {kShowImage, kShowImageLink}) {
    t.page->enable(button, true);
    t.page->press(button);
    Select(t.project(), nullptr);
    t.page->press(button);
  }
  EXPECT_THAT(t.browsers.calls, IsEmpty());
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST_F(Inventory, TheTemplateListOffersTheNamesOfTheProjectsTemplates) {
  t.project().templateNames[0].assign("C:\\Varlo\\Projects\\Shop\\template\\big.htm");
  t.project().templateNames[1].assign("C:\\Varlo\\Projects\\Other\\template\\other.htm");
  t.project().templateNames[3].assign("C:\\Varlo\\Projects\\Shop\\product.htm");
  t.open();
  EXPECT_THAT(t.page->rows(kTemplate), ElementsAre("big.htm", "product.htm"));
  EXPECT_EQ(t.page->text(kTemplate), "product.htm");  // of the node
}

TEST_F(Inventory, ATemplateChosenFromTheListReachesANodeThatHasOne) {
  t.ball->templateName.assign("product.htm");
  t.page->addRow(kTemplate, "big.htm");
  t.page->pickComboRow(kTemplate, 0);
  EXPECT_EQ(t.ball->templateName.view(), "product.htm");
  t.page->deliverPosts();
  EXPECT_EQ(t.ball->templateName.view(), "big.htm");
  EXPECT_EQ(t.project().dirty, 1);
}

TEST_F(Inventory, ATemplateChosenFromTheListDoesNotReachANodeWithoutOne) {
  t.page->addRow(kTemplate, "big.htm");
  for (const char* none : {static_cast<const char*>(nullptr), ""}) {
    t.ball->templateName.assign(none);
    t.page->pickComboRow(kTemplate, 0);
    t.page->deliverPosts();
    EXPECT_FALSE(t.ball->templateName.isSet());
  }
  EXPECT_EQ(t.project().dirty, 0);
  t.page->type(kTax, "1");
  EXPECT_EQ(t.ball->templateName.view(), "big.htm");
}

TEST_F(Inventory, AChosenTemplateThatDiffersInCaseOnlyIsNoOther) {
  t.ball->templateName.assign("Big.htm");
  t.page->addRow(kTemplate, "bIG.htm");
  t.page->pickComboRow(kTemplate, 0);
  t.page->deliverPosts();
  EXPECT_EQ(t.ball->templateName.view(), "Big.htm");
  EXPECT_EQ(t.project().dirty, 0);
}

TEST_F(Inventory, ATypedTemplateNameReachesTheNodeAtOnce) {
  t.page->type(kTemplate, "mine.htm");
  EXPECT_EQ(t.ball->templateName.view(), "mine.htm");
}

TEST_F(Inventory, ATemplateChosenWithoutACurrentNodeIsNobodys) {
  t.page->addRow(kTemplate, "big.htm");
  Select(t.project(), nullptr);
  t.page->pickComboRow(kTemplate, 0);
  t.page->deliverPosts();
  EXPECT_EQ(t.project().dirty, 0);
}

TEST_F(Inventory, AnyDoingInTheTemplateListShowsItsHelp) {
  t.page->addRow(kTemplate, "big.htm");
  t.page->pickComboRow(kTemplate, 0);
  EXPECT_THAT(t.view.calls, Contains("showHelp " + std::to_string(kTemplate)));
}

TEST_F(Inventory, FillingTheFormShowsNoHelp) {
  loadForm(t.shell);
  EXPECT_THAT(t.view.calls, Not(Contains("showHelp " + std::to_string(kTemplate))));
}

TEST_F(Inventory, TheFocusInCustomFieldsAndDescriptionIsRemembered) {
  std::vector<ControlId> fields{kDescription};
  for (int i = 0; i < 6; ++i) {
    fields.push_back(kLabel1 + i);
    fields.push_back(kValue1 + i);
  }
  for (const ControlId field : fields) {
    t.view.calls.clear();
    t.page->enter(field);
    EXPECT_EQ(t.shell.focusedField, field);
    EXPECT_EQ(t.shell.linkedField, field);
    EXPECT_THAT(t.view.calls, ElementsAre("showHelp " + std::to_string(field)));
  }
}

TEST_F(Inventory, TheFocusInOtherFieldsLeavesTheRememberedOne) {
  t.page->enter(kValue1);
  for (const ControlId field : {kTitle, kTax, kTemplate, kKeywordManager}) {
    t.page->enter(field);
    EXPECT_EQ(t.shell.focusedField, kValue1) << field;
    EXPECT_EQ(t.shell.linkedField, kValue1) << field;
  }
}

TEST_F(Inventory, PreviewAndTheHiddenBuildButtonSendPreviewPage) {
  EXPECT_FALSE(t.page->isShown(kBuild));
  for (const ControlId button : {kPreview, kBuild}) {
    t.screen.posted.clear();
    t.logic->notified(*t.page, {.control = button, .notice = Notice::Clicked});
    EXPECT_THAT(t.screen.posted, ElementsAre(Command::PreviewPage));
  }
}

TEST_F(Inventory, TheTitleFollowsInTheTreeAlsoWhenItIsTheSame) {
  TestShell shelled;
  StoreNode* node = AddCategory(shelled.project(), "Home");
  Select(shelled.project(), node);
  shelled.shell.mainWindow = &shelled.window;
  shelled.project().projectFile.assign(kShopPath);
  node->treeItem = shelled.window.theTree.insert({.label = "old", .data = node});
  openTabPage(shelled.shell);
  EXPECT_EQ(shelled.window.theTree.labelOf(node->treeItem), "old");  // filling is no typing
  shelled.window.page()->type(kTitle, "Home");
  EXPECT_EQ(shelled.window.theTree.labelOf(node->treeItem), "Home");
  closeTabPage(shelled.shell);
}

TEST_F(Inventory, ItsButtonsBeginNothingWhileSomethingIsAtWork) {
  t.ball->image.assign("a.gif");
  t.ball->imageLink.assign("b.gif");
  loadForm(t.shell);
  const Work work(t.program);
  for (const ControlId button : {kShowImage, kShowImageLink, kChooseImage, kChooseImageLink}) t.page->press(button);
  EXPECT_THAT(t.browsers.calls, IsEmpty());
  EXPECT_THAT(t.screen.fileRequests, IsEmpty());
}

TEST_F(Inventory, AChosenTemplateWaitsForNobody) {
  t.ball->templateName.assign("product.htm");
  t.page->addRow(kTemplate, "big.htm");
  t.page->pickComboRow(kTemplate, 0);
  const Work work(t.program);
  t.page->deliverPosts();
  EXPECT_EQ(t.ball->templateName.view(), "product.htm");
}

TEST_F(Inventory, ItsChooserHasTheProgramToItself) {
  bool free = true;
  t.screen.whileWaiting = [&] { free = !t.program.atWork; };
  t.screen.files = {"C:\\a.gif"};
  t.page->press(kChooseImage);
  EXPECT_FALSE(free);
  EXPECT_EQ(t.ball->image.view(), "C:/a.gif");  // stored at once all the same
  EXPECT_EQ(t.project().dirty, 1);
}

TEST_F(Inventory, TheBrowserThatShowsAnImageHasTheProgramToItself) {
  t.config().browser.assign("C:\\web.exe");
  t.browsers.conversations = {"web/WWW_Activate", "web/WWW_OpenURL"};
  t.ball->image.assign("a.gif");
  loadForm(t.shell);
  int waits = 0;
  t.browsers.whileWaiting = [&] { waits += t.program.atWork ? 1 : 0; };
  t.page->press(kShowImage);
  EXPECT_EQ(waits, 2);
  EXPECT_FALSE(t.program.atWork);
}

}  // namespace
}  // namespace varlo
