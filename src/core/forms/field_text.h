// What the logic of dialogs reads from its fields.
#pragma once

#include "core/text/limits.h"
#include "core/text/text.h"
#include "platform/dialog.h"

namespace varlo {

// The text of an edit field, cut at the size of the line buffer or at `cut`; never null.
[[nodiscard]] inline Text FieldText(Dialog& dialog, ControlId control, std::size_t cut = kLineBuffer) {
  const std::string text = dialog.text(control);
  return Text(std::string_view(text).substr(0, cut));
}

}  // namespace varlo
