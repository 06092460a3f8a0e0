#include "win32/dialog_host.h"

#include <commctrl.h>
#include <richedit.h>

#include <algorithm>
#include <memory>

#include "core/forms/lay_out.h"
#include "win32/control_notice.h"
#include "win32/dialog_template.h"
#include "win32/message_hooks.h"
#include "win32/screen_scale.h"
#include "win32/window_text.h"

namespace varlo {
namespace {

// The logic and the window of one dialog. It lives from WM_INITDIALOG to the end of the window, or, where the logic
// itself ends the window, until that call has returned; so does the logic.
class DialogHost {
 public:
  explicit DialogHost(std::shared_ptr<DialogLogic> logic)
      : logic_(std::move(logic)), shape_(logic_->shape()), form_(shape_.form) {}

  [[nodiscard]] Win32Dialog& dialog() { return dialog_; }
  INT_PTR open(HWND window);
  INT_PTR handle(UINT message, WPARAM wParam, LPARAM lParam);
  [[nodiscard]] bool mayGo() const { return gone_ && depth_ == 0; }

 private:
  void end(HWND window, int result);
  INT_PTR dispatch(UINT message, WPARAM wParam, LPARAM lParam);
  void setSize(HWND window) const;
  void told(const ControlEvent& event);
  void command(ControlId control, int code, HWND from);
  void pressed(ControlId button);
  // Not while a box or dialog of its own waits for an answer: what opened that is still at work.
  [[nodiscard]] bool isFree() const { return ::IsWindowEnabled(dialog_.window()) != FALSE; }
  [[nodiscard]] bool filterTab(const MSGFILTER& filter) const;
  INT_PTR notify(NMHDR& header);
  INT_PTR colours(UINT message, WPARAM wParam, LPARAM lParam);
  void limitSize(MINMAXINFO& limits) const;
  void resized();
  void closed();

  std::shared_ptr<DialogLogic> logic_;
  const DialogShape& shape_;  // with which it opened
  Form form_;
  Win32Dialog dialog_;
  int depth_ = 0;
  bool opened_ = false;
  bool gone_ = false;
};

void DialogHost::end(HWND window, int result) {
  if (form_ == Form::Modal) {
    ::EndDialog(window, result);
  } else {
    ::DestroyWindow(window);
  }
}

// The size of a window around an inside of a size.
SIZE frameAround(HWND window, int width, int height) {
  RECT frame{0, 0, width, height};
  ::AdjustWindowRectEx(&frame, static_cast<DWORD>(::GetWindowLongPtrA(window, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(::GetWindowLongPtrA(window, GWL_EXSTYLE)));
  return {frame.right - frame.left, frame.bottom - frame.top};
}

// As large as its shape says, in the middle of the window that it belongs to, and on the screen as a whole.
void DialogHost::setSize(HWND window) const {
  const int width = ScaledPixels(shape_.size.width);
  const int height =
      shape_.size.height > 0 ? ScaledPixels(shape_.size.height) : LaidOutHeight(shape_, width, ScaledPixels(100));
  SIZE size = frameAround(window, width, height);
  RECT work{};
  ::SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
  size.cx = std::min(size.cx, work.right - work.left);
  size.cy = std::min(size.cy, work.bottom - work.top);
  RECT around = work;
  const HWND owner = ::GetWindow(window, GW_OWNER);
  if (owner != nullptr && ::IsWindowVisible(owner) != FALSE && ::IsIconic(owner) == FALSE)
    ::GetWindowRect(owner, &around);
  const LONG left = std::clamp((around.left + around.right - size.cx) / 2, work.left, work.right - size.cx);
  const LONG top = std::clamp((around.top + around.bottom - size.cy) / 2, work.top, work.bottom - size.cy);
  ::SetWindowPos(window, nullptr, left, top, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

// By itself the system would look for it before the controls were made.
void focusFirst(HWND window) {
  const HWND first = ::GetNextDlgTabItem(window, nullptr, FALSE);
  if (first != nullptr) ::SendMessageA(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first), TRUE);
}

void DialogHost::told(const ControlEvent& event) {
  ++depth_;
  if (!gone_) logic_->notified(dialog_, event);
  --depth_;
  if (mayGo()) delete this;
}

INT_PTR DialogHost::open(HWND window) {
  ++depth_;
  dialog_.attach(
      window, [this, window](int result) { end(window, result); }, logic_.get(),
      [this](const ControlEvent& event) { told(event); });
  if (form_ != Form::Page) setSize(window);
  dialog_.make(shape_);
  dialog_.controls().layOut();
  if (form_ == Form::Modeless) {
    FilterKeys(window, [window](MSG& message) { return ::IsDialogMessageW(window, &message) != FALSE; });
  }
  logic_->opened(dialog_);
  opened_ = true;
  if (!gone_) logic_->resized(dialog_);
  if (!gone_ && form_ != Form::Page && !dialog_.focusWasSet()) focusFirst(window);
  --depth_;
  return FALSE;
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
      if (wParam != SIZE_MINIMIZED) resized();
      return FALSE;
    case WM_GETMINMAXINFO:
      limitSize(*reinterpret_cast<MINMAXINFO*>(lParam));
      return TRUE;
    case WM_VSCROLL:
      if (lParam == 0) dialog_.controls().scroll(LOWORD(wParam));
      return TRUE;
    case WM_MOUSEWHEEL:
      dialog_.controls().scrollLines(-3 * GET_WHEEL_DELTA_WPARAM(wParam) / WHEEL_DELTA);
      return TRUE;
    case WM_DRAWITEM:
      dialog_.draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
      return TRUE;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
      return colours(message, wParam, lParam);
    case WM_CLOSE:
      if (isFree()) logic_->closeRequested(dialog_);
      return TRUE;
    case kPostedNoticeMessage:
      logic_->notified(dialog_, {.control = static_cast<ControlId>(wParam), .notice = Notice::Posted});
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
    const std::optional<Notice> notice = NoticeOfCommand(KindOf(from), code);
    if (notice) logic_->notified(dialog_, {.control = control, .notice = *notice});
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
    logic_->notified(dialog_, {.control = button, .notice = Notice::Clicked});
  } else if (button == IDCANCEL) {
    logic_->closeRequested(dialog_);
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
  RowList* list = dialog_.controls().listOf(header.hwndFrom);
  if (list == nullptr) return FALSE;
  const LRESULT result = list->notified(header);
  if (!gone_) ::SetWindowLongPtrA(dialog_.window(), DWLP_MSGRESULT, result);
  return TRUE;
}

// The texts that have colours of their own; all others have those of the system.
INT_PTR DialogHost::colours(UINT /*message*/, WPARAM wParam, LPARAM lParam) {
  const HBRUSH brush = dialog_.coloursOf(reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam));
  return reinterpret_cast<INT_PTR>(brush);
}

// A window that can be resized keeps room for all that is in it.
void DialogHost::limitSize(MINMAXINFO& limits) const {
  if (!shape_.resizable || dialog_.window() == nullptr) return;
  const int width = ScaledPixels(shape_.size.width) * 2 / 3;
  const SIZE size = frameAround(dialog_.window(), width, LaidOutHeight(shape_, width, ScaledPixels(100)));
  limits.ptMinTrackSize = {size.cx, size.cy};
}

void DialogHost::resized() {
  dialog_.controls().layOut();
  if (opened_) logic_->resized(dialog_);
}

void DialogHost::closed() {
  if (form_ == Form::Modeless) StopFilteringKeys(dialog_.window());
  dialog_.detach();
  gone_ = true;
  logic_->closed();
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

Win32Dialog* openDialog(HWND owner, std::shared_ptr<DialogLogic> logic) {
  LoadControlClasses();
  const DialogTemplate window(logic->shape());
  auto host = std::make_unique<DialogHost>(std::move(logic));
  const HWND opened = ::CreateDialogIndirectParamA(::GetModuleHandleA(nullptr), window.get(), owner, procedure,
                                                   reinterpret_cast<LPARAM>(&host));
  return opened == nullptr || ::IsWindow(opened) == FALSE ? nullptr : &hostOf(opened)->dialog();
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

// The caller keeps the logic: it outlives the dialog.
int RunModalDialog(HWND owner, DialogLogic& logic) {
  LoadControlClasses();
  const DialogTemplate window(logic.shape());
  auto host = std::make_unique<DialogHost>(std::shared_ptr<DialogLogic>(std::shared_ptr<void>(), &logic));
  const INT_PTR result = ::DialogBoxIndirectParamA(::GetModuleHandleA(nullptr), window.get(), owner, procedure,
                                                   reinterpret_cast<LPARAM>(&host));
  return result == -1 && host != nullptr ? 0 : static_cast<int>(result);
}

Win32Dialog* OpenModelessDialog(HWND owner, std::shared_ptr<DialogLogic> logic) {
  Win32Dialog* dialog = openDialog(owner, std::move(logic));
  if (dialog != nullptr) ::ShowWindow(dialog->window(), SW_SHOW);
  return dialog;
}

Win32Dialog* OpenPageDialog(HWND parent, std::shared_ptr<DialogLogic> logic) {
  return openDialog(parent, std::move(logic));
}

void RevealFocus(HWND page) {
  const HWND focus = ::GetFocus();
  if (page != nullptr && focus != nullptr && ::IsChild(page, focus) != FALSE)
    hostOf(page)->dialog().controls().reveal(focus);
}

}  // namespace varlo
