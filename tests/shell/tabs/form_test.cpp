#include "shell/tabs/form.h"

#include <set>

#include "core/program/work.h"
#include "core/text/limits.h"
#include "shell/tabs/inventory_page.h"
#include "shell/tabs/tab_switch.h"
#include "tests/support/test_form.h"
#include "tests/support/test_shell.h"

namespace varlo {
namespace {

using namespace test;
using namespace inventory;
using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::Not;

// What a user sees of the form: each field, the text of the node behind it, and what an empty field means.
struct Expected {
  const char* name;
  ControlId control;
  Text& (*text)(StoreNode& node);
  bool emptyIsNoText;
};

const std::vector<Expected>& allFields() {
  static const std::vector<Expected> fields{
      {"Title", kTitle, [](StoreNode& n) -> Text& { return n.title; }, true},
      {"Page Title", kPageTitle, [](StoreNode& n) -> Text& { return n.pageTitle; }, true},
      {"Filename", kFileName, [](StoreNode& n) -> Text& { return n.fileName; }, false},
      {"Product Code", kProductCode, [](StoreNode& n) -> Text& { return n.productCode; }, false},
      {"Meta Keywords", kMetaKeywords, [](StoreNode& n) -> Text& { return n.metaKeywords; }, true},
      {"Meta Description", kMetaDescription, [](StoreNode& n) -> Text& { return n.metaDescription; }, true},
      {"Image", kImage, [](StoreNode& n) -> Text& { return n.image; }, true},
      {"Image Link", kImageLink, [](StoreNode& n) -> Text& { return n.imageLink; }, true},
      {"Template", kTemplate, [](StoreNode& n) -> Text& { return n.templateName; }, false},
      {"Cost", kCost, [](StoreNode& n) -> Text& { return n.cost; }, true},
      {"Weight", kWeight, [](StoreNode& n) -> Text& { return n.weight; }, false},
      {"Freight", kFreight, [](StoreNode& n) -> Text& { return n.freight; }, false},
      {"Tax", kTax, [](StoreNode& n) -> Text& { return n.tax; }, false},
      {"Label 1", kLabel1, [](StoreNode& n) -> Text& { return n.label[0]; }, false},
      {"Label 2", kLabel1 + 1, [](StoreNode& n) -> Text& { return n.label[1]; }, false},
      {"Label 3", kLabel1 + 2, [](StoreNode& n) -> Text& { return n.label[2]; }, false},
      {"Label 4", kLabel1 + 3, [](StoreNode& n) -> Text& { return n.label[3]; }, false},
      {"Label 5", kLabel1 + 4, [](StoreNode& n) -> Text& { return n.label[4]; }, false},
      {"Label 6", kLabel1 + 5, [](StoreNode& n) -> Text& { return n.label[5]; }, false},
      {"Value 1", kValue1, [](StoreNode& n) -> Text& { return n.field[0]; }, false},
      {"Value 2", kValue1 + 1, [](StoreNode& n) -> Text& { return n.field[1]; }, false},
      {"Value 3", kValue1 + 2, [](StoreNode& n) -> Text& { return n.field[2]; }, false},
      {"Value 4", kValue1 + 3, [](StoreNode& n) -> Text& { return n.field[3]; }, false},
      {"Value 5", kValue1 + 4, [](StoreNode& n) -> Text& { return n.field[4]; }, false},
      {"Value 6", kValue1 + 5, [](StoreNode& n) -> Text& { return n.field[5]; }, false},
      {"Description", kDescription, [](StoreNode& n) -> Text& { return n.body; }, true},
  };
  return fields;
}

class Form : public testing::Test {
 protected:
  TestForm t;

  // Gives each text of the node a value of its own, of digits as every field takes them.
  void fillBall() {
    for (const Expected& field : allFields()) field.text(*t.ball).assign(std::to_string(field.control).c_str());
  }
};

TEST_F(Form, TheTableHasEachFieldOnce) {
  std::set<ControlId> controls;
  for (const Field<StoreNode>& field : InventoryFields()) controls.insert(field.id);
  std::set<ControlId> expected;
  for (const Expected& field : allFields()) expected.insert(field.control);
  EXPECT_EQ(controls, expected);
  EXPECT_EQ(InventoryFields().size(), allFields().size());
}

TEST_F(Form, EachFieldShowsItsTextOfTheNode) {
  fillBall();
  t.open();
  for (const Expected& field : allFields()) {
    EXPECT_EQ(t.page->text(field.control), std::to_string(field.control)) << field.name;
  }
}

TEST_F(Form, AKeystrokeInAnyFieldReachesItsTextAndNoOther) {
  t.open();
  for (const Expected& typed : allFields()) {
    fillBall();
    loadForm(t.shell);
    t.project().dirty = 0;
    t.page->type(typed.control, "7.5");
    for (const Expected& field : allFields()) {
      const std::string expected = field.control == typed.control ? "7.5" : std::to_string(field.control);
      EXPECT_EQ(field.text(*t.ball).view(), expected) << field.name << " after typing in " << typed.name;
    }
    EXPECT_EQ(t.project().dirty, 1) << typed.name;
  }
}

TEST_F(Form, AnEmptyFieldReadsAsNoTextOrAsAnEmptyOneAsItsRowTells) {
  t.open();
  for (const Expected& field : allFields()) {
    fillBall();
    loadForm(t.shell);
    t.page->type(field.control, "");
    EXPECT_EQ(field.text(*t.ball).isNull(), field.emptyIsNoText) << field.name;
    EXPECT_FALSE(field.text(*t.ball).isSet()) << field.name;
  }
}

TEST_F(Form, AFieldThatWasAbsentStaysAbsentWhenAnotherChanges) {
  t.open();
  t.page->type(kTax, "5");
  for (const Expected& field : allFields()) {
    if (field.control == kTitle || !field.emptyIsNoText) continue;
    EXPECT_TRUE(field.text(*t.ball).isNull()) << field.name;
  }
}

TEST_F(Form, OnlyTheImageFieldsTurnBackSlashes) {
  t.open();
  for (const Expected& field : allFields()) {
    if (field.control == kCost || field.control == kFreight || field.control == kWeight) continue;
    t.page->type(field.control, "a\\\\b\\c");
    const bool turned = field.control == kImage || field.control == kImageLink;
    EXPECT_EQ(field.text(*t.ball).view(), turned ? "a//b/c" : "a\\\\b\\c") << field.name;
    EXPECT_EQ(t.page->text(field.control), "a\\\\b\\c") << field.name;
  }
}

TEST_F(Form, FieldsAreFilledInTheirOrder) {
  t.ball->body.assign("text");
  t.open();
  t.shell.descriptionCache.reset();
  loadForm(t.shell);
  EXPECT_THAT(t.page->filled,
              ElementsAreArray(std::vector<ControlId>{
                  kDescription,  kTitle,      kPageTitle,   kImageLink,  kImage,      kFileName, kMetaDescription,
                  kMetaKeywords, kCost,       kProductCode, kFreight,    kWeight,     kTax,      kValue1,
                  kValue1 + 1,   kValue1 + 2, kValue1 + 3,  kValue1 + 4, kValue1 + 5, kLabel1,   kLabel1 + 1,
                  kLabel1 + 2,   kLabel1 + 3, kLabel1 + 4,  kLabel1 + 5, kTemplate}));
}

TEST_F(Form, FillingMarksNothing) {
  fillBall();
  t.open();
  loadForm(t.shell);
  EXPECT_EQ(t.project().dirty, 0);
  EXPECT_FALSE(t.shell.formLoading);
  EXPECT_THAT(t.view.calls, Not(Contains("refreshCommandStates")));  // that SetDirty would bring
}

TEST_F(Form, FillingChangesNothingInTheNode) {
  t.ball->cost.assign("12 dollars");
  t.ball->image.assign("a\\b");
  t.open();
  EXPECT_EQ(t.ball->cost.view(), "12 dollars");
  EXPECT_EQ(t.ball->image.view(), "a\\b");
  EXPECT_TRUE(t.ball->templateName.isNull());
}

TEST_F(Form, AnotherNodeShowsItsOwnTextsAndTheFirstKeepsWhatWasTyped) {
  t.open();
  t.page->type(kPageTitle, "typed");
  Select(t.project(), t.home);
  loadForm(t.shell);
  EXPECT_EQ(t.page->text(kPageTitle), "");
  EXPECT_EQ(t.page->text(kTitle), "Home");
  EXPECT_EQ(t.ball->pageTitle.view(), "typed");
}

TEST_F(Form, WithoutACurrentNodeAllFieldsAreEmpty) {
  fillBall();
  t.open();
  Select(t.project(), nullptr);
  loadForm(t.shell);
  for (const Expected& field : allFields()) EXPECT_EQ(t.page->text(field.control), "") << field.name;
}

TEST_F(Form, WithoutACurrentNodeAKeystrokeMarksTheProjectAndReadsNothing) {
  t.open();
  Select(t.project(), nullptr);
  t.page->type(kTitle, "x");
  EXPECT_EQ(t.project().dirty, 1);
  EXPECT_EQ(t.ball->title.view(), "Ball");
}

TEST_F(Form, WithoutATemplateNameTheDefaultOfTheKindIsShown) {
  t.open();
  const std::vector<std::pair<NodeKind, std::string>> kinds{{NodeKind::Category, "category.htm"},
                                                            {NodeKind::Product, "product.htm"},
                                                            {NodeKind::Shelf, "shelf.htm"},
                                                            {NodeKind::List, "list.htm"}};
  for (const auto& [kind, name] : kinds) {
    t.ball->kind = kind;
    t.ball->templateName.release();
    loadForm(t.shell);
    EXPECT_EQ(t.page->text(kTemplate), name);
    t.ball->templateName.assign("");
    loadForm(t.shell);
    EXPECT_EQ(t.page->text(kTemplate), name);
  }
}

TEST_F(Form, AfterAKeystrokeInAnotherFieldTheNodeHasTheShownTemplateName) {
  t.open();
  t.page->type(kTax, "1");
  EXPECT_EQ(t.ball->templateName.view(), "product.htm");
}

TEST_F(Form, AnItemOfAShelfOrAListShowsTheFileNameOfItsHolderAndTakesItAtTheFirstKeystroke) {
  for (const NodeKind kind : {NodeKind::Shelf, NodeKind::List}) {
    t.home->kind = kind;
    t.home->fileName.assign("1.htm");
    t.ball->fileName.assign("2.htm");
    t.open();
    EXPECT_EQ(t.page->text(kFileName), "1.htm");
    EXPECT_EQ(t.ball->fileName.view(), "2.htm");
    t.page->type(kTax, kind == NodeKind::Shelf ? "1" : "2");
    EXPECT_EQ(t.ball->fileName.view(), "1.htm");
  }
}

TEST_F(Form, AProductInACategoryShowsItsOwnFileName) {
  t.home->fileName.assign("1.htm");
  t.ball->fileName.assign("2.htm");
  t.open();
  EXPECT_EQ(t.page->text(kFileName), "2.htm");
}

TEST_F(Form, TypingRaisesDirtyWhetherOrNotTheFormThenDiffers) {
  t.open();
  t.page->type(kTax, "1");
  t.project().dirty = 0;
  t.page->type(kTax, "1");
  EXPECT_EQ(t.project().dirty, 1);
}

TEST_F(Form, WhereNothingDiffersTheNodeKeepsItsTextsAsTheyAre) {
  t.open();
  t.ball->templateName.assign("product.htm");
  t.ball->pageTitle.assign("");  // the field would read as no text
  t.page->type(kTax, "");
  EXPECT_FALSE(t.ball->pageTitle.isNull());
  EXPECT_TRUE(t.ball->tax.isNull());
}

TEST_F(Form, AChangeOfTextRaisesNoModifiedAndMakesNoNode) {
  t.ball->id = 5;
  t.open();
  const std::size_t nodes = t.project().nodes.size();
  t.page->type(kTitle, "Big ball");
  EXPECT_EQ(t.ball->title.view(), "Big ball");
  EXPECT_EQ(t.ball->modified, 0);
  EXPECT_EQ(t.ball->id, 5);
  EXPECT_EQ(t.ball->kind, NodeKind::Product);
  EXPECT_EQ(t.ball->parent, t.home);
  EXPECT_EQ(t.project().nodes.size(), nodes);
}

TEST_F(Form, ALongTextIsCutAt19999BytesWithoutAMessage) {
  EXPECT_EQ(kFieldText, 19999U);
  t.open();
  for (const ControlId control : {kImage, kImageLink, kDescription, kTitle}) {
    t.page->type(control, std::string(25000, 'x'));
  }
  EXPECT_EQ(t.ball->image.view().size(), 19999U);
  EXPECT_EQ(t.ball->imageLink.view().size(), 19999U);
  EXPECT_EQ(t.ball->body.view().size(), 19999U);
  EXPECT_EQ(t.ball->title.view().size(), 19999U);
  EXPECT_EQ(t.page->text(kDescription).size(), 25000U);
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST_F(Form, ALongDescriptionIsCutByAKeystrokeInAnyField) {
  t.ball->body.assign(std::string(20001, 'x').c_str());
  t.open();
  EXPECT_EQ(t.page->text(kDescription).size(), 20001U);
  t.page->type(kTax, "1");
  EXPECT_EQ(t.ball->body.view().size(), 19999U);
}

TEST_F(Form, TheDescriptionIsPutInOnlyWhenItDiffersFromWhatWasPutInLast) {
  t.ball->body.assign("round");
  t.home->body.assign("round");
  t.open();
  EXPECT_EQ(t.shell.descriptionCache, "round");
  Select(t.project(), t.home);
  loadForm(t.shell);
  EXPECT_THAT(t.page->filled, Not(Contains(kDescription)));
  t.ball->body.assign("flat");
  Select(t.project(), t.ball);
  loadForm(t.shell);
  EXPECT_THAT(t.page->filled, Contains(kDescription));
  EXPECT_EQ(t.page->text(kDescription), "flat");
  EXPECT_EQ(t.shell.descriptionCache, "flat");
}

TEST_F(Form, WithoutACachedTextTheDescriptionIsPutIn) {
  t.ball->body.assign("round");
  t.open();
  t.shell.descriptionCache.reset();
  loadForm(t.shell);
  EXPECT_THAT(t.page->filled, Contains(kDescription));
  EXPECT_EQ(t.shell.descriptionCache, "round");
}

TEST_F(Form, ANodeWithoutADescriptionClearsTheFieldAndDropsTheCache) {
  t.ball->body.assign("round");
  t.open();
  Select(t.project(), t.home);
  loadForm(t.shell);
  EXPECT_EQ(t.page->text(kDescription), "");
  EXPECT_FALSE(t.shell.descriptionCache.has_value());
}

TEST_F(Form, ReadingTheDescriptionReplacesTheCache) {
  t.open();
  t.page->type(kDescription, "typed");
  EXPECT_EQ(t.shell.descriptionCache, "typed");
  t.page->filled.clear();
  loadForm(t.shell);
  EXPECT_THAT(t.page->filled, Not(Contains(kDescription)));
}

TEST_F(Form, WhileItIsBusyItIsNeitherFilledNorRead) {
  t.open();
  t.shell.formBusy = true;
  t.page->type(kTitle, "x");
  EXPECT_EQ(t.ball->title.view(), "Ball");
  EXPECT_EQ(t.project().dirty, 1);
  Select(t.project(), t.home);
  loadForm(t.shell);
  EXPECT_EQ(t.page->text(kTitle), "x");
}

TEST_F(Form, WithoutAPageNothingHappens) {
  loadForm(t.shell);
  readForm(t.shell);
  EXPECT_FALSE(t.shell.formLoading);
  EXPECT_EQ(t.ball->title.view(), "Ball");
}

TEST_F(Form, OtherPagesReadNothingIntoTheNode) {
  fillBall();
  for (int tab = 1; tab < kTabs; ++tab) {
    t.open(static_cast<Tab>(tab));
    t.project().dirty = 0;
    t.logic->notified(*t.page, {.control = kTitle, .notice = Notice::Changed});
    EXPECT_EQ(t.ball->title.view(), std::to_string(kTitle)) << tab;
    EXPECT_EQ(t.project().dirty, 1) << tab;
  }
}

TEST_F(Form, AChangeIsReadAndMarkedUnlessThePageIsBeingFilled) {
  t.open();
  EXPECT_TRUE(onFieldCommand(t.shell, {.control = kTax, .notice = Notice::Changed}));
  EXPECT_EQ(t.project().dirty, 1);
  t.project().dirty = 0;
  t.shell.formLoading = true;
  EXPECT_FALSE(onFieldCommand(t.shell, {.control = kTax, .notice = Notice::Changed}));
  EXPECT_EQ(t.project().dirty, 0);
}

TEST_F(Form, TheFocusShowsTheHelpOfTheControl) {
  t.open();
  EXPECT_TRUE(onFieldCommand(t.shell, {.control = kTax, .notice = Notice::GotFocus}));
  EXPECT_THAT(t.view.calls, ElementsAre("showHelp " + std::to_string(kTax)));
  EXPECT_EQ(t.project().dirty, 0);
}

TEST_F(Form, OtherNotificationsMeanNothing) {
  t.open();
  for (const Notice notice : {Notice::LostFocus, Notice::Clicked, Notice::SelectionChanged, Notice::Posted}) {
    EXPECT_FALSE(onFieldCommand(t.shell, {.control = kTax, .notice = notice}));
  }
  EXPECT_EQ(t.project().dirty, 0);
}

TEST(FormOnTheTree, TypingInTheTitleChangesTheTreeLabelBeforeTheNextKey) {
  TestShell t;
  StoreNode* node = AddCategory(t.project(), "Home");
  Select(t.project(), node);
  t.shell.mainWindow = &t.window;
  t.project().projectFile.assign(kShopPath);
  node->treeItem = t.window.theTree.insert({.label = "Home", .data = node});
  openTabPage(t.shell);
  t.window.page()->type(kTitle, "Homes");
  EXPECT_EQ(t.window.theTree.labelOf(node->treeItem), "Homes");
  EXPECT_EQ(t.project().dirty, 1);
  t.window.page()->type(kTitle, "Homest");
  EXPECT_EQ(t.window.theTree.labelOf(node->treeItem), "Homest");
  closeTabPage(t.shell);
}

TEST(FormDiffers, InAnyField) {
  for (const Expected& field : allFields()) {
    StoreNode node;
    StoreNode scratch;
    field.text(scratch).assign("a");
    EXPECT_TRUE(formDiffers(&node, &scratch)) << field.name;
    field.text(node).assign("A");
    EXPECT_TRUE(formDiffers(&node, &scratch)) << field.name;
    field.text(node).assign("a");
    EXPECT_FALSE(formDiffers(&node, &scratch)) << field.name;
  }
}

TEST(FormDiffers, AbsentCountsAsEmpty) {
  for (const Expected& field : allFields()) {
    StoreNode node;
    StoreNode scratch;
    field.text(scratch).assign("");
    EXPECT_FALSE(formDiffers(&node, &scratch)) << field.name;
    EXPECT_FALSE(formDiffers(&scratch, &node)) << field.name;
  }
}

TEST(FormDiffers, AMissingNodeDiffersFromNothing) {
  StoreNode node;
  node.title.assign("a");
  EXPECT_FALSE(formDiffers(&node, nullptr));
  EXPECT_FALSE(formDiffers(nullptr, &node));
  EXPECT_FALSE(formDiffers(nullptr, nullptr));
}

TEST(FormDiffers, WhatTheFormDoesNotShowDoesNotCount) {
  StoreNode node;
  StoreNode scratch;
  scratch.kind = NodeKind::List;
  scratch.status = kStatusDisabled;
  scratch.id = 7;
  scratch.displayTitle.assign("x");
  EXPECT_FALSE(formDiffers(&node, &scratch));
}

class DigitsOnly : public testing::Test {
 protected:
  TestForm t;
  void SetUp() override { t.open(); }
  std::string of(std::string_view text) {
    t.page->setText(kTax, text);  // which filters nothing by itself
    t.page->filled.clear();
    digitsOnly(*t.page, kTax);
    return t.page->text(kTax);
  }
};

TEST_F(DigitsOnly, DeletesWhatIsNeitherADigitNorAPoint) {
  EXPECT_EQ(of("12a.5"), "12.5");
  EXPECT_EQ(of("$ -1,234.50\xB2"), "1234.50");
  EXPECT_EQ(of("abc"), "");
}

TEST_F(DigitsOnly, PutsTheCaretBehindTheTextItChanged) {
  of("12a.5");
  EXPECT_TRUE(t.page->caretAtEnd(kTax));
}

TEST_F(DigitsOnly, LeavesAloneWhatNeedsNoChange) {
  EXPECT_EQ(of("1.2.3"), "1.2.3");
  EXPECT_THAT(t.page->filled, IsEmpty());
  EXPECT_FALSE(t.page->caretAtEnd(kTax));
  EXPECT_EQ(of(""), "");
  EXPECT_THAT(t.page->filled, IsEmpty());
}

TEST(FormDuringWork, AnEditReachesTheNodeWhenTheWorkHasEnded) {
  TestShell t;
  t.nameShop();
  t.open();
  FakeWindow& page = *t.window.page();
  {
    const Work work(t.program);
    page.type(kTitle, "House");
    page.type(kTitle, "Houses");
    EXPECT_EQ(t.project().root->title.view(), "Home");
    EXPECT_EQ(t.project().dirty, 0);
  }
  EXPECT_EQ(t.project().root->title.view(), "Houses");
  EXPECT_EQ(t.project().dirty, 1);
}

TEST(FormDuringWork, AnEditIsForgottenWhenTheFormIsFilledAnew) {
  TestShell t;
  t.nameShop();
  t.open();
  {
    const Work work(t.program);
    t.window.page()->type(kTitle, "House");
    loadForm(t.shell);
  }
  EXPECT_EQ(t.project().root->title.view(), "Home");
  EXPECT_EQ(t.project().dirty, 0);
}

TEST(FormDuringWork, NoEditWaitsWhereNoneWasMade) {
  TestShell t;
  t.nameShop();
  t.open();
  { const Work work(t.program); }
  EXPECT_EQ(t.project().dirty, 0);
}

}  // namespace
}  // namespace varlo
