// TreeControl: the store tree in a tree view. Items are known by numbers of their own, since the shell keeps 32 bits;
// a number is never used twice, so a stale one names nothing.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <unordered_map>

#include "platform/main_window.h"
#include "win32/drag_image.h"

namespace varlo {

class TreeControl : public TreeWindow {
 public:
  TreeControl(HWND tree, HIMAGELIST icons, MainWindowLogic& logic, const DragImage& dragImage);
  ~TreeControl() override;
  TreeControl(const TreeControl&) = delete;
  TreeControl& operator=(const TreeControl&) = delete;

  [[nodiscard]] HWND window() const { return tree_; }
  // A notification of the tree view. True when what it tells of must not be.
  bool notified(NMHDR& header);
  // The picture of an item, and where the mouse holds it; null when it can't be drawn.
  HIMAGELIST dragPicture(TreeItem item, Point mouse, POINT& grabbed) const;

  TreeItem insert(const NewTreeItem& item) override;
  void remove(TreeItem item) override;
  void removeAll() override;
  void setLabel(TreeItem item, std::string_view label) override;
  void setIcon(TreeItem item, int icon) override;
  void setHasChildren(TreeItem item, bool on) override;
  [[nodiscard]] ItemData data(TreeItem item) const override;
  void select(TreeItem item) override;
  [[nodiscard]] TreeItem selected() const override;
  void ensureVisible(TreeItem item) override;
  void collapse(TreeItem item) override;
  void holdPainting(bool on) override;
  [[nodiscard]] TreeItem itemAt(Point point) const override;
  [[nodiscard]] Edge edgeAt(Point point) const override;
  void setDropHighlight(TreeItem item) override;
  void scroll(Edge towards) override;

 private:
  struct Entry {
    HTREEITEM handle = nullptr;
    ItemData data = nullptr;
  };
  class OwnChange;

  LRESULT send(UINT message, WPARAM wParam, const void* data) const;
  [[nodiscard]] HTREEITEM handleOf(TreeItem item) const;
  [[nodiscard]] TreeItem itemOf(HTREEITEM handle) const;
  [[nodiscard]] HTREEITEM placeBehind(TreeItem item) const;
  void change(TreeItem item, TVITEMA& changed);
  [[nodiscard]] bool isRefused() const;
  bool keyPressed(UINT message, WPARAM wParam);
  static LRESULT CALLBACK keys(HWND tree, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR self);

  HWND tree_;
  HIMAGELIST icons_;
  MainWindowLogic& logic_;
  const DragImage& dragImage_;
  std::unordered_map<TreeItem, Entry> entries_;
  TreeItem last_ = kNoTreeItem;
  TreeItem dropHighlight_ = kNoTreeItem;
  int ownChanges_ = 0;
  int holds_ = 0;
  bool keyConsumed_ = false;
};

// Where an item's label is in its tree view; false when it is not on the screen.
bool TreeLabelPlace(HWND tree, HTREEITEM item, RECT& place);

// What a virtual key means to the shell.
[[nodiscard]] Key KeyOf(WPARAM virtualKey);

}  // namespace varlo
