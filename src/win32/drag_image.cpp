#include "win32/drag_image.h"

#include <cstring>

#include "win32/screen_scale.h"

namespace varlo {
namespace {

// Stands for "nothing here"; no label has this colour.
constexpr COLORREF kTransparent = RGB(255, 0, 255);

// A device context with one bitmap and the font of a control selected into it.
class Canvas {
 public:
  explicit Canvas(HWND control) : screen_(::GetDC(control)), canvas_(::CreateCompatibleDC(screen_)) {
    const auto font = reinterpret_cast<HGDIOBJ>(::SendMessageA(control, WM_GETFONT, 0, 0));
    oldFont_ = ::SelectObject(canvas_, font != nullptr ? font : ::GetStockObject(DEFAULT_GUI_FONT));
    control_ = control;
  }
  ~Canvas() {
    ::SelectObject(canvas_, oldFont_);
    ::DeleteDC(canvas_);
    ::ReleaseDC(control_, screen_);
  }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;
  [[nodiscard]] HDC get() const { return canvas_; }
  [[nodiscard]] HBITMAP bitmap(SIZE size) const { return ::CreateCompatibleBitmap(screen_, size.cx, size.cy); }

 private:
  HWND control_ = nullptr;
  HDC screen_;
  HDC canvas_;
  HGDIOBJ oldFont_ = nullptr;
};

SIZE labelSize(HDC canvas, const char* label) {
  SIZE size{};
  ::GetTextExtentPoint32A(canvas, label, static_cast<int>(std::strlen(label)), &size);
  return size;
}

}  // namespace

bool DragImage::begin(HWND window, HIMAGELIST images, POINT grabbed, Point mouse) {
  end();
  if (images == nullptr) return false;
  if (::ImageList_GetImageCount(images) == 0 || ::ImageList_BeginDrag(images, 0, grabbed.x, grabbed.y) == FALSE) {
    ::ImageList_Destroy(images);
    return false;
  }
  window_ = window;
  images_ = images;
  const POINT start = inWindow(mouse);
  ::ImageList_DragEnter(window_, start.x, start.y);
  return true;
}

void DragImage::move(Point mouse) {
  if (!isShown()) return;
  const POINT point = inWindow(mouse);
  ::ImageList_DragMove(point.x, point.y);
}

void DragImage::end() {
  if (!isShown()) return;
  ::ImageList_DragLeave(window_);
  ::ImageList_EndDrag();
  ::ImageList_Destroy(images_);
  images_ = nullptr;
}

// Drag coordinates count from the corner of the window, not from that of its inside.
POINT DragImage::inWindow(Point screen) const {
  RECT window{};
  ::GetWindowRect(window_, &window);
  return {screen.x - window.left, screen.y - window.top};
}

HIMAGELIST DrawDragImage(HWND control, HIMAGELIST icons, int icon, const char* label) {
  const Canvas canvas(control);
  int iconWidth = 0;
  int iconHeight = 0;
  ::ImageList_GetIconSize(icons, &iconWidth, &iconHeight);
  const int gap = ScaledPixels(3);
  const SIZE text = labelSize(canvas.get(), label);
  const SIZE size{iconWidth + gap + text.cx + gap, iconHeight > text.cy ? iconHeight : text.cy};
  const HBITMAP bitmap = canvas.bitmap(size);
  if (bitmap == nullptr) return nullptr;

  const HGDIOBJ old = ::SelectObject(canvas.get(), bitmap);
  const RECT all{0, 0, size.cx, size.cy};
  ::SetBkColor(canvas.get(), kTransparent);
  ::ExtTextOutA(canvas.get(), 0, 0, ETO_OPAQUE, &all, "", 0, nullptr);
  ::ImageList_Draw(icons, icon, canvas.get(), 0, (size.cy - iconHeight) / 2, ILD_TRANSPARENT);
  ::SetBkMode(canvas.get(), TRANSPARENT);
  ::SetTextColor(canvas.get(), ::GetSysColor(COLOR_WINDOWTEXT));
  ::TextOutA(canvas.get(), iconWidth + gap, (size.cy - text.cy) / 2, label, static_cast<int>(std::strlen(label)));
  ::SelectObject(canvas.get(), old);

  const HIMAGELIST images = ::ImageList_Create(size.cx, size.cy, ILC_COLOR24 | ILC_MASK, 1, 1);
  if (images != nullptr) ::ImageList_AddMasked(images, bitmap, kTransparent);
  ::DeleteObject(bitmap);
  return images;
}

}  // namespace varlo
