#include "win32/win32_screen.h"

#include <functional>
#include <string>
#include <thread>
#include <utility>

#include <gtest/gtest.h>

#include "core/program/messages.h"
#include "win32/task_dialog.h"

namespace varlo {
namespace {

std::string textOf(HWND window) {
  std::string text(512, '\0');
  text.resize(static_cast<std::size_t>(::SendMessageA(window, WM_GETTEXT, text.size(), LPARAM(text.data()))));
  return text;
}

// The box of this process with the given title, once it is there.
HWND waitForBox(const char* title) {
  for (int i = 0; i < 2000; ++i) {
    const HWND box = ::FindWindowA("#32770", title);
    if (box != nullptr) return box;
    ::Sleep(5);
  }
  return nullptr;
}

Answer answerBox(const MessageBoxRequest& request, int button, std::string& shown) {
  std::thread user([&] {
    const HWND box = waitForBox(std::string(request.title).c_str());
    if (box == nullptr) return;
    shown = textOf(::GetDlgItem(box, 0xFFFF));
    ::SendMessageA(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
  });
  Win32Screen screen;
  const Answer answer = screen.messageBox(request);
  user.join();
  return answer;
}

TEST(Win32Screen, AMessageBoxShowsItsTextAndGivesTheAnswer) {
  std::string shown;
  const MessageBoxRequest request{
      .text = message::kSavePrompt, .title = "Box 1", .buttons = Buttons::YesNo, .icon = Icon::Question};
  EXPECT_EQ(answerBox(request, IDYES, shown), Answer::Yes);
  EXPECT_EQ(shown, message::kSavePrompt);
}

TEST(Win32Screen, EveryButtonHasItsAnswer) {
  std::string shown;
  EXPECT_EQ(answerBox({.text = "t", .title = "Box 2", .buttons = Buttons::YesNoCancel}, IDNO, shown), Answer::No);
  EXPECT_EQ(answerBox({.text = "t", .title = "Box 3", .buttons = Buttons::YesNoCancel}, IDCANCEL, shown),
            Answer::Cancel);
  EXPECT_EQ(answerBox({.text = "t", .title = "Box 4"}, IDOK, shown), Answer::Ok);
}

// Shows a box, lets the user do something to it, and then answers it.
Answer answerAfter(const MessageBoxRequest& request, const std::function<void(HWND)>& doing, int button) {
  std::thread user([&] {
    const HWND box = waitForBox(std::string(request.title).c_str());
    if (box == nullptr) return;
    doing(box);
    ::SendMessageA(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
  });
  Win32Screen screen;
  const Answer answer = screen.messageBox(request);
  user.join();
  return answer;
}

void cancelInEveryWay(HWND box) {
  ::SendMessageA(box, WM_COMMAND, IDCANCEL, 0);
  ::SendMessageA(box, WM_CLOSE, 0, 0);
  ::SendMessageA(box, WM_SYSCOMMAND, SC_CLOSE, 0);
  ::PostMessageA(::GetDlgItem(box, IDYES), WM_KEYDOWN, VK_ESCAPE, 1);
  ::PostMessageA(::GetDlgItem(box, IDYES), WM_KEYUP, VK_ESCAPE, 1);
  ::Sleep(100);
}

TEST(Win32Screen, AQuestionWithYesAndNoIsAnsweredByItsButtonsAlone) {
  for (const auto& [button, expected] : {std::pair{IDYES, Answer::Yes}, {IDNO, Answer::No}}) {
    UINT close = 0;
    const Answer answer = answerAfter(
        {.text = "t", .title = "Box 5", .buttons = Buttons::YesNo},
        [&](HWND box) {
          cancelInEveryWay(box);
          EXPECT_NE(::IsWindowVisible(box), FALSE);
          close = ::GetMenuState(::GetSystemMenu(box, FALSE), SC_CLOSE, MF_BYCOMMAND);
        },
        button);
    EXPECT_EQ(answer, expected);
    EXPECT_TRUE(close == static_cast<UINT>(-1) || (close & MF_GRAYED) != 0);
  }
}

TEST(Win32Screen, OtherBoxesAreLeftByEscapeAsEver) {
  for (const Buttons buttons : {Buttons::YesNoCancel, Buttons::Ok}) {
    bool gone = false;
    answerAfter(
        {.text = "t", .title = "Box 6", .buttons = buttons},
        [&](HWND box) {
          ::PostMessageA(::GetWindow(box, GW_CHILD), WM_KEYDOWN, VK_ESCAPE, 1);
          for (int i = 0; i < 200 && !gone; ++i) {
            ::Sleep(5);
            gone = ::IsWindow(box) == FALSE;
          }
        },
        IDCANCEL);
    EXPECT_TRUE(gone);
  }
}

// A window of the test's thread.
struct PlainWindow {
  explicit PlainWindow(const char* title)
      : handle(::CreateWindowA("STATIC", title, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr,
                               nullptr, nullptr)) {}
  ~PlainWindow() { ::DestroyWindow(handle); }
  PlainWindow(const PlainWindow&) = delete;
  PlainWindow& operator=(const PlainWindow&) = delete;
  [[nodiscard]] bool isEnabled() const { return ::IsWindowEnabled(handle) != FALSE; }
  HWND handle;
};

TEST(Win32Screen, WhileABoxWaitsEveryWindowIsDisabled) {
  const PlainWindow first("first");
  const PlainWindow second("second");
  const PlainWindow off("off");
  ::EnableWindow(off.handle, FALSE);
  ::SetActiveWindow(second.handle);
  bool usable = true;
  answerAfter(
      {.text = "t", .title = "Box 7"},
      [&](HWND box) { usable = first.isEnabled() || second.isEnabled() || ::IsWindowEnabled(box) == FALSE; }, IDOK);
  EXPECT_FALSE(usable);
  EXPECT_TRUE(first.isEnabled());
  EXPECT_TRUE(second.isEnabled());
  EXPECT_FALSE(off.isEnabled());
  EXPECT_EQ(::GetActiveWindow(), second.handle);
}

TEST(Win32Screen, WhileATaskRunsEveryWindowIsDisabled) {
  const PlainWindow first("first");
  const PlainWindow second("second");
  ::SetActiveWindow(second.handle);
  Win32Screen screen;
  const int usable = screen.runTask("Task", "t", [&] { return first.isEnabled() || second.isEnabled() ? 1 : 0; });
  EXPECT_EQ(usable, 0);
  EXPECT_TRUE(first.isEnabled() && second.isEnabled());
}

TEST(Win32Screen, WaitingInputIsForgottenAndNothingElse) {
  const PlainWindow window("input");
  Win32Screen screen(window.handle);
  ::PostMessageA(window.handle, WM_KEYDOWN, VK_RETURN, 1);
  ::PostMessageA(window.handle, WM_SYSKEYDOWN, 'B', 1);
  ::PostMessageA(window.handle, WM_LBUTTONDOWN, 0, 0);
  screen.postCommand(Command::NewStore);
  screen.dropWaitingInput();
  MSG message{};
  EXPECT_EQ(::PeekMessageA(&message, window.handle, WM_KEYFIRST, WM_KEYLAST, PM_NOREMOVE), 0);
  EXPECT_EQ(::PeekMessageA(&message, window.handle, WM_MOUSEFIRST, WM_MOUSELAST, PM_NOREMOVE), 0);
  EXPECT_NE(::PeekMessageA(&message, window.handle, kPostedCommandMessage, kPostedCommandMessage, PM_NOREMOVE), 0);
}

TEST(Win32Screen, ATaskRunsWhileItsDialogIsOnTheScreen) {
  Win32Screen screen;
  bool visible = false;
  std::string text;
  std::string count;
  const int result = screen.runTask(kProductName, message::kLoadingProject, [&] {
    const HWND dialog = ::FindWindowA("#32770", "Varlo PRO");
    visible = ::IsWindowVisible(dialog) != 0;
    text = textOf(::GetDlgItem(dialog, task::kText));
    screen.showTaskCount(24);
    count = textOf(::GetDlgItem(dialog, task::kCount));
    return 7;
  });
  EXPECT_EQ(result, 7);
  EXPECT_TRUE(visible);
  EXPECT_EQ(text, message::kLoadingProject);
  EXPECT_EQ(count, "24");
  EXPECT_EQ(::FindWindowA("#32770", "Varlo PRO"), nullptr);
}

TEST(Win32Screen, ACommandIsPostedToTheOwner) {
  const HWND window =
      ::CreateWindowA("STATIC", "owner", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
  ASSERT_NE(window, nullptr);
  Win32Screen screen(window);
  screen.postCommand(Command::NewStore);
  MSG message{};
  ASSERT_NE(::PeekMessageA(&message, window, kPostedCommandMessage, kPostedCommandMessage, PM_REMOVE), 0);
  EXPECT_EQ(message.wParam, static_cast<WPARAM>(Command::NewStore));
  ::DestroyWindow(window);
}

}  // namespace
}  // namespace varlo
