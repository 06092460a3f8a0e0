#include "win32/dialog_paint.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "layout/preview_picture.h"
#include "win32/screen_scale.h"

namespace varlo {
namespace {

// A bitmap with more points in a row or column is not shown: it would take the memory of the machine.
constexpr LONG kLargestSide = 4096;

bool isReasonable(const std::string& path) {
  const HANDLE file = ::CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  unsigned char bytes[sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER)]{};
  DWORD got = 0;
  const bool isFile = ::GetFileType(file) == FILE_TYPE_DISK;
  const bool read = isFile && ::ReadFile(file, bytes, sizeof bytes, &got, nullptr) != FALSE && got == sizeof bytes;
  ::CloseHandle(file);
  if (!read || bytes[0] != 'B' || bytes[1] != 'M') return false;
  BITMAPINFOHEADER header{};
  std::copy_n(bytes + sizeof(BITMAPFILEHEADER), sizeof header, reinterpret_cast<unsigned char*>(&header));
  const auto fits = [](LONG side) { return side >= -kLargestSide && side <= kLargestSide && side != 0; };
  return fits(header.biWidth) && fits(header.biHeight);
}

// The canvas of a bitmap, for the time of copying it.
class BitmapCanvas {
 public:
  BitmapCanvas(HDC like, HBITMAP bitmap)
      : canvas_(::CreateCompatibleDC(like)), old_(::SelectObject(canvas_, bitmap)) {}
  ~BitmapCanvas() {
    ::SelectObject(canvas_, old_);
    ::DeleteDC(canvas_);
  }
  BitmapCanvas(const BitmapCanvas&) = delete;
  BitmapCanvas& operator=(const BitmapCanvas&) = delete;
  [[nodiscard]] HDC get() const { return canvas_; }

 private:
  HDC canvas_;
  HGDIOBJ old_;
};

}  // namespace

void DialogPaint::setPicture(ControlId control, std::string_view path) {
  pictures_.erase(control);
  const std::string name(path);
  if (name.empty() || !isReasonable(name)) return;
  constexpr UINT kFromFile = LR_LOADFROMFILE | LR_CREATEDIBSECTION;
  const HANDLE bitmap = ::LoadImageA(nullptr, name.c_str(), IMAGE_BITMAP, 0, 0, kFromFile);
  if (bitmap != nullptr) pictures_[control].reset(static_cast<HBITMAP>(bitmap));
}

void DialogPaint::setSwatch(ControlId control, std::optional<Colour> colour) { swatches_[control] = colour; }

void DialogPaint::setTextColours(ControlId control, Colour text, Colour background) {
  texts_[control] = {text, background, OwnedHandle<HBRUSH>(::CreateSolidBrush(background))};
}

void DialogPaint::clear() {
  pictures_.clear();
  swatches_.clear();
  texts_.clear();
}

void DialogPaint::draw(const DRAWITEMSTRUCT& item) const {
  if (item.CtlType == ODT_BUTTON) {
    drawSwatch(item);
  } else if (item.CtlType == ODT_STATIC) {
    drawPicture(item);
  }
}

void DialogPaint::drawSwatch(const DRAWITEMSTRUCT& item) const {
  RECT place = item.rcItem;
  ::DrawFrameControl(item.hDC, &place, DFC_BUTTON,
                     DFCS_BUTTONPUSH | ((item.itemState & ODS_SELECTED) != 0 ? DFCS_PUSHED : 0U));
  ::InflateRect(&place, -ScaledPixels(3), -ScaledPixels(3));
  const auto found = swatches_.find(static_cast<ControlId>(item.CtlID));
  if (found != swatches_.end() && found->second.has_value()) {
    const OwnedHandle<HBRUSH> brush(::CreateSolidBrush(*found->second));
    ::FillRect(item.hDC, &place, brush.get());
  }
  if ((item.itemState & ODS_FOCUS) != 0) ::DrawFocusRect(item.hDC, &place);
}

void DialogPaint::drawPicture(const DRAWITEMSTRUCT& item) const {
  ::FillRect(item.hDC, &item.rcItem, ::GetSysColorBrush(COLOR_3DFACE));
  const auto found = pictures_.find(static_cast<ControlId>(item.CtlID));
  BITMAP size{};
  if (found == pictures_.end() || ::GetObjectA(found->second.get(), sizeof size, &size) == 0) return;
  const RECT& frame = item.rcItem;
  const Rectangle place =
      CentredIn({static_cast<int>(frame.left), static_cast<int>(frame.top),
                 static_cast<int>(frame.right - frame.left), static_cast<int>(frame.bottom - frame.top)},
                {static_cast<int>(size.bmWidth), static_cast<int>(size.bmHeight)});
  const BitmapCanvas picture(item.hDC, found->second.get());
  ::IntersectClipRect(item.hDC, item.rcItem.left, item.rcItem.top, item.rcItem.right, item.rcItem.bottom);
  ::BitBlt(item.hDC, place.left, place.top, size.bmWidth, size.bmHeight, picture.get(), 0, 0, SRCCOPY);
}

HBRUSH DialogPaint::coloursOf(ControlId control, HDC canvas) const {
  const auto found = texts_.find(control);
  if (found == texts_.end()) return nullptr;
  ::SetTextColor(canvas, found->second.text);
  ::SetBkColor(canvas, found->second.background);
  return found->second.brush.get();
}

}  // namespace varlo
