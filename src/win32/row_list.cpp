#include "win32/row_list.h"

#include <algorithm>
#include <string>
#include <utility>

#include "core/text/text_search.h"
#include "win32/screen_scale.h"
#include "win32/toolbar_window.h"
#include "win32/tree_control.h"
#include "win32/win32_dialog.h"

namespace varlo {
namespace {

constexpr UINT kSelectedAndFocused = LVIS_SELECTED | LVIS_FOCUSED;

bool isKey(UINT message) { return message == WM_KEYDOWN || message == WM_CHAR; }

Point cursor() {
  POINT point{};
  ::GetCursorPos(&point);
  return {point.x, point.y};
}

}  // namespace

RowList::RowList(HWND list, ControlId id, bool marked, DialogLogic& logic, Teller teller)
    : list_(list), id_(id), logic_(logic), teller_(std::move(teller)), marks_(marked ? LoadItemImages() : nullptr) {
  ::SendMessageA(list_, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
  if (marked) send(LVM_SETIMAGELIST, LVSIL_SMALL, marks_);
  ::SetWindowSubclass(list_, messages, 3, reinterpret_cast<DWORD_PTR>(this));
}

RowList::~RowList() {
  if (::IsWindow(list_) != FALSE) ::RemoveWindowSubclass(list_, messages, 3);
  if (marks_ != nullptr) ::ImageList_Destroy(marks_);
}

LRESULT RowList::send(UINT message, WPARAM wParam, const void* data) const {
  return ::SendMessageA(list_, message, wParam, reinterpret_cast<LPARAM>(data));
}

int RowList::rowAt(int place) const {
  if (place < 0 || place >= count_) return kNoRow;
  return rows_.empty() ? place : rows_[static_cast<std::size_t>(place)];
}

int RowList::placeOf(int row) const {
  if (row < 0 || row >= count_) return -1;
  return places_.empty() ? row : places_[static_cast<std::size_t>(row)];
}

void RowList::setColumns(std::span<const ListColumn> columns) {
  while (send(LVM_DELETECOLUMN, 0) != FALSE) {
  }
  InsertListColumns(list_, columns);
}

void RowList::setHeading(int column, std::string_view heading) {
  std::string text(heading);
  LVCOLUMNA changed{};
  changed.mask = LVCF_TEXT;
  changed.pszText = text.data();
  send(LVM_SETCOLUMNA, static_cast<WPARAM>(column), &changed);
}

void RowList::setState(int place, UINT state, UINT mask) {
  LVITEMA item{};
  item.state = state;
  item.stateMask = mask;
  send(LVM_SETITEMSTATE, static_cast<WPARAM>(place), &item);
}

// A selection that goes with its rows is no doing of the user's.
void RowList::setCount(int count) {
  ++depth_;
  setState(-1, 0, kSelectedAndFocused);
  count_ = std::max(count, 0);
  rows_.clear();
  places_.clear();
  ::SendMessageA(list_, LVM_SETITEMCOUNT, static_cast<WPARAM>(count_), 0);
  ::InvalidateRect(list_, nullptr, TRUE);
  selectionChanged_ = false;
  --depth_;
}

void RowList::order(std::span<const int> rows) {
  if (static_cast<int>(rows.size()) != count_) return;
  ++depth_;
  std::vector<int> selectedRows;
  for (int row = 0; row < count_; ++row) {
    if (isSelected(row)) selectedRows.push_back(row);
  }
  const int focused =
      rowAt(static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), reinterpret_cast<void*>(LVNI_FOCUSED))));
  setState(-1, 0, kSelectedAndFocused);
  rows_.assign(rows.begin(), rows.end());
  places_.assign(rows.size(), 0);
  for (int place = 0; place < count_; ++place)
    places_[static_cast<std::size_t>(rows_[static_cast<std::size_t>(place)])] = place;
  for (const int row : selectedRows) setState(placeOf(row), LVIS_SELECTED, LVIS_SELECTED);
  if (focused != kNoRow) setState(placeOf(focused), LVIS_FOCUSED, LVIS_FOCUSED);
  ::InvalidateRect(list_, nullptr, TRUE);
  selectionChanged_ = false;
  --depth_;
}

void RowList::repaint(int row) {
  const int place = placeOf(row);
  if (place >= 0) ::SendMessageA(list_, LVM_REDRAWITEMS, static_cast<WPARAM>(place), place);
}

void RowList::show(int row) {
  if (placeOf(row) >= 0) ::SendMessageA(list_, LVM_ENSUREVISIBLE, static_cast<WPARAM>(placeOf(row)), FALSE);
}

int RowList::selected() const {
  return rowAt(static_cast<int>(::SendMessageA(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED)));
}

void RowList::select(int row) {
  ++depth_;
  setState(-1, 0, kSelectedAndFocused);
  if (placeOf(row) >= 0) setState(placeOf(row), kSelectedAndFocused, kSelectedAndFocused);
  --depth_;
  show(row);
  tellSelection();
}

bool RowList::isSelected(int row) const {
  const int place = placeOf(row);
  return place >= 0 && ::SendMessageA(list_, LVM_GETITEMSTATE, static_cast<WPARAM>(place), LVIS_SELECTED) != 0;
}

void RowList::selectAll() {
  ++depth_;
  setState(-1, LVIS_SELECTED, LVIS_SELECTED);
  --depth_;
  tellSelection();
}

void RowList::fill(LVITEMA& item) {
  const int row = rowAt(item.iItem);
  if (row == kNoRow) return;
  if ((item.mask & LVIF_TEXT) != 0 && item.cchTextMax > 0) {
    const std::string text = logic_.cellText(id_, row, item.iSubItem);
    ::lstrcpynA(item.pszText, text.c_str(), item.cchTextMax);
  }
  if ((item.mask & LVIF_IMAGE) != 0) item.iImage = logic_.rowMark(id_, row);
}

// What is typed looks for the row that begins so, from a place on and around.
int RowList::find(const NMLVFINDITEMA& search) const {
  if ((search.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) == 0 || search.lvfi.psz == nullptr) return -1;
  const std::string_view wanted(search.lvfi.psz);
  for (int i = 0; i < count_; ++i) {
    const int place = (std::max(search.iStart, 0) + i) % count_;
    const std::string text = logic_.cellText(id_, rowAt(place), 0);
    if (EqualsNoCase(std::string_view(text).substr(0, wanted.size()), wanted)) return place;
  }
  return -1;
}

void RowList::tell(ControlEvent event) {
  event.control = id_;
  const Teller teller = teller_;  // it may end this list
  teller(event);
}

void RowList::tellSelection() {
  if (depth_ > 0 || !std::exchange(selectionChanged_, false)) return;
  const bool byKey = byKey_;  // asking the list for its focus is a message as well
  const int focused =
      rowAt(static_cast<int>(::SendMessageA(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED)));
  tell({.notice = Notice::SelectionChanged, .row = isSelected(focused) ? focused : selected(), .byKey = byKey});
}

void RowList::clicked(const NMITEMACTIVATE& click, Notice notice) {
  const int depth = std::exchange(depth_, 0);
  tellSelection();
  if (::IsWindow(list_) == FALSE) return;
  depth_ = depth;
  tell({.notice = notice, .row = rowAt(click.iItem), .column = std::max(click.iSubItem, 0), .point = cursor()});
}

LRESULT RowList::notified(NMHDR& header) {
  const auto& click = reinterpret_cast<const NMITEMACTIVATE&>(header);
  const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
  switch (header.code) {
    case LVN_GETDISPINFOA:
      fill(reinterpret_cast<NMLVDISPINFOA&>(header).item);
      break;
    case LVN_ODFINDITEMA:
      return find(reinterpret_cast<const NMLVFINDITEMA&>(header));
    case LVN_ITEMCHANGED:
      if (((change.uNewState ^ change.uOldState) & LVIS_SELECTED) != 0) selectionChanged_ = true;
      tellSelection();
      break;
    case LVN_ODSTATECHANGED:
      selectionChanged_ = true;
      tellSelection();
      break;
    case NM_CLICK:
      clicked(click, Notice::Clicked);
      break;
    case NM_DBLCLK:
      clicked(click, Notice::DoubleClicked);
      break;
    case NM_RCLICK:
      clicked(click, Notice::RightClicked);
      return 1;  // the menu would open a second time
    case LVN_COLUMNCLICK:
      tell({.notice = Notice::HeadingClicked, .column = change.iSubItem, .point = cursor()});
      break;
    case LVN_KEYDOWN: {
      const WORD key = reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey;
      tell({.notice = Notice::KeyPressed,
            .row = selected(),
            .key = KeyOf(key),
            .withControl = ::GetKeyState(VK_CONTROL) < 0});
      break;
    }
    case NM_SETFOCUS:
      tell({.notice = Notice::GotFocus});
      break;
    case NM_KILLFOCUS:
      tell({.notice = Notice::LostFocus});
      break;
    default:
      break;
  }
  return 0;
}

// Where the popup menu belongs that a key asks for: at the selected row.
Point RowList::popupPlace() const {
  RECT place{};
  place.left = LVIR_LABEL;
  const int row = placeOf(selected());
  if (row >= 0) ::SendMessageA(list_, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
  POINT point{place.left + ScaledPixels(4), (place.top + place.bottom) / 2};
  ::ClientToScreen(list_, &point);
  return {point.x, point.y};
}

LRESULT CALLBACK RowList::messages(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                                   DWORD_PTR self) {
  auto& list = *reinterpret_cast<RowList*>(self);
  if (message == WM_CONTEXTMENU && lParam == -1) {
    const Point point = list.popupPlace();
    ::SetCursorPos(point.x, point.y);
    list.tell({.notice = Notice::RightClicked, .row = list.selected(), .point = point});
    return 0;
  }
  if (list.depth_ == 0) list.byKey_ = isKey(message);
  ++list.depth_;
  const LRESULT result = ::DefSubclassProc(window, message, wParam, lParam);
  // What the list told may have closed the window, and the list with it.
  if (::IsWindow(window) == FALSE) return result;
  --list.depth_;
  list.tellSelection();
  return result;
}

}  // namespace varlo
