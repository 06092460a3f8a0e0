// The form of the open tab: from the model to the page and back. There is no edit buffer: each change in a field
// reaches the model at once.
#pragma once

#include "platform/dialog.h"

namespace varlo {

struct Shell;

// Fills the open page from the model.
void loadForm(Shell& shell);

// Reads the open page into the model. Fields call onFieldCommand instead.
void readForm(Shell& shell);

// Reads the page when a field changed while something was at work.
void readWaitingEdit(Shell& shell);

// Every page passes each notification of its fields here first. True when it acted.
bool onFieldCommand(Shell& shell, const ControlEvent& event);

// Deletes what is neither a decimal digit nor "." from a field, and then puts the caret at its end.
void digitsOnly(Dialog& page, ControlId control);

}  // namespace varlo
