// The commands of the Edit menu that go where the keyboard's focus is.
#pragma once

#include "platform/dialog.h"

namespace varlo {

enum class Tab;
struct Shell;

// What the focus is in, as far as commands care.
enum class FocusPlace { Elsewhere, Tree, ItemList, RichEdit, RegionList, VariableList, StyleList, SchemeList };

[[nodiscard]] FocusPlace focusPlace(const Shell& shell);

// The rich edit of a tab's page, 0 for none.
[[nodiscard]] ControlId richEditOf(Tab tab);

// Copy, Paste, Delete and Select All. Nothing happens where the focus has no use for them; Select All then
// selects all rows of the item list.
void copyAtFocus(Shell& shell);
void pasteAtFocus(Shell& shell);
void deleteAtFocus(Shell& shell);
void selectAllAtFocus(Shell& shell);

}  // namespace varlo
