#include "shell/browser/build_commands.h"

#include <string>
#include <utility>

#include "core/program/program.h"
#include "core/tree/store_tree.h"
#include "generator/build/first_build_dialog.h"
#include "generator/build/preview_page.h"
#include "generator/build/store_build_dialog.h"
#include "persist/life/template_set.h"
#include "shell/browser/browser.h"
#include "shell/browser/order_server.h"
#include "shell/state/shell.h"

namespace varlo {
namespace {

// Asks for a directory where there is none yet; false when the user cancelled.
bool haveDirectory(Shell& shell) {
  if (shell.program.project.webDir.isSet()) return true;
  FirstBuildDialog logic(shell.generator);
  return shell.program.screen.runDialog(logic) == 1;
}

}  // namespace

// Deliberate: without any scheme the wait cursor stays, and the holder of a shelf's or a list's item stays current.
void previewCurrent(Shell& shell) {
  Program& program = shell.program;
  StoreProject& project = program.project;
  if (project.currentNode == nullptr || !requireServer(shell) || !haveDirectory(shell)) return;
  WaitCursorOn(program);
  StoreNode* node = project.currentNode;
  project.currentNode = PageOf(*node);
  if (EnsureProjectScheme(program) == 0) return;
  const std::string page = PreviewPage(shell.generator);
  project.currentNode = node;
  openInBrowser(shell, page);
  WaitCursorOff(program);
}

// Only while it runs, the store has the scheme, and pages come from the templates of its set.
void previewScheme(Shell& shell) {
  StoreProject& project = shell.program.project;
  SchemeRecord* applied = std::exchange(project.projectScheme, shell.program.config.currentScheme);
  shell.generator.useSetTemplates = true;
  previewCurrent(shell);
  shell.generator.useSetTemplates = false;
  project.projectScheme = applied;
}

void openBuildWindow(Shell& shell) {
  if (shell.program.project.currentNode == nullptr || !requireServer(shell)) return;
  shell.buildWindow.open(shell.program.screen, shell.generator);
}

}  // namespace varlo
