// Two looks at a thread's messages that dialogs don't offer: at keys before the dialog under the focus has them, and
// at the focus when it moves.
#pragma once

#include <windows.h>

#include <functional>

namespace varlo {

// Sees a key that goes to a window or to one below it; true when it is consumed.
using KeyFilter = std::function<bool(MSG&)>;

// Filters the keys of `window` in every dialog loop and message box of this thread. The loop that runs is that of
// the main window, which knows nothing of the keys of another dialog.
void FilterKeys(HWND window, KeyFilter filter);
void StopFilteringKeys(HWND window);

// From now on the focus posts `message` to `window` when it moves in this thread; null ends it.
void WatchFocus(HWND window, UINT message);

}  // namespace varlo
