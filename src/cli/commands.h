// The commands of varlo-cli. Each takes its arguments as the user gave them and gives the exit status
// of the process.
#pragma once

#include <string>

#include "platform/machine.h"

namespace varlo {

inline constexpr int kExitDone = 0;
inline constexpr int kExitErrors = 1;  // done, with errors counted
inline constexpr int kExitFailed = 2;  // could not be done, or wrong usage

// Loads a project and saves it again; with an `output` the result goes to that file, and the project and
// its templates stay untouched.
int RunResave(Machine& machine, const std::string& project, const std::string& output);

// Prints a project as JSON.
int RunDump(Machine& machine, const std::string& project);

}  // namespace varlo
