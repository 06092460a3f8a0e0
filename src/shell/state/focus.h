// Where the keyboard's focus is, as far as commands care.
#pragma once

#include "platform/dialog.h"

namespace varlo {

enum class Tab;
struct Shell;

enum class FocusPlace { Elsewhere, Tree, ItemList, RichEdit, RegionList, VariableList, StyleList, SchemeList };

[[nodiscard]] FocusPlace focusPlace(const Shell& shell);

}  // namespace varlo
