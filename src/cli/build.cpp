#include "cli/commands.h"
#include "cli/console_build_window.h"
#include "cli/headless_program.h"
#include "generator/build/build_driver.h"
#include "generator/state/build_target.h"
#include "generator/state/generator.h"

namespace varlo {
namespace {

// The directory that the arguments name, else the one that the Store Build window starts with.
std::string directoryOf(Machine& machine, const CommandArguments& arguments, const StoreProject& project) {
  return arguments.to.empty() ? StartDirectory(project) : machine.files->nameOf(arguments.to);
}

}  // namespace

int RunStoreBuild(Machine& machine, const CommandArguments& arguments) {
  HeadlessProgram headless(machine, *machine.files);
  if (!headless.load(arguments.project)) return kExitFailed;
  if (arguments.open) headless.showPages();
  const StoreProject& project = headless.program().project;
  const std::string title =
      arguments.hasTitle ? TextFromArgument(arguments.title) : std::string(project.storeTitle.view());
  Generator generator(headless.program());
  ConsoleBuildWindow window(project.nodesRead);
  generator.log.buildWindow = &window;
  const bool ended = RunBuild(generator, directoryOf(machine, arguments, project), title) == 1;
  return ended && generator.log.errorCount == 0 && !generator.log.stopRequested ? kExitDone : kExitErrors;
}

}  // namespace varlo
