#include "win32/win32_dialog.h"

#include <commctrl.h>
#include <richedit.h>

#include <algorithm>
#include <string>
#include <utility>

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

// The height of a combo box is that of its field with the list dropped down.
int heightOf(HWND control, int height) {
  constexpr int kRowsShown = 12;
  if (KindOf(control) != ControlKind::ComboBox) return height;
  return height + kRowsShown * static_cast<int>(::SendMessageA(control, CB_GETITEMHEIGHT, 0, 0));
}

}  // namespace

void Win32Dialog::attach(HWND window, Ending ending) {
  window_ = window;
  ending_ = std::move(ending);
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

bool Win32Dialog::isChecked(ControlId control) { return ::IsDlgButtonChecked(window_, control) == BST_CHECKED; }

void Win32Dialog::check(ControlId control, bool on) {
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
void Win32Dialog::clearCombo(ControlId control) {
  while (send(control, CB_GETCOUNT) > 0) send(control, CB_DELETESTRING, 0);
}

void Win32Dialog::addComboRow(ControlId control, std::string_view text) {
  const std::string row(text);
  send(control, CB_ADDSTRING, 0, pointer(row.c_str()));
}

void Win32Dialog::clearListBox(ControlId control) {
  send(control, LB_RESETCONTENT);
  send(control, LB_SETHORIZONTALEXTENT, 0);
}

void Win32Dialog::addListBoxRow(ControlId control, std::string_view text) {
  const std::string row(text);
  if (item(control) == nullptr) return;
  send(control, LB_ADDSTRING, 0, pointer(row.c_str()));
  widenListBox(item(control), row);
}

void Win32Dialog::showListBoxRow(ControlId control, int row) {
  send(control, LB_SETCARETINDEX, static_cast<WPARAM>(row), FALSE);
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
  const HWND list = item(control);
  if (list == nullptr) return;
  ::SendMessageA(list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_FULLROWSELECT);
  while (::SendMessageA(list, LVM_DELETECOLUMN, 0, 0) != FALSE) {
  }
  InsertListColumns(list, columns);
}

void Win32Dialog::setRowCount(ControlId control, int count) {
  send(control, LVM_SETITEMCOUNT, static_cast<WPARAM>(count));
}

int Win32Dialog::selectedRow(ControlId control) {
  if (item(control) == nullptr) return kNoRow;
  return static_cast<int>(send(control, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

void Win32Dialog::selectRow(ControlId control, int row) {
  LVITEMA state{};
  state.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  send(control, LVM_SETITEMSTATE, static_cast<WPARAM>(-1), pointer(&state));
  if (row == kNoRow) return;
  state.state = LVIS_SELECTED | LVIS_FOCUSED;
  send(control, LVM_SETITEMSTATE, static_cast<WPARAM>(row), pointer(&state));
  send(control, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

void Win32Dialog::place(std::span<const Placement> placements) {
  HDWP moves = ::BeginDeferWindowPos(static_cast<int>(placements.size()));
  for (const Placement& placement : placements) {
    const HWND target = item(placement.control);
    if (target == nullptr) continue;
    if (!placement.shown) leave(target);
    const Rectangle& place = placement.place;
    const int height = heightOf(target, std::max(place.height, 0));
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
