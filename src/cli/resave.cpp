#include "cli/commands.h"
#include "cli/guarded_files.h"
#include "cli/headless_program.h"
#include "persist/life/backup.h"
#include "persist/project/project_save.h"

namespace varlo {
namespace {

int resaveInPlace(Machine& machine, const std::string& project) {
  HeadlessProgram headless(machine, *machine.files);
  if (!headless.load(project)) return kExitFailed;
  return SaveWithBackup(headless.program()) ? kExitDone : kExitFailed;
}

}  // namespace

int RunResave(Machine& machine, const CommandArguments& arguments) {
  if (arguments.output.empty()) return resaveInPlace(machine, arguments.project);
  const std::string target = machine.files->nameOf(arguments.output);
  GuardedFiles files(*machine.files, target);
  HeadlessProgram headless(machine, files);
  if (!headless.load(arguments.project)) return kExitFailed;
  StoreProject& loaded = headless.program().project;
  loaded.projectFile.assign(std::string_view(target));
  loaded.projectDir.release();  // without it the save leaves the templates alone
  return ProjectSave(headless.program()) ? kExitDone : kExitFailed;
}

}  // namespace varlo
