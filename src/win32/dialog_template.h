// The window of a dialog as a template in memory: frame, title and font. Its controls are made afterwards, from its
// shape, so that they can be made anew.
#pragma once

#include <windows.h>

#include <vector>

#include "platform/dialog_shape.h"

namespace varlo {

class DialogTemplate {
 public:
  // `menu` is the number of a menu resource, 0 for none.
  explicit DialogTemplate(const DialogShape& shape, WORD menu = 0);
  [[nodiscard]] const DLGTEMPLATE* get() const { return reinterpret_cast<const DLGTEMPLATE*>(words_.data()); }

 private:
  void append(DWORD value);
  void appendText(std::string_view text);

  std::vector<WORD> words_;
};

}  // namespace varlo
