// The two page templates that the project itself holds: of the order form and of the confirmation page. What the
// buttons of their tabs do.
#pragma once

#include "core/text/text.h"

namespace varlo {

struct Generator;
struct Shell;
struct StoreProject;

struct FormTemplate {
  int slot = 0;  // for reading its files
  const char* shippedFile = nullptr;
  Text StoreProject::*text = nullptr;
  int (*preview)(Generator&) = nullptr;
  bool resetShowsAnew = false;  // also a text that is shown already
};

extern const FormTemplate kOrderFormTemplate;
extern const FormTemplate kConfirmationTemplate;

// Replaces the text by that of a file that the user chooses. Does not mark the project.
void chooseFormTemplate(Shell& shell, const FormTemplate& form);

// After a question, replaces the text by the shipped one. Marks the project.
void resetFormTemplate(Shell& shell, const FormTemplate& form);

// Writes the preview page and shows it.
void viewFormTemplate(Shell& shell, const FormTemplate& form);

}  // namespace varlo
