#include "win32/tree_control.h"

#include <array>
#include <cstring>
#include <string>
#include <utility>

namespace varlo {
namespace {

HTREEITEM handleIn(LRESULT result) { return reinterpret_cast<HTREEITEM>(result); }

}  // namespace

// The message takes the item in the rectangle's own place.
bool TreeLabelPlace(HWND tree, HTREEITEM item, RECT& place) {
  std::memcpy(&place, &item, sizeof item);
  return ::SendMessageA(tree, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&place)) != FALSE;
}

Key KeyOf(WPARAM virtualKey) {
  switch (virtualKey) {
    case VK_DELETE:
      return Key::Delete;
    case VK_CONTROL:
      return Key::Control;
    case VK_UP:
      return Key::Up;
    case VK_DOWN:
      return Key::Down;
    case VK_ADD:
      return Key::KeypadPlus;
    case VK_SUBTRACT:
      return Key::KeypadMinus;
    case 'A':
      return Key::A;
    default:
      return Key::Other;
  }
}

// While it lives, branches that open or close do so by the program's doing, not by the user's.
class TreeControl::OwnChange {
 public:
  explicit OwnChange(TreeControl& tree) : tree_(tree) { ++tree_.ownChanges_; }
  ~OwnChange() { --tree_.ownChanges_; }
  OwnChange(const OwnChange&) = delete;
  OwnChange& operator=(const OwnChange&) = delete;

 private:
  TreeControl& tree_;
};

TreeControl::TreeControl(HWND tree, HIMAGELIST icons, MainWindowLogic& logic, const DragImage& dragImage)
    : tree_(tree), icons_(icons), logic_(logic), dragImage_(dragImage) {
  send(TVM_SETIMAGELIST, TVSIL_NORMAL, icons_);
  ::SetWindowSubclass(tree_, keys, 1, reinterpret_cast<DWORD_PTR>(this));
}

TreeControl::~TreeControl() {
  if (::IsWindow(tree_) != FALSE) ::RemoveWindowSubclass(tree_, keys, 1);
}

LRESULT TreeControl::send(UINT message, WPARAM wParam, const void* data) const {
  return ::SendMessageA(tree_, message, wParam, reinterpret_cast<LPARAM>(data));
}

HTREEITEM TreeControl::handleOf(TreeItem item) const {
  const auto found = entries_.find(item);
  return found == entries_.end() ? nullptr : found->second.handle;
}

TreeItem TreeControl::itemOf(HTREEITEM handle) const {
  if (handle == nullptr) return kNoTreeItem;
  TVITEMA item{};
  item.mask = TVIF_PARAM | TVIF_HANDLE;
  item.hItem = handle;
  return send(TVM_GETITEMA, 0, &item) == FALSE ? kNoTreeItem : static_cast<TreeItem>(item.lParam);
}

HTREEITEM TreeControl::placeBehind(TreeItem item) const {
  if (item == kFirstItem) return TVI_FIRST;
  const HTREEITEM handle = handleOf(item);
  return handle == nullptr ? TVI_LAST : handle;
}

TreeItem TreeControl::insert(const NewTreeItem& item) {
  const HTREEITEM parent = item.parent == kNoTreeItem ? TVI_ROOT : handleOf(item.parent);
  if (parent == nullptr) return kNoTreeItem;
  std::string label(item.label);
  const TreeItem number = last_ + 1;
  TVINSERTSTRUCTA inserted{};
  inserted.hParent = parent;
  inserted.hInsertAfter = placeBehind(item.behind);
  inserted.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_CHILDREN | TVIF_PARAM;
  inserted.item.pszText = label.data();
  inserted.item.iImage = inserted.item.iSelectedImage = item.icon;
  inserted.item.cChildren = item.hasChildren ? 1 : 0;
  inserted.item.lParam = static_cast<LPARAM>(number);
  const HTREEITEM handle = handleIn(send(TVM_INSERTITEMA, 0, &inserted));
  if (handle == nullptr) return kNoTreeItem;
  entries_[number] = {handle, item.data};
  return last_ = number;
}

void TreeControl::remove(TreeItem item) {
  const HTREEITEM handle = handleOf(item);
  if (handle == nullptr) return;
  const OwnChange own(*this);
  send(TVM_DELETEITEM, 0, handle);
}

void TreeControl::removeAll() {
  const OwnChange own(*this);
  select(kNoTreeItem);
  send(TVM_DELETEITEM, 0, TVI_ROOT);
}

void TreeControl::change(TreeItem item, TVITEMA& changed) {
  changed.hItem = handleOf(item);
  changed.mask |= TVIF_HANDLE;
  if (changed.hItem != nullptr) send(TVM_SETITEMA, 0, &changed);
}

void TreeControl::setLabel(TreeItem item, std::string_view label) {
  std::string text(label);
  TVITEMA changed{};
  changed.mask = TVIF_TEXT;
  changed.pszText = text.data();
  change(item, changed);
}

void TreeControl::setIcon(TreeItem item, int icon) {
  TVITEMA changed{};
  changed.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
  changed.iImage = changed.iSelectedImage = icon;
  change(item, changed);
}

void TreeControl::setHasChildren(TreeItem item, bool on) {
  TVITEMA changed{};
  changed.mask = TVIF_CHILDREN;
  changed.cChildren = on ? 1 : 0;
  change(item, changed);
}

ItemData TreeControl::data(TreeItem item) const {
  const auto found = entries_.find(item);
  return found == entries_.end() ? nullptr : found->second.data;
}

void TreeControl::select(TreeItem item) {
  const OwnChange own(*this);
  send(TVM_SELECTITEM, TVGN_CARET, handleOf(item));
}

TreeItem TreeControl::selected() const { return itemOf(handleIn(send(TVM_GETNEXTITEM, TVGN_CARET, nullptr))); }

void TreeControl::ensureVisible(TreeItem item) {
  const OwnChange own(*this);
  if (handleOf(item) != nullptr) send(TVM_ENSUREVISIBLE, 0, handleOf(item));
}

void TreeControl::collapse(TreeItem item) {
  const OwnChange own(*this);
  if (handleOf(item) != nullptr) send(TVM_EXPAND, TVE_COLLAPSE, handleOf(item));
}

void TreeControl::holdPainting(bool on) {
  holds_ += on ? 1 : -1;
  if (holds_ == (on ? 1 : 0)) send(WM_SETREDRAW, on ? FALSE : TRUE, nullptr);
  if (holds_ == 0) ::InvalidateRect(tree_, nullptr, TRUE);
}

TreeItem TreeControl::itemAt(Point point) const {
  TVHITTESTINFO hit{};
  hit.pt = {point.x, point.y};
  RECT client{};
  ::GetClientRect(tree_, &client);
  if (::ScreenToClient(tree_, &hit.pt) == FALSE || ::PtInRect(&client, hit.pt) == FALSE) return kNoTreeItem;
  return itemOf(handleIn(send(TVM_HITTEST, 0, &hit)));
}

Edge TreeControl::edgeAt(Point point) const {
  RECT window{};
  ::GetWindowRect(tree_, &window);
  if (point.y < window.top) return Edge::Above;
  return point.y >= window.bottom ? Edge::Below : Edge::Inside;
}

// Wine keeps the highlight, and its picture, when it is given to no item; so it is taken from the old one by hand.
void TreeControl::setDropHighlight(TreeItem item) {
  const TreeItem old = std::exchange(dropHighlight_, item);
  if (item == old) return;
  const DragImage::Hidden hidden(dragImage_);
  const OwnChange own(*this);
  send(TVM_SELECTITEM, TVGN_DROPHILITE, handleOf(item));
  TVITEMA plain{};
  plain.mask = TVIF_STATE;
  plain.stateMask = TVIS_DROPHILITED;
  change(old, plain);
  ::InvalidateRect(tree_, nullptr, FALSE);
  ::UpdateWindow(tree_);
}

void TreeControl::scroll(Edge towards) {
  if (towards == Edge::Inside) return;
  const DragImage::Hidden hidden(dragImage_);
  send(WM_VSCROLL, towards == Edge::Above ? SB_LINEUP : SB_LINEDOWN, nullptr);
  ::UpdateWindow(tree_);
}

bool TreeControl::notified(NMHDR& header) {
  const auto& change = reinterpret_cast<const NMTREEVIEWA&>(header);
  switch (header.code) {
    case TVN_SELCHANGINGA:
      return isRefused();
    case TVN_SELCHANGEDA:
      logic_.treeSelectionChanged(change.itemNew.hItem == nullptr ? kNoTreeItem
                                                                  : static_cast<TreeItem>(change.itemNew.lParam));
      break;
    case TVN_ITEMEXPANDINGA:
      if (isRefused()) return true;
      if (ownChanges_ == 0) logic_.treeItemExpanding(static_cast<TreeItem>(change.itemNew.lParam));
      break;
    case TVN_DELETEITEMA:
      entries_.erase(static_cast<TreeItem>(change.itemOld.lParam));
      break;
    case TVN_BEGINDRAGA:
      logic_.treeDragBegun(static_cast<TreeItem>(change.itemNew.lParam));
      break;
    default:
      break;
  }
  return false;
}

// Whether a change is the user's, and comes while he can change nothing.
bool TreeControl::isRefused() const { return ownChanges_ == 0 && !logic_.isFree(); }

HIMAGELIST TreeControl::dragPicture(TreeItem item, Point mouse, POINT& grabbed) const {
  std::array<char, 260> label{};
  TVITEMA shown{};
  shown.mask = TVIF_HANDLE | TVIF_TEXT | TVIF_IMAGE;
  shown.hItem = handleOf(item);
  shown.pszText = label.data();
  shown.cchTextMax = static_cast<int>(label.size());
  if (shown.hItem == nullptr || send(TVM_GETITEMA, 0, &shown) == FALSE) return nullptr;
  RECT place{};
  if (!TreeLabelPlace(tree_, shown.hItem, place)) return nullptr;
  int iconWidth = 0;
  int iconHeight = 0;
  ::ImageList_GetIconSize(icons_, &iconWidth, &iconHeight);
  grabbed = {mouse.x, mouse.y};
  ::ScreenToClient(tree_, &grabbed);
  // The icon stands before the label.
  grabbed.x -= place.left - iconWidth;
  grabbed.y -= place.top;
  return DrawDragImage(tree_, icons_, shown.iImage, label.data());
}

// A consumed key must not reach the tree, nor must the character that was made of it.
bool TreeControl::keyPressed(UINT message, WPARAM wParam) {
  if (message == WM_CHAR) return std::exchange(keyConsumed_, false);
  if (message != WM_KEYDOWN) return false;
  return keyConsumed_ = logic_.treeKey(KeyOf(wParam));
}

LRESULT CALLBACK TreeControl::keys(HWND tree, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                   DWORD_PTR self) {
  if (reinterpret_cast<TreeControl*>(self)->keyPressed(message, wParam)) return 0;
  return ::DefSubclassProc(tree, message, wParam, lParam);
}

}  // namespace varlo
