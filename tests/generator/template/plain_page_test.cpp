// The order of the steps of a page.
#include "generator/template/plain_page.h"

#include <gtest/gtest.h>

#include "core/store/user_variable.h"
#include "tests/support/both_ways.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;

struct PlainPage : testing::Test {
  TestShop t;
  std::string page(std::string_view text, const std::string* shelf = nullptr) {
    return BothWays(t).page(text, *t.home, shelf).text;
  }
};

TEST_F(PlainPage, TheEarlyTextsFollowEachOther) {
  t.project().storeTitle.assign("$PAGETITLE");
  t.home->pageTitle.assign("$BODY");
  t.home->body.assign("$DESCRIPTION");
  t.home->metaDescription.assign("$KEYWORDS");
  t.home->metaKeywords.assign("$UPDATED");
  EXPECT_EQ(page("$STORETITLE"), "02/01/03 04:05:06");
}

TEST_F(PlainPage, TheShelfComesBetweenTheEarlyTextsAndThePass) {
  const std::string shelf = "$BODY $USER";
  t.home->body.assign("$SHELF");
  EXPECT_EQ(page("$BODY", &shelf), "$SHELF shop-12") << "the body of the pass comes behind the shelf";
  EXPECT_EQ(page("$SHELF"), "$SHELF") << "without a block it stays";
}

TEST_F(PlainPage, ThePassComesBeforeTheListings) {
  t.home->cost.assign("$PRODUCT");
  EXPECT_EQ(page("$COST"), page("$PRODUCT"));
  t.home->cost.assign("$BACK");
  t.home->prev = t.ball;
  EXPECT_EQ(page("$COST"), "2.htm");
}

TEST_F(PlainPage, ThePicturesAreCopiedBehindThePassAndBeforeTheListings) {
  t.home->image.assign("C:\\none.gif");
  t.home->kind = NodeKind::Product;
  t.home->productCode.release();
  t.ball->title.assign("$PRODUCT");
  EXPECT_THAT(
      BothWays(t).page("$BUY $PRODUCT.", *t.home).lines,
      ElementsAre("error: 1.htm: no product code", "warning: 1.htm: unable to read image file: 'C:\\none.gif'",
                  "error: 1.htm: endless replacement of '$PRODUCT'"));
}

TEST_F(PlainPage, TheUrlGoesBehindTheSubindex) {
  t.ball->title.assign("$URL!");
  EXPECT_NE(page("$SUBINDEX").find(">!</a>"), std::string::npos);
}

TEST_F(PlainPage, TheLetterPageOfAListingIsReplacedOnlyBehindTheIndex) {
  t.config().directoryLink = 0;
  t.home->title.assign("Quills");
  t.home->fileName.assign("indexa.htm");
  const std::string text = page("$INDEX");
  EXPECT_NE(text.find("<a href=\"indexq.htm\">"), std::string::npos) << "the row's own link is the first one";
}

}  // namespace
}  // namespace varlo
