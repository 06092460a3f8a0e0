#include "win32/win32_screen.h"

#include <string>
#include <thread>

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
