#include "generator/items/index_file.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;

constexpr std::string_view kHead = "; Varlo Index File\n; v1.07\n";

class IndexFiles : public testing::Test {
 protected:
  TestShop t;

  // The lines behind the head of an index with these nodes.
  std::string linesOf(std::initializer_list<const StoreNode*> nodes) {
    {
      IndexFile index(t.generator);
      for (const StoreNode* node : nodes) IndexFileAddNode(t.generator.log, *node);
    }
    const std::string text = t.site("varlo.idx");
    EXPECT_TRUE(text.starts_with(kHead)) << text;
    return text.substr(std::min(kHead.size(), text.size()));
  }
};

TEST_F(IndexFiles, HasItsHeadAndReplacesTheOldFile) {
  t.files.put("C:\\Web\\varlo.idx", "old");
  EXPECT_EQ(linesOf({}), "");
  EXPECT_EQ(t.files.log[0], "remove C:\\Web\\varlo.idx");
  EXPECT_EQ(t.files.openHandles(), 0U);
}

TEST_F(IndexFiles, AProductsLineHoldsItsSevenFields) {
  t.ball->cost.assign("9.95");
  t.ball->image.assign("img\\Ball.gif");
  t.ball->imageLink.assign("big.gif");
  t.ball->metaDescription.assign("round");
  t.ball->metaKeywords.assign("toy,ball");
  EXPECT_EQ(linesOf({t.ball}), "#PBall|9.95|2.htm|img\\Ball.gif|big.gif|round|toy,ball\n");
}

TEST_F(IndexFiles, AnAbsentFieldIsWrittenAsNullAndAnEmptyOneAsNothing) {
  t.ball->cost.assign("");
  EXPECT_EQ(linesOf({t.ball}), "#PBall||2.htm|(null)|(null)|(null)|(null)\n");
  t.ball->title.release();
  EXPECT_EQ(linesOf({t.ball}), "#P(null)||2.htm|(null)|(null)|(null)|(null)\n");
}

TEST_F(IndexFiles, EveryOtherKindHasALetterC) {
  for (const NodeKind kind : {NodeKind::Category, NodeKind::Shelf, NodeKind::List}) {
    t.home->kind = kind;
    EXPECT_EQ(linesOf({t.home}).substr(0, 7), "#CHome|");
  }
}

TEST_F(IndexFiles, FieldsGoOutRaw) {
  t.ball->title.assign("A|B\tC\"");
  EXPECT_EQ(linesOf({t.ball}).substr(0, 10), "#PA|B\tC\"|(");
}

TEST_F(IndexFiles, ALineIsCutAt3095BytesAndLosesItsEnd) {
  t.ball->title.assign(std::string_view(std::string(4000, 't')));
  EXPECT_EQ(linesOf({t.ball, t.home}),
            "#P" + std::string(3093, 't') + "#CHome|(null)|1.htm|(null)|(null)|(null)|(null)\n");
}

TEST_F(IndexFiles, ALineOfExactly3095BytesIsWhole) {
  const std::string rest = "|(null)|2.htm|(null)|(null)|(null)|(null)\n";
  const std::string title(3095 - 2 - rest.size(), 't');
  t.ball->title.assign(std::string_view(title));
  EXPECT_EQ(linesOf({t.ball, t.ball}), "#P" + title + rest + "#P" + title + rest);
}

TEST_F(IndexFiles, AFileThatCannotBeCreatedIsToldAndNothingIsWritten) {
  t.files.shallFail = [](const std::string& operation) { return operation.starts_with("create"); };
  IndexFile index(t.generator);
  IndexFileAddNode(t.generator.log, *t.ball);
  EXPECT_FALSE(t.generator.log.index.has_value());
  EXPECT_THAT(t.screen.boxes,
              testing::ElementsAre(ShownBox{"S108: Unable to write index file 'C:\\Web\\varlo.idx'", "Error"}));
  EXPECT_EQ(t.site("varlo.idx"), "(no file)");
}

TEST_F(IndexFiles, WithoutAnOpenIndexNothingHappens) {
  { IndexFile index(t.generator); }
  IndexFileAddNode(t.generator.log, *t.ball);
  EXPECT_EQ(t.site("varlo.idx"), kHead);
}

}  // namespace
}  // namespace varlo
