// What the buttons and the popup menu of the Variables tab do to the project's list of variables.
#pragma once

#include <functional>

namespace varlo {

struct Shell;

// Appends a new variable and makes it current. Several of the same name may exist.
void newVariable(Shell& shell);

// Keeps a copy of the current variable, in the place of the one that was kept.
void copyVariable(Shell& shell);

// Inserts a copy of the kept variable behind the current one, and makes it current. Nothing without one.
void pasteVariable(Shell& shell);

// Deletes the variables of the selected rows.
void deleteVariables(Shell& shell, const std::function<bool(int row)>& isSelected);

}  // namespace varlo
