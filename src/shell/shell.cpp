#include "shell/shell.h"

#include "core/program.h"
#include "generator/store_build_dialog.h"

namespace varlo {

Shell::Shell(Program& theProgram, BrowserSystem& theBrowsers)
    : program(theProgram), browsers(theBrowsers), generator(theProgram) {}

Shell::~Shell() = default;

}  // namespace varlo
