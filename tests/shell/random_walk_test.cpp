// A random user at the main window, with all that must hold checked after each of his doings.

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "core/project_close.h"
#include "generator/html_text.h"
#include "shell/node_changes.h"
#include "tests/support/shown_store.h"

namespace varlo::test {
namespace {

constexpr int kSteps = 200000;
constexpr std::size_t kLargestTree = 45;
constexpr int kFullCheckEvery = 8;

class RandomWalk {
 public:
  explicit RandomWalk(unsigned seed) : random_(seed) {}

  void run() {
    t_.open();
    t_.screen.posted.clear();
    startProject();
    for (int i = 0; i < kSteps; ++i) {
      const Action& action = pickAction();
      (this->*action.run)();
      runPosted();
      check(i % kFullCheckEvery == 0);
      ASSERT_FALSE(::testing::Test::HasFailure()) << "after step " << i << ", " << action.name;
    }
    // The walk went where it should.
    EXPECT_GT(largest_, kLargestTree * 2 / 3);
    EXPECT_GT(drops_, kSteps / 100);
    EXPECT_GT(wholeTrees_, kSteps / kFullCheckEvery / 4);
  }

 private:
  struct Action {
    const char* name;
    std::size_t weight;
    void (RandomWalk::*run)();
  };

  // All that a user does. What works on the form belongs here as well.
  static const std::vector<Action>& actions() {
    static const std::vector<Action> kActions{
        {"click an item", 12, &RandomWalk::clickItem},
        {"expand an item", 3, &RandomWalk::expandItem},
        {"click a row", 12, &RandomWalk::clickRow},
        {"click a row with Ctrl", 8, &RandomWalk::controlClickRow},
        {"double click a row", 3, &RandomWalk::doubleClickRow},
        {"right click", 4, &RandomWalk::rightClick},
        {"key in the tree", 8, &RandomWalk::keyInTree},
        {"key in the list", 6, &RandomWalk::keyInList},
        {"new node", 10, &RandomWalk::makeNode},
        {"new product", 14, &RandomWalk::makeProduct},
        {"new top category", 1, &RandomWalk::makeTopCategory},
        {"copy", 4, &RandomWalk::copy},
        {"paste", 6, &RandomWalk::paste},
        {"delete", 6, &RandomWalk::deleteSome},
        {"disable or enable", 5, &RandomWalk::turn},
        {"sort", 2, &RandomWalk::sort},
        {"refill", 3, &RandomWalk::refill},
        {"retitle", 4, &RandomWalk::retitle},
        {"drag", 14, &RandomWalk::drag},
    };
    return kActions;
  }

  const Action& pickAction() {
    static const Action kClose{"close the project", 0, &RandomWalk::closeProject};
    static const Action kDelete{"delete", 0, &RandomWalk::deleteSome};
    if (below(1000) == 0 || (rootLeft_ && below(20) == 0)) return kClose;
    if (project_.root == nullptr && below(4) == 0) return kClose;
    if (size_ > kLargestTree) return below(30) == 0 ? kClose : kDelete;
    std::size_t all = 0;
    for (const Action& action : actions()) all += action.weight;
    std::size_t at = below(all);
    for (const Action& action : actions()) {
      if (at < action.weight) return action;
      at -= action.weight;
    }
    return actions().front();
  }

  std::size_t below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_); }
  bool oneIn(std::size_t limit) { return below(limit) == 0; }

  TreeItem anyItem() {
    const auto& items = t_.window.theTree.items();
    if (items.empty()) return kNoTreeItem;
    return std::next(items.begin(), static_cast<std::ptrdiff_t>(below(items.size())))->first;
  }
  int anyRow() {
    const int count = t_.window.theList.count();
    return count == 0 ? kNoRow : static_cast<int>(below(static_cast<std::size_t>(count)));
  }

  void clickItem() {
    if (const TreeItem item = anyItem(); item != kNoTreeItem) t_.window.clickItem(item);
  }
  void expandItem() {
    t_.logic.treeItemExpanding(anyItem());
    apart_ = true;
  }
  void clickRow() { t_.window.clickRow(oneIn(20) ? kNoRow : anyRow()); }
  void controlClickRow() {
    if (const int row = anyRow(); row != kNoRow) t_.window.controlClickRow(row);
  }
  void doubleClickRow() { t_.logic.rowDoubleClicked(anyRow()); }
  void rightClick() {
    aim();
    oneIn(2) ? t_.logic.treeRightClicked(anyPoint()) : t_.logic.listRightClicked(anyPoint());
  }

  void keyInTree() {
    static constexpr Key kKeys[] = {Key::Other, Key::Delete,     Key::Control,     Key::Control, Key::Up, Key::Up,
                                    Key::Down,  Key::KeypadPlus, Key::KeypadMinus, Key::A,       Key::Up};
    const Key key = kKeys[below(std::size(kKeys))];
    const StoreNode* root = project_.root;
    // Moving the first top-level node down leaves others outside the tree, so it is rare.
    const bool atRoot = root != nullptr && project_.treeNode == root && root->next != nullptr;
    const bool down = key == Key::KeypadPlus || (key == Key::Down && shell_.ctrlSeen);
    if (atRoot && down && !oneIn(10)) return;
    rootLeft_ = rootLeft_ || (atRoot && down);
    movedByKey_ = true;
    t_.logic.treeKey(key);
  }

  void keyInList() {
    static constexpr Key kKeys[] = {Key::Other, Key::Up, Key::Down, Key::Delete, Key::A};
    t_.logic.listKey(kKeys[below(std::size(kKeys))], oneIn(2));
    // What the control tells of the rows that a key changes.
    for (std::size_t i = below(4); i > 0; --i) {
      if (const int row = anyRow(); row != kNoRow) {
        t_.window.theList.setSelected(row, !t_.window.theList.isSelected(row));
      }
    }
  }

  void makeNode() {
    static constexpr NodeKind kKinds[] = {NodeKind::Category, NodeKind::Category, NodeKind::Shelf, NodeKind::List};
    newNode(shell_, kKinds[below(std::size(kKinds))]);
  }
  void makeProduct() { newProduct(shell_); }
  void makeTopCategory() { newTopCategory(shell_); }
  void copy() { copyNode(shell_); }
  void paste() { pasteNode(shell_); }

  void deleteSome() {
    t_.screen.answers = {oneIn(3) ? Answer::No : Answer::Yes};
    // Seldom the whole tree.
    if (project_.treeNode == project_.root && !oneIn(20)) return clickItem();
    oneIn(2) ? deleteTreeNode(shell_) : deleteRows(shell_);
  }

  void turn() {
    static constexpr void (*kTurns[])(Shell&) = {disableNode, enableNode, disableRows, enableRows};
    kTurns[below(std::size(kTurns))](shell_);
  }
  void sort() { t_.logic.columnClicked(static_cast<int>(below(18)) - 1); }

  void refill() {
    refillTree(shell_);
    movedByKey_ = false;
  }

  // As typing in the form does.
  void retitle() {
    static constexpr const char* kTitles[] = {"", "Ball", "<b>Bold</b> ball", "<img alt=\"Car\">", "a &amp; b"};
    if (project_.currentNode == nullptr) return;
    project_.currentNode->title.assign(kTitles[below(std::size(kTitles))]);
    refreshLabel(shell_, *project_.currentNode);
  }

  // What lies under the mouse.
  void aim() {
    t_.window.theTree.itemsAtY[ShownStore::kOnItem.y] = anyItem();
    t_.window.theList.rowsAtY[ShownStore::kOnRow.y] = anyRow();
    static constexpr Edge kEdges[] = {Edge::Inside, Edge::Above, Edge::Below};
    t_.window.theTree.edge = kEdges[below(std::size(kEdges))];
  }
  Point anyPoint() {
    static constexpr Point kPoints[] = {ShownStore::kOnItem, ShownStore::kOnItem, ShownStore::kOnRow,
                                        ShownStore::kBeside};
    t_.window.mouse = kPoints[below(std::size(kPoints))];
    return t_.window.mouse;
  }

  void drag() {
    t_.window.refusesDrags = oneIn(30);
    oneIn(2) ? t_.logic.treeDragBegun(anyItem()) : t_.logic.listDragBegun(anyRow());
    for (std::size_t i = below(5); i > 0; --i) {
      aim();
      oneIn(3) ? t_.logic.dragTicked() : t_.logic.dragMoved(anyPoint());
      if (oneIn(25)) interrupt();
    }
    aim();
    const Point point = anyPoint();
    drops_ += shell_.treeDragging || shell_.listDragging ? 1 : 0;
    t_.logic.dragReleased(point);
    EXPECT_FALSE(t_.window.dragging());
  }

  // Something else happens while the mouse is held.
  void interrupt() {
    static constexpr void (RandomWalk::*kDoings[])() = {
        &RandomWalk::deleteSome, &RandomWalk::refill,   &RandomWalk::closeProject, &RandomWalk::keyInTree,
        &RandomWalk::paste,      &RandomWalk::clickRow, &RandomWalk::makeProduct,  &RandomWalk::clickItem,
    };
    (this->*kDoings[below(std::size(kDoings))])();
    runPosted();
  }

  void closeProject() {
    ProjectClose(t_.program);
    EXPECT_TRUE(t_.window.theTree.items().empty());
    EXPECT_EQ(t_.window.theList.count(), 0);
    startProject();
  }

  void startProject() {
    StoreNode* home = AddCategory(project_, "Home");
    AddProduct(project_, "Ball", AddCategory(project_, "Toys", home));
    AddProduct(project_, "Pen", AddNode(project_, NodeKind::Shelf, "Desk", home));
    Select(project_, home);
    refill();
    rootLeft_ = apart_ = false;
  }

  void runPosted() {
    while (!t_.screen.posted.empty()) {
      const Command command = t_.screen.posted.front();
      t_.screen.posted.erase(t_.screen.posted.begin());
      t_.screen.answers = {oneIn(3) ? Answer::No : Answer::Yes};
      if (command == Command::TreeDelete && !(project_.treeNode == project_.root && !oneIn(20)))
        deleteTreeNode(shell_);
      if (command == Command::ListDelete) deleteRows(shell_);
      if (command == Command::ListSelectAll) selectAllRows(shell_);
    }
    t_.screen.answers.clear();
    t_.screen.boxes.clear();
    t_.screen.menus.clear();
    t_.window.theTree.calls.clear();
    t_.window.theList.repainted.clear();
  }

  // All that must hold. That the form shows the current node belongs here as well.
  void check(bool whole) {
    checkModel();
    checkGuards();
    checkSelection();
    if (!whole) return;
    checkItems();
    checkRows();
    if (!rootLeft_) {
      checkShown(t_.window.theTree.topItems(), project_.root);
      if (!movedByKey_) ++wholeTrees_;
    }
  }

  void checkModel() {
    StoreTreeReport report = StoreTreeCheck(project_);
    if (rootLeft_) {
      const std::string prevOfRoot = "a prev is not the node before (" +
                                     std::string(project_.root == nullptr ? "" : project_.root->title.orEmpty()) +
                                     ")";
      std::erase_if(report.faults, [&](const std::string& words) {
        return words.starts_with("the root has a prev") || words == prevOfRoot;
      });
    }
    EXPECT_THAT(report.faults, testing::IsEmpty());
    EXPECT_EQ(report.misplaced, 0U);
    size_ = report.nodes;
    largest_ = std::max(largest_, size_);
  }

  void checkGuards() {
    EXPECT_FALSE(shell_.notificationsMuted || shell_.listFrozen || shell_.listBusy || shell_.formLoading);
    EXPECT_FALSE(shell_.treeDragging || shell_.listDragging);
    EXPECT_FALSE(t_.window.theTree.paintingIsHeld() || t_.window.theList.paintingIsHeld());
    EXPECT_EQ(shell_.dropHighlight, kNoTreeItem);
    EXPECT_EQ(t_.window.theTree.dropHighlight(), kNoTreeItem);
    EXPECT_TRUE(project_.dragNode == nullptr && project_.dragList == nullptr);
  }

  // The tree control selects the node that the tree is on. Only the expanding of an item takes them apart.
  void checkSelection() {
    const TreeItem item = project_.treeNode == nullptr ? kNoTreeItem : project_.treeNode->treeItem;
    const bool agree = item == t_.window.theTree.selected();
    apart_ = apart_ && !agree;
    EXPECT_TRUE(agree || apart_);
    if (project_.root != nullptr) {
      EXPECT_TRUE(project_.currentNode != nullptr && project_.treeNode != nullptr);
    }
  }

  // Each item names a living node that names it back, and there is no node with an item that is not there.
  void checkItems() {
    const auto& items = t_.window.theTree.items();
    for (const auto& [item, shown] : items) {
      auto* node = static_cast<StoreNode*>(shown.data);
      ASSERT_TRUE(project_.nodes.holds(node) && !node->released);
      EXPECT_EQ(node->treeItem, item);
      EXPECT_EQ(shown.label, displayTitle(node));
    }
    std::size_t shown = 0;
    for (std::size_t i = 0; i < project_.nodes.size(); ++i) shown += project_.nodes.at(i).treeItem == 0 ? 0 : 1;
    EXPECT_EQ(shown, items.size());
  }

  void checkRows() {
    for (int row = 0; row < t_.window.theList.count(); ++row) {
      auto* node = static_cast<StoreNode*>(t_.window.theList.data(row));
      ASSERT_TRUE(project_.nodes.holds(node) && !node->released);
    }
  }

  // The items are those of the list from `head`, in its order. All are there, unless a move by key has left out a
  // branch.
  void checkShown(const std::vector<TreeItem>& items, const StoreNode* head) {
    auto at = items.begin();
    for (const StoreNode* node = head; node != nullptr; node = node->next) {
      if (at != items.end() && *at == node->treeItem) {
        checkShown(t_.window.theTree.items().at(*at).items, node->child);
        ++at;
      } else {
        EXPECT_TRUE(movedByKey_);
        EXPECT_EQ(node->treeItem, kNoTreeItem);
      }
    }
    EXPECT_TRUE(at == items.end());
  }

  TestShell t_;
  Shell& shell_ = t_.shell;
  StoreProject& project_ = t_.project();
  std::mt19937 random_;
  std::size_t size_ = 0;
  std::size_t largest_ = 0;
  int drops_ = 0;
  int wholeTrees_ = 0;       // that were compared node by node
  bool apart_ = false;       // an item was expanded that is not selected
  bool movedByKey_ = false;  // since the tree was filled
  bool rootLeft_ = false;    // the root was moved down by key
};

TEST(RandomWalk, TwoHundredThousandDoingsKeepModelAndWindowSound) { RandomWalk(20032).run(); }

}  // namespace
}  // namespace varlo::test
