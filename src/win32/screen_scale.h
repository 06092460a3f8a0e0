// Sizes on screens of any density. The program counts as told once at its start (system DPI aware).
#pragma once

#include <windows.h>

namespace varlo {

// Dots an inch of the screen; 96 is an ordinary one.
[[nodiscard]] int ScreenDpi();

// `pixels` of an ordinary screen on this one.
[[nodiscard]] int ScaledPixels(int pixels);

// The one of three resources, for 100, 150 and 200 percent, that suits the screen, and its scale in percent.
struct ScaledResource {
  int id = 0;
  int percent = 100;
};
[[nodiscard]] ScaledResource ChooseScaledResource(int id, int id150, int id200);

}  // namespace varlo
