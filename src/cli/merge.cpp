#include "cli/commands.h"
#include "cli/headless_program.h"
#include "core/store_tree.h"
#include "persist/backup.h"
#include "persist/project_merge.h"
#include "persist/project_save.h"

namespace varlo {
namespace {

// The first node with this file name in the order of the tree; null when there is none.
StoreNode* findPage(StoreNode* root, std::string_view fileName) {
  TreeWalk walk(root);
  for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
    if (step == TreeWalk::Step::Node && walk.node()->fileName.isSet() && walk.node()->fileName.view() == fileName) {
      return walk.node();
    }
  }
  return nullptr;
}

// Loads the project, changes it by `change` with the other's name, and saves it with a backup.
template <typename Change>
int changeProject(Machine& machine, const CommandArguments& arguments, Change change) {
  HeadlessProgram headless(machine, *machine.files);
  if (!headless.load(arguments.project)) return kExitFailed;
  Program& program = headless.program();
  if (change(program, machine.files->nameOf(arguments.other)) != 1) return kExitFailed;
  BackupRoll(program);
  return ProjectSave(program) == 1 ? kExitDone : kExitFailed;
}

}  // namespace

int RunMerge(Machine& machine, const CommandArguments& arguments) {
  return changeProject(machine, arguments, [&](Program& program, const std::string& other) {
    StoreNode* place =
        arguments.at.empty() ? nullptr : findPage(program.project.root, TextFromArgument(arguments.at));
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
