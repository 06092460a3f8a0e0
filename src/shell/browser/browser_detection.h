// Finding the browsers of the machine, as a part of the start of the desktop program.
#pragma once

#include "core/program/start_up.h"

namespace varlo {

struct BrowserSystem;

// Finds the browsers of the machine, and chooses one where the preferences have none.
void detectBrowsers(Program& program, BrowserSystem& browsers);

// What the desktop program runs at its start: the readers of the installation's files, and the detection of browsers;
// `browsers` must outlive the steps.
[[nodiscard]] StartUpSteps startSteps(BrowserSystem& browsers);

}  // namespace varlo
