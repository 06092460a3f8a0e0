// Windows in the test's own thread: what waits in its queue is run by hand, and pictures are taken of what is shown.
#pragma once

#include <windows.h>

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

namespace varlo::test {

// Runs what is queued, as the loop of a dialog does.
inline void pump(HWND dialog) {
  MSG message;
  while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    if (::IsDialogMessageW(dialog, &message) != FALSE) continue;
    ::TranslateMessage(&message);
    ::DispatchMessageA(&message);
  }
}

// A key that is pressed in a control.
inline void press(HWND dialog, HWND control, WPARAM key) {
  ::PostMessageA(control, WM_KEYDOWN, key, 1);
  ::PostMessageA(control, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
  pump(dialog);
}

// Holds a key down in the state that GetKeyState tells.
class HeldKey {
 public:
  explicit HeldKey(int key) : key_(key) { set(0x80); }
  ~HeldKey() { set(0); }
  HeldKey(const HeldKey&) = delete;
  HeldKey& operator=(const HeldKey&) = delete;

 private:
  void set(BYTE state) const {
    BYTE keys[256];
    ::GetKeyboardState(keys);
    keys[key_] = state;
    ::SetKeyboardState(keys);
  }
  int key_;
};

// Saves a picture of a window as a bitmap file in the folder $VARLO_SCREENSHOTS; nothing without it.
inline void takePicture(HWND window, const std::string& name) {
  const char* folder = std::getenv("VARLO_SCREENSHOTS");
  if (folder == nullptr) return;
  RECT place{};
  ::GetWindowRect(window, &place);
  const LONG width = place.right - place.left;
  const LONG height = place.bottom - place.top;
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  const HDC source = ::GetWindowDC(window);
  const HDC copy = ::CreateCompatibleDC(source);
  const HBITMAP bitmap = ::CreateDIBSection(source, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  const HGDIOBJ old = ::SelectObject(copy, bitmap);
  ::BitBlt(copy, 0, 0, width, height, source, 0, 0, SRCCOPY);
  ::GdiFlush();
  const auto size = static_cast<std::uint32_t>(width * height * 4);
  BITMAPFILEHEADER header{};
  header.bfType = 0x4D42;
  header.bfOffBits = sizeof header + sizeof info.bmiHeader;
  header.bfSize = header.bfOffBits + size;
  std::ofstream file(std::string(folder) + "\\" + name + ".bmp", std::ios::binary);
  file.write(reinterpret_cast<const char*>(&header), sizeof header);
  file.write(reinterpret_cast<const char*>(&info.bmiHeader), sizeof info.bmiHeader);
  file.write(static_cast<const char*>(bits), size);
  ::SelectObject(copy, old);
  ::DeleteObject(bitmap);
  ::DeleteDC(copy);
  ::ReleaseDC(window, source);
}

// The direct children of a window, in the order of Tab.
inline std::vector<HWND> childrenOf(HWND window) {
  std::vector<HWND> children;
  for (HWND child = ::GetWindow(window, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
    children.push_back(child);
  }
  return children;
}

}  // namespace varlo::test
