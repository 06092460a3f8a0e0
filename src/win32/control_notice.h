// What the notification codes of controls mean to the logic of a dialog.
#pragma once

#include <windows.h>

#include <optional>

#include "platform/dialog.h"
#include "win32/window_text.h"

namespace varlo {

// Of WM_COMMAND; none for what the logic is not told.
[[nodiscard]] std::optional<Notice> NoticeOfCommand(ControlKind kind, int code);

}  // namespace varlo
