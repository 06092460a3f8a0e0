// The upgrade program, which brings the program and its templates up to date.
#pragma once

#include <string>

namespace varlo {

struct Program;
struct Shell;

// What the upgrade program gets on its command line: fields that each end with a semicolon.
[[nodiscard]] std::string upgradeControlString(const Program& program);

// Starts the upgrade program, a new version of it if it has delivered one, and does not wait for it. A failed
// start is told. Goes on with what a start of the program does next: the demo store on a first run, New Store
// without a project.
void launchUpgrade(Shell& shell);

}  // namespace varlo
