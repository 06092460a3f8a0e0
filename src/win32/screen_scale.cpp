#include "win32/screen_scale.h"

namespace varlo {

int ScreenDpi() {
  const HDC screen = ::GetDC(nullptr);
  const int dpi = ::GetDeviceCaps(screen, LOGPIXELSX);
  ::ReleaseDC(nullptr, screen);
  return dpi > 0 ? dpi : 96;
}

int ScaledPixels(int pixels) { return ::MulDiv(pixels, ScreenDpi(), 96); }

ScaledResource ChooseScaledResource(int id, int id150, int id200) {
  const int percent = ::MulDiv(100, ScreenDpi(), 96);
  if (percent >= 200) return {id200, 200};
  if (percent >= 150) return {id150, 150};
  return {id, 100};
}

}  // namespace varlo
