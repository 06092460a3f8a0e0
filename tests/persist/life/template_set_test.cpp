#include "persist/life/template_set.h"

#include <gtest/gtest.h>

#include "core/text/open_file.h"
#include "persist/project/project_paths.h"
#include "tests/support/test_program.h"
#include "tests/support/tree.h"

namespace varlo {
namespace {

using namespace test;

class TemplateSetTest : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();

  void openShop() {
    t.files.putFolder("C:\\Varlo\\Projects\\Shop\\Template");
    project.projectDir.assign("C:\\Varlo\\Projects\\Shop");
  }
  static std::string inProject(std::string_view name) {
    return std::string("Projects\\Shop\\Template\\").append(name);
  }
  // A file of the set in `folder`, which tells where it came from.
  void ship(const std::string& folder, std::string_view name) {
    t.files.put(folder + std::string(name), folder + std::string(name));
  }
  void shipWholeSet(const std::string& folder) {
    for (const std::string_view name : kTemplateSetFiles) ship(folder, name);
  }
  std::string content(std::string_view name) { return t.files.content(inProject(name)).value_or("(none)"); }

  // A style at the end of the catalogue.
  SchemeStyle* addStyle() {
    SchemeStyle* style = SchemeInit(nullptr);
    SchemeStyle** at = &t.config().schemeStyles;
    while (*at != nullptr) at = &(*at)->next;
    return *at = style;
  }
  // The first scheme of a style.
  static Scheme* addScheme(SchemeStyle* style) {
    style->schemes = SchemeInit(nullptr);
    style->schemes->prev = style;
    return style->schemes;
  }
  // A chain of nodes, each the only child of the one above.
  StoreNode* addDeepBranch(int levels) {
    StoreNode* top = project.nodes.allocate();
    StoreNode* deepest = top;
    for (int level = 1; level < levels; ++level) {
      StoreNode* node = project.nodes.allocate();
      node->parent = node->prev = deepest;
      deepest->child = node;
      deepest = node;
    }
    return top;
  }
};

TEST_F(TemplateSetTest, CopiesTheSixFilesInOrder) {
  openShop();
  shipWholeSet("template\\Blue\\");
  Scheme scheme;
  scheme.directory.assign("Blue");
  EXPECT_EQ(CopyTemplateSet(t.program, &scheme), 1);
  std::vector<std::string> copies;
  for (const char* name : {"category.htm", "product.htm", "shelf.htm", "list.htm", "order.htm", "confirm.htm"}) {
    copies.push_back(std::string("copy C:\\Varlo\\template\\Blue\\") + name +
                     " to C:\\Varlo\\Projects\\Shop\\Template\\" + name);
    EXPECT_EQ(content(name), std::string("template\\Blue\\") + name);
  }
  EXPECT_EQ(t.files.log, copies);
}

TEST_F(TemplateSetTest, ASchemeWithoutADirectoryCopiesFromTheTemplateFolderItself) {
  openShop();
  shipWholeSet("template\\");
  Scheme scheme;
  EXPECT_EQ(CopyTemplateSet(t.program, &scheme), 1);
  EXPECT_EQ(content("shelf.htm"), "template\\shelf.htm");
  scheme.directory.assign("");
  t.files.put(inProject("shelf.htm"), "own");
  EXPECT_EQ(CopyTemplateSet(t.program, &scheme), 1);
  EXPECT_EQ(content("shelf.htm"), "template\\shelf.htm");
}

TEST_F(TemplateSetTest, OverwritesWhatIsThere) {
  openShop();
  shipWholeSet("template\\Blue\\");
  for (const std::string_view name : kTemplateSetFiles) t.files.put(inProject(name), "own");
  Scheme scheme;
  scheme.directory.assign("Blue");
  CopyTemplateSet(t.program, &scheme);
  for (const std::string_view name : kTemplateSetFiles) {
    EXPECT_EQ(content(name), std::string("template\\Blue\\").append(name));
  }
}

TEST_F(TemplateSetTest, LeavesTheOtherTemplatesOfTheProject) {
  openShop();
  shipWholeSet("template\\Blue\\");
  ship("template\\Blue\\", "special.htm");
  t.files.put(inProject("special.htm"), "own");
  Scheme scheme;
  scheme.directory.assign("Blue");
  CopyTemplateSet(t.program, &scheme);
  EXPECT_EQ(content("special.htm"), "own");
}

TEST_F(TemplateSetTest, ASetWithoutAListLeavesTheOldOne) {
  openShop();
  shipWholeSet("template\\Blue\\");
  t.files.remove("template\\Blue\\list.htm");
  t.files.put(inProject("list.htm"), "own");
  Scheme scheme;
  scheme.directory.assign("Blue");
  EXPECT_EQ(CopyTemplateSet(t.program, &scheme), 1);
  EXPECT_EQ(content("list.htm"), "own");
  EXPECT_EQ(content("order.htm"), "template\\Blue\\order.htm");
  EXPECT_TRUE(t.screen.boxes.empty());
}

TEST_F(TemplateSetTest, ASetThatIsMissingAltogetherIsSilent) {
  openShop();
  t.files.put(inProject("list.htm"), "own");
  Scheme scheme;
  scheme.directory.assign("Gone");
  EXPECT_EQ(CopyTemplateSet(t.program, &scheme), 1);
  EXPECT_EQ(content("list.htm"), "own");
  EXPECT_EQ(t.files.log.size(), kTemplateSetFiles.size());
  EXPECT_TRUE(t.screen.boxes.empty());
}

TEST_F(TemplateSetTest, WithoutAProjectDirectoryNothingIsCopied) {
  shipWholeSet("template\\");
  Scheme scheme;
  EXPECT_EQ(CopyTemplateSet(t.program, &scheme), 0);
  EXPECT_TRUE(t.files.log.empty());
}

TEST_F(TemplateSetTest, ASetOutsideOfTheTemplatesIsNotCopied) {
  for (const char* directory : {"..", "..\\Projects\\Other", "C:\\Other", "\\Other"}) {
    SchemeRecord scheme;
    scheme.directory.assign(directory);
    project.projectDir.assign("C:\\Varlo\\Projects\\Shop");
    t.files.putFolder("C:\\Varlo\\Projects\\Shop\\Template");
    t.files.put(std::string("template\\") + directory + "\\order.htm", "foreign");
    t.files.log.clear();
    EXPECT_EQ(CopyTemplateSet(t.program, &scheme), 1);
    EXPECT_TRUE(t.files.log.empty()) << directory;
  }
}

TEST_F(TemplateSetTest, WithoutASchemeNothingIsCopied) {
  openShop();
  shipWholeSet("template\\");
  EXPECT_EQ(CopyTemplateSet(t.program, nullptr), 0);
  EXPECT_TRUE(t.files.log.empty());
  EXPECT_TRUE(t.screen.boxes.empty());
}

TEST_F(TemplateSetTest, EveryNodeGetsTheTemplateOfItsKind) {
  StoreNode* home = AddCategory(project, "Home");
  StoreNode* ball = AddProduct(project, "Ball", home);
  StoreNode* shelf = AddNode(project, NodeKind::Shelf, "Shelf", home);
  StoreNode* car = AddProduct(project, "Car", shelf);
  StoreNode* list = AddNode(project, NodeKind::List, "List", home);
  StoreNode* last = AddCategory(project, "Last");
  AssignDefaultTemplates(project.root);
  EXPECT_STREQ(home->templateName.get(), "category.htm");
  EXPECT_STREQ(ball->templateName.get(), "product.htm");
  EXPECT_STREQ(shelf->templateName.get(), "shelf.htm");
  EXPECT_STREQ(car->templateName.get(), "product.htm");
  EXPECT_STREQ(list->templateName.get(), "list.htm");
  EXPECT_STREQ(last->templateName.get(), "category.htm");
  ExpectPlainTree(project);
}

TEST_F(TemplateSetTest, SpecialTemplatesAreDroppedAlsoThoseThatWereCopied) {
  openShop();
  t.files.put(inProject("special.htm"), "own");
  StoreNode* home = AddCategory(project, "Home");
  StoreNode* ball = AddProduct(project, "Ball", home);
  home->templateName.assign("special.htm");
  ball->templateName.assign("other\\special.htm");
  AssignDefaultTemplates(project.root);
  EXPECT_STREQ(home->templateName.get(), "category.htm");
  EXPECT_STREQ(ball->templateName.get(), "product.htm");
  EXPECT_EQ(content("special.htm"), "own");
}

TEST_F(TemplateSetTest, WhatHangsBelowAProductGetsItsTemplateToo) {
  StoreNode* ball = AddProduct(project, "Ball");
  StoreNode* chained = AddProduct(project, "Chained", ball);
  chained->parent = nullptr;
  chained->templateName.assign("special.htm");
  AssignDefaultTemplates(project.root);
  EXPECT_STREQ(chained->templateName.get(), "product.htm");
}

TEST_F(TemplateSetTest, AssigningStartsAtTheGivenNodeAndLeavesTheRest) {
  StoreNode* home = AddCategory(project, "Home");
  StoreNode* first = AddProduct(project, "First", home);
  StoreNode* second = AddProduct(project, "Second", home);
  first->templateName.assign("own.htm");
  AssignDefaultTemplates(second);
  EXPECT_TRUE(home->templateName.isNull());
  EXPECT_STREQ(first->templateName.get(), "own.htm");
  EXPECT_STREQ(second->templateName.get(), "product.htm");
}

TEST_F(TemplateSetTest, AssigningToAnEmptyTreeDoesNothing) {
  AssignDefaultTemplates(nullptr);
  EXPECT_EQ(project.nodes.size(), 0U);
}

TEST_F(TemplateSetTest, ABranchOfAHundredThousandLevelsIsAssigned) {
  project.root = addDeepBranch(100'000);
  AssignDefaultTemplates(project.root);
  int assigned = 0;
  for (const StoreNode* node = project.root; node != nullptr; node = node->child) {
    if (node->templateName.view() == "category.htm") ++assigned;
  }
  EXPECT_EQ(assigned, 100'000);
}

TEST_F(TemplateSetTest, TheSchemeOfTheProjectStays) {
  addScheme(addStyle());
  Scheme* own = addScheme(addStyle());
  project.projectScheme = own;
  EXPECT_EQ(EnsureProjectScheme(t.program), 1);
  EXPECT_EQ(project.projectScheme, own);
  EXPECT_TRUE(t.screen.boxes.empty());
}

TEST_F(TemplateSetTest, AProjectWithoutASchemeGetsTheFirstOfTheFirstStyle) {
  Scheme* first = addScheme(addStyle());
  t.config().currentScheme = addScheme(addStyle());
  EXPECT_EQ(EnsureProjectScheme(t.program), 1);
  EXPECT_EQ(project.projectScheme, first);
  EXPECT_TRUE(t.screen.boxes.empty());
}

TEST_F(TemplateSetTest, AnEmptyCatalogueGivesTheMessage) {
  EXPECT_EQ(EnsureProjectScheme(t.program), 0);
  EXPECT_EQ(t.screen.boxes, (std::vector<ShownBox>{{"No scheme defined for current store.", "Error"}}));
  EXPECT_EQ(project.projectScheme, nullptr);
}

TEST_F(TemplateSetTest, AFirstStyleWithoutSchemesGivesTheMessage) {
  addStyle();
  addScheme(addStyle());
  EXPECT_EQ(EnsureProjectScheme(t.program), 0);
  EXPECT_EQ(t.screen.boxes, (std::vector<ShownBox>{{"No scheme defined for current store.", "Error"}}));
  EXPECT_EQ(project.projectScheme, nullptr);
}

class SetTemplatePathTest : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
  Scheme scheme;
  StoreNode node;

  std::string path(NodeKind kind, const char* templateName = nullptr) {
    node.kind = kind;
    node.templateName.assign(templateName);
    return SetTemplatePath(project, node).value_or("(none)");
  }
  void useDirectory(const char* directory) {
    scheme.directory.assign(directory);
    project.projectScheme = &scheme;
  }
};

TEST_F(SetTemplatePathTest, ANamedTemplateIsThatOfTheSet) {
  useDirectory("Blue");
  for (const NodeKind kind : {NodeKind::Category, NodeKind::Product, NodeKind::Shelf, NodeKind::List}) {
    EXPECT_EQ(path(kind, "special.htm"), "template\\Blue\\special.htm");
  }
}

TEST_F(SetTemplatePathTest, WithoutANameOnlyAListHasItsOwnAndAllOthersUseThatOfProducts) {
  useDirectory("Blue");
  EXPECT_EQ(path(NodeKind::List), "template\\Blue\\list.htm");
  EXPECT_EQ(path(NodeKind::Product), "template\\Blue\\product.htm");
  EXPECT_EQ(path(NodeKind::Category), "template\\Blue\\product.htm");
  EXPECT_EQ(path(NodeKind::Shelf), "template\\Blue\\product.htm");
}

TEST_F(SetTemplatePathTest, AnEmptyNameIsNoName) {
  useDirectory("Blue");
  EXPECT_EQ(path(NodeKind::List, ""), "template\\Blue\\list.htm");
  EXPECT_EQ(path(NodeKind::Shelf, ""), "template\\Blue\\product.htm");
}

TEST_F(SetTemplatePathTest, WithoutADirectoryOrASchemeThePathKeepsOneBackSlash) {
  EXPECT_EQ(path(NodeKind::List), "template\\list.htm");
  useDirectory(nullptr);
  EXPECT_EQ(path(NodeKind::List), "template\\list.htm");
  useDirectory("");
  EXPECT_EQ(path(NodeKind::List, "special.htm"), "template\\special.htm");
}

TEST_F(SetTemplatePathTest, EveryDollarSignIsReplacedAlsoOneInTheName) {
  useDirectory("Blue");
  EXPECT_EQ(path(NodeKind::Product, "$-$.htm"), "template\\Blue\\Blue-Blue.htm");
}

TEST_F(SetTemplatePathTest, ADollarSignInTheDirectoryEndsTheReplacing) {
  useDirectory("Blu$");
  EXPECT_EQ(path(NodeKind::Product, "a.htm"), "template\\Blu$\\a.htm");
}

TEST_F(SetTemplatePathTest, DoubledBackSlashesBecomeOne) {
  useDirectory("Blue\\\\Dark\\");
  EXPECT_EQ(path(NodeKind::Product, "more\\\\a.htm"), "template\\Blue\\Dark\\more\\a.htm");
}

TEST_F(SetTemplatePathTest, ATemplateThatOnlyTheProjectHasIsNotFoundInTheSet) {
  project.projectDir.assign("C:\\Varlo\\Projects\\Shop");
  t.files.put("Projects\\Shop\\Template\\special.htm", "own");
  t.files.put("template\\Blue\\product.htm", "of the set");
  useDirectory("Blue");
  EXPECT_EQ(FileExists(t.files, ProjectTemplatePath(project, "special.htm").value_or("")), 1);
  EXPECT_EQ(FileExists(t.files, path(NodeKind::Product, "special.htm")), 0);
  EXPECT_EQ(FileExists(t.files, path(NodeKind::Product)), 1);
}

TEST_F(SetTemplatePathTest, ANameThatLeadsOutOfTheSetHasNoPath) {
  useDirectory("Blue");
  for (const char* name : {"..\\Red\\a.htm", "../a.htm", "a\\..\\..\\b.htm", "\\a.htm", "C:\\a.htm"}) {
    EXPECT_EQ(path(NodeKind::Product, name), "(none)") << name;
  }
}

TEST_F(SetTemplatePathTest, ADirectoryThatLeadsOutOfTheTemplatesHasNoPath) {
  for (const char* directory : {"..", "..\\Projects\\Shop", "Blue\\..\\..", "C:\\Blue", "\\Blue"}) {
    useDirectory(directory);
    EXPECT_EQ(path(NodeKind::Product, "a.htm"), "(none)") << directory;
  }
}

TEST_F(SetTemplatePathTest, ADollarSignInTheNameCanNotBringAWayOut) {
  useDirectory("Blue\\Dark");
  EXPECT_EQ(path(NodeKind::Product, "$\\..\\..\\a.htm"), "template\\Blue\\Dark\\Blue\\Dark\\..\\..\\a.htm");
  EXPECT_EQ(path(NodeKind::Product, "$\\..\\..\\..\\a.htm"), "(none)");
  useDirectory("Blue\\..");
  EXPECT_EQ(path(NodeKind::Product, "a.htm"), "template\\Blue\\..\\a.htm");
  useDirectory(".");
  EXPECT_EQ(path(NodeKind::Product, ".$\\a.htm"), "(none)");
}

}  // namespace
}  // namespace varlo
