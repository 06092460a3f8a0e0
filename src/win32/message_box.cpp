#include "win32/message_box.h"

#include <commctrl.h>

#include <array>
#include <string_view>

namespace varlo {
namespace {

constexpr UINT_PTR kSubclass = 1;

LRESULT CALLBACK withoutCancel(HWND box, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                               DWORD_PTR /*data*/) {
  const bool cancels = (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL) || message == WM_CLOSE ||
                       (message == WM_SYSCOMMAND && (wParam & 0xFFF0U) == SC_CLOSE);
  return cancels ? 0 : ::DefSubclassProc(box, message, wParam, lParam);
}

bool isBox(HWND window) {
  std::array<char, 16> name{};
  ::GetClassNameA(window, name.data(), static_cast<int>(name.size()));
  return std::string_view(name.data()) == "#32770";
}

LRESULT CALLBACK prepareQuestion(int code, WPARAM wParam, LPARAM lParam) {
  const auto window = reinterpret_cast<HWND>(wParam);
  if (code == HCBT_ACTIVATE && isBox(window) && ::GetDlgItem(window, IDYES) != nullptr) {
    ::SetWindowSubclass(window, withoutCancel, kSubclass, 0);
    ::EnableMenuItem(::GetSystemMenu(window, FALSE), SC_CLOSE, MF_BYCOMMAND | MF_GRAYED);
  }
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

// Under Windows a question is like that by itself; Wine would take Escape for No.
int ShowMessageBox(HWND owner, const char* text, const char* title, UINT style) {
  const bool question = (style & MB_TYPEMASK) == MB_YESNO;
  const HHOOK hook =
      question ? ::SetWindowsHookExA(WH_CBT, prepareQuestion, nullptr, ::GetCurrentThreadId()) : nullptr;
  const int button = ::MessageBoxA(owner, text, title, style);
  if (hook != nullptr) ::UnhookWindowsHookEx(hook);
  return button;
}

}  // namespace varlo
