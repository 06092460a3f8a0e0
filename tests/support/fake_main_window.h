// The main window for tests: a tree and a list that tell their logic what real controls tell, and a user to act.
#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/main_window.h"
#include "tests/support/fake_window.h"

namespace varlo::test {

class FakeTree : public TreeWindow {
 public:
  FakeTree();
  ~FakeTree() override;

  struct Item {
    TreeItem parent = kNoTreeItem;
    std::string label;
    int icon = 0;
    bool hasChildren = false;
    ItemData data = nullptr;
    std::vector<TreeItem> items{};
  };

  MainWindowLogic* logic = nullptr;
  bool refuses = false;              // inserts nothing
  std::map<int, TreeItem> itemsAtY;  // what lies under the mouse, by its height
  Edge edge = Edge::Inside;
  std::vector<std::string> calls;  // that leave no trace in the items
  int paintedInserts = 0;          // that were painted at once

  TreeItem insert(const NewTreeItem& item) override {
    if (refuses) return kNoTreeItem;
    if (held_ == 0) ++paintedInserts;
    const TreeItem made = ++last_;
    items_[made] = {item.parent, std::string(item.label), item.icon, item.hasChildren, item.data};
    std::vector<TreeItem>& siblings = siblingsBelow(item.parent);
    auto at = siblings.end();
    if (item.behind == kFirstItem) at = siblings.begin();
    const auto behind = std::find(siblings.begin(), siblings.end(), item.behind);
    if (behind != siblings.end()) at = behind + 1;
    siblings.insert(at, made);
    return made;
  }
  // A selection in what is removed goes to the next sibling, else the one before, else the parent.
  void remove(TreeItem item) override {
    if (items_.count(item) == 0) return;
    const bool selectionGoes = isBelow(selected_, item);
    const TreeItem heir = heirOf(item);
    std::erase(siblingsBelow(items_.at(item).parent), item);
    const std::vector<TreeItem> gone = branchOf(item);
    if (selectionGoes) changeSelection(heir);
    for (const TreeItem each : gone) items_.erase(each);
  }
  void removeAll() override {
    items_.clear();
    top_.clear();
    if (selected_ != kNoTreeItem) changeSelection(kNoTreeItem);
  }
  void setLabel(TreeItem item, std::string_view label) override { items_.at(item).label = label; }
  void setIcon(TreeItem item, int icon) override { items_.at(item).icon = icon; }
  void setHasChildren(TreeItem item, bool on) override { items_.at(item).hasChildren = on; }
  [[nodiscard]] ItemData data(TreeItem item) const override {
    const auto found = items_.find(item);
    return found == items_.end() ? nullptr : found->second.data;
  }
  void select(TreeItem item) override {
    if (item != selected_) changeSelection(item);
  }
  [[nodiscard]] TreeItem selected() const override { return selected_; }
  void ensureVisible(TreeItem item) override { calls.push_back("ensureVisible " + labelOf(item)); }
  void collapse(TreeItem item) override { calls.push_back("collapse " + labelOf(item)); }
  void holdPainting(bool on) override { held_ += on ? 1 : -1; }
  [[nodiscard]] TreeItem itemAt(Point point) const override {
    const auto found = itemsAtY.find(point.y);
    return found == itemsAtY.end() ? kNoTreeItem : found->second;
  }
  [[nodiscard]] Edge edgeAt(Point /*point*/) const override { return edge; }
  void setDropHighlight(TreeItem item) override { dropHighlight_ = item; }
  void scroll(Edge towards) override { calls.emplace_back(towards == Edge::Above ? "scroll up" : "scroll down"); }

  // What a user sees.
  [[nodiscard]] const std::map<TreeItem, Item>& items() const { return items_; }
  [[nodiscard]] const std::vector<TreeItem>& topItems() const { return top_; }
  [[nodiscard]] std::string labelOf(TreeItem item) const {
    const auto found = items_.find(item);
    return found == items_.end() ? "-" : found->second.label;
  }
  [[nodiscard]] TreeItem dropHighlight() const { return dropHighlight_; }
  [[nodiscard]] bool paintingIsHeld() const { return held_ != 0; }
  // The whole tree in one line: "Root(Child(Leaf) Child)".
  [[nodiscard]] std::string shown() const { return shown(top_); }

 private:
  [[nodiscard]] std::string shown(const std::vector<TreeItem>& siblings) const {
    std::string text;
    for (const TreeItem item : siblings) {
      if (!text.empty()) text += ' ';
      text += items_.at(item).label;
      if (!items_.at(item).items.empty()) text.append("(").append(shown(items_.at(item).items)).append(")");
    }
    return text;
  }
  [[nodiscard]] std::vector<TreeItem>& siblingsBelow(TreeItem parent) {
    return items_.count(parent) == 0 ? top_ : items_.at(parent).items;
  }
  [[nodiscard]] bool isBelow(TreeItem item, TreeItem top) const {
    while (item != top && items_.count(item) != 0) item = items_.at(item).parent;
    return item == top && item != kNoTreeItem;
  }
  [[nodiscard]] TreeItem heirOf(TreeItem item) {
    const std::vector<TreeItem>& siblings = siblingsBelow(items_.at(item).parent);
    const auto at = std::find(siblings.begin(), siblings.end(), item);
    if (at + 1 != siblings.end()) return *(at + 1);
    return at != siblings.begin() ? *(at - 1) : items_.at(item).parent;
  }
  [[nodiscard]] std::vector<TreeItem> branchOf(TreeItem top) const {
    std::vector<TreeItem> branch{top};
    for (std::size_t i = 0; i < branch.size(); ++i) {
      const std::vector<TreeItem>& items = items_.at(branch[i]).items;
      branch.insert(branch.end(), items.begin(), items.end());
    }
    return branch;
  }
  void changeSelection(TreeItem item) {
    selected_ = item;
    if (logic != nullptr) logic->treeSelectionChanged(item);
  }

  std::map<TreeItem, Item> items_;
  std::vector<TreeItem> top_;
  TreeItem last_ = kNoTreeItem;
  TreeItem selected_ = kNoTreeItem;
  TreeItem dropHighlight_ = kNoTreeItem;
  int held_ = 0;
};

class FakeList : public ListWindow {
 public:
  FakeList();
  ~FakeList() override;

  MainWindowLogic* logic = nullptr;
  std::map<int, int> rowsAtY;  // what lies under the mouse, by its height
  std::vector<ListColumn> columns;
  std::vector<int> repainted;
  int paintedAppends = 0;  // that were painted at once

  void setColumns(std::span<const ListColumn> made) override { columns.assign(made.begin(), made.end()); }
  void append(ItemData data) override {
    if (held_ == 0) ++paintedAppends;
    rows_.push_back({data, false});
  }
  void remove(int row) override { rows_.erase(rows_.begin() + row); }
  void removeAll() override { rows_.clear(); }
  [[nodiscard]] int count() const override { return static_cast<int>(rows_.size()); }
  [[nodiscard]] ItemData data(int row) const override { return rows_.at(static_cast<std::size_t>(row)).data; }
  [[nodiscard]] bool isSelected(int row) const override { return rows_.at(static_cast<std::size_t>(row)).selected; }
  void setSelected(int row, bool on) override {
    Row& changed = rows_.at(static_cast<std::size_t>(row));
    if (changed.selected == on) return;
    changed.selected = on;
    if (logic != nullptr) logic->rowChanged(row);
  }
  void sort(const std::function<int(ItemData, ItemData)>& compare) override {
    std::stable_sort(rows_.begin(), rows_.end(),
                     [&](const Row& a, const Row& b) { return compare(a.data, b.data) < 0; });
  }
  void repaint(int row) override { repainted.push_back(row); }
  void repaintAll() override { repainted.push_back(kNoRow); }
  void holdPainting(bool on) override { held_ += on ? 1 : -1; }
  [[nodiscard]] int rowAt(Point point) const override {
    const auto found = rowsAtY.find(point.y);
    return found == rowsAtY.end() || found->second >= count() ? kNoRow : found->second;
  }

  // What a user sees.
  [[nodiscard]] std::vector<int> selectedRows() const {
    std::vector<int> selected;
    for (int row = 0; row < count(); ++row) {
      if (isSelected(row)) selected.push_back(row);
    }
    return selected;
  }
  [[nodiscard]] std::vector<std::string> cells(int column) const {
    std::vector<std::string> texts;
    for (const Row& row : rows_) texts.emplace_back(logic->cellText(row.data, column));
    return texts;
  }
  [[nodiscard]] bool paintingIsHeld() const { return held_ != 0; }

 private:
  struct Row {
    ItemData data = nullptr;
    bool selected = false;
  };
  std::vector<Row> rows_;
  int held_ = 0;
};

class FakeMainWindow : public MainWindow {
 public:
  explicit FakeMainWindow(MainWindowLogic& logic);
  ~FakeMainWindow() override;
  FakeMainWindow(const FakeMainWindow&) = delete;
  FakeMainWindow& operator=(const FakeMainWindow&) = delete;

  FakeTree theTree;
  FakeList theList;
  Focus focused;
  Size size{1000, 700};
  Point mouse;
  bool refusesDrags = false;

  // What a user does.
  void clickItem(TreeItem item) {
    if (logic_.isFree()) theTree.select(item);
  }
  // A plain click on a row selects it alone.
  void clickRow(int row) {
    if (!logic_.isFree()) return;
    for (int other = 0; other < theList.count(); ++other) theList.setSelected(other, other == row);
    logic_.rowClicked(row);
  }
  // With Ctrl held a click turns the selection of the row.
  void controlClickRow(int row) {
    if (!logic_.isFree()) return;
    theList.setSelected(row, !theList.isSelected(row));
    logic_.rowClicked(row);
  }
  void pickTab(int tab) { logic_.tabSelected(tab); }

  // What a user sees. As in a real window, all is enabled and nothing ticked until it is told otherwise.
  [[nodiscard]] bool entryEnabled(Command command) const { return at(entries_, command, true); }
  [[nodiscard]] bool entryChecked(Command command) const { return at(checks_, command, false); }
  [[nodiscard]] bool toolEnabled(Command command) const { return at(tools_, command, true); }
  [[nodiscard]] const std::vector<ToolbarButton>& toolbar() const { return toolbar_; }
  [[nodiscard]] const std::string& title() const { return title_; }
  [[nodiscard]] const std::vector<std::string>& tabs() const { return tabs_; }
  [[nodiscard]] const std::vector<int>& statusParts() const { return statusParts_; }
  [[nodiscard]] FakeWindow& frame() { return frame_; }
  [[nodiscard]] FakeWindow* page() { return page_.get(); }
  [[nodiscard]] int pageId() const { return pageId_; }
  [[nodiscard]] const Rectangle& pagePlace() const { return pagePlace_; }
  [[nodiscard]] bool dragging() const { return dragging_; }
  [[nodiscard]] const std::vector<Point>& dragPoints() const { return dragPoints_; }
  [[nodiscard]] bool ended() const { return ended_; }
  [[nodiscard]] int redraws() const { return redraws_; }

  TreeWindow& tree() override { return theTree; }
  ListWindow& list() override { return theList; }
  Dialog& controls() override { return frame_; }
  void enableEntry(Command command, bool on) override { entries_[command] = on; }
  void checkEntry(Command command, bool on) override { checks_[command] = on; }
  void createToolbar(std::span<const ToolbarButton> buttons) override {
    toolbar_.assign(buttons.begin(), buttons.end());
  }
  void enableTool(Command command, bool on) override { tools_[command] = on; }
  void setTitle(std::string_view title) override { title_ = title; }
  void setTabs(std::span<const std::string_view> labels) override { tabs_.assign(labels.begin(), labels.end()); }
  void setStatusParts(std::span<const int> edges) override { statusParts_.assign(edges.begin(), edges.end()); }
  Dialog* openPage(std::shared_ptr<DialogLogic> logic) override {
    closePage();
    pageId_ = logic->shape().id;
    pageLogic_ = logic;
    page_ = std::make_unique<FakeWindow>(std::move(logic));
    page_->open();
    return page_.get();
  }
  void closePage() override {
    if (page_ == nullptr) return;
    gonePages_.push_back(std::move(page_));  // what it does may not have returned
    pageId_ = 0;
    std::exchange(pageLogic_, nullptr)->closed();
  }
  [[nodiscard]] Focus focus() const override { return focused; }
  [[nodiscard]] Size clientSize() const override { return size; }
  [[nodiscard]] int rowHeight() const override { return 21; }
  [[nodiscard]] int scaled(int pixels) const override { return pixels; }
  void placePage(const Rectangle& place) override { pagePlace_ = place; }
  void redraw() override { ++redraws_; }
  bool beginTreeDrag(TreeItem /*item*/) override { return dragging_ = !refusesDrags; }
  bool beginListDrag(int /*row*/) override { return dragging_ = !refusesDrags; }
  void moveDrag(Point point) override { dragPoints_.push_back(point); }
  // The mouse goes back to the system, which tells that it was taken away.
  void endDrag() override {
    if (!dragging_) return;
    dragging_ = false;
    logic_.dragReleased(mouse);
  }
  [[nodiscard]] Point cursor() const override { return mouse; }
  void end() override { ended_ = true; }

 private:
  [[nodiscard]] static bool at(const std::map<Command, bool>& states, Command command, bool otherwise) {
    const auto found = states.find(command);
    return found == states.end() ? otherwise : found->second;
  }

  MainWindowLogic& logic_;
  FakeWindow frame_{logic_.shape()};
  std::unique_ptr<FakeWindow> page_;
  std::vector<std::unique_ptr<FakeWindow>> gonePages_;
  std::shared_ptr<DialogLogic> pageLogic_;
  int pageId_ = 0;
  Rectangle pagePlace_;
  std::map<Command, bool> entries_;
  std::map<Command, bool> checks_;
  std::map<Command, bool> tools_;
  std::vector<ToolbarButton> toolbar_;
  std::string title_;
  std::vector<std::string> tabs_;
  std::vector<int> statusParts_;
  std::vector<Point> dragPoints_;
  bool dragging_ = false;
  bool ended_ = false;
  int redraws_ = 0;
};

}  // namespace varlo::test
