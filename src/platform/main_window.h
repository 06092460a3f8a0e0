// The seam between the shell and the main window: a tree and an item list on the left, a column of command
// buttons, and the page of one tab on the right. The window turns what happens in it into the calls of
// MainWindowLogic; MainWindow is what the shell can ask of it.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "platform/command.h"
#include "platform/dialog.h"
#include "platform/geometry.h"

namespace varlo {

// The controls of the main window itself. The window that the logic's shape describes has these; the toolbar is made
// on demand.
namespace main_window {
enum : ControlId {
  kWindow = 900,
  kTree,
  kItemList,
  kTabs,
  kStatusBar,
  kToolbar,
  kPreview = 911,
  kProduct,
  kCategory,
  kShelf,
  kList,
  kBuild,
};
}

// What the shell hangs on a tree item or a row. The window only keeps it.
using ItemData = void*;

// An item of the tree; 0 is none.
using TreeItem = std::uint32_t;
inline constexpr TreeItem kNoTreeItem = 0;
// Places a new item before or behind all its siblings.
inline constexpr TreeItem kFirstItem = 0xFFFFFFFE;
inline constexpr TreeItem kLastItem = 0xFFFFFFFF;

struct NewTreeItem {
  TreeItem parent = kNoTreeItem;  // none: at the top level
  TreeItem behind = kLastItem;
  std::string_view label;
  int icon = 0;
  bool hasChildren = false;  // shows a button to expand it
  ItemData data = nullptr;
};

enum class Edge { Inside, Above, Below };

// The tree. Removing the selected item, and selecting another, tell the logic of the new selection.
struct TreeWindow {
  virtual ~TreeWindow() = default;
  // The new item, kNoTreeItem when the control refused it.
  virtual TreeItem insert(const NewTreeItem& item) = 0;
  // Removes an item with all below it.
  virtual void remove(TreeItem item) = 0;
  virtual void removeAll() = 0;
  virtual void setLabel(TreeItem item, std::string_view label) = 0;
  virtual void setIcon(TreeItem item, int icon) = 0;
  virtual void setHasChildren(TreeItem item, bool on) = 0;
  [[nodiscard]] virtual ItemData data(TreeItem item) const = 0;
  // Selects an item; kNoTreeItem clears the selection.
  virtual void select(TreeItem item) = 0;
  [[nodiscard]] virtual TreeItem selected() const = 0;
  virtual void ensureVisible(TreeItem item) = 0;
  virtual void collapse(TreeItem item) = 0;
  // Between the two nothing is painted, which makes filling fast. Holds nest.
  virtual void holdPainting(bool on) = 0;

  // While something is dragged. Points are on the screen.
  [[nodiscard]] virtual TreeItem itemAt(Point point) const = 0;
  // Where a point lies as seen from the tree's height.
  [[nodiscard]] virtual Edge edgeAt(Point point) const = 0;
  virtual void setDropHighlight(TreeItem item) = 0;
  // Scrolls by one item.
  virtual void scroll(Edge towards) = 0;
};

// The item list, in columns. Rows hold no text: cells are asked for when they are painted. Selecting rows tells
// the logic.
struct ListWindow {
  virtual ~ListWindow() = default;
  virtual void setColumns(std::span<const ListColumn> columns) = 0;
  virtual void append(ItemData data) = 0;
  virtual void remove(int row) = 0;
  virtual void removeAll() = 0;
  [[nodiscard]] virtual int count() const = 0;
  [[nodiscard]] virtual ItemData data(int row) const = 0;
  [[nodiscard]] virtual bool isSelected(int row) const = 0;
  virtual void setSelected(int row, bool on) = 0;
  // Orders the rows; `compare` gives less than, equal to or greater than 0. Selection goes with the rows.
  virtual void sort(const std::function<int(ItemData, ItemData)>& compare) = 0;
  virtual void repaint(int row) = 0;
  virtual void repaintAll() = 0;
  virtual void holdPainting(bool on) = 0;
  // The row at a point of the screen, kNoRow when there is none.
  [[nodiscard]] virtual int rowAt(Point point) const = 0;
};

// Where the keyboard's focus is.
struct Focus {
  enum class Place { Elsewhere, Tree, ItemList, Page };
  Place place = Place::Elsewhere;
  ControlId control = 0;  // of the page
};

// A position in the toolbar: a button that sends a command, or a separator for Command::None.
struct ToolbarButton {
  Command command = Command::None;
  int image = 0;
};

struct MainWindow {
  virtual ~MainWindow() = default;
  [[nodiscard]] virtual TreeWindow& tree() = 0;
  [[nodiscard]] virtual ListWindow& list() = 0;
  // The window as a dialog: its command buttons, tab control and status bar are controls of it.
  [[nodiscard]] virtual Dialog& controls() = 0;

  virtual void enableEntry(Command command, bool on) = 0;
  virtual void checkEntry(Command command, bool on) = 0;
  virtual void createToolbar(std::span<const ToolbarButton> buttons) = 0;
  virtual void enableTool(Command command, bool on) = 0;
  virtual void setTitle(std::string_view title) = 0;
  virtual void setTabs(std::span<const std::string_view> labels) = 0;
  // Right edges of the parts of the status bar; -1 is the window's edge.
  virtual void setStatusParts(std::span<const int> edges) = 0;

  // Opens a dialog as page of the tab control; null when it can't be made. There is one page at a time. It keeps its
  // logic until it is closed and what the logic does has returned.
  virtual Dialog* openPage(std::shared_ptr<DialogLogic> logic) = 0;
  virtual void closePage() = 0;

  [[nodiscard]] virtual Focus focus() const = 0;

  // What the window's layout depends on.
  [[nodiscard]] virtual Size clientSize() const = 0;
  [[nodiscard]] virtual int rowHeight() const = 0;  // of an edit field
  // `pixels` of an ordinary screen (96 dots an inch) on this one.
  [[nodiscard]] virtual int scaled(int pixels) const = 0;
  // Moves the page that is open.
  virtual void placePage(const Rectangle& place) = 0;
  // Paints everything anew.
  virtual void redraw() = 0;

  // Dragging with a picture of what is dragged. From begin to end the mouse belongs to the window, the cursor
  // is hidden, and the logic gets a tick every 50 milliseconds. False when no picture could be made.
  virtual bool beginTreeDrag(TreeItem item) = 0;
  virtual bool beginListDrag(int row) = 0;
  virtual void moveDrag(Point point) = 0;
  virtual void endDrag() = 0;
  // Where the mouse is, on the screen.
  [[nodiscard]] virtual Point cursor() const = 0;

  // Ends the program's window.
  virtual void end() = 0;
};

// Row changes that the list tells for one key press.
inline constexpr int kChangesOfAKey = 3;

// What the window tells the shell.
struct MainWindowLogic {
  virtual ~MainWindowLogic() = default;
  // What is in the window, and how large it opens.
  [[nodiscard]] virtual const DialogShape& shape() const = 0;
  virtual void opened(MainWindow& window) = 0;
  virtual void command(Command command) = 0;
  virtual void tabSelected(int tab) = 0;
  virtual void resized() = 0;
  virtual void moved() = 0;
  // The close box or Escape.
  virtual void closeRequested() = 0;
  // The window is about to go.
  virtual void closing() = 0;
  // A tool tip was asked for; gives its text.
  virtual std::string_view toolTip(Command command) = 0;
  // The focus went to another control.
  virtual void focusMoved() = 0;
  // Whether the user can select now. While not, tree, list and tabs keep what is selected.
  [[nodiscard]] virtual bool isFree() const { return true; }

  virtual void treeSelectionChanged(TreeItem item) = 0;
  // Also by a click on its button.
  virtual void treeItemExpanding(TreeItem item) = 0;
  // True when the key is consumed.
  virtual bool treeKey(Key key) = 0;
  virtual void treeRightClicked(Point point) = 0;
  virtual void treeDragBegun(TreeItem item) = 0;

  virtual std::string_view cellText(ItemData data, int column) = 0;
  virtual int rowIcon(ItemData data) = 0;
  virtual void rowClicked(int row) = 0;  // kNoRow: beside the rows
  virtual void rowDoubleClicked(int row) = 0;
  // The selection or the focus of a row changed. A key that selects rows, pressed without Ctrl, tells
  // kChangesOfAKey changes in all, of the row that has the focus then; the last one counts.
  virtual void rowChanged(int row) = 0;
  virtual void columnClicked(int column) = 0;
  virtual void listKey(Key key, bool control) = 0;
  virtual void listRightClicked(Point point) = 0;
  virtual void listDragBegun(int row) = 0;

  // While something is dragged: the mouse moved, 50 milliseconds went by, or the button was released or the
  // mouse taken away.
  virtual void dragMoved(Point point) = 0;
  virtual void dragTicked() = 0;
  virtual void dragReleased(Point point) = 0;
};

}  // namespace varlo
