// Texts and kinds of windows.
#pragma once

#include <windows.h>

#include <string>

namespace varlo {

[[nodiscard]] std::string WindowText(HWND window);

// The kinds of controls whose messages differ.
enum class ControlKind { Edit, RichEdit, ComboBox, ListBox, Button, Columns, Other };
[[nodiscard]] ControlKind KindOf(HWND control);

}  // namespace varlo
