#include "tests/desktop/window_driving.h"

#include <array>
#include <chrono>
#include <cstdlib>
#include <thread>

#include "tests/desktop/desktop_program.h"

// Of the popup menu's window; not in every header.
#ifndef MN_GETHMENU
#define MN_GETHMENU 0x01E1
#endif

namespace varlo::test {
namespace {

using namespace std::chrono_literals;

void sendKey(WORD key, bool up) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = static_cast<WORD>(::MapVirtualKeyA(key, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
  ::SendInput(1, &input, sizeof input);
}

void sendMouse(DWORD flags) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  ::SendInput(1, &input, sizeof input);
}

// Two presses at one place within the time of a double click are one. A person moves on; so does the test.
void waitForDoubleClickToPass(POINT point) {
  static POINT last{-1000, -1000};
  static auto when = std::chrono::steady_clock::time_point();
  const bool close = std::abs(point.x - last.x) < 8 && std::abs(point.y - last.y) < 8;
  const auto allowed = when + std::chrono::milliseconds(::GetDoubleClickTime() + 100);
  if (close) std::this_thread::sleep_until(allowed);
  last = point;
  when = std::chrono::steady_clock::now();
}

void moveTo(const DesktopProgram& program, POINT point) {
  ::SetCursorPos(point.x, point.y);
  sendMouse(MOUSEEVENTF_MOVE);
  program.settle();
}

POINT onScreen(HWND window, const RECT& place) {
  POINT point{(place.left + place.right) / 2, (place.top + place.bottom) / 2};
  ::ClientToScreen(window, &point);
  return point;
}

}  // namespace

void PressKey(const DesktopProgram& program, WORD key) {
  sendKey(key, false);
  sendKey(key, true);
  program.settle();
}

void PressWith(const DesktopProgram& program, WORD modifier, WORD key) {
  sendKey(modifier, false);
  sendKey(key, false);
  sendKey(key, true);
  sendKey(modifier, true);
  program.settle();
}

void TypeText(const DesktopProgram& program, const std::string& text) {
  for (const char letter : text) {
    const SHORT code = ::VkKeyScanA(letter);
    const bool shifted = (code & 0x100) != 0;
    if (shifted) sendKey(VK_SHIFT, false);
    sendKey(static_cast<WORD>(code & 0xFF), false);
    sendKey(static_cast<WORD>(code & 0xFF), true);
    if (shifted) sendKey(VK_SHIFT, true);
  }
  program.settle();
}

POINT CentreOfItem(HWND tree, HTREEITEM item) {
  ::SendMessageA(tree, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
  RECT place{};
  *reinterpret_cast<HTREEITEM*>(&place) = item;
  ::SendMessageA(tree, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&place));
  return onScreen(tree, place);
}

POINT CentreOfRow(HWND list, int row) {
  ::SendMessageA(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
  RECT place{};
  place.left = LVIR_LABEL;
  ::SendMessageA(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
  return onScreen(list, place);
}

POINT CentreOf(HWND window) {
  RECT place{};
  ::GetClientRect(window, &place);
  return onScreen(window, place);
}

void Click(const DesktopProgram& program, POINT point) {
  waitForDoubleClickToPass(point);
  moveTo(program, point);
  sendMouse(MOUSEEVENTF_LEFTDOWN);
  sendMouse(MOUSEEVENTF_LEFTUP);
  program.settle();
}

void ClickWith(const DesktopProgram& program, WORD modifier, POINT point) {
  waitForDoubleClickToPass(point);
  moveTo(program, point);
  sendKey(modifier, false);
  sendMouse(MOUSEEVENTF_LEFTDOWN);
  sendMouse(MOUSEEVENTF_LEFTUP);
  program.settle();
  sendKey(modifier, true);
  program.settle();
}

void DoubleClick(const DesktopProgram& program, POINT point) {
  waitForDoubleClickToPass(point);
  moveTo(program, point);
  for (int i = 0; i < 2; ++i) {
    sendMouse(MOUSEEVENTF_LEFTDOWN);
    sendMouse(MOUSEEVENTF_LEFTUP);
  }
  program.settle();
}

void RightClick(const DesktopProgram& program, POINT point) {
  waitForDoubleClickToPass(point);
  moveTo(program, point);
  sendMouse(MOUSEEVENTF_RIGHTDOWN);
  sendMouse(MOUSEEVENTF_RIGHTUP);
}

void MoveMouse(const DesktopProgram& program, POINT point) { moveTo(program, point); }

void Drag(const DesktopProgram& program, POINT from, POINT to, const std::function<void()>& beforeRelease) {
  waitForDoubleClickToPass(from);
  moveTo(program, from);
  sendMouse(MOUSEEVENTF_LEFTDOWN);
  // A hand moves a little first: a control that has not taken the mouse yet must see it leave the place of the press.
  moveTo(program, {from.x + 6, from.y});
  constexpr int kSteps = 8;
  for (int step = 1; step <= kSteps; ++step) {
    moveTo(program, {from.x + (to.x - from.x) * step / kSteps, from.y + (to.y - from.y) * step / kSteps});
  }
  moveTo(program, to);
  if (beforeRelease) beforeRelease();
  sendMouse(MOUSEEVENTF_LEFTUP);
  program.settle();
}

namespace {

HWND findBox(const std::string& title) {
  HWND box = nullptr;
  while ((box = ::FindWindowExA(nullptr, box, "#32770", title.c_str())) != nullptr) {
    DWORD process = 0;
    ::GetWindowThreadProcessId(box, &process);
    if (process == ::GetCurrentProcessId() && ::IsWindowVisible(box) != 0) return box;
  }
  return nullptr;
}

}  // namespace

bool BoxIsOpen(const std::string& title) { return findBox(title) != nullptr; }

HWND WaitForBox(const std::string& title) {
  HWND box = nullptr;
  WaitFor([&] { return (box = findBox(title)) != nullptr; });
  return box;
}

std::string BoxText(HWND box) {
  std::array<char, 4096> text{};
  ::GetDlgItemTextA(box, 0xFFFF, text.data(), static_cast<int>(text.size()));
  return text.data();
}

void AnswerBox(const DesktopProgram& program, HWND box, int button) {
  ::PostMessageA(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
  WaitFor([&] { return ::IsWindow(box) == 0; });
  program.settle();
}

void PressButton(const DesktopProgram& program, HWND dialog, int button) {
  ::SendMessageA(::GetDlgItem(dialog, button), BM_CLICK, 0, 0);
  program.settle();
}

HWND WaitForPopup() {
  HWND popup = nullptr;
  WaitFor([&] {
    popup = ::FindWindowA("#32768", nullptr);
    return popup != nullptr && ::IsWindowVisible(popup) != 0;
  });
  return popup;
}

std::vector<PopupEntry> EntriesOf(HWND popup) {
  const HMENU menu = reinterpret_cast<HMENU>(::SendMessageA(popup, MN_GETHMENU, 0, 0));
  std::vector<PopupEntry> entries;
  for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
    std::array<char, 128> text{};
    ::GetMenuStringA(menu, static_cast<UINT>(i), text.data(), static_cast<int>(text.size()), MF_BYPOSITION);
    const UINT state = ::GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION);
    entries.push_back({text.data(), (state & (MF_GRAYED | MF_DISABLED)) == 0});
  }
  return entries;
}

void ChooseEntry(const DesktopProgram& program, HWND popup, int index) {
  const HMENU menu = reinterpret_cast<HMENU>(::SendMessageA(popup, MN_GETHMENU, 0, 0));
  RECT place{};
  ::GetMenuItemRect(nullptr, menu, static_cast<UINT>(index), &place);
  ::SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
  sendMouse(MOUSEEVENTF_MOVE);
  sendMouse(MOUSEEVENTF_LEFTDOWN);
  sendMouse(MOUSEEVENTF_LEFTUP);
  WaitFor([&] { return ::IsWindow(popup) == 0 || ::IsWindowVisible(popup) == 0; });
  program.settle();
}

void LeavePopup(const DesktopProgram& program, HWND popup) {
  ::PostMessageA(program.window(), WM_CANCELMODE, 0, 0);
  WaitFor([&] { return ::IsWindow(popup) == 0 || ::IsWindowVisible(popup) == 0; });
  program.settle();
}

}  // namespace varlo::test
