#include "shell/tabs/node_template.h"

#include <optional>
#include <string>

#include "core/program/program.h"
#include "core/program/scheme.h"
#include "core/text/paths.h"
#include "persist/project/project_paths.h"
#include "persist/project/template_files.h"
#include "shell/browser/browser.h"
#include "shell/state/shell.h"
#include "shell/tabs/form.h"
#include "shell/tabs/template_choice.h"

namespace varlo {
namespace {

// The shipped template for the kind of a node.
std::string shippedTemplate(const Program& program, const StoreNode& node) {
  const Scheme* scheme = program.project.projectScheme;
  if (scheme == nullptr) scheme = program.config.currentScheme;
  std::string path = "template\\";
  if (scheme != nullptr && scheme->directory.isSet()) path.append(scheme->directory.view()).append("\\");
  return path.append(TraitsOf(node.kind).defaultTemplate);
}

}  // namespace

void loadTemplate(Shell& shell, const StoreNode& node) {
  StoreProject& project = shell.program.project;
  const std::string path = NodeTemplatePath(project, node).value_or("");
  shell.heldTemplateName.release();
  if (FileReadToSlot(shell.program, kSlotTemplate, path, false) == 1) {
    shell.heldTemplateName.assign(PathName(path));
  }
  RememberTemplate(project, path);
}

std::string_view templateText(const Shell& shell) { return shell.program.slots[kSlotTemplate].text(); }

// Deliberate: a text that is the file's already is written again, and the name comes back only with the next fill.
void storeTemplate(Shell& shell, const StoreNode& node, std::string_view text) {
  loadTemplate(shell, node);
  if (shell.heldTemplateName.isNull() && text == templateText(shell)) return;
  (void)TemplateSave(shell.program, node, text);
  shell.heldTemplateName.release();
}

void chooseTemplate(Shell& shell) {
  const StoreNode* node = shell.program.project.currentNode;
  if (node == nullptr) return;
  const std::optional<std::string> path = chooseTemplateFile(shell.program);
  if (!path) return;
  if (FileReadToSlot(shell.program, kSlotTemplate, *path, false) == 1) {
    (void)TemplateSave(shell.program, *node, templateText(shell));
  } else {
    shell.heldTemplateName.release();
  }
  loadForm(shell);
}

// Deliberate: without the shipped file, the text that was read last is written.
void resetTemplate(Shell& shell) {
  const StoreNode* node = shell.program.project.currentNode;
  if (node == nullptr || !askForReset(shell.program)) return;
  FileReadToSlot(shell.program, kSlotTemplate, shippedTemplate(shell.program, *node), false);
  (void)TemplateSave(shell.program, *node, templateText(shell));
  loadForm(shell);
}

void viewTemplate(Shell& shell) {
  if (!shell.heldTemplateName.isSet()) return;
  const auto path = ProjectTemplatePath(shell.program.project, shell.heldTemplateName.view());
  if (path) openInBrowser(shell, *path);
}

}  // namespace varlo
