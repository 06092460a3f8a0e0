#include "win32/win32_dialog.h"

#include <commctrl.h>
#include <richedit.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "win32/screen_scale.h"
#include "win32/window_text.h"

namespace varlo {
namespace {

LPARAM pointer(const void* data) { return reinterpret_cast<LPARAM>(data); }

// A list box scrolls sideways only as far as it was told to.
void widenListBox(HWND list, const std::string& row) {
  const HDC screen = ::GetDC(list);
  const HGDIOBJ font = reinterpret_cast<HGDIOBJ>(::SendMessageA(list, WM_GETFONT, 0, 0));
  const HGDIOBJ old = font == nullptr ? nullptr : ::SelectObject(screen, font);
  SIZE size{};
  ::GetTextExtentPoint32A(screen, row.c_str(), static_cast<int>(row.size()), &size);
  if (old != nullptr) ::SelectObject(screen, old);
  ::ReleaseDC(list, screen);
  const LONG width = size.cx + ScaledPixels(8);
  if (width > ::SendMessageA(list, LB_GETHORIZONTALEXTENT, 0, 0)) {
    ::SendMessageA(list, LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(width), 0);
  }
}

}  // namespace

void Win32Dialog::attach(HWND window, Ending ending, DialogLogic* logic, RowList::Teller teller) {
  window_ = window;
  ending_ = std::move(ending);
  logic_ = logic;
  teller_ = std::move(teller);
}

// A rich edit tells nothing unless it is asked to.
void Win32Dialog::make(const DialogShape& shape) {
  controls_.make(window_, shape, logic_, teller_);
  const auto ask = [](HWND control, LPARAM) {
    if (KindOf(control) == ControlKind::RichEdit)
      ::SendMessageA(control, EM_SETEVENTMASK, 0, ENM_CHANGE | ENM_KEYEVENTS | ENM_MOUSEEVENTS);
    return TRUE;
  };
  ::EnumChildWindows(window_, static_cast<WNDENUMPROC>(ask), 0);
}

void Win32Dialog::reshape() {
  if (window_ == nullptr || logic_ == nullptr) return;
  ::SendMessageA(window_, WM_SETREDRAW, FALSE, 0);
  paint_.clear();
  make(logic_->shape());
  controls_.layOut();
  ::SendMessageA(window_, WM_SETREDRAW, TRUE, 0);
  ::RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void Win32Dialog::draw(const DRAWITEMSTRUCT& item) { paint_.draw(item); }

HBRUSH Win32Dialog::coloursOf(HWND control, HDC canvas) const {
  return paint_.coloursOf(::GetDlgCtrlID(control), canvas);
}

LRESULT Win32Dialog::send(ControlId control, UINT message, WPARAM wParam, LPARAM lParam) const {
  const HWND target = item(control);
  return target == nullptr ? 0 : ::SendMessageA(target, message, wParam, lParam);
}

std::string Win32Dialog::text(ControlId control) {
  const HWND target = item(control);
  return target == nullptr ? std::string() : WindowText(target);
}

void Win32Dialog::setText(ControlId control, std::string_view text) {
  ::SetDlgItemTextA(window_, control, std::string(text).c_str());
}

void Win32Dialog::limitText(ControlId control, int size) {
  switch (KindOf(item(control))) {
    case ControlKind::ComboBox:
      send(control, CB_LIMITTEXT, static_cast<WPARAM>(size));
      break;
    case ControlKind::RichEdit:
      send(control, EM_EXLIMITTEXT, 0, size);
      break;
    default:
      send(control, EM_LIMITTEXT, static_cast<WPARAM>(size));
      break;
  }
}

// A control that is disabled or hidden under the focus would leave the keyboard dead.
void Win32Dialog::leave(HWND control) const {
  const HWND focus = ::GetFocus();
  if (focus == nullptr || (focus != control && ::IsChild(control, focus) == 0)) return;
  HWND dialog = window_;
  while ((::GetWindowLongPtrA(dialog, GWL_STYLE) & WS_CHILD) != 0) dialog = ::GetParent(dialog);
  ::SendMessageA(dialog, WM_NEXTDLGCTL, 0, FALSE);
}

void Win32Dialog::enable(ControlId control, bool on) {
  const HWND target = item(control);
  if (target == nullptr || (::IsWindowEnabled(target) != FALSE) == on) return;
  if (!on) leave(target);
  ::EnableWindow(target, on ? TRUE : FALSE);
  // By itself a rich edit does not look as if it were disabled.
  if (KindOf(target) == ControlKind::RichEdit) {
    ::SendMessageA(target, EM_SETBKGNDCOLOR, on ? TRUE : FALSE, static_cast<LPARAM>(::GetSysColor(COLOR_3DFACE)));
  }
}

void Win32Dialog::show(ControlId control, bool on) {
  const HWND target = item(control);
  if (target == nullptr) return;
  if (!on) leave(target);
  ::ShowWindow(target, on ? SW_SHOWNA : SW_HIDE);
}

bool Win32Dialog::isChecked(ControlId control) { return ::IsDlgButtonChecked(window_, control) == BST_CHECKED; }

// The other radio buttons of a choice are released with it, as by a click.
void Win32Dialog::check(ControlId control, bool on) {
  if (on && controls_.kindOf(control) == Kind::Radio) {
    for (const ControlId each : controls_.choiceOf(control)) ::CheckDlgButton(window_, each, BST_UNCHECKED);
  }
  ::CheckDlgButton(window_, control, on ? BST_CHECKED : BST_UNCHECKED);
}

void Win32Dialog::focus(ControlId control) {
  const HWND target = item(control);
  if (target == nullptr) return;
  focusWasSet_ = true;
  ::SendMessageA(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(target), TRUE);
}

void Win32Dialog::caretToEnd(ControlId control) {
  if (KindOf(item(control)) == ControlKind::ComboBox) {
    const int end = ::GetWindowTextLengthA(item(control));
    send(control, CB_SETEDITSEL, 0, MAKELPARAM(end, end));
    return;
  }
  const int end = ::GetWindowTextLengthA(item(control));
  send(control, EM_SETSEL, static_cast<WPARAM>(end), end);
}

void Win32Dialog::selectText(ControlId control) {
  if (controls_.kindOf(control) == Kind::Combo) {
    send(control, CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
  } else {
    send(control, EM_SETSEL, 0, -1);
  }
}

void Win32Dialog::repaint(ControlId control) {
  const HWND target = item(control);
  if (target != nullptr)
    ::RedrawWindow(target, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
}

// The rich edit counts a line end behind its text, which can be selected but is not there.
bool Win32Dialog::hasSelection(ControlId control) {
  CHARRANGE range{};
  send(control, EM_EXGETSEL, 0, pointer(&range));
  const LONG length = ::GetWindowTextLengthA(item(control));
  return std::min(range.cpMax, length) > range.cpMin;
}

void Win32Dialog::copySelection(ControlId control) { send(control, WM_COPY); }

void Win32Dialog::paste(ControlId control) { send(control, WM_PASTE); }

void Win32Dialog::replaceSelection(ControlId control, std::string_view text) {
  const std::string replacement(text);
  send(control, EM_REPLACESEL, TRUE, pointer(replacement.c_str()));
}

void Win32Dialog::selectAll(ControlId control) { send(control, EM_SETSEL, 0, -1); }

// CB_RESETCONTENT would empty the field above as well.
void Win32Dialog::clearRows(ControlId control) {
  switch (controls_.kindOf(control)) {
    case Kind::Combo:
      while (send(control, CB_GETCOUNT) > 0) send(control, CB_DELETESTRING, 0);
      break;
    case Kind::DropList:
      send(control, CB_RESETCONTENT);
      break;
    default:
      send(control, LB_RESETCONTENT);
      send(control, LB_SETHORIZONTALEXTENT, 0);
      break;
  }
}

void Win32Dialog::addRow(ControlId control, std::string_view text) {
  const std::string row(text);
  if (controls_.kindOf(control) != Kind::ListBox) {
    send(control, CB_ADDSTRING, 0, pointer(row.c_str()));
  } else if (item(control) != nullptr) {
    send(control, LB_ADDSTRING, 0, pointer(row.c_str()));
    widenListBox(item(control), row);
  }
}

void Win32Dialog::showRow(ControlId control, int row) {
  if (RowList* list = controls_.list(control)) {
    list->show(row);
  } else {
    send(control, LB_SETCARETINDEX, static_cast<WPARAM>(row), FALSE);
  }
}

void Win32Dialog::setProgressTop(ControlId control, int top) {
  send(control, PBM_SETRANGE32, 0, std::max(top, 1));
  send(control, PBM_SETSTEP, 1);
  send(control, PBM_SETPOS, 0);
}

void Win32Dialog::stepProgress(ControlId control) { send(control, PBM_STEPIT); }

void Win32Dialog::setProgress(ControlId control, int position) {
  send(control, PBM_SETPOS, static_cast<WPARAM>(position));
}

void InsertListColumns(HWND list, std::span<const ListColumn> columns) {
  int index = 0;
  for (const ListColumn& column : columns) {
    std::string heading(column.heading);
    LVCOLUMNA inserted{};
    inserted.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
    inserted.pszText = heading.data();
    inserted.cx = ScaledPixels(column.width);
    inserted.iSubItem = index;
    ::SendMessageA(list, LVM_INSERTCOLUMNA, static_cast<WPARAM>(index), pointer(&inserted));
    ++index;
  }
}

void Win32Dialog::setColumns(ControlId control, std::span<const ListColumn> columns) {
  if (RowList* list = controls_.list(control)) list->setColumns(columns);
}

void Win32Dialog::setHeading(ControlId control, int column, std::string_view heading) {
  if (RowList* list = controls_.list(control)) list->setHeading(column, heading);
}

void Win32Dialog::setRowCount(ControlId control, int count) {
  if (RowList* list = controls_.list(control)) list->setCount(count);
}

void Win32Dialog::orderRows(ControlId control, std::span<const int> rows) {
  if (RowList* list = controls_.list(control)) list->order(rows);
}

void Win32Dialog::repaintRow(ControlId control, int row) {
  if (RowList* list = controls_.list(control)) list->repaint(row);
}

int Win32Dialog::selectedRow(ControlId control) {
  if (const RowList* list = controls_.list(control)) return list->selected();
  if (item(control) == nullptr) return kNoRow;
  return static_cast<int>(send(control, controls_.kindOf(control) == Kind::ListBox ? LB_GETCURSEL : CB_GETCURSEL));
}

void Win32Dialog::selectRow(ControlId control, int row) {
  if (RowList* list = controls_.list(control)) {
    list->select(row);
  } else {
    const bool isListBox = controls_.kindOf(control) == Kind::ListBox;
    send(control, isListBox ? LB_SETCURSEL : CB_SETCURSEL, static_cast<WPARAM>(row));
  }
}

bool Win32Dialog::isRowSelected(ControlId control, int row) {
  const RowList* list = controls_.list(control);
  return list != nullptr ? list->isSelected(row) : row != kNoRow && selectedRow(control) == row;
}

void Win32Dialog::selectAllRows(ControlId control) {
  if (RowList* list = controls_.list(control)) list->selectAll();
}

void Win32Dialog::setPicture(ControlId control, std::string_view path) {
  paint_.setPicture(control, path);
  if (item(control) != nullptr) ::InvalidateRect(item(control), nullptr, TRUE);
}

void Win32Dialog::setSwatch(ControlId control, std::optional<Colour> colour) {
  paint_.setSwatch(control, colour);
  if (item(control) != nullptr) ::InvalidateRect(item(control), nullptr, TRUE);
}

void Win32Dialog::setTextColours(ControlId control, Colour text, Colour background) {
  paint_.setTextColours(control, text, background);
  if (item(control) != nullptr) ::InvalidateRect(item(control), nullptr, TRUE);
}

void Win32Dialog::setStatusParts(ControlId control, std::span<const int> edges) {
  std::vector<int> parts(edges.begin(), edges.end());
  for (int& edge : parts) edge = edge < 0 ? -1 : ScaledPixels(edge);
  send(control, SB_SETPARTS, parts.size(), pointer(parts.data()));
}

void Win32Dialog::setStatusText(ControlId control, int part, std::string_view text) {
  const std::string shown(text);
  send(control, SB_SETTEXTA, static_cast<WPARAM>(part), pointer(shown.c_str()));
}

void Win32Dialog::setTitle(std::string_view title) { ::SetWindowTextA(window_, std::string(title).c_str()); }

void Win32Dialog::place(std::span<const Placement> placements) {
  HDWP moves = ::BeginDeferWindowPos(static_cast<int>(placements.size()));
  for (const Placement& placement : placements) {
    const HWND target = item(placement.control);
    if (target == nullptr) continue;
    if (!placement.shown) leave(target);
    const Rectangle& place = placement.place;
    const int height = std::max(place.height, 0);
    const UINT flags = SWP_NOZORDER | SWP_NOACTIVATE | (placement.shown ? SWP_SHOWWINDOW : SWP_HIDEWINDOW);
    if (moves != nullptr) {
      moves =
          ::DeferWindowPos(moves, target, nullptr, place.left, place.top, std::max(place.width, 0), height, flags);
    }
  }
  if (moves != nullptr) ::EndDeferWindowPos(moves);
}

Size Win32Dialog::clientSize() const {
  RECT client{};
  ::GetClientRect(window_, &client);
  return {client.right, client.bottom};
}

Rectangle Win32Dialog::screenPlace(ControlId control) const {
  RECT place{};
  ::GetWindowRect(item(control), &place);
  return {place.left, place.top, place.right - place.left, place.bottom - place.top};
}

void Win32Dialog::moveWindow(const Rectangle& place) {
  ::SetWindowPos(window_, nullptr, place.left, place.top, std::max(place.width, 0), std::max(place.height, 0),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

int Win32Dialog::scaled(int pixels) const { return ScaledPixels(pixels); }

void Win32Dialog::post(ControlId control) {
  if (window_ != nullptr) ::PostMessageA(window_, kPostedNoticeMessage, static_cast<WPARAM>(control), 0);
}

void Win32Dialog::bringToFront() {
  if (window_ == nullptr) return;
  if (::IsIconic(window_) != FALSE) ::ShowWindow(window_, SW_RESTORE);
  ::SetForegroundWindow(window_);
}

void Win32Dialog::end(int result) {
  if (window_ != nullptr && ending_) ending_(result);
}

}  // namespace varlo
