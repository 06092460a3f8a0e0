#include "generator/build/preview_page.h"

#include <string>

#include <gtest/gtest.h>

#include "core/store/string_item.h"
#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;
using testing::HasSubstr;
using testing::IsEmpty;

class PagePreview : public testing::Test {
 protected:
  TestShop t;

  void SetUp() override {
    t.generator.log.buildWindow = nullptr;
    t.project().currentNode = t.ball;
    t.files.put("C:\\Varlo\\Projects\\Shop\\template\\product.htm", "product $TITLE");
    t.files.put("C:\\Varlo\\template\\trolley.dat", "trolley");
    t.files.put("C:\\Varlo\\template\\register.dat", "register");
  }
};

TEST_F(PagePreview, MakesTheCurrentPageAndTheCartAroundIt) {
  EXPECT_EQ(PreviewPage(t.generator), "C:\\Web\\ftmp.htm");
  EXPECT_EQ(t.site("2.htm"), "product Ball");
  EXPECT_EQ(t.site("trolley.html"), "trolley");
  EXPECT_EQ(t.site("register.html"), "register");
  EXPECT_THAT(t.site("ftmp.htm"), HasSubstr("SRC=\"2.htm\""));
  EXPECT_EQ(t.site("1.htm"), "(no file)");
  EXPECT_EQ(t.site("index.html"), "(no file)");
  EXPECT_EQ(t.site("varlo.idx"), "(no file)");
}

TEST_F(PagePreview, CopiesTheFilesOfTheSchemeFirstAndMakesNoFolder) {
  t.files.put("C:\\Varlo\\img\\a.gif", "a");
  t.scheme().files = StringItemInit(nullptr);
  t.scheme().files->text.assign("img\\a.gif");
  PreviewPage(t.generator);
  EXPECT_EQ(t.files.log[0], "copy C:\\Varlo\\img\\a.gif to c:\\web\\a.gif");
  for (const std::string& operation : t.files.log) EXPECT_FALSE(operation.starts_with("makeFolder")) << operation;
}

TEST_F(PagePreview, ADoubleBackSlashInThePathForTheBrowserBecomesOne) {
  t.project().webDir.assign("C:\\Web\\");
  EXPECT_EQ(PreviewPage(t.generator), "C:\\Web\\ftmp.htm");
}

TEST_F(PagePreview, CountsErrorsWithoutALog) {
  t.files.put("C:\\Varlo\\Projects\\Shop\\template\\product.htm", "$BUY");
  t.ball->productCode.release();
  PreviewPage(t.generator);
  EXPECT_EQ(t.generator.log.errorCount, 1);
  EXPECT_THAT(t.window.lines, IsEmpty());
}

TEST_F(PagePreview, LeavesTheProjectAsItIs) {
  PreviewPage(t.generator);
  EXPECT_EQ(t.project().dirty, 0);
  EXPECT_STREQ(t.project().webDir.get(), "C:\\Web");
  EXPECT_EQ(t.project().currentNode, t.ball);
}

TEST_F(PagePreview, OfASchemeTakesThePageFromTheTemplatesOfItsSet) {
  t.scheme().directory.assign("blue");
  t.files.put("C:\\Varlo\\template\\blue\\product.htm", "blue $TITLE");
  t.generator.useSetTemplates = true;
  PreviewPage(t.generator);
  EXPECT_EQ(t.site("2.htm"), "blue Ball");
}

TEST_F(PagePreview, WithoutACurrentNodeItFramesAnEmptySource) {
  t.project().currentNode = nullptr;
  PreviewPage(t.generator);
  EXPECT_THAT(t.site("ftmp.htm"), HasSubstr("SRC=\"\""));
}

TEST_F(PagePreview, AnItemOfAShelfOrAListIsShownOnItsHoldersPage) {
  EXPECT_EQ(PageOf(*t.ball), t.ball);
  t.home->kind = NodeKind::Shelf;
  EXPECT_EQ(PageOf(*t.ball), t.home);
  t.home->kind = NodeKind::List;
  EXPECT_EQ(PageOf(*t.ball), t.home);
  EXPECT_EQ(PageOf(*t.home), t.home);
}

}  // namespace
}  // namespace varlo
