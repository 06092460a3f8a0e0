// The commands of the Edit menu that go where the keyboard's focus is.
#pragma once

namespace varlo {

struct Shell;

// Copy, Paste, Delete and Select All. Nothing happens where the focus has no use for them; Select All then
// selects all rows of the item list.
void copyAtFocus(Shell& shell);
void pasteAtFocus(Shell& shell);
void deleteAtFocus(Shell& shell);
void selectAllAtFocus(Shell& shell);

}  // namespace varlo
