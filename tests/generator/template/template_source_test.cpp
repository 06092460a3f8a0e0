#include "generator/template/template_source.h"

#include <gtest/gtest.h>

#include "core/store/user_variable.h"
#include "generator/items/item_values.h"
#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;

const std::string kShop = "C:\\Varlo\\Projects\\Shop\\template\\";
const std::string kSet = "C:\\Varlo\\template\\";

class TemplateSourceTest : public testing::Test {
 protected:
  std::string read(StoreNode& node) {
    const PageTemplate* page = source.read(node);
    return page == nullptr ? "(none)" : page->page;
  }
  // The text for a node of this kind and template.
  std::string of(NodeKind kind, const char* name = nullptr) {
    t.ball->kind = kind;
    t.ball->templateName.assign(name);
    return read(*t.ball);
  }
  std::string name(std::size_t i) { return std::string(t.project().templateNames[i].view()); }

  TestShop t;
  ItemValues values{t.generator};
  TemplateSource source{values};
};

TEST_F(TemplateSourceTest, ANodeUsesItsOwnTemplateOrThatOfItsKind) {
  for (const char* file : {"category", "product", "shelf", "list", "own"}) {
    t.files.put(kShop + file + ".htm", file);
  }
  for (const char* none : {static_cast<const char*>(nullptr), ""}) {
    EXPECT_EQ(of(NodeKind::Category, none), "category");
    EXPECT_EQ(of(NodeKind::Product, none), "product");
    EXPECT_EQ(of(NodeKind::Shelf, none), "shelf");
    EXPECT_EQ(of(NodeKind::List, none), "list");
  }
  for (const NodeKind kind : {NodeKind::Category, NodeKind::Product, NodeKind::Shelf, NodeKind::List}) {
    EXPECT_EQ(of(kind, "own.htm"), "own");
  }
}

TEST_F(TemplateSourceTest, APreviewOfASchemeTakesThemFromItsSet) {
  t.generator.useSetTemplates = true;
  t.scheme().directory.assign("classic");
  for (const char* file : {"category", "product", "shelf", "list", "own"}) {
    t.files.put(kSet + "classic\\" + file + ".htm", file);
  }
  EXPECT_EQ(of(NodeKind::List), "list");
  for (const NodeKind kind : {NodeKind::Category, NodeKind::Product, NodeKind::Shelf}) {
    EXPECT_EQ(of(kind), "product") << "only a list has a template of its own kind";
    EXPECT_EQ(of(kind, "own.htm"), "own");
  }
  EXPECT_EQ(of(NodeKind::List, "own.htm"), "own");
  EXPECT_TRUE(t.project().templateNames[0].isNull()) << "and none is remembered";
  t.files.put(kSet + "classic\\x-classic.htm", "dollar");
  EXPECT_EQ(of(NodeKind::Product, "x-$.htm"), "dollar") << "each dollar sign of the path is replaced";
}

TEST_F(TemplateSourceTest, ATemplateMayLieInAFolderBelowTheProjectsOwn) {
  t.files.put(kShop + "special\\a.htm", "special");
  for (const char* name : {"special\\a.htm", "special/a.htm", "special\\..\\special\\a.htm"}) {
    EXPECT_EQ(of(NodeKind::Product, name), "special") << name;
  }
}

TEST_F(TemplateSourceTest, AFileOutsideIsNoTemplateAsIfItWereMissing) {
  t.files.put(kShop + "product.htm", "former");
  t.files.put(kShop + "..\\Shop.stp", "the project");
  t.files.put("C:\\Varlo\\config.ini", "proxy=secret");
  for (const char* name : {"..\\Shop.stp", "../Shop.stp", "..\\..\\..\\config.ini", "a\\..\\..\\Shop.stp",
                           "..\\Template\\product.htm", "\\product.htm", "C:\\Varlo\\config.ini"}) {
    EXPECT_EQ(of(NodeKind::Product), "former");
    EXPECT_EQ(of(NodeKind::Product, name), "former") << name;
    EXPECT_STREQ(t.program.slots[kSlotTemplate].text(), "former");
  }
  EXPECT_EQ(this->name(0), kShop + "product.htm");
  EXPECT_EQ(this->name(1), "") << "no file outside is remembered";
  EXPECT_EQ(t.files.openHandles(), 0U);
}

TEST_F(TemplateSourceTest, WithoutAFormerOneAFileOutsideIsAnEmptyTemplate) {
  t.files.put(kShop + "..\\Shop.stp", "the project");
  EXPECT_EQ(of(NodeKind::Product, "..\\Shop.stp"), "");
}

TEST_F(TemplateSourceTest, APreviewOfASchemeReadsNothingOutsideOfItsSet) {
  t.generator.useSetTemplates = true;
  t.scheme().directory.assign("classic");
  t.files.put("C:\\Varlo\\config.ini", "proxy=secret");
  t.files.put(kSet + "modern\\product.htm", "modern");
  t.files.put(kSet + "classic\\product.htm", "classic");
  EXPECT_EQ(of(NodeKind::Product), "classic");
  for (const char* name : {"..\\modern\\product.htm", "..\\..\\config.ini", "..\\..\\template\\product.htm"}) {
    EXPECT_EQ(of(NodeKind::Product, name), "classic") << name;
  }
  t.scheme().directory.assign("..");
  EXPECT_EQ(of(NodeKind::Product, "config.ini"), "classic");
}

TEST_F(TemplateSourceTest, LinesThatBeginWithASemicolonAreDropped) {
  t.files.put(kShop + "product.htm", ";one\r\ntwo\r\n ;three\n;four\nfive");
  EXPECT_EQ(read(*t.ball), "two\r\n ;three\nfive");
}

TEST_F(TemplateSourceTest, ALongLineGoesOnAsTheNextOne) {
  t.files.put(kShop + "product.htm", std::string(19968, 'x') + ";dropped\nkept");
  EXPECT_EQ(read(*t.ball), std::string(19968, 'x') + "kept");
}

TEST_F(TemplateSourceTest, AMissingTemplateLeavesTheOneOfThePageBefore) {
  EXPECT_EQ(read(*t.ball), "") << "there was none yet";
  t.files.put(kShop + "category.htm", "former");
  EXPECT_EQ(read(*t.home), "former");
  EXPECT_EQ(read(*t.ball), "former");
  t.files.put(kShop + "product.htm", "");
  EXPECT_EQ(read(*t.ball), "former") << "so does one without a line";
  t.files.put(kShop + "product.htm", ";only\n");
  EXPECT_EQ(read(*t.ball), "former");
}

TEST_F(TemplateSourceTest, ATemplateThatLeadsOutOfItsFolderIsOneThatIsMissing) {
  t.files.put(kShop + "own.htm", "own");
  t.files.put(kShop + "..\\secret.htm", "secret");
  t.files.put("C:\\secret.htm", "secret");
  EXPECT_EQ(of(NodeKind::Product, "own.htm"), "own");
  for (const char* name : {"..\\secret.htm", "../secret.htm", "C:\\secret.htm", "a\\..\\..\\secret.htm"}) {
    EXPECT_EQ(of(NodeKind::Product, name), "own") << name;
    EXPECT_EQ(this->name(0), kShop + "own.htm") << "it is not remembered";
  }
  t.generator.useSetTemplates = true;
  t.scheme().directory.assign("..");
  t.files.put(kSet + "..\\product.htm", "secret");
  EXPECT_EQ(of(NodeKind::Product), "own");
}

TEST_F(TemplateSourceTest, TheTextStandsInTheSlotOfTheTemplateTab) {
  t.files.put(kShop + "product.htm", ";a\nshown");
  for (int i = 0; i < 2; ++i) {
    read(*t.ball);
    EXPECT_STREQ(t.program.slots[kSlotTemplate].text(), "shown");
  }
}

TEST_F(TemplateSourceTest, TheFileIsReadAnewForEveryPage) {
  t.files.put(kShop + "product.htm", "one");
  EXPECT_EQ(read(*t.ball), "one");
  t.files.put(kShop + "product.htm", "two");
  EXPECT_EQ(read(*t.ball), "two");
  t.files.put(kShop + "product.htm", "one");
  EXPECT_EQ(read(*t.ball), "one");
  t.files.remove(kShop + "product.htm");
  t.files.put(kShop + "category.htm", "other");
  read(*t.home);
  EXPECT_EQ(read(*t.ball), "other");
}

TEST_F(TemplateSourceTest, TheLastLineStaysInTheLineBufferAlsoOfATextThatWasPreparedBefore) {
  for (const char* content : {"a\nlast", "a\nlast\n", "last", "\n", "x"}) {
    t.files.put(kShop + "own.htm", content);
    of(NodeKind::Product, "own.htm");
    const std::string left = t.program.lineBuffer.text();
    t.program.lineBuffer.hold("something else");
    of(NodeKind::Product, "own.htm");
    EXPECT_EQ(t.program.lineBuffer.text(), left) << content;
  }
}

TEST_F(TemplateSourceTest, PathsGoToTheHeadOfTheNamesUnlessTheyAreThere) {
  read(*t.home);
  EXPECT_EQ(name(0), kShop + "category.htm") << "of a missing file as well";
  read(*t.ball);
  read(*t.home);
  EXPECT_EQ(name(0), kShop + "product.htm");
  EXPECT_EQ(name(1), kShop + "category.htm");
  EXPECT_EQ(name(2), "");
  of(NodeKind::Product, "PRODUCT.htm");
  EXPECT_EQ(name(0), kShop + "PRODUCT.htm") << "names are compared exactly";
}

TEST_F(TemplateSourceTest, TheLastNameFallsOff) {
  for (int i = 0; i < 21; ++i) of(NodeKind::Product, ("t" + std::to_string(i)).c_str());
  EXPECT_EQ(name(0), kShop + "t20");
  EXPECT_EQ(name(19), kShop + "t1");
}

TEST_F(TemplateSourceTest, TheShelfBlockIsTakenOutForShelvesAndListsOnly) {
  t.files.put(kShop + "t.htm", "a<SHELF>b</SHELF>c");
  for (const NodeKind kind : {NodeKind::Shelf, NodeKind::Category, NodeKind::List, NodeKind::Product}) {
    t.ball->kind = kind;
    t.ball->templateName.assign("t.htm");
    const PageTemplate* page = source.read(*t.ball);
    const bool isShelf = IsShelfOrList(*t.ball);
    EXPECT_EQ(page->page, isShelf ? "a$SHELFc" : "a<SHELF>b</SHELF>c");
    EXPECT_EQ(page->shelf, isShelf ? ShelfState::Taken : ShelfState::None);
    EXPECT_EQ(page->block, isShelf ? "b" : "");
    EXPECT_EQ(page->preparedBlock != nullptr, isShelf);
  }
}

TEST_F(TemplateSourceTest, ABlockIsMissingOrTooLong) {
  t.ball->kind = NodeKind::Shelf;
  t.files.put(kShop + "shelf.htm", "a</SHELF><SHELF>");
  EXPECT_EQ(source.read(*t.ball)->shelf, ShelfState::Missing);
  t.files.put(kShop + "shelf.htm", "a<SHELF>" + std::string(19999, 'x') + "</SHELF>");
  EXPECT_EQ(source.read(*t.ball)->shelf, ShelfState::Taken);
  t.files.put(kShop + "shelf.htm", "a<SHELF>" + std::string(10000, 'x') + "\n" + std::string(9999, 'x') + "</SHELF>");
  const PageTemplate* page = source.read(*t.ball);
  EXPECT_EQ(page->shelf, ShelfState::TooLong);
  EXPECT_EQ(page->page, "a$SHELF");
}

TEST_F(TemplateSourceTest, WithANameThatIsNotQuickNothingIsPrepared) {
  t.files.put(kShop + "product.htm", "$TITLE");
  EXPECT_NE(source.read(*t.ball)->preparedPage, nullptr);
  UserVariable* variable = UserVariableInit(nullptr);
  variable->name.assign("a<b");
  UserVariableAppend(t.project(), variable);
  TemplateSource other{values};
  EXPECT_EQ(other.read(*t.ball)->preparedPage, nullptr);
}

TEST_F(TemplateSourceTest, ManyTemplatesDoNotGetMixedUp) {
  for (int i = 0; i < 40; ++i) t.files.put(kShop + std::to_string(i), "text " + std::to_string(i));
  for (int round = 0; round < 3; ++round) {
    for (int i = 0; i < 40; ++i) {
      EXPECT_EQ(of(NodeKind::Product, std::to_string(i).c_str()), "text " + std::to_string(i));
    }
  }
}

}  // namespace
}  // namespace varlo
