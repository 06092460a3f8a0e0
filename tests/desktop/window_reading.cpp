#include "tests/desktop/window_reading.h"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace varlo::test {

std::string TextOf(HWND window) {
  std::string text(static_cast<std::size_t>(::GetWindowTextLengthA(window)) + 1, '\0');
  text.resize(static_cast<std::size_t>(::GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

std::string LabelOf(HWND tree, HTREEITEM item) {
  std::array<char, 512> text{};
  TVITEMA wanted{};
  wanted.mask = TVIF_TEXT;
  wanted.hItem = item;
  wanted.pszText = text.data();
  wanted.cchTextMax = static_cast<int>(text.size());
  ::SendMessageA(tree, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&wanted));
  return text.data();
}

int IconOf(HWND tree, HTREEITEM item) {
  TVITEMA wanted{};
  wanted.mask = TVIF_IMAGE;
  wanted.hItem = item;
  ::SendMessageA(tree, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&wanted));
  return wanted.iImage;
}

namespace {

HTREEITEM nextOf(HWND tree, UINT which, HTREEITEM item) {
  return reinterpret_cast<HTREEITEM>(::SendMessageA(tree, TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(item)));
}

HTREEITEM firstBelow(HWND tree, HTREEITEM parent) {
  return parent == nullptr ? nextOf(tree, TVGN_ROOT, nullptr) : nextOf(tree, TVGN_CHILD, parent);
}

}  // namespace

HTREEITEM FindItem(HWND tree, const TreePath& path) {
  HTREEITEM parent = nullptr;
  for (const std::string& label : path) {
    HTREEITEM item = firstBelow(tree, parent);
    while (item != nullptr && LabelOf(tree, item) != label) item = nextOf(tree, TVGN_NEXT, item);
    if (item == nullptr) return nullptr;
    parent = item;
  }
  return parent;
}

std::vector<std::string> LabelsBelow(HWND tree, HTREEITEM parent) {
  std::vector<std::string> labels;
  for (HTREEITEM item = firstBelow(tree, parent); item != nullptr; item = nextOf(tree, TVGN_NEXT, item)) {
    labels.push_back(LabelOf(tree, item));
  }
  return labels;
}

std::string CellOf(HWND list, int row, int column) {
  std::array<char, 512> text{};
  LVITEMA wanted{};
  wanted.iSubItem = column;
  wanted.pszText = text.data();
  wanted.cchTextMax = static_cast<int>(text.size());
  ::SendMessageA(list, LVM_GETITEMTEXTA, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&wanted));
  return text.data();
}

std::vector<std::string> CellsOf(HWND list, int column) {
  std::vector<std::string> cells;
  const int count = static_cast<int>(::SendMessageA(list, LVM_GETITEMCOUNT, 0, 0));
  for (int row = 0; row < count; ++row) cells.push_back(CellOf(list, row, column));
  return cells;
}

std::vector<int> SelectedRows(HWND list) {
  std::vector<int> rows;
  int row = -1;
  while ((row = static_cast<int>(::SendMessageA(list, LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED))) >=
         0) {
    rows.push_back(row);
  }
  return rows;
}

int RowIcon(HWND list, int row) {
  LVITEMA wanted{};
  wanted.mask = LVIF_IMAGE;
  wanted.iItem = row;
  ::SendMessageA(list, LVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&wanted));
  return wanted.iImage;
}

bool EntryEnabled(HWND window, UINT command) {
  return (::GetMenuState(::GetMenu(window), command, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED)) == 0;
}

bool EntryChecked(HWND window, UINT command) {
  return (::GetMenuState(::GetMenu(window), command, MF_BYCOMMAND) & MF_CHECKED) != 0;
}

namespace {

struct Picture {
  int width = 0;
  int height = 0;
  std::vector<char> pixels;  // 32 bits each, from the bottom up
};

Picture pictureOf(HWND window) {
  RECT place{};
  ::GetWindowRect(window, &place);
  Picture picture{place.right - place.left, place.bottom - place.top, {}};
  BITMAPINFO info{};
  info.bmiHeader = {sizeof(BITMAPINFOHEADER), picture.width, picture.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  const HDC source = ::GetWindowDC(window);
  const HDC memory = ::CreateCompatibleDC(source);
  const HBITMAP bitmap = ::CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  const HGDIOBJ before = ::SelectObject(memory, bitmap);
  ::BitBlt(memory, 0, 0, picture.width, picture.height, source, 0, 0, SRCCOPY);
  ::GdiFlush();
  const char* first = static_cast<const char*>(bits);
  picture.pixels.assign(first, first + std::size_t{4} * static_cast<unsigned>(picture.width * picture.height));
  ::SelectObject(memory, before);
  ::DeleteObject(bitmap);
  ::DeleteDC(memory);
  ::ReleaseDC(window, source);
  return picture;
}

}  // namespace

void TakePicture(HWND window, const std::string& name) {
  const char* folder = std::getenv("VARLO_SCREENSHOTS");
  if (folder == nullptr) return;
  ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_FRAME);
  Picture picture = pictureOf(window);
  for (std::size_t i = 3; i < picture.pixels.size(); i += 4) picture.pixels[i] = '\xFF';
  BITMAPFILEHEADER file{};
  file.bfType = 0x4D42;
  file.bfOffBits = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
  file.bfSize = file.bfOffBits + static_cast<DWORD>(picture.pixels.size());
  const BITMAPINFOHEADER info{sizeof(BITMAPINFOHEADER), picture.width, picture.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  std::filesystem::create_directories(folder);
  std::ofstream out(std::filesystem::path(folder) / (name + ".bmp"), std::ios::binary);
  out.write(reinterpret_cast<const char*>(&file), sizeof file);
  out.write(reinterpret_cast<const char*>(&info), sizeof info);
  out.write(picture.pixels.data(), static_cast<std::streamsize>(picture.pixels.size()));
}

}  // namespace varlo::test
