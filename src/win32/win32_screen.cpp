#include "win32/win32_screen.h"

#include <string>
#include <utility>

#include "win32/dialog_host.h"
#include "win32/message_box.h"
#include "win32/others_disabled.h"
#include "win32/task_dialog.h"

namespace varlo {
namespace {

UINT buttonsOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::Ok:
      return MB_OK;
    case Buttons::YesNo:
      return MB_YESNO;
    case Buttons::YesNoCancel:
      return MB_YESNOCANCEL;
  }
  return MB_OK;
}

UINT iconOf(Icon icon) {
  switch (icon) {
    case Icon::None:
      return 0;
    case Icon::Question:
      return MB_ICONQUESTION;
    case Icon::Exclamation:
      return MB_ICONEXCLAMATION;
    case Icon::Stop:
      return MB_ICONSTOP;
  }
  return 0;
}

Answer answerOf(int button) {
  switch (button) {
    case IDYES:
      return Answer::Yes;
    case IDNO:
      return Answer::No;
    case IDOK:
      return Answer::Ok;
    default:
      return Answer::Cancel;
  }
}

}  // namespace

// The window that the user works in: a box that belonged to another one would leave this one usable behind it.
HWND Win32Screen::boxOwner() const {
  const HWND active = ::GetActiveWindow();
  if (active != nullptr) return active;
  return owner_ == nullptr ? nullptr : ::GetLastActivePopup(owner_);
}

Answer Win32Screen::messageBox(const MessageBoxRequest& request) {
  const HWND owner = boxOwner();
  const OthersDisabled others(owner);
  return answerOf(ShowMessageBox(owner, std::string(request.text).c_str(), std::string(request.title).c_str(),
                                 buttonsOf(request.buttons) | iconOf(request.icon)));
}

int Win32Screen::runTask(std::string_view title, std::string_view text, const std::function<int()>& task) {
  TaskDialog* outer = task_;
  TaskDialog dialog(title, text, task);
  task_ = &dialog;
  runDialog(dialog);
  task_ = outer;
  return dialog.hasRun() ? dialog.result() : task();
}

void Win32Screen::showTaskCount(int count) {
  if (task_ != nullptr) task_->showCount(count);
}

void Win32Screen::setWaitCursor(bool on) {
  ::SetCursor(::LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(on ? IDC_WAIT : IDC_ARROW)));
}

// The messages of mouse and keys that wait in the queue.
void Win32Screen::dropWaitingInput() {
  MSG message;
  for (const auto& [first, last] : {std::pair<UINT, UINT>{WM_KEYFIRST, WM_KEYLAST}, {WM_MOUSEFIRST, WM_MOUSELAST}}) {
    while (::PeekMessageA(&message, nullptr, first, last, PM_REMOVE) != FALSE) {
    }
  }
}

int Win32Screen::runDialog(DialogLogic& logic) {
  const HWND owner = boxOwner();
  const OthersDisabled others(owner);
  return RunModalDialog(owner, logic);
}

// A modeless dialog belongs to the main window, whatever is active: it may outlive the rest.
Dialog* Win32Screen::openDialog(std::shared_ptr<DialogLogic> logic) {
  return OpenModelessDialog(owner_, std::move(logic));
}

void Win32Screen::postCommand(Command command) {
  ::PostMessageA(owner_, kPostedCommandMessage, static_cast<WPARAM>(command), 0);
}

}  // namespace varlo
