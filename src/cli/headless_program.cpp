#include "cli/headless_program.h"

#include "core/start_up.h"
#include "persist/project_load.h"

namespace varlo {

HeadlessProgram::HeadlessProgram(Machine& machine, Files& files)
    : files_(files), program_(files, *machine.clock, screen_, *machine.clipboard, view_) {
  StartUp(program_, {});
}

bool HeadlessProgram::load(const std::string& project) {
  program_.project.projectFile.assign(std::string_view(files_.nameOf(project)));
  return ProjectLoad(program_) == 1;
}

}  // namespace varlo
