// ImportState: the import window, of which there is one at a time, and what outlives it.
#pragma once

#include "core/forms/modeless_window.h"

namespace varlo {

class ImportWindow;

struct ImportState {
  char fieldDelimiter = ',';  // found out or typed last
  ModelessWindow<ImportWindow> window;
};

}  // namespace varlo
