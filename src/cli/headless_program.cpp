#include "cli/headless_program.h"

#include "persist/life/start_up.h"
#include "persist/project/project_load.h"
#include "persist/project/project_paths.h"

namespace varlo {

HeadlessProgram::HeadlessProgram(Machine& machine, Files& files)
    : files_(files), view_(machine), program_(files, *machine.clock, screen_, *machine.clipboard, view_) {
  StartUp(program_);
}

void HeadlessProgram::name(const std::string& project) {
  program_.project.projectFile.assign(std::string_view(files_.nameOf(project)));
  ProjectDirFromFile(program_.project);
}

bool HeadlessProgram::load(const std::string& project) {
  name(project);
  return ProjectLoad(program_) == 1;
}

}  // namespace varlo
