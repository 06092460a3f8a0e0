// The steps of start-up and shut-down that read and write files.
#pragma once

#include "core/program/start_up.h"

namespace varlo {

// The readers of the installation's files; browser detection is the shell's to add.
[[nodiscard]] StartUpSteps FileStartUpSteps();

// Saving at the end; stopping a build is the shell's to add.
[[nodiscard]] ShutDownSteps FileShutDownSteps();

}  // namespace varlo
