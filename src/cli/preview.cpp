#include <iostream>

#include "cli/commands.h"
#include "cli/find_page.h"
#include "cli/headless_program.h"
#include "core/program/messages.h"
#include "core/program/scheme.h"
#include "generator/build/preview_page.h"
#include "generator/state/generator.h"
#include "persist/life/project_life.h"

namespace varlo {
namespace {

int fail(const std::string& words) {
  std::cerr << "varlo-cli: " << words << '\n';
  return kExitFailed;
}

// Makes the node that the arguments name current, or the one whose page shows it.
bool choosePage(StoreProject& project, const std::string& fileName) {
  StoreNode* node = fileName.empty() ? project.currentNode : FindPage(project.root, TextFromArgument(fileName));
  if (node == nullptr) return false;
  project.currentNode = PageOf(*node);
  return true;
}

// A store without a scheme is shown in the first scheme of the first style.
bool chooseScheme(Program& program) {
  StoreProject& project = program.project;
  const SchemeStyle* styles = program.config.schemeStyles;
  if (project.projectScheme == nullptr && styles != nullptr) project.projectScheme = styles->schemes;
  if (project.projectScheme == nullptr) ErrorBox(program, message::kNoScheme);
  return project.projectScheme != nullptr;
}

}  // namespace

int RunPreview(Machine& machine, const CommandArguments& arguments) {
  HeadlessProgram headless(machine, *machine.files);
  if (!headless.load(arguments.project)) return kExitFailed;
  Program& program = headless.program();
  if (!choosePage(program.project, arguments.at)) return fail("there is no page '" + arguments.at + "'");
  if (!chooseScheme(program)) return kExitFailed;
  const std::string directory = machine.files->nameOf(arguments.to);
  if (DirectoryCreatePath(program, directory) == 0) {
    ErrorBox(program, FillMessage(message::kPreviewFolderError, directory));
    return kExitFailed;
  }
  program.project.webDir.assign(std::string_view(directory));
  Generator generator(program);
  std::cout << TerminalText(PreviewPage(generator)) << '\n';
  return generator.log.errorCount == 0 ? kExitDone : kExitErrors;
}

}  // namespace varlo
