#include "tests/desktop/window_faults.h"

#include <array>
#include <cctype>
#include <set>
#include <utility>

#include "tests/desktop/window_reading.h"

namespace varlo::test {
namespace {

std::string classOf(HWND window) {
  std::array<char, 64> name{};
  ::GetClassNameA(window, name.data(), static_cast<int>(name.size()));
  return name.data();
}

bool isVisible(HWND control) { return (::GetWindowLongA(control, GWL_STYLE) & WS_VISIBLE) != 0; }

std::vector<HWND> controlsOf(HWND dialog) {
  std::vector<HWND> controls;
  for (HWND child = ::GetWindow(dialog, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
    if (isVisible(child)) controls.push_back(child);
  }
  return controls;
}

// A text without the "&" of its mnemonic, and the mnemonic.
std::pair<std::string, char> partsOf(const std::string& text) {
  const std::size_t mark = text.find('&');
  if (mark == std::string::npos || mark + 1 >= text.size() || text[mark + 1] == '&') return {text, '\0'};
  return {std::string(text).erase(mark, 1), static_cast<char>(std::toupper(text[mark + 1]))};
}

// What a text needs in the width of its control; on buttons it stays in one line.
SIZE extentOf(HWND control, const std::string& text, int width, bool wraps) {
  const HDC canvas = ::GetDC(control);
  const HGDIOBJ before = ::SelectObject(canvas, reinterpret_cast<HGDIOBJ>(::SendMessageA(control, WM_GETFONT, 0, 0)));
  RECT needed{0, 0, width, 0};
  const UINT format = DT_CALCRECT | DT_NOPREFIX | (wraps ? DT_WORDBREAK : DT_SINGLELINE);
  ::DrawTextA(canvas, text.c_str(), -1, &needed, format);
  ::SelectObject(canvas, before);
  ::ReleaseDC(control, canvas);
  return {needed.right, needed.bottom};
}

// A static text, or the title of a group.
bool isLabel(HWND control) {
  if (control == nullptr || TextOf(control).empty()) return false;
  const bool group = (::GetWindowLongA(control, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
  return classOf(control) == "Static" || (classOf(control) == "Button" && group);
}

}  // namespace

std::vector<std::string> FaultsOf(HWND dialog) {
  std::vector<std::string> faults;
  RECT inside{};
  ::GetClientRect(dialog, &inside);
  ::MapWindowPoints(dialog, nullptr, reinterpret_cast<POINT*>(&inside), 2);
  const bool scrolls = (::GetWindowLongPtrA(dialog, GWL_STYLE) & WS_VSCROLL) != 0;
  std::set<char> mnemonics;
  HWND before = nullptr;
  for (const HWND control : controlsOf(dialog)) {
    const std::string kind = classOf(control);
    const auto [text, mnemonic] = partsOf(TextOf(control));
    const std::string name = kind + " " + std::to_string(::GetDlgCtrlID(control)) + " \"" + text.substr(0, 40) + "\"";
    RECT place{};
    ::GetWindowRect(control, &place);
    // A page that scrolls has more below.
    const bool tooLow = place.top < inside.top || place.bottom > inside.bottom;
    if (place.left < inside.left || place.right > inside.right || (tooLow && !scrolls)) {
      faults.push_back(name + " leaves its window");
    }
    if (kind == "Static" || kind == "Button") {
      const SIZE room{place.right - place.left, place.bottom - place.top};
      const SIZE needed = extentOf(control, text, room.cx, kind == "Static");
      if (needed.cx > room.cx || needed.cy > room.cy) faults.push_back(name + " is cut off");
      if (mnemonic != '\0' && !mnemonics.insert(mnemonic).second) faults.push_back(name + " shares its mnemonic");
    }
    const bool isField =
        kind == "Edit" || kind == "ComboBox" || kind == "RICHEDIT" || kind == "ListBox" || kind == "SysListView32";
    if (isField && !isLabel(before)) {
      faults.push_back(name + " has no label before it");
    }
    const auto style = ::GetWindowLongA(control, GWL_STYLE);
    if ((isField || kind == "Button") && (style & (WS_TABSTOP | BS_GROUPBOX)) == 0) {
      faults.push_back(name + " can't be reached by key");
    }
    before = control;
  }
  return faults;
}

}  // namespace varlo::test
