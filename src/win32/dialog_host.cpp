#include "win32/dialog_host.h"

#include <commctrl.h>
#include <richedit.h>

#include <algorithm>
#include <memory>

#include "platform/control_ids.h"
#include "win32/control_notice.h"
#include "win32/message_hooks.h"
#include "win32/window_text.h"

namespace varlo {
namespace {

enum class Form { Modal, Modeless, Page };

// The logic and the window of one dialog. It lives from WM_INITDIALOG to the end of the window, or, where the logic
// itself ends the window, until that call has returned.
class DialogHost {
 public:
  DialogHost(DialogLogic& logic, Form form) : logic_(logic), form_(form) {}

  [[nodiscard]] Win32Dialog& dialog() { return dialog_; }
  INT_PTR open(HWND window);
  INT_PTR handle(UINT message, WPARAM wParam, LPARAM lParam);
  [[nodiscard]] bool mayGo() const { return gone_ && depth_ == 0; }

 private:
  void end(HWND window, int result);
  INT_PTR dispatch(UINT message, WPARAM wParam, LPARAM lParam);
  void command(ControlId control, int code, HWND from);
  void pressed(ControlId button);
  // Not while a box or dialog of its own waits for an answer: what opened that is still at work.
  [[nodiscard]] bool isFree() const { return ::IsWindowEnabled(dialog_.window()) != FALSE; }
  [[nodiscard]] bool filterTab(const MSGFILTER& filter) const;
  INT_PTR notify(NMHDR& header);
  void fillCell(NMLVDISPINFOA& info);
  void closed();

  DialogLogic& logic_;
  Form form_;
  Win32Dialog dialog_;
  int depth_ = 0;
  bool gone_ = false;
};

void DialogHost::end(HWND window, int result) {
  if (form_ == Form::Modal) {
    ::EndDialog(window, result);
  } else {
    ::DestroyWindow(window);
  }
}

// A rich edit tells nothing unless it is asked to.
BOOL CALLBACK askRichEdit(HWND control, LPARAM /*unused*/) {
  if (KindOf(control) == ControlKind::RichEdit) {
    ::SendMessageA(control, EM_SETEVENTMASK, 0, ENM_CHANGE | ENM_KEYEVENTS);
  }
  return TRUE;
}

INT_PTR DialogHost::open(HWND window) {
  ++depth_;
  dialog_.attach(window, [this, window](int result) { end(window, result); });
  ::EnumChildWindows(window, askRichEdit, 0);
  if (form_ == Form::Modeless) {
    FilterKeys(window, [window](MSG& message) { return ::IsDialogMessageW(window, &message) != FALSE; });
  }
  logic_.opened(dialog_);
  if (!gone_) logic_.resized(dialog_);
  --depth_;
  return form_ == Form::Page || dialog_.focusWasSet() ? FALSE : TRUE;
}

INT_PTR DialogHost::handle(UINT message, WPARAM wParam, LPARAM lParam) {
  ++depth_;
  const INT_PTR result = dispatch(message, wParam, lParam);
  --depth_;
  return result;
}

INT_PTR DialogHost::dispatch(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      command(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
      return TRUE;
    case WM_NOTIFY:
      return notify(*reinterpret_cast<NMHDR*>(lParam));
    case WM_SIZE:
      if (wParam != SIZE_MINIMIZED) logic_.resized(dialog_);
      return FALSE;
    case WM_CLOSE:
      if (isFree()) logic_.closeRequested(dialog_);
      return TRUE;
    case kPostedNoticeMessage:
      logic_.notified(dialog_, {static_cast<ControlId>(wParam), Notice::Posted});
      return TRUE;
    case WM_NCDESTROY:
      closed();
      return FALSE;
    default:
      return FALSE;
  }
}

void DialogHost::command(ControlId control, int code, HWND from) {
  if ((control == IDOK || control == IDCANCEL) && code == BN_CLICKED) {
    pressed(control);
  } else if (from != nullptr) {
    logic_.notified(dialog_, {control, NoticeOfCommand(KindOf(from), code)});
  }
}

// Return and Escape arrive like a press of OK and Cancel, whether there are such buttons or not.
void DialogHost::pressed(ControlId button) {
  if (form_ == Form::Page) {
    ::PostMessageA(::GetParent(dialog_.window()), WM_COMMAND, static_cast<WPARAM>(button), 0);
    return;
  }
  if (!isFree()) return;
  const HWND pressedButton = ::GetDlgItem(dialog_.window(), button);
  if (pressedButton != nullptr && ::IsWindowEnabled(pressedButton) != FALSE) {
    logic_.notified(dialog_, {button, Notice::Clicked});
  } else if (button == IDCANCEL) {
    logic_.closeRequested(dialog_);
  }
}

// Tab moves the focus. By itself a rich edit would not leave its own page, and put the character into its text too.
bool DialogHost::filterTab(const MSGFILTER& filter) const {
  if (filter.wParam != VK_TAB || ::GetKeyState(VK_CONTROL) < 0) return false;
  if (filter.msg == WM_KEYDOWN) {
    const HWND top = form_ == Form::Page ? ::GetParent(dialog_.window()) : dialog_.window();
    ::SendMessageA(top, WM_NEXTDLGCTL, ::GetKeyState(VK_SHIFT) < 0 ? 1 : 0, FALSE);
  }
  return filter.msg == WM_KEYDOWN || filter.msg == WM_CHAR;
}

INT_PTR DialogHost::notify(NMHDR& header) {
  if (header.code == EN_MSGFILTER) {
    const bool swallowed = filterTab(reinterpret_cast<const MSGFILTER&>(header));
    ::SetWindowLongPtrA(dialog_.window(), DWLP_MSGRESULT, swallowed ? 1 : 0);
    return TRUE;
  }
  if (KindOf(header.hwndFrom) != ControlKind::Columns) return FALSE;
  if (header.code == LVN_GETDISPINFOA) fillCell(reinterpret_cast<NMLVDISPINFOA&>(header));
  const std::optional<Notice> notice = NoticeOfList(header);
  if (notice) logic_.notified(dialog_, {static_cast<ControlId>(header.idFrom), *notice});
  return FALSE;
}

void DialogHost::fillCell(NMLVDISPINFOA& info) {
  LVITEMA& item = info.item;
  if ((item.mask & LVIF_TEXT) == 0 || item.cchTextMax <= 0) return;
  const std::string text = logic_.cellText(static_cast<ControlId>(info.hdr.idFrom), item.iItem, item.iSubItem);
  ::lstrcpynA(item.pszText, text.c_str(), item.cchTextMax);
}

void DialogHost::closed() {
  if (form_ == Form::Modeless) StopFilteringKeys(dialog_.window());
  dialog_.detach();
  gone_ = true;
  logic_.closed();
}

DialogHost* hostOf(HWND window) { return reinterpret_cast<DialogHost*>(::GetWindowLongPtrA(window, DWLP_USER)); }

INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  DialogHost* host = hostOf(window);
  INT_PTR result = FALSE;
  if (message == WM_INITDIALOG) {
    host = reinterpret_cast<std::unique_ptr<DialogHost>*>(lParam)->release();
    ::SetWindowLongPtrA(window, DWLP_USER, reinterpret_cast<LONG_PTR>(host));
    result = host->open(window);
  } else if (host != nullptr) {
    result = host->handle(message, wParam, lParam);
  }
  if (host != nullptr && host->mayGo()) delete host;
  return result;
}

LPCSTR templateOf(int dialogId) { return MAKEINTRESOURCEA(static_cast<WORD>(dialogId)); }

Win32Dialog* openDialog(HWND owner, int dialogId, DialogLogic& logic, Form form) {
  LoadControlClasses();
  auto host = std::make_unique<DialogHost>(logic, form);
  const HWND window = ::CreateDialogParamA(::GetModuleHandleA(nullptr), templateOf(dialogId), owner, procedure,
                                           reinterpret_cast<LPARAM>(&host));
  return window == nullptr || ::IsWindow(window) == FALSE ? nullptr : &hostOf(window)->dialog();
}

}  // namespace

void LoadControlClasses() {
  static const bool loaded = [] {
    INITCOMMONCONTROLSEX classes{};
    classes.dwSize = sizeof classes;
    classes.dwICC = ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES;
    return ::InitCommonControlsEx(&classes) != FALSE && ::LoadLibraryA("riched32.dll") != nullptr;
  }();
  static_cast<void>(loaded);
}

int RunModalDialog(HWND owner, int dialogId, DialogLogic& logic) {
  LoadControlClasses();
  auto host = std::make_unique<DialogHost>(logic, Form::Modal);
  const INT_PTR result = ::DialogBoxParamA(::GetModuleHandleA(nullptr), templateOf(dialogId), owner, procedure,
                                           reinterpret_cast<LPARAM>(&host));
  return result == -1 && host != nullptr ? 0 : static_cast<int>(result);
}

Win32Dialog* OpenModelessDialog(HWND owner, int dialogId, DialogLogic& logic) {
  Win32Dialog* dialog = openDialog(owner, dialogId, logic, Form::Modeless);
  if (dialog != nullptr) ::ShowWindow(dialog->window(), SW_SHOW);
  return dialog;
}

Win32Dialog* OpenPageDialog(HWND parent, int dialogId, DialogLogic& logic) {
  return openDialog(parent, dialogId, logic, Form::Page);
}

}  // namespace varlo
