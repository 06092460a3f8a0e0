// Popup menus, as the screen offers them.

#include <windows.h>

#include <memory>

#include "win32/win32_screen.h"

namespace varlo {
namespace {

struct MenuEnd {
  void operator()(HMENU menu) const { ::DestroyMenu(menu); }
};
using OwnedMenu = std::unique_ptr<HMENU__, MenuEnd>;

OwnedMenu makeMenu(const PopupMenu& entries) {
  OwnedMenu menu(::CreatePopupMenu());
  for (const MenuEntry& entry : entries) {
    const UINT state = entry.enabled ? MF_ENABLED : MF_GRAYED;
    if (IsSeparator(entry)) {
      ::AppendMenuA(menu.get(), MF_SEPARATOR, 0, nullptr);
    } else if (entry.entries.empty()) {
      ::AppendMenuA(menu.get(), MF_STRING | state, static_cast<UINT_PTR>(entry.command), entry.label.c_str());
    } else {
      // A submenu ends with its menu.
      const HMENU submenu = makeMenu(entry.entries).release();
      ::AppendMenuA(menu.get(), MF_POPUP | state, reinterpret_cast<UINT_PTR>(submenu), entry.label.c_str());
    }
  }
  return menu;
}

}  // namespace

Command Win32Screen::popupMenu(const PopupMenu& menu) {
  const OwnedMenu shown = makeMenu(menu);
  POINT mouse{};
  ::GetCursorPos(&mouse);
  const HWND owner = owner_ != nullptr ? owner_ : boxOwner();
  return static_cast<Command>(
      ::TrackPopupMenu(shown.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, mouse.x, mouse.y, 0, owner, nullptr));
}

}  // namespace varlo
