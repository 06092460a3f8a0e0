#include "win32/list_control.h"

#include <algorithm>
#include <string>

#include "win32/tree_control.h"
#include "win32/win32_dialog.h"

namespace varlo {
namespace {

WPARAM place(int row) { return static_cast<WPARAM>(row); }

bool controlIsDown() { return ::GetKeyState(VK_CONTROL) < 0; }

int CALLBACK compareRows(LPARAM first, LPARAM second, LPARAM compare) {
  const auto& function = *reinterpret_cast<const std::function<int(ItemData, ItemData)>*>(compare);
  return function(reinterpret_cast<ItemData>(first), reinterpret_cast<ItemData>(second));
}

}  // namespace

// While it lives, rows are selected and go by the program's doing, not by the user's.
class ListControl::OwnChange {
 public:
  explicit OwnChange(ListControl& list) : list_(list) { ++list_.ownChanges_; }
  ~OwnChange() { --list_.ownChanges_; }
  OwnChange(const OwnChange&) = delete;
  OwnChange& operator=(const OwnChange&) = delete;

 private:
  ListControl& list_;
};

ListControl::ListControl(HWND list, HIMAGELIST icons, MainWindowLogic& logic, const DragImage& dragImage)
    : list_(list), logic_(logic), dragImage_(dragImage) {
  constexpr DWORD kStyle = LVS_EX_FULLROWSELECT | LVS_EX_HEADERDRAGDROP;
  ::SendMessageA(list_, LVM_SETEXTENDEDLISTVIEWSTYLE, kStyle, kStyle);
  send(LVM_SETIMAGELIST, LVSIL_SMALL, icons);
  ::SetWindowSubclass(list_, keys, 1, reinterpret_cast<DWORD_PTR>(this));
}

ListControl::~ListControl() {
  if (::IsWindow(list_) != FALSE) ::RemoveWindowSubclass(list_, keys, 1);
}

LRESULT ListControl::send(UINT message, WPARAM wParam, const void* data) const {
  return ::SendMessageA(list_, message, wParam, reinterpret_cast<LPARAM>(data));
}

void ListControl::setColumns(std::span<const ListColumn> columns) {
  while (send(LVM_DELETECOLUMN, 0) != FALSE) {
  }
  InsertListColumns(list_, columns);
  columns_ = static_cast<int>(columns.size());
}

void ListControl::append(ItemData data) {
  LVITEMA item{};
  item.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_PARAM;
  item.iItem = count();
  item.pszText = LPSTR_TEXTCALLBACKA;
  item.iImage = I_IMAGECALLBACK;
  item.lParam = reinterpret_cast<LPARAM>(data);
  send(LVM_INSERTITEMA, 0, &item);
}

// Each cell has to be told by a message that it is to be asked for. For a thousand rows that takes ten times as long
// as to insert them, so a row is prepared when it is about to be painted for the first time.
void ListControl::prepareShownRows() {
  const int first = static_cast<int>(send(LVM_GETTOPINDEX, 0));
  const int shown = static_cast<int>(send(LVM_GETCOUNTPERPAGE, 0)) + 1;  // one more may be cut off
  const int end = std::min(first + shown, count());
  for (int row = first; row < end; ++row) {
    if (!prepared_.insert(data(row)).second) continue;
    LVITEMA cell{};
    cell.pszText = LPSTR_TEXTCALLBACKA;
    for (cell.iSubItem = 1; cell.iSubItem < columns_; ++cell.iSubItem) send(LVM_SETITEMTEXTA, place(row), &cell);
  }
}

void ListControl::remove(int row) {
  const OwnChange own(*this);
  prepared_.erase(data(row));
  send(LVM_DELETEITEM, place(row));
}

void ListControl::removeAll() {
  const OwnChange own(*this);
  prepared_.clear();
  send(LVM_DELETEALLITEMS, 0);
}

int ListControl::count() const { return static_cast<int>(send(LVM_GETITEMCOUNT, 0)); }

ItemData ListControl::data(int row) const {
  LVITEMA item{};
  item.mask = LVIF_PARAM;
  item.iItem = row;
  return send(LVM_GETITEMA, 0, &item) == FALSE ? nullptr : reinterpret_cast<ItemData>(item.lParam);
}

bool ListControl::isSelected(int row) const {
  return ::SendMessageA(list_, LVM_GETITEMSTATE, place(row), LVIS_SELECTED) != 0;
}

void ListControl::setSelected(int row, bool on) {
  if (row < 0) return;
  const OwnChange own(*this);
  const DragImage::Hidden hidden(dragImage_);
  LVITEMA item{};
  item.stateMask = LVIS_SELECTED;
  item.state = on ? LVIS_SELECTED : 0;
  send(LVM_SETITEMSTATE, place(row), &item);
  if (dragImage_.isShown()) ::UpdateWindow(list_);
}

void ListControl::sort(const std::function<int(ItemData, ItemData)>& compare) {
  ::SendMessageA(list_, LVM_SORTITEMS, reinterpret_cast<WPARAM>(&compare), reinterpret_cast<LPARAM>(compareRows));
}

void ListControl::repaint(int row) {
  ::SendMessageA(list_, LVM_REDRAWITEMS, place(row), row);
  ::UpdateWindow(list_);
}

void ListControl::repaintAll() { ::InvalidateRect(list_, nullptr, TRUE); }

void ListControl::holdPainting(bool on) {
  holds_ += on ? 1 : -1;
  if (holds_ == (on ? 1 : 0)) send(WM_SETREDRAW, on ? FALSE : TRUE);
  if (holds_ == 0) repaintAll();
}

int ListControl::rowAt(Point point) const {
  LVHITTESTINFO hit{};
  hit.pt = {point.x, point.y};
  RECT client{};
  ::GetClientRect(list_, &client);
  RECT header{};
  ::GetWindowRect(reinterpret_cast<HWND>(send(LVM_GETHEADER, 0)), &header);
  client.top += header.bottom - header.top;
  if (::ScreenToClient(list_, &hit.pt) == FALSE || ::PtInRect(&client, hit.pt) == FALSE) return kNoRow;
  return static_cast<int>(send(LVM_HITTEST, 0, &hit));
}

void ListControl::fill(LVITEMA& item) {
  const auto data = reinterpret_cast<ItemData>(item.lParam);
  if ((item.mask & LVIF_TEXT) != 0 && item.cchTextMax > 0) {
    const std::string text(logic_.cellText(data, item.iSubItem));
    ::lstrcpynA(item.pszText, text.c_str(), item.cchTextMax);
  }
  if ((item.mask & LVIF_IMAGE) != 0) item.iImage = logic_.rowIcon(data);
}

bool ListControl::notified(NMHDR& header) {
  const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
  switch (header.code) {
    case LVN_GETDISPINFOA:
      fill(reinterpret_cast<NMLVDISPINFOA&>(header).item);
      break;
    case LVN_ITEMCHANGING:
      return isRefused(change);
    case LVN_ITEMCHANGED:
      if ((change.uChanged & LVIF_STATE) != 0) rowChanged(change);
      break;
    case NM_CUSTOMDRAW:
      if (reinterpret_cast<const NMCUSTOMDRAW&>(header).dwDrawStage == CDDS_PREPAINT) prepareShownRows();
      break;
    case LVN_COLUMNCLICK:
      logic_.columnClicked(change.iSubItem);
      break;
    case LVN_BEGINDRAG:
      logic_.listDragBegun(change.iItem);
      break;
    case LVN_KEYDOWN:
      logic_.listKey(KeyOf(reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey), controlIsDown());
      break;
    case NM_CLICK:
      logic_.rowClicked(change.iItem);
      break;
    case NM_DBLCLK:
      logic_.rowDoubleClicked(change.iItem);
      break;
    default:
      break;
  }
  return false;
}

// Whether a row would be selected by the user while he can change nothing.
bool ListControl::isRefused(const NMLISTVIEW& change) const {
  return ownChanges_ == 0 && (change.uChanged & LVIF_STATE) != 0 && !logic_.isFree();
}

void ListControl::rowChanged(const NMLISTVIEW& change) {
  if (!inKey_) {
    logic_.rowChanged(change.iItem);
    return;
  }
  keyChanges_.push_back(change.iItem);
  if (((change.uOldState ^ change.uNewState) & LVIS_SELECTED) != 0) selectedByKey_ = true;
}

// A key tells of fewer changes where no row had the focus before, or several are being selected, and of more where
// several were selected. So that the last one that counts is always that of the row gone to, they are told anew.
void ListControl::tellKeyChanges() const {
  if (!selectedByKey_ || controlIsDown()) {
    for (const int row : keyChanges_) logic_.rowChanged(row);
    return;
  }
  const int focused = static_cast<int>(::SendMessageA(list_, LVM_GETNEXTITEM, place(kNoRow), LVNI_FOCUSED));
  for (int i = 0; i < kChangesOfAKey; ++i) logic_.rowChanged(focused);
}

// A letter selects when it arrives as a character, after the key.
LRESULT CALLBACK ListControl::keys(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                   DWORD_PTR self) {
  auto& control = *reinterpret_cast<ListControl*>(self);
  if (control.inKey_ || (message != WM_KEYDOWN && message != WM_CHAR)) {
    return ::DefSubclassProc(list, message, wParam, lParam);
  }
  control.keyChanges_.clear();
  control.selectedByKey_ = false;
  control.inKey_ = true;
  const LRESULT result = ::DefSubclassProc(list, message, wParam, lParam);
  control.inKey_ = false;
  control.tellKeyChanges();
  return result;
}

HIMAGELIST ListControl::dragPicture(int row, Point mouse, POINT& grabbed) const {
  POINT corner{};
  const auto images = reinterpret_cast<HIMAGELIST>(send(LVM_CREATEDRAGIMAGE, place(row), &corner));
  grabbed = {mouse.x, mouse.y};
  ::ScreenToClient(list_, &grabbed);
  grabbed.x -= corner.x;
  grabbed.y -= corner.y;
  return images;
}

}  // namespace varlo
