// The release of the open project.
#pragma once

namespace varlo {

struct Program;

// Releases what a new project replaces in any case: web directory, title, freight tax, project
// directory, remembered templates, variables, tree, cards and regions. Everything else of the project
// stays, and a new one inherits it until something replaces it.
void ProjectClose(Program& program);

}  // namespace varlo
