#include "shell/tree/popup_menus.h"

#include <gtest/gtest.h>

#include "tests/support/test_shell.h"
#include "tests/support/tree.h"

namespace varlo::test {
namespace {

// A menu in one line; grey entries stand in round brackets, a submenu in square ones.
std::string shown(const PopupMenu& menu) {
  std::string text;
  for (const MenuEntry& entry : menu) {
    if (!text.empty()) text += ' ';
    text += entry.enabled ? entry.label : "(" + entry.label + ")";
    if (!entry.entries.empty()) text += "[" + shown(entry.entries) + "]";
  }
  return text;
}

std::vector<Command> commandsOf(const PopupMenu& menu) {
  std::vector<Command> commands;
  for (const MenuEntry& entry : menu) {
    if (entry.entries.empty()) commands.push_back(entry.command);
    for (const MenuEntry& below : entry.entries) commands.push_back(below.command);
  }
  return commands;
}

class PopupMenus : public testing::Test {
 protected:
  TestShell t;
  StoreProject& project = t.project();

  void openShop() {
    project.projectFile.assign(kShopPath);
    project.currentNode = AddCategory(project, "Home");
    project.clipboardNode = std::make_unique<StoreNode>();
    t.shell.hitItem = true;
  }
};

TEST_F(PopupMenus, OfAnItemOfTheTree) {
  openShop();
  EXPECT_EQ(shown(treePopup(t.shell)),
            "Pre&view &New[&Category &Product &Shelf &List] &Copy &Paste Delete Disable (Enable)");
}

TEST_F(PopupMenus, OfARowOfTheList) {
  openShop();
  EXPECT_EQ(shown(listPopup(t.shell)),
            "Pre&view &New[&Category &Product &Shelf &List] &Copy &Paste Delete Enable Disable Select &All");
}

TEST_F(PopupMenus, TheirEntriesSendTheCommandsOfTheirPlace) {
  openShop();
  EXPECT_EQ(commandsOf(treePopup(t.shell)),
            (std::vector{Command::PreviewPage, Command::TreeNewCategory, Command::NewProduct, Command::NewShelf,
                         Command::NewList, Command::TreeCopy, Command::TreePaste, Command::TreeDelete,
                         Command::TreeDisable, Command::TreeEnable}));
  EXPECT_EQ(commandsOf(listPopup(t.shell)),
            (std::vector{Command::PreviewPage, Command::TreeNewCategory, Command::NewProduct, Command::NewShelf,
                         Command::NewList, Command::ListCopy, Command::ListPaste, Command::ListDelete,
                         Command::ListEnable, Command::ListDisable, Command::ListSelectAll}));
}

TEST_F(PopupMenus, OnBlankSpaceOnlyWhatNeedsNoItemIsLeft) {
  openShop();
  t.shell.hitItem = false;
  EXPECT_EQ(shown(treePopup(t.shell)),
            "(Pre&view) &New[&Category (&Product) (&Shelf) &List] (&Copy) &Paste (Delete) (Disable) (Enable)");
  EXPECT_EQ(shown(listPopup(t.shell)),
            "(Pre&view) &New[&Category (&Product) (&Shelf) &List] (&Copy) &Paste (Delete) (Enable) (Disable) Select "
            "&All");
}

TEST_F(PopupMenus, WithNoProjectTheTreesOffersAStoreAndNoNodes) {
  EXPECT_EQ(shown(treePopup(t.shell)),
            "(Pre&view) &New[(&List) &Store] (&Copy) (&Paste) (Delete) (Disable) (Enable)");
  const std::vector<Command> commands = commandsOf(treePopup(t.shell));
  EXPECT_EQ(std::count(commands.begin(), commands.end(), Command::NewStore), 1);
}

TEST_F(PopupMenus, WithAnEmptyTreeTheListsOffersAStoreAndNoNodes) {
  project.projectFile.assign(kShopPath);
  EXPECT_EQ(shown(listPopup(t.shell)),
            "(Pre&view) &New[&List &Store] (&Copy) (&Paste) (Delete) (Enable) (Disable) Select &All");
  EXPECT_EQ(shown(treePopup(t.shell)),
            "(Pre&view) &New[&Category (&Product) (&Shelf) &List] (&Copy) (&Paste) (Delete) (Disable) (Enable)");
}

TEST_F(PopupMenus, ATreeThatStayedBehindAFailedOpenKeepsItsNodesInTheListsMenuOnly) {
  openShop();
  project.projectFile.release();
  EXPECT_EQ(shown(treePopup(t.shell)), "Pre&view &New[(&List) &Store] &Copy &Paste Delete Disable (Enable)");
  EXPECT_EQ(shown(listPopup(t.shell)),
            "Pre&view &New[&Category &Product &Shelf &List] &Copy &Paste Delete Enable Disable Select &All");
}

TEST_F(PopupMenus, WithoutACopiedNodePasteIsGrey) {
  openShop();
  project.clipboardNode.reset();
  EXPECT_EQ(shown(treePopup(t.shell)),
            "Pre&view &New[&Category &Product &Shelf &List] &Copy (&Paste) Delete Disable (Enable)");
}

TEST_F(PopupMenus, ADisabledNodeCanBeEnabledAndNotDisabled) {
  openShop();
  project.currentNode->status = kStatusDisabled;
  EXPECT_EQ(shown(treePopup(t.shell)),
            "Pre&view &New[&Category &Product &Shelf &List] &Copy &Paste Delete (Disable) Enable");
}

TEST_F(PopupMenus, TheListsOffersBothWhateverTheNodeIs) {
  openShop();
  project.currentNode->status = kStatusDisabled;
  EXPECT_NE(shown(listPopup(t.shell)).find("Delete Enable Disable"), std::string::npos);
}

TEST_F(PopupMenus, WithoutACurrentNodeDisableIsGrey) {
  openShop();
  project.currentNode = nullptr;
  EXPECT_NE(shown(treePopup(t.shell)).find("(Disable) Enable"), std::string::npos);
}

TEST_F(PopupMenus, ShelvesAndListsAndWhatIsInThemTakeProductsOnly) {
  openShop();
  for (const NodeKind kind : {NodeKind::Shelf, NodeKind::List}) {
    StoreNode* holder = AddNode(project, kind, "Holder", project.root);
    for (StoreNode* node : {holder, AddProduct(project, "Ball", holder)}) {
      project.currentNode = node;
      EXPECT_NE(shown(treePopup(t.shell)).find("&New[(&Category) &Product (&Shelf) (&List)]"), std::string::npos);
      EXPECT_NE(shown(listPopup(t.shell)).find("&New[(&Category) &Product (&Shelf) (&List)]"), std::string::npos);
    }
  }
}

}  // namespace
}  // namespace varlo::test
