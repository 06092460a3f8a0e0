// What the desktop program runs at its start.
#pragma once

#include "core/program/start_up.h"

namespace varlo {

struct BrowserSystem;

// The readers of the installation's files, and the detection of browsers; `browsers` must outlive the steps.
[[nodiscard]] StartUpSteps startSteps(BrowserSystem& browsers);

}  // namespace varlo
