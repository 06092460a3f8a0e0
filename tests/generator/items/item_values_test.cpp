#include "generator/items/item_values.h"

#include <gtest/gtest.h>

#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;

std::string bullet(const Value& name) {
  std::string text;
  AppendBullet(text, name);
  return text;
}

TEST(Bullet, IsNothingForAnAbsentNameAndAPictureForAnyOther) {
  EXPECT_EQ(bullet(Value()), "");
  EXPECT_EQ(bullet("f.gif"), "<img src=\"f.gif\" align=top>");
  EXPECT_EQ(bullet(""), "<img src=\"\" align=top>") << "one that is there but empty as well";
  EXPECT_EQ(bullet("x>"), "<img src=\"x>\" align=top>");
}

TEST(Bullet, IsTheNameWhereThatIsHtml) {
  EXPECT_EQ(bullet("<b>&middot;"), "<b>&middot;");
  EXPECT_EQ(bullet("x<"), "x<");
}

TEST(Bullet, GoesToEveryKeyOfATextOrTakesItsPlace) {
  std::string text = "$B,$B,$B,$B,$B";
  EXPECT_EQ(BulletTag(text, "$B", "<i>"), Replaced::Done);
  EXPECT_EQ(text, "<i>,<i>,<i>,<i>,<i>");
  text = "a$B";
  EXPECT_EQ(BulletTag(text, "$B", Value()), Replaced::Done);
  EXPECT_EQ(text, "a");
  EXPECT_EQ(BulletTag(text, "", "f.gif"), Replaced::Done);
  EXPECT_EQ(text, "<img src=\"f.gif\" align=top>");
  EXPECT_EQ(BulletTag(text, "", Value()), Replaced::Done);
  EXPECT_EQ(text, "");
  text = "a$B";
  EXPECT_EQ(BulletTag(text, "$B", "$B"), Replaced::Endless);
  EXPECT_EQ(text, "a$B");
}

struct ItemValuesTest : testing::Test {
  TestShop t;
  ItemValues values{t.generator};
  ItemValuesTest() { values.take(*t.ball); }
};

TEST_F(ItemValuesTest, ASlotIsAbsentWithoutASchemeOrAValue) {
  EXPECT_EQ(values.slot(4), Value());
  t.scheme().slot[4].assign("");
  EXPECT_EQ(values.slot(4), Value(""));
  t.project().projectScheme = nullptr;
  EXPECT_EQ(values.slot(4), Value());
}

TEST_F(ItemValuesTest, ThePicturesAreAbsentOrRewritten) {
  EXPECT_EQ(values.image(), Value());
  t.ball->image.assign("");
  t.ball->imageLink.assign("A\\B.GIF");
  EXPECT_EQ(values.image(), Value(""));
  EXPECT_EQ(values.imageLink(), Value("img/b.gif"));
}

TEST_F(ItemValuesTest, TheHomeLinkIsAbsentWithoutAHomeOrItsFileName) {
  EXPECT_EQ(values.homeLink(), Value("1.htm"));
  t.home->fileName.release();
  EXPECT_EQ(values.homeLink(), Value());
  t.project().root = nullptr;
  EXPECT_EQ(values.homeLink(), Value());
  t.project().root = t.home;
}

TEST_F(ItemValuesTest, OneItemHasOneMoment) {
  EXPECT_EQ(values.updated(), Value("02/01/03 04:05:06"));
  t.clock = FixedClock(kTestTime + 60);
  EXPECT_EQ(values.updated(), Value("02/01/03 04:05:06"));
  values.take(*t.home);
  EXPECT_EQ(values.updated(), Value("02/01/03 04:06:06"));
}

TEST_F(ItemValuesTest, ValuesFollowTheItemThatWasTaken) {
  EXPECT_EQ(values.shownTitle(), Value("Ball"));
  EXPECT_EQ(values.removeLink(), Value("javascript:parent.shopregister.removeItem('B1')"));
  values.take(*t.home);
  EXPECT_EQ(values.shownTitle(), Value("Home"));
  EXPECT_EQ(values.removeLink(), Value("javascript:parent.shopregister.removeItem('')"));
}

TEST_F(ItemValuesTest, AMetaValueIsNotCut) {
  t.ball->title.assign(std::string_view("<b>" + std::string(9000, 'x')));
  EXPECT_EQ(values.metaTitle()->size(), 9000U);
}

// Every value that is composed, asked for twice as two places of a text do. The views are of the same bytes.
TEST_F(ItemValuesTest, AComposedValueStaysWhereItIsUntilTheNextItemIsTaken) {
  const std::string name(100, 'n');
  for (StoreNode* node : {t.home, t.ball}) {
    for (Text* text : {&node->title, &node->fileName, &node->productCode, &node->image, &node->imageLink}) {
      text->assign(std::string_view(name));
    }
  }
  for (std::size_t i = 24; i < 28; ++i) t.scheme().slot[i].assign(std::string_view(name));
  const auto all = [this] {
    std::vector<Value> views{values.metaTitle(),  values.metaDescription(), values.homeLink(), values.updated(),
                             values.removeLink(), values.addLink(),         values.image(),    values.imageLink()};
    for (std::size_t i = 24; i < 28; ++i) views.push_back(values.bullet(i));
    return views;
  };
  const std::vector<Value> first = all();
  const std::vector<Value> second = all();
  for (std::size_t i = 0; i < first.size(); ++i) EXPECT_EQ(first[i]->data(), second[i]->data()) << i;
}

TEST_F(ItemValuesTest, AComposedValueIsThatOfTheItemThatWasTakenLast) {
  t.ball->image.assign("Pics\\Ball.gif");
  t.home->image.assign("Pics\\Home.gif");
  EXPECT_EQ(values.image(), Value("img/ball.gif"));
  EXPECT_EQ(values.metaTitle(), Value("Ball"));
  const std::string link(*values.addLink());
  values.take(*t.home);
  EXPECT_EQ(values.image(), Value("img/home.gif"));
  EXPECT_EQ(values.metaTitle(), Value("Home"));
  EXPECT_NE(values.addLink(), Value(link));
}

}  // namespace
}  // namespace varlo
