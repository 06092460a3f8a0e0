#include "win32/win32_main_window.h"

#include <uxtheme.h>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "platform/main_window.h"
#include "win32/dialog_host.h"
#include "win32/message_hooks.h"
#include "win32/resource_ids.h"
#include "win32/screen_scale.h"
#include "win32/toolbar_window.h"
#include "win32/win32_screen.h"
#include "win32/window_text.h"

namespace varlo {
namespace {

// Private messages of the window.
constexpr UINT kFocusMoved = WM_APP + 10;
constexpr UINT kRepaint = WM_APP + 11;

constexpr UINT_PTR kDragTimer = 1;
constexpr UINT kDragTick = 50;  // milliseconds

// The command buttons right of the tree send commands of the menu.
constexpr std::array<std::pair<ControlId, Command>, 6> kButtons{{{main_window::kPreview, Command::PreviewPage},
                                                                 {main_window::kProduct, Command::NewProduct},
                                                                 {main_window::kCategory, Command::NewCategory},
                                                                 {main_window::kShelf, Command::NewShelf},
                                                                 {main_window::kList, Command::NewList},
                                                                 {main_window::kBuild, Command::BuildStore}}};

Command commandOf(int id) {
  const auto found =
      std::find_if(kButtons.begin(), kButtons.end(), [id](const auto& each) { return each.first == id; });
  return found == kButtons.end() ? static_cast<Command>(id) : found->second;
}

bool isCommand(Command command) { return command >= Command::NewStore; }

Point inScreen(HWND window, LPARAM place) {
  POINT point{static_cast<short>(LOWORD(place)), static_cast<short>(HIWORD(place))};
  ::ClientToScreen(window, &point);
  return {point.x, point.y};
}

HICON loadIconOf(int width, int height) {
  return static_cast<HICON>(::LoadImageA(::GetModuleHandleA(nullptr), MAKEINTRESOURCEA(RESOURCE_PROGRAM_ICON),
                                         IMAGE_ICON, ::GetSystemMetrics(width), ::GetSystemMetrics(height),
                                         LR_SHARED));
}

HACCEL acceleratorsFor(HWND window, HWND focus, HWND tree, HWND list) {
  const bool inLists = focus == tree || focus == list;
  if (!inLists && KindOf(focus) != ControlKind::RichEdit) return nullptr;
  if (::IsChild(window, focus) == 0) return nullptr;
  const WORD table = inLists ? RESOURCE_TREE_AND_LIST_KEYS : RESOURCE_RICH_EDIT_KEYS;
  return ::LoadAcceleratorsA(::GetModuleHandleA(nullptr), MAKEINTRESOURCEA(table));
}

}  // namespace

Win32MainWindow::Win32MainWindow(HWND window, MainWindowLogic& logic)
    : window_(window),
      logic_(logic),
      icons_(LoadItemImages()),
      tree_(makeControls(), icons_, logic, dragImage_),
      list_(item(main_window::kItemList), icons_, logic, dragImage_) {
  setSize();
  loadIcon();
  FilterKeys(window_, [this](MSG& message) { return filterKey(message); });
  WatchFocus(window_, kFocusMoved);
}

Win32MainWindow::~Win32MainWindow() {
  WatchFocus(nullptr, 0);
  StopFilteringKeys(window_);
  ::ImageList_Destroy(icons_);
}

// Makes what is in the window; gives the tree.
HWND Win32MainWindow::makeControls() {
  controls_.attach(window_, [this](int) { end(); });
  controls_.make(logic_.shape());
  return item(main_window::kTree);
}

// In the middle of the screen.
void Win32MainWindow::setSize() const {
  const Size inside = logic_.shape().size;
  RECT frame{0, 0, ScaledPixels(inside.width), ScaledPixels(inside.height)};
  ::AdjustWindowRectEx(&frame, static_cast<DWORD>(::GetWindowLongPtrA(window_, GWL_STYLE)), TRUE, 0);
  RECT work{};
  ::SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
  const LONG width = std::min(frame.right - frame.left, work.right - work.left);
  const LONG height = std::min(frame.bottom - frame.top, work.bottom - work.top);
  ::SetWindowPos(window_, nullptr, (work.left + work.right - width) / 2, (work.top + work.bottom - height) / 2, width,
                 height, SWP_NOZORDER | SWP_NOACTIVATE);
}

void Win32MainWindow::loadIcon() const {
  const HICON large = loadIconOf(SM_CXICON, SM_CYICON);
  const HICON small = loadIconOf(SM_CXSMICON, SM_CYSMICON);
  ::SetClassLongPtrA(window_, GCLP_HICON, reinterpret_cast<LONG_PTR>(large));
  ::SetClassLongPtrA(window_, GCLP_HICONSM, reinterpret_cast<LONG_PTR>(small));
  ::SendMessageA(window_, WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(large));
  ::SendMessageA(window_, WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(small));
}

// Escape while something is dragged must not quit. Keys of the menu count where they mean something, and only for
// entries that are enabled, which TranslateAccelerator sees to.
bool Win32MainWindow::filterKey(MSG& message) const {
  if (dragSource_ != nullptr) return true;
  const HACCEL table = acceleratorsFor(window_, message.hwnd, tree_.window(), list_.window());
  return table != nullptr && ::TranslateAcceleratorA(window_, table, &message) != 0;
}

INT_PTR Win32MainWindow::handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      command(LOWORD(wParam), HIWORD(wParam));
      return TRUE;
    case WM_NOTIFY:
      return notify(*reinterpret_cast<NMHDR*>(lParam));
    case WM_CONTEXTMENU:
      return contextMenu(reinterpret_cast<HWND>(wParam), lParam) ? TRUE : FALSE;
    case WM_INITMENU:
      menuOpens(reinterpret_cast<HMENU>(wParam));
      return FALSE;
    case WM_SIZE:
      sized(wParam);
      return FALSE;
    case WM_MOVE:
      logic_.moved();
      return FALSE;
    case WM_GETMINMAXINFO:
      limitSize(*reinterpret_cast<MINMAXINFO*>(lParam));
      return TRUE;
    case WM_CLOSE:
      logic_.closeRequested();
      return TRUE;
    case WM_MOUSEMOVE:
      if (dragSource_ != nullptr) logic_.dragMoved(inScreen(window_, lParam));
      return FALSE;
    case WM_LBUTTONUP:
      released(inScreen(window_, lParam));
      return FALSE;
    case WM_CAPTURECHANGED:
      released(cursor());
      return FALSE;
    case kPostedCommandMessage:
      logic_.command(static_cast<Command>(wParam));
      return TRUE;
    case kFocusMoved:
      RevealFocus(page_);
      logic_.focusMoved();
      return TRUE;
    case kRepaint:
      redraw();
      return TRUE;
    case WM_DESTROY:
      logic_.closing();
      return FALSE;
    default:
      return FALSE;
  }
}

// From the menu, the toolbar, the keys and the buttons. Codes other than 0 and 1 are notices of buttons.
void Win32MainWindow::command(int id, int code) {
  if (code != BN_CLICKED && code != 1) return;
  if (id == IDCANCEL) {
    logic_.closeRequested();
  } else if (isCommand(commandOf(id))) {
    logic_.command(commandOf(id));
  }
}

INT_PTR Win32MainWindow::answer(bool result) const {
  ::SetWindowLongPtrA(window_, DWLP_MSGRESULT, result ? 1 : 0);
  return TRUE;
}

INT_PTR Win32MainWindow::notify(NMHDR& header) {
  if (header.hwndFrom == tree_.window()) return treeNotified(header);
  if (header.hwndFrom == list_.window()) return listNotified(header);
  switch (header.code) {
    case TTN_GETDISPINFOA:
      giveToolTip(reinterpret_cast<NMTTDISPINFOA&>(header));
      break;
    case TCN_SELCHANGING:
      return answer(!logic_.isFree());
    case TCN_SELCHANGE:
      logic_.tabSelected(static_cast<int>(::SendMessageA(header.hwndFrom, TCM_GETCURSEL, 0, 0)));
      break;
    case HDN_ENDDRAG:
      // Moving a column may leave remains of the moved heading in the window.
      ::PostMessageA(window_, kRepaint, 0, 0);
      break;
    default:
      break;
  }
  return FALSE;
}

INT_PTR Win32MainWindow::treeNotified(NMHDR& header) {
  if (header.code != NM_RCLICK) return tree_.notified(header) ? answer(true) : FALSE;
  logic_.treeRightClicked(cursor());
  // The list of a right click that is not consumed would open a second time.
  return answer(true);
}

INT_PTR Win32MainWindow::listNotified(NMHDR& header) {
  if (header.code == NM_RCLICK) logic_.listRightClicked(cursor());
  return list_.notified(header) ? answer(true) : FALSE;
}

void Win32MainWindow::giveToolTip(NMTTDISPINFOA& info) {
  if ((info.uFlags & TTF_IDISHWND) != 0) return;
  toolTip_ = logic_.toolTip(static_cast<Command>(info.hdr.idFrom));
  info.lpszText = toolTip_.data();
}

// The selection of a text changes what can be done with it, so the entries are looked at when they are shown.
void Win32MainWindow::menuOpens(HMENU menu) {
  if (menu == ::GetMenu(window_)) logic_.focusMoved();
}

// The key for the popup menu, which comes without a place: the menu opens at what is selected, so the mouse goes
// there.
bool Win32MainWindow::contextMenu(HWND window, LPARAM place) {
  constexpr LPARAM kFromKey = -1;
  RECT shown{};
  if (place != kFromKey || !selectionPlace(window, shown)) return false;
  POINT point{shown.left + 2, (shown.top + shown.bottom) / 2};
  ::ClientToScreen(window, &point);
  ::SetCursorPos(point.x, point.y);
  if (window == tree_.window()) {
    logic_.treeRightClicked({point.x, point.y});
  } else {
    logic_.listRightClicked({point.x, point.y});
  }
  return true;
}

// Where the selected item, or row, is in the tree, or list; false without one.
bool Win32MainWindow::selectionPlace(HWND window, RECT& place) const {
  if (window == tree_.window()) {
    const auto selected = reinterpret_cast<HTREEITEM>(::SendMessageA(window, TVM_GETNEXTITEM, TVGN_CARET, 0));
    return selected != nullptr && TreeLabelPlace(window, selected, place);
  }
  if (window != list_.window()) return false;
  const LRESULT row = ::SendMessageA(window, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
  place.left = LVIR_LABEL;
  return row >= 0 &&
         ::SendMessageA(window, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place)) != FALSE;
}

void Win32MainWindow::sized(WPARAM how) {
  ::SendMessageA(item(main_window::kStatusBar), WM_SIZE, 0, 0);
  if (how != SIZE_MINIMIZED) logic_.resized();
}

void Win32MainWindow::limitSize(MINMAXINFO& limits) const {
  limits.ptMinTrackSize.x = scaled(520);
  limits.ptMinTrackSize.y = scaled(400);
}

void Win32MainWindow::enableEntry(Command command, bool on) {
  ::EnableMenuItem(::GetMenu(window_), static_cast<UINT>(command),
                   static_cast<UINT>(MF_BYCOMMAND | (on ? MF_ENABLED : MF_GRAYED)));
}

void Win32MainWindow::checkEntry(Command command, bool on) {
  ::CheckMenuItem(::GetMenu(window_), static_cast<UINT>(command),
                  static_cast<UINT>(MF_BYCOMMAND | (on ? MF_CHECKED : MF_UNCHECKED)));
}

void Win32MainWindow::createToolbar(std::span<const ToolbarButton> buttons) {
  const HWND old = item(main_window::kToolbar);
  if (old != nullptr) ::DestroyWindow(old);
  CreateToolbarWindow(window_, buttons);
}

void Win32MainWindow::enableTool(Command command, bool on) {
  ::SendMessageA(item(main_window::kToolbar), TB_ENABLEBUTTON, static_cast<WPARAM>(command), on ? TRUE : FALSE);
}

void Win32MainWindow::setTitle(std::string_view title) { ::SetWindowTextA(window_, std::string(title).c_str()); }

void Win32MainWindow::setTabs(std::span<const std::string_view> labels) {
  const HWND tabs = item(main_window::kTabs);
  ::SendMessageA(tabs, TCM_DELETEALLITEMS, 0, 0);
  WPARAM index = 0;
  for (const std::string_view label : labels) {
    std::string text(label);
    TCITEMA tab{};
    tab.mask = TCIF_TEXT;
    tab.pszText = text.data();
    ::SendMessageA(tabs, TCM_INSERTITEMA, index++, reinterpret_cast<LPARAM>(&tab));
  }
}

void Win32MainWindow::setStatusParts(std::span<const int> edges) {
  const std::vector<int> parts(edges.begin(), edges.end());
  ::SendMessageA(item(main_window::kStatusBar), SB_SETPARTS, parts.size(), reinterpret_cast<LPARAM>(parts.data()));
}

// The page lies just above the tab control, which so paints around it and comes after it in the order of Tab.
Dialog* Win32MainWindow::openPage(std::shared_ptr<DialogLogic> logic) {
  closePage();
  Win32Dialog* page = OpenPageDialog(window_, std::move(logic));
  if (page == nullptr) return nullptr;
  page_ = page->window();
  // The page looks like the inside of its tab.
  ::EnableThemeDialogTexture(page_, ETDT_ENABLETAB);
  const HWND above = ::GetWindow(item(main_window::kTabs), GW_HWNDPREV);
  ::SetWindowPos(page_, above == nullptr ? HWND_TOP : above, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
  return page;
}

void Win32MainWindow::closePage() {
  const HWND page = std::exchange(page_, nullptr);
  if (page == nullptr || ::IsWindow(page) == FALSE) return;
  if (::IsChild(page, ::GetFocus()) != FALSE) ::SetFocus(item(main_window::kTabs));
  ::DestroyWindow(page);
}

// Of a combo box it is the edit field inside that has the focus.
Focus Win32MainWindow::focus() const {
  HWND focused = ::GetFocus();
  if (focused == nullptr) return {};
  if (focused == tree_.window()) return {Focus::Place::Tree, 0};
  if (focused == list_.window()) return {Focus::Place::ItemList, 0};
  if (page_ == nullptr || ::IsChild(page_, focused) == FALSE) return {};
  while (::GetParent(focused) != page_) focused = ::GetParent(focused);
  return {Focus::Place::Page, ::GetDlgCtrlID(focused)};
}

int Win32MainWindow::rowHeight() const {
  constexpr int kEditHeight = 23;
  return scaled(kEditHeight);
}

void Win32MainWindow::placePage(const Rectangle& place) {
  if (page_ == nullptr) return;
  ::SetWindowPos(page_, nullptr, place.left, place.top, std::max(place.width, 0), std::max(place.height, 0),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void Win32MainWindow::redraw() {
  ::RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

// The timer belongs to the control that is dragged from, and ticks for the main window.
bool Win32MainWindow::beginDrag(HWND source, HIMAGELIST picture, POINT grabbed) {
  if (!dragImage_.begin(window_, picture, grabbed, cursor())) return false;
  dragSource_ = source;
  ::ShowCursor(FALSE);
  ::SetCapture(window_);
  ::SetTimer(source, kDragTimer, kDragTick, [](HWND from, UINT, UINT_PTR, DWORD) {
    auto* self = reinterpret_cast<Win32MainWindow*>(::GetWindowLongPtrA(::GetParent(from), DWLP_USER));
    if (self != nullptr && self->dragSource_ != nullptr) self->logic_.dragTicked();
  });
  return true;
}

bool Win32MainWindow::beginTreeDrag(TreeItem item) {
  POINT grabbed{};
  const HIMAGELIST picture = tree_.dragPicture(item, cursor(), grabbed);
  return beginDrag(tree_.window(), picture, grabbed);
}

bool Win32MainWindow::beginListDrag(int row) {
  POINT grabbed{};
  const HIMAGELIST picture = list_.dragPicture(row, cursor(), grabbed);
  return beginDrag(list_.window(), picture, grabbed);
}

void Win32MainWindow::released(Point point) {
  if (dragSource_ != nullptr) logic_.dragReleased(point);
}

void Win32MainWindow::endDrag() {
  const HWND source = std::exchange(dragSource_, nullptr);
  if (source == nullptr) return;
  ::KillTimer(source, kDragTimer);
  dragImage_.end();
  if (::GetCapture() == window_) ::ReleaseCapture();
  ::ShowCursor(TRUE);
}

Point Win32MainWindow::cursor() const {
  POINT point{};
  ::GetCursorPos(&point);
  return {point.x, point.y};
}

}  // namespace varlo
