#include "import/keyword_manager.h"

#include <gmock/gmock.h>

#include "import/keywords.h"
#include "tests/support/fake_window.h"
#include "tests/support/test_program.h"
#include "tests/support/tree.h"

namespace varlo {
namespace {

using namespace test;
using namespace keyword_manager;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr ControlId field(int number) { return kFirstKeyword + number - 1; }

class KeywordManagerTest : public testing::Test {
 protected:
  TestProgram t;
  StoreNode* node = AddCategory(t.project(), "Home");
  KeywordManager logic{t.program};
  FakeWindow window{logic};

  void SetUp() override { Select(t.project(), node); }

  void open(const char* keywords) {
    node->metaKeywords.assign(keywords);
    window.open();
  }
  bool hasLimit(ControlId control) {
    try {
      return window.limitOf(control) > 0;
    } catch (const std::out_of_range&) {
      return false;
    }
  }
};

TEST_F(KeywordManagerTest, KeywordsFillTheFieldsAndComeBackByOk) {
  open("a,b,c");
  EXPECT_EQ(window.text(field(1)), "a");
  EXPECT_EQ(window.text(field(2)), "b");
  EXPECT_EQ(window.text(field(3)), "c");
  EXPECT_EQ(window.text(field(4)), "");
  window.press(kOk);
  EXPECT_STREQ(node->metaKeywords.get(), "a,b,c");
  EXPECT_FALSE(window.isOpen());
}

TEST_F(KeywordManagerTest, AnEmptyKeywordIsLeftOutByOk) {
  open("a,,c");
  EXPECT_EQ(window.text(field(2)), "");
  window.press(kOk);
  EXPECT_STREQ(node->metaKeywords.get(), "a,c");
}

TEST_F(KeywordManagerTest, OfSeventeenKeywordsTwoAreAdditional) {
  open("a,b,c,d,e,f,g,h,i,j,k,l,m,n,o,p,q");
  EXPECT_EQ(window.text(field(15)), "o");
  EXPECT_EQ(window.text(kAdditional), "p,q");
  window.press(kOk);
  EXPECT_STREQ(node->metaKeywords.get(), "a,b,c,d,e,f,g,h,i,j,k,l,m,n,o,p,q");
}

TEST_F(KeywordManagerTest, AKeywordOfMoreThanFiftyCharactersIsShownWhole) {
  const std::string keyword(180, 'k');
  open((keyword + ",b").c_str());
  EXPECT_EQ(window.text(field(1)), keyword);
  window.press(kOk);
  EXPECT_EQ(node->metaKeywords.view(), keyword + ",b");
}

TEST_F(KeywordManagerTest, LimitsAreThoseOfTheFieldsThatTheKeywordsReach) {
  open("a,b");
  EXPECT_EQ(window.limitOf(field(1)), 50);
  EXPECT_EQ(window.limitOf(field(2)), 50);
  EXPECT_FALSE(hasLimit(field(3)));
  EXPECT_EQ(window.limitOf(kAdditional), 160);
}

TEST_F(KeywordManagerTest, TheTabIsNamedAndTheHelpShown) {
  open("a");
  EXPECT_EQ(window.text(kTab), "Keywords");
  EXPECT_THAT(t.view.calls, ElementsAre("showHelp " + std::to_string(kWindow)));
}

TEST_F(KeywordManagerTest, ForANodeWithoutKeywordsNothingIsSetUp) {
  for (const char* none : {static_cast<const char*>(nullptr), ""}) {
    open(none);
    EXPECT_EQ(window.text(kTab), "");
    EXPECT_FALSE(hasLimit(field(1)));
    EXPECT_FALSE(hasLimit(kAdditional));
    EXPECT_THAT(t.view.calls, IsEmpty());
  }
}

TEST_F(KeywordManagerTest, KeywordsThatAreTypedForANodeWithoutAnyAreStored) {
  open(nullptr);
  window.type(field(2), "tea pots");
  window.type(kAdditional, "mugs, cups ");
  window.press(kOk);
  EXPECT_STREQ(node->metaKeywords.get(), "tea pots,mugs, cups");
}

TEST_F(KeywordManagerTest, ClearEmptiesAllFieldsAndChangesNothingUntilOk) {
  open("a,b,c,d,e,f,g,h,i,j,k,l,m,n,o,p,q");
  window.press(kClear);
  for (int i = 1; i <= 15; ++i) EXPECT_EQ(window.text(field(i)), "");
  EXPECT_EQ(window.text(kAdditional), "");
  EXPECT_TRUE(node->metaKeywords.isSet());
  EXPECT_TRUE(window.isOpen());
  window.press(kOk);
  EXPECT_TRUE(node->metaKeywords.isNull());
}

TEST_F(KeywordManagerTest, OkLoadsTheFormAndMarksTheProject) {
  open("a");
  t.view.calls.clear();
  window.press(kOk);
  EXPECT_THAT(t.view.calls, ElementsAre("loadForm", "refreshCommandStates"));
  EXPECT_EQ(t.project().dirty, 1);
}

TEST_F(KeywordManagerTest, CancelChangesNothing) {
  open("a,b");
  window.type(field(1), "x");
  window.press(kCancel);
  EXPECT_STREQ(node->metaKeywords.get(), "a,b");
  EXPECT_EQ(t.project().dirty, 0);
  EXPECT_FALSE(window.isOpen());
}

TEST_F(KeywordManagerTest, HelpOpensThePaneOnTheDialogsTopic) {
  open("a");
  window.press(kHelp);
  EXPECT_EQ(t.view.calls.back(), "openHelpPane " + std::to_string(kWindow));
}

TEST_F(KeywordManagerTest, TheFieldsAreNumberedRowByRowInThreeColumns) {
  open("a");
  const std::vector<ControlId> order = window.tabOrder();
  for (int i = 1; i <= 15; ++i) EXPECT_EQ(order.at(static_cast<std::size_t>(i - 1)), field(i));
  EXPECT_NE(window.describe().find("15 edit \"\"\n&Additional Keywords: edit"), std::string::npos)
      << window.describe();
}

TEST_F(KeywordManagerTest, TheDialogIsShownForTheCurrentNodeOnly) {
  ShowKeywordManager(t.program);
  EXPECT_THAT(t.screen.dialogs, ElementsAre(kWindow));
  t.project().currentNode = nullptr;
  ShowKeywordManager(t.program);
  EXPECT_THAT(t.screen.dialogs, ElementsAre(kWindow));
}

}  // namespace
}  // namespace varlo
