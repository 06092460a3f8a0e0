#include "win32/win32_screen.h"

#include <string>

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

Answer Win32Screen::messageBox(const MessageBoxRequest& request) {
  return answerOf(::MessageBoxA(boxOwner(), std::string(request.text).c_str(), std::string(request.title).c_str(),
                                buttonsOf(request.buttons) | iconOf(request.icon)));
}

int Win32Screen::runTask(std::string_view title, std::string_view text, const std::function<int()>& task) {
  const HWND outer = taskDialog_;
  const int result = RunTaskDialog(boxOwner(), title, text, [&](HWND dialog) {
    taskDialog_ = dialog;
    const int done = task();
    taskDialog_ = outer;
    return done;
  });
  return result;
}

void Win32Screen::showTaskCount(int count) {
  if (taskDialog_ != nullptr) ShowTaskDialogCount(taskDialog_, count);
}

void Win32Screen::setWaitCursor(bool on) {
  ::SetCursor(::LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(on ? IDC_WAIT : IDC_ARROW)));
}

int Win32Screen::runDialog(int /*dialogId*/, DialogLogic& /*logic*/) { return 0; }

Dialog* Win32Screen::openDialog(int /*dialogId*/, DialogLogic& /*logic*/) { return nullptr; }

Command Win32Screen::popupMenu(const PopupMenu& /*menu*/) { return Command::None; }

void Win32Screen::postCommand(Command command) {
  ::PostMessageA(owner_, kPostedCommandMessage, static_cast<WPARAM>(command), 0);
}

}  // namespace varlo
