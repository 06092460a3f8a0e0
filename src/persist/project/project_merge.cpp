#include "persist/project/project_merge.h"

#include <string>

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/text/line_reader.h"
#include "core/text/open_file.h"
#include "core/text/paths.h"
#include "core/text/text_search.h"
#include "core/tree/store_tree.h"
#include "persist/project/file_name_set.h"
#include "persist/project/freight_lines.h"
#include "persist/project/project_parse.h"

namespace varlo {
namespace {

bool hasPlace(const StoreProject& project, const char* path) {
  return path != nullptr && (project.currentNode != nullptr || project.root == nullptr);
}

// The other project's file; not open, after a message, when it can't be read.
FileHandle openOther(Program& program, const char* path) {
  const FileHandle file = program.files.openRead(path);
  if (file == kNoFile) ErrorBox(program, FillMessage(message::kOtherProjectReadError, path));
  return file;
}

// Reads the tree behind the siblings of the current node; gives the node it hangs behind.
StoreNode* mergeTree(Program& program, LineReader& reader) {
  StoreNode* current = program.project.currentNode;
  StoreNode* last = LastSibling(current);
  StoreNode* head = ProjectParse(program, reader, current, nullptr, true);
  last->next = head;
  if (head != nullptr) head->parent = current->parent;
  return last;
}

StoreNode* readWhole(Program& program, LineReader& reader) {
  StoreProject& project = program.project;
  project.root = project.currentNode = project.treeNode = ProjectParse(program, reader, nullptr, nullptr, false);
  program.view.loadForm();
  return project.root;
}

// A name that leads out of the template folder is one that can't be copied.
void copyTemplate(Program& program, const StoreNode& node, std::string_view sourceFolder, FileNameSet& names) {
  if (!node.templateName.isSet() || FileNameSetFind(names, node.templateName.get()) != 0) return;
  if (StaysBelow(node.templateName.view())) {
    const std::string name = std::string("\\Template\\").append(node.templateName.view());
    const std::string target = SingleBackSlashes(std::string(program.project.projectDir.view()) + name);
    const std::string source = SingleBackSlashes(std::string(sourceFolder) + name);
    if (FileExists(program.files, target) == 0) program.files.copy(source, target, true);
  }
  FileNameSetAdd(names, node.templateName.get(), reinterpret_cast<std::uintptr_t>(&node));
}

void emptyMethods(StoreProject& project) {
  for (FreightRegion* region = project.regions; region != nullptr; region = region->next) {
    for (FreightMethod* method : region->method) {
      if (method == nullptr) continue;
      method->active = 0;
      method->rule.release();
      for (Text& value : method->value) value.release();
    }
  }
}

void readFreight(Program& program, LineReader& lines) {
  FreightLineReader freight(program, false);
  FreightRegion* region = nullptr;
  std::string_view line;
  while (LineReadTrimmed(lines, line) != 0) {
    if (line.starts_with('$')) {
      FreightRegion* found = freight.read(line);
      if (found != nullptr) region = found;
    } else if (line.starts_with("FNAME=")) {
      ReadMethodName(program, TextBehind(line, '='));
    } else if (line.starts_with("RULE=")) {
      ReadFreightRule(region, TextBehind(line, '='));
    }
  }
}

}  // namespace

int ProjectMerge(Program& program, const char* path) {
  StoreProject& project = program.project;
  if (!hasPlace(project, path)) return 0;
  OpenFile file(program.files, openOther(program, path));
  if (!file.isOpen()) return 0;
  LineReader reader(program.files, file.handle(), program.lineBuffer);
  StoreNode* last = project.currentNode != nullptr ? mergeTree(program, reader) : readWhole(program, reader);
  file.close();
  program.view.clearTree();
  program.view.fillTree();
  program.view.loadItemList(project.currentNode);
  if (last != nullptr) MergeCopyTemplates(program, last->next, path);
  SetDirty(program, 1);
  return 1;
}

// Children come before the node that holds them.
int MergeCopyTemplates(Program& program, StoreNode* head, std::string_view sourcePath) {
  FileNameSet names;
  const std::size_t slash = sourcePath.rfind('\\');
  const std::string_view folder = sourcePath.substr(0, slash);
  TreeWalk walk(head, true);
  for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
    const bool whole = step == TreeWalk::Step::EndOfBranch || walk.node()->child == nullptr;
    if (whole) copyTemplate(program, *walk.node(), folder, names);
  }
  return 1;
}

int FreightImport(Program& program, const char* path) {
  if (!hasPlace(program.project, path)) return 0;
  OpenFile file(program.files, openOther(program, path));
  if (!file.isOpen()) return 0;
  emptyMethods(program.project);
  LineReader lines(program.files, file.handle(), program.lineBuffer);
  readFreight(program, lines);
  program.view.loadFreightList();
  SetDirty(program, 1);
  return 1;
}

}  // namespace varlo
