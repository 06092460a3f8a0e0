// A random user at the main window, with all that must hold checked after each of his doings.

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>
#include <random>

#include <gtest/gtest.h>

#include "generator/items/html_text.h"
#include "persist/life/start_up.h"
#include "tests/support/rounds.h"
#include "tests/support/shell_checks.h"
#include "tests/support/shown_store.h"

namespace varlo::test {
namespace {

const int kSteps = Rounds(200000);
constexpr std::size_t kLargestTree = 45;
constexpr int kFullCheckEvery = 16;

constexpr const char* kAtticPath = "C:\\Varlo\\Projects\\Attic\\Attic.stp";
constexpr const char* kAtticText =
    "VERSION=107001\nNODE0=Attic\n#BRANCH\nNODE1=Lamp\nNODE1=Chair\n#EOB\nNODE0=Cellar\n#BRANCH\nNODE2=Jars\n#"
    "BRANCH\n"
    "NODE1=Plum\n#EOB\n#EOB\n";
constexpr const char* kMissingPath = "C:\\Varlo\\Projects\\None\\None.stp";

class RandomWalk {
 public:
  explicit RandomWalk(unsigned seed) : random_(seed) {}

  void run() {
    setUp();
    for (int i = 0; i < kSteps; ++i) {
      const Action& action = pickAction();
      setAnswers();
      (this->*action.run)();
      runPosted();
      check(i % kFullCheckEvery == 0);
      forgetRecords();
      ASSERT_FALSE(::testing::Test::HasFailure()) << "after step " << i << ", " << action.name;
    }
    t_.logic.closing();
    // The walk went where it should.
    EXPECT_GT(largest_, kLargestTree * 2 / 3);
    EXPECT_GT(drops_, kSteps / 200);
    EXPECT_GT(wholeTrees_, kSteps / kFullCheckEvery / 6);
    EXPECT_GT(typed_, kSteps / 20);
    EXPECT_GT(forms_, kSteps / 2);
    EXPECT_GT(chosen_, kSteps / 40);
    EXPECT_GT(opened_, kSteps / 2000);
    EXPECT_GT(emptied_, kSteps / 4000);
    EXPECT_GT(previews_, 0);
    EXPECT_GT(meddlings_, kSteps / 20);
  }

 private:
  struct Action {
    const char* name;
    std::size_t weight;
    void (RandomWalk::*run)();
  };

  // All that a user does.
  static const std::vector<Action>& actions() {
    static const std::vector<Action> kActions{
        {"click an item", 12, &RandomWalk::clickItem},
        {"expand an item", 3, &RandomWalk::expandItem},
        {"click a row", 12, &RandomWalk::clickRow},
        {"click a row with Ctrl", 8, &RandomWalk::controlClickRow},
        {"double click a row", 3, &RandomWalk::doubleClickRow},
        {"choose from a popup menu", 14, &RandomWalk::rightClick},
        {"key in the tree", 8, &RandomWalk::keyInTree},
        {"key in the list", 6, &RandomWalk::keyInList},
        {"new node", 22, &RandomWalk::makeNode},
        {"new top category", 1, &RandomWalk::makeTopCategory},
        {"edit menu", 14, &RandomWalk::editByMenu},
        {"delete", 5, &RandomWalk::deleteSome},
        {"sort", 2, &RandomWalk::sort},
        {"drag", 14, &RandomWalk::drag},
        {"move the focus", 12, &RandomWalk::moveFocus},
        {"type", 24, &RandomWalk::type},
        {"select text", 3, &RandomWalk::selectText},
        {"press a button of the page", 3, &RandomWalk::pressOnPage},
        {"switch the tab", 4, &RandomWalk::switchTabs},
        {"another command", 6, &RandomWalk::sendOther},
        {"save", 2, &RandomWalk::save},
        {"merge", 1, &RandomWalk::merge},
    };
    return kActions;
  }

  const Action& pickAction() {
    static const Action kOpen{"open a store", 0, &RandomWalk::openStore};
    static const Action kDelete{"delete", 0, &RandomWalk::deleteSome};
    static const Action kDeleteAll{"delete everything", 0, &RandomWalk::deleteAll};
    if (below(2000) == 0) return kDeleteAll;
    if (below(600) == 0 || (rootLeft_ && below(20) == 0)) return kOpen;
    const bool nothing = project_.root == nullptr || !project_.projectFile.isSet();
    if (nothing && below(12) == 0) return kOpen;
    if (size_ > kLargestTree) return below(30) == 0 ? kOpen : kDelete;
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
    const std::size_t before = t_.screen.menus.size();
    oneIn(2) ? t_.logic.treeRightClicked(anyPoint()) : t_.logic.listRightClicked(anyPoint());
    EXPECT_EQ(t_.screen.menus.size(), before + 1);
  }

  // What the user takes of a menu: what he wants, else anything that is not grey, and sometimes nothing.
  Command chooseFrom(const PopupMenu& menu) {
    std::vector<Command> offered;
    collectOffered(menu, offered);
    const bool has = wanted_.has_value() && std::ranges::count(offered, *wanted_) != 0;
    if (has) return *wanted_;
    if (offered.empty() || oneIn(4)) return Command::None;
    ++chosen_;
    const Command command = offered[below(offered.size())];
    setAnswers();
    return command;
  }
  static void collectOffered(const PopupMenu& menu, std::vector<Command>& offered) {
    for (const MenuEntry& entry : menu) {
      if (!entry.enabled) continue;
      if (entry.entries.empty()) offered.push_back(entry.command);
      collectOffered(entry.entries, offered);
    }
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

  // By the menu bar, what is grey seldom: a key can be faster than the window.
  void byMenu(Command command) {
    if (t_.window.entryEnabled(command) || oneIn(20)) t_.logic.command(command);
  }

  void makeNode() {
    static constexpr std::pair<Command, ControlId> kNew[] = {
        {Command::NewCategory, main_window::kCategory}, {Command::NewCategory, main_window::kCategory},
        {Command::NewShelf, main_window::kShelf},       {Command::NewList, main_window::kList},
        {Command::NewProduct, main_window::kProduct},   {Command::NewProduct, main_window::kProduct},
        {Command::NewProduct, main_window::kProduct}};
    const auto& [command, button] = kNew[below(std::size(kNew))];
    const bool byTool = oneIn(3) && t_.window.toolEnabled(command);
    const bool byButton = oneIn(3) && t_.window.frame().isEnabled(button);
    byTool || byButton ? t_.logic.command(command) : byMenu(command);
  }
  void makeTopCategory() {
    wanted_ = Command::TreeNewCategory;
    t_.logic.treeRightClicked(ShownStore::kBeside);
    wanted_.reset();
  }

  void editByMenu() {
    static constexpr Command kCommands[] = {Command::Copy,   Command::Copy,   Command::Paste,     Command::Paste,
                                            Command::Delete, Command::Enable, Command::Disable,   Command::Enable,
                                            Command::Find,   Command::Copy,   Command::SelectAll, Command::Disable};
    byMenu(kCommands[below(std::size(kCommands))]);
  }

  void deleteSome() {
    // Seldom the whole tree.
    if (project_.treeNode == project_.root && !oneIn(20)) return clickItem();
    static constexpr Command kCommands[] = {Command::TreeDelete, Command::ListDelete, Command::Delete};
    t_.logic.command(kCommands[below(std::size(kCommands))]);
  }

  // Top-level node by top-level node, as far as the tree shows them.
  void deleteAll() {
    for (std::size_t i = project_.nodes.size(); i > 0 && !t_.window.theTree.topItems().empty(); --i) {
      t_.window.clickItem(t_.window.theTree.topItems().front());
      t_.screen.answers = {Answer::Yes};
      t_.logic.command(Command::TreeDelete);
    }
    EXPECT_TRUE(t_.window.theTree.topItems().empty());
    EXPECT_EQ(project_.root, nullptr);
  }

  void sort() { t_.logic.columnClicked(static_cast<int>(below(18)) - 1); }

  // The page of the first tab, if it is open.
  FakeWindow* form() { return t_.window.pageId() == inventory::kWindow ? t_.window.page() : nullptr; }

  static ControlId at(std::size_t field) { return inventory::kTitle + static_cast<int>(field); }
  static constexpr std::size_t kFields = 26;

  void focusField(ControlId field) {
    t_.window.focused = {Focus::Place::Page, field};
    t_.window.page()->enter(field);
    t_.logic.focusMoved();
  }

  void moveFocus() {
    static constexpr Focus::Place kPlaces[] = {Focus::Place::Tree, Focus::Place::Tree, Focus::Place::ItemList,
                                               Focus::Place::Elsewhere, Focus::Place::Page};
    const Focus::Place place = kPlaces[below(std::size(kPlaces))];
    if (place == Focus::Place::Page && form() != nullptr) {
      const ControlId field = oneIn(3) ? inventory::kDescription : at(below(kFields));
      if (form()->isEnabled(field)) return focusField(field);
    }
    t_.window.focused = {place, 0};
    t_.logic.focusMoved();
  }

  void type() {
    static constexpr const char* kTexts[] = {"",      "Ball",           "<b>Bold</b> ball", "<img alt=\"Car\">",
                                             "12a.5", "pics\\a\\b.gif", "a &amp; b, c",     "category.htm"};
    static constexpr const char* kKeys[] = {"a", "7", ".", "\\", " ", "\xE9"};
    const ControlId field = oneIn(4) ? inventory::kTitle : at(below(kFields));
    if (form() == nullptr || !form()->isEnabled(field)) return;
    focusField(field);
    if (oneIn(2)) {
      form()->type(field, kTexts[below(std::size(kTexts))]);
    } else {
      form()->type(field, form()->text(field).substr(0, 30) + kKeys[below(std::size(kKeys))]);
    }
    if (field == inventory::kTemplate && form()->text(field).empty()) templateEmptied_ = project_.currentNode;
    if (!oneIn(4)) form()->deliverPosts();
    EXPECT_NE(project_.dirty, 0);
    ++typed_;
  }

  void selectText() {
    constexpr ControlId kField = inventory::kDescription;
    if (form() == nullptr || !form()->isEnabled(kField)) return;
    form()->clipboard = oneIn(2) ? "pasted" : "";
    const std::size_t size = form()->text(kField).size();
    const std::size_t from = below(size + 1);
    form()->select(kField, from, from + below(size - from + 1));
    focusField(kField);
  }

  void pressOnPage() {
    namespace ids = inventory;
    static constexpr ControlId kButtons[] = {ids::kChooseImage,   ids::kChooseImageLink, ids::kShowImage,
                                             ids::kShowImageLink, ids::kPreview,         ids::kBuild};
    if (form() == nullptr) return;
    project_.webDir.assign("C:\\Varlo\\Web");
    if (oneIn(2)) t_.screen.files = {"C:\\Pictures\\ball.gif"};
    const ControlId button = kButtons[below(std::size(kButtons))];
    form()->press(button);
    runPosted();
    if (button == ids::kPreview && !t_.browsers.calls.empty()) ++previews_;
  }

  void switchTabs() {
    t_.window.focused = {Focus::Place::Elsewhere, 0};
    t_.logic.focusMoved();
    t_.window.pickTab(oneIn(2) ? 0 : static_cast<int>(below(kTabs)));
  }

  void sendOther() {
    static constexpr Command kCommands[] = {
        Command::SaveAs,          Command::RestoreBackup, Command::Preferences,   Command::Upgrade,
        Command::ViewOrders,      Command::BuildStore,    Command::Faq,           Command::Manual,
        Command::ToggleToolbar,   Command::ToggleButtons, Command::ListSelectAll, Command::About,
        Command::ResizeMainWindow};
    if (!oneIn(3)) return byMenu(kCommands[below(std::size(kCommands))]);
    t_.logic.command(Command::RefillTree);
    movedByKey_ = false;
  }

  void save() {
    const bool offered = t_.window.entryEnabled(Command::Save);
    typedBehind_ = false;
    byMenu(Command::Save);
    EXPECT_TRUE(!offered || project_.dirty == 0 || typedBehind_);
  }

  // Beside a category, since only products belong beside others.
  void merge() {
    const StoreNode* node = project_.currentNode;
    if (node == nullptr || node->kind != NodeKind::Category || size_ > kLargestTree / 2) return;
    putStores();
    t_.screen.files = {kAtticPath};
    byMenu(Command::Merge);
    t_.screen.files.clear();
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
        &RandomWalk::deleteSome, &RandomWalk::sendOther, &RandomWalk::openStore,  &RandomWalk::keyInTree,
        &RandomWalk::editByMenu, &RandomWalk::clickRow,  &RandomWalk::makeNode,   &RandomWalk::clickItem,
        &RandomWalk::type,       &RandomWalk::sort,      &RandomWalk::switchTabs, &RandomWalk::moveFocus,
    };
    (this->*kDoings[below(std::size(kDoings))])();
    runPosted();
  }

  // While a box, a chooser or a browser waits, the user, or a hasty message, does this and that behind it. Nothing of
  // the store changes by it.
  void meddle() {
    if (!t_.program.atWork || meddling_ || oneIn(2)) return;
    meddling_ = true;
    const std::deque<Answer> answers = t_.screen.answers;
    const std::deque<std::string> files = t_.screen.files;
    const std::string before = storeText();
    for (std::size_t i = 1 + below(4); i > 0; --i) {
      doBehindTheBox();
      ++meddlings_;
    }
    EXPECT_EQ(storeText(), before);
    t_.screen.answers = answers;
    t_.screen.files = files;
    meddling_ = false;
  }

  void doBehindTheBox() {
    t_.screen.files = {kAtticPath};
    t_.screen.answers.assign(3, Answer::Yes);
    aim();
    switch (below(12)) {
      case 0:
        return t_.logic.closeRequested();
      case 1:
        return clickItem();
      case 2:
        return t_.logic.treeSelectionChanged(anyItem());
      case 3:
        return t_.logic.treeItemExpanding(anyItem());
      case 4:
        return oneIn(2) ? t_.logic.treeRightClicked(anyPoint()) : t_.logic.listRightClicked(anyPoint());
      case 5:
        return clickRow();
      case 6:
        t_.logic.treeKey(oneIn(2) ? Key::KeypadPlus : Key::Delete);
        return t_.logic.listKey(Key::Delete, false);
      case 7:
        t_.logic.treeDragBegun(anyItem());
        return t_.logic.dragReleased(anyPoint());
      case 8:
        return t_.window.pickTab(static_cast<int>(below(kTabs)));
      case 9:
        return meddleWithThePage();
      default:
        return t_.logic.command(anyCommand());
    }
  }

  void meddleWithThePage() {
    namespace ids = inventory;
    if (form() == nullptr) return;
    const ControlId field = at(below(kFields));
    typedBehind_ = typedBehind_ || form()->isEnabled(field);
    if (form()->isEnabled(field)) form()->type(field, "behind");
    form()->press(oneIn(2) ? ids::kChooseImage : ids::kShowImage);
    form()->deliverPosts();
  }

  Command anyCommand() {
    constexpr int kFirst = static_cast<int>(Command::NewStore);
    constexpr int kLast = static_cast<int>(Command::ResizeMainWindow);
    if (oneIn(2)) return Command::OpenStore;
    return static_cast<Command>(kFirst + static_cast<int>(below(kLast - kFirst + 1)));
  }

  // All of the store that a command could change.
  std::string storeText() {
    std::string text = TreeText(project_) + "|" + project_.projectFile.orEmpty() + "|" + t_.window.title();
    for (const auto* node : {project_.root, project_.currentNode, project_.treeNode}) {
      text.append("|").append(std::to_string(reinterpret_cast<std::uintptr_t>(node)));
    }
    const StoreNode* node = project_.currentNode;
    if (node != nullptr) text.append(node->body.orEmpty()).append("|").append(node->templateName.orEmpty());
    return text + "|" + std::to_string(project_.nodes.size()) + "|" + std::to_string(project_.dirty) + "|" +
           std::to_string(static_cast<int>(shell_.currentTab));
  }

  void putStores() {
    t_.putShop();
    t_.files.put(kAtticPath, kAtticText);
  }

  // A store that is not there leaves the tree of the one before.
  void openStore() {
    static constexpr const char* kPaths[] = {kShopPath, kShopPath, kAtticPath, kAtticPath, kMissingPath};
    const char* path = kPaths[below(std::size(kPaths))];
    t_.screen.answers = {Answer::No};
    putStores();
    t_.screen.files = {path};
    t_.logic.command(Command::OpenStore);
    EXPECT_EQ(project_.projectFile.isSet(), path != kMissingPath);
    if (!project_.projectFile.isSet()) return;
    ++opened_;
    EXPECT_EQ(t_.window.title(), path == kShopPath ? "Varlo PRO - Shop" : "Varlo PRO - Attic");
    EXPECT_EQ(project_.currentNode, project_.root);
    EXPECT_EQ(t_.window.theTree.topItems().size(), path == kShopPath ? 1U : 2U);
    rootLeft_ = apart_ = movedByKey_ = false;
  }

  void setUp() {
    putStores();
    t_.files.putFolder("C:\\Varlo\\Web");
    StartUp(t_.program);
    t_.config().orderServer.assign("orders.example");
    t_.config().browser.assign("C:\\Browser\\browser.exe");
    t_.project().projectFile.assign(kShopPath);
    t_.screen.whileWaiting = t_.browsers.whileWaiting = [this] { meddle(); };
    t_.browsers.conversations = {"browser/WWW_Activate", "browser/WWW_OpenURL"};
    t_.screen.onMenu = [this](const PopupMenu& menu) { return chooseFrom(menu); };
    t_.open();
    runPosted();
    forgetRecords();
  }

  // To the questions of a command, the whole tree is seldom given away.
  void setAnswers() {
    const bool whole = project_.treeNode == project_.root || project_.currentNode == project_.root;
    const bool yes = whole ? oneIn(30) : !oneIn(3);
    t_.screen.answers.assign(3, yes ? Answer::Yes : Answer::No);
  }

  void runPosted() {
    setAnswers();
    t_.runPosted();
  }

  void forgetRecords() {
    FakeScreen& screen = t_.screen;
    screen.answers.clear();
    screen.boxes.clear();
    screen.menus.clear();
    screen.tasks.clear();
    screen.taskCounts.clear();
    screen.waitCursor.clear();
    screen.fileRequests.clear();
    screen.files.clear();
    screen.dialogs.clear();
    t_.browsers.calls.clear();
    t_.view.helps.clear();
    t_.files.log.clear();
    t_.window.theTree.calls.clear();
    t_.window.theList.repainted.clear();
  }

  // All that must hold.
  void check(bool whole) {
    checkModel();
    checkGuards();
    checkSelection();
    checkForm(whole);
    expectStates(t_);
    if (project_.root == nullptr) ++emptied_;
    if (!whole) return;
    checkItems();
    checkRows();
    if (!rootLeft_) {
      checkShown(t_.window.theTree.topItems(), project_.root);
      if (!movedByKey_) ++wholeTrees_;
    }
  }

  void checkModel() {
    const StoreTreeReport report = StoreTreeCheck(project_);
    EXPECT_THAT(report.faults, testing::IsEmpty());
    EXPECT_EQ(report.misplaced, 0U);
    size_ = report.nodes;
    largest_ = std::max(largest_, size_);
  }

  void checkGuards() {
    EXPECT_FALSE(shell_.notificationsMuted || shell_.listFrozen || shell_.listBusy);
    EXPECT_FALSE(shell_.formLoading || shell_.formBusy || shell_.launchBusy || t_.program.waitCursorShown);
    EXPECT_FALSE(t_.program.atWork || shell_.editWaits);
    EXPECT_FALSE(shell_.treeDragging || shell_.listDragging);
    EXPECT_FALSE(t_.window.theTree.paintingIsHeld() || t_.window.theList.paintingIsHeld());
    EXPECT_EQ(shell_.dropHighlight, kNoTreeItem);
    EXPECT_EQ(t_.window.theTree.dropHighlight(), kNoTreeItem);
    EXPECT_TRUE(project_.dragNode == nullptr && project_.dragList == nullptr);
  }

  // The form shows the current node.
  void checkForm(bool whole) {
    if (form() == nullptr) return;
    ++forms_;
    const StoreNode* node = project_.currentNode;
    if (node != templateEmptied_) templateEmptied_ = nullptr;
    FormCheck check(*form(), node,
                    templateEmptied_ == nullptr ? EmptyTemplate::ShowsTheDefault : EmptyTemplate::MayShowNothing);
    whole ? check.expectAllFields() : check.expectFewFields();
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
  std::optional<Command> wanted_{};             // of the next menu
  const StoreNode* templateEmptied_ = nullptr;  // the current node, when its template was typed away
  int drops_ = 0;
  int typed_ = 0;
  int forms_ = 0;    // that were compared
  int chosen_ = 0;   // from popup menus
  int opened_ = 0;   // stores
  int emptied_ = 0;  // steps with an empty tree
  int previews_ = 0;
  int meddlings_ = 0;  // done behind a box
  bool meddling_ = false;
  bool typedBehind_ = false;  // into the form, so that its node changes when the box is gone
  int wholeTrees_ = 0;        // that were compared node by node
  bool apart_ = false;        // an item was expanded that is not selected
  bool movedByKey_ = false;   // since the tree was filled
  bool rootLeft_ = false;     // the root was moved down by key
};

// Another walk than the usual one, to look for trouble.
unsigned seed() {
  const char* chosen = std::getenv("VARLO_WALK_SEED");
  return chosen == nullptr ? 20032 : static_cast<unsigned>(std::strtoul(chosen, nullptr, 10));
}

TEST(RandomWalk, TwoHundredThousandDoingsKeepModelAndWindowSound) { RandomWalk(seed()).run(); }

}  // namespace
}  // namespace varlo::test
