#include "cli/commands.h"
#include "cli/find_page.h"
#include "cli/headless_program.h"
#include "persist/life/backup.h"
#include "persist/project/project_merge.h"

namespace varlo {
namespace {

// Loads the project, changes it by `change` with the other's name, and saves it with a backup.
template <typename Change>
int changeProject(Machine& machine, const CommandArguments& arguments, Change change) {
  HeadlessProgram headless(machine, *machine.files);
  if (!headless.load(arguments.project)) return kExitFailed;
  Program& program = headless.program();
  if (change(program, machine.files->nameOf(arguments.other)) != 1) return kExitFailed;
  return SaveWithBackup(program) ? kExitDone : kExitFailed;
}

}  // namespace

int RunMerge(Machine& machine, const CommandArguments& arguments) {
  return changeProject(machine, arguments, [&](Program& program, const std::string& other) {
    StoreNode* place =
        arguments.at.empty() ? nullptr : FindPage(program.project.root, TextFromArgument(arguments.at));
    if (place != nullptr) program.project.currentNode = place;
    return ProjectMerge(program, other.c_str());
  });
}

int RunImportFreight(Machine& machine, const CommandArguments& arguments) {
  return changeProject(machine, arguments, [](Program& program, const std::string& other) {
    return FreightImport(program, other.c_str());
  });
}

}  // namespace varlo
