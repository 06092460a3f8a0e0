// The toolbar, and the strips of images of toolbar and lists.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <span>

#include "platform/main_window.h"

namespace varlo {

// The images of nodes, variables and styles, in the size that suits the screen; the caller owns the list.
[[nodiscard]] HIMAGELIST LoadItemImages();

// Makes the toolbar of a window, hidden until it is placed. Null when it can't be made.
HWND CreateToolbarWindow(HWND parent, std::span<const ToolbarButton> buttons);

}  // namespace varlo
