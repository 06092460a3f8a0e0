#include "shell/state/shell.h"

#include "core/program/program.h"
#include "generator/build/store_build_dialog.h"
#include "import/import_window.h"

namespace varlo {

Shell::Shell(Program& theProgram, BrowserSystem& theBrowsers)
    : program(theProgram), browsers(theBrowsers), generator(theProgram) {}

Shell::~Shell() = default;

}  // namespace varlo
