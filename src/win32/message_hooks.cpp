#include "win32/message_hooks.h"

#include <utility>
#include <vector>

namespace varlo {
namespace {

struct FilteredWindow {
  HWND window;
  KeyFilter filter;
};

// What the hooks of one thread know.
struct ThreadHooks {
  HHOOK keys = nullptr;
  std::vector<FilteredWindow> filtered;
  bool filtering = false;

  HHOOK focus = nullptr;
  HWND focusWindow = nullptr;
  UINT focusMessage = 0;
};

ThreadHooks& hooks() {
  thread_local ThreadHooks own;
  return own;
}

bool isKey(const MSG& message) { return message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST; }

// A filter that hands the key to IsDialogMessage comes back here, and must not meet itself.
bool filterKey(MSG& message) {
  ThreadHooks& own = hooks();
  if (own.filtering || !isKey(message)) return false;
  for (const FilteredWindow& filtered : own.filtered) {
    if (message.hwnd != filtered.window && ::IsChild(filtered.window, message.hwnd) == 0) continue;
    const KeyFilter filter = filtered.filter;  // it may close its window
    own.filtering = true;
    const bool consumed = filter(message);
    own.filtering = false;
    return consumed;
  }
  return false;
}

LRESULT CALLBACK keysHook(int code, WPARAM wParam, LPARAM lParam) {
  if (code == MSGF_DIALOGBOX && filterKey(*reinterpret_cast<MSG*>(lParam))) return TRUE;
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK focusHook(int code, WPARAM wParam, LPARAM lParam) {
  const ThreadHooks& own = hooks();
  if (code == HCBT_SETFOCUS) ::PostMessageA(own.focusWindow, own.focusMessage, 0, 0);
  return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

void FilterKeys(HWND window, KeyFilter filter) {
  ThreadHooks& own = hooks();
  own.filtered.push_back({window, std::move(filter)});
  if (own.keys == nullptr) {
    own.keys = ::SetWindowsHookExA(WH_MSGFILTER, keysHook, nullptr, ::GetCurrentThreadId());
  }
}

void StopFilteringKeys(HWND window) {
  ThreadHooks& own = hooks();
  std::erase_if(own.filtered, [window](const FilteredWindow& each) { return each.window == window; });
  if (!own.filtered.empty() || own.keys == nullptr) return;
  ::UnhookWindowsHookEx(own.keys);
  own.keys = nullptr;
}

void WatchFocus(HWND window, UINT message) {
  ThreadHooks& own = hooks();
  own.focusWindow = window;
  own.focusMessage = message;
  if (window != nullptr && own.focus == nullptr) {
    own.focus = ::SetWindowsHookExA(WH_CBT, focusHook, nullptr, ::GetCurrentThreadId());
  } else if (window == nullptr && own.focus != nullptr) {
    ::UnhookWindowsHookEx(own.focus);
    own.focus = nullptr;
  }
}

}  // namespace varlo
