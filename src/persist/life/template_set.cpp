#include "persist/life/template_set.h"

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/text/paths.h"
#include "core/tree/store_tree.h"

namespace varlo {

namespace {

// The pattern's "$" signs replaced by the directory of the set.
std::string filledPattern(std::string_view pattern, std::string_view directory) {
  std::string path;
  for (const char c : pattern) {
    if (c == '$') {
      path.append(directory);
    } else {
      path += c;
    }
  }
  return path;
}

}  // namespace

int CopyTemplateSet(Program& program, const Scheme* scheme) {
  const Text& projectDir = program.project.projectDir;
  if (projectDir.isNull() || scheme == nullptr) return 0;
  if (!StaysBelow(scheme->directory.view())) return 1;
  std::string source = "template\\";
  if (scheme->directory.isSet()) source.append(scheme->directory.view()).append("\\");
  const std::string target = std::string(projectDir.view()).append("\\Template\\");
  for (const std::string_view file : kTemplateSetFiles) {
    program.files.copy(source + std::string(file), target + std::string(file), true);
  }
  return 1;
}

void AssignDefaultTemplates(StoreNode* head) {
  TreeWalk walk(head, true);
  for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
    if (step == TreeWalk::Step::Node) walk.node()->templateName.assign(TraitsOf(walk.node()->kind).defaultTemplate);
  }
}

int EnsureProjectScheme(Program& program) {
  StoreProject& project = program.project;
  const SchemeStyle* style = program.config.schemeStyles;
  if (project.projectScheme == nullptr && style != nullptr) project.projectScheme = style->schemes;
  if (project.projectScheme != nullptr) return 1;
  ErrorBox(program, message::kNoScheme);
  return 0;
}

std::optional<std::string> SetTemplatePath(const StoreProject& project, const StoreNode& node) {
  const NodeKind kind = node.kind == NodeKind::List ? NodeKind::List : NodeKind::Product;
  const std::string_view name = node.templateName.isSet() ? node.templateName.view() : TraitsOf(kind).defaultTemplate;
  const Scheme* scheme = project.projectScheme;
  const std::string_view directory = scheme == nullptr ? std::string_view() : scheme->directory.view();
  if (!StaysBelow(directory) || !StaysBelow(filledPattern(name, directory))) return std::nullopt;
  return SingleBackSlashes(filledPattern(std::string("template\\$\\").append(name), directory));
}

}  // namespace varlo
