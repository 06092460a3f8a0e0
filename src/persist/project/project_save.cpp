#include "persist/project/project_save.h"

#include <algorithm>
#include <string>
#include <vector>

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/program/scheme.h"
#include "core/store/card_entry.h"
#include "core/store/user_variable.h"
#include "core/text/line_escape.h"
#include "core/text/line_writer.h"
#include "core/text/number_text.h"
#include "core/text/open_file.h"
#include "core/text/paths.h"
#include "core/tree/store_tree.h"
#include "persist/project/node_keys.h"
#include "persist/project/project_paths.h"
#include "persist/project/template_files.h"

namespace varlo {
namespace {

// Nodes of a list between two updates of the count on the screen.
constexpr int kNodesPerCount = 12;

void writeSet(LineWriter& writer, std::string_view key, const Text& value) {
  if (value.isSet()) LineWrite(writer, key, "=", value, "\n");
}

void writeNode(LineWriter& writer, const StoreNode& node, std::string& scratch) {
  LineWrite(writer, "NODE", static_cast<std::int32_t>(node.kind), "=", node.title, "\n");
  LineWrite(writer, "STATUS=", node.status, "\n");
  LineWrite(writer, "MOD=", std::int32_t{node.modified}, "\n");
  for (const NodeKey& key : kNodeKeys) {
    const Text& text = TextOf(node, key.text);
    if (!text.isSet()) continue;
    const bool escaped = key.rule == NodeKeyRule::Escaped;
    LineWrite(writer, key.key, "=", escaped ? EscapeLines(text.view(), scratch) : text.view(), "\n");
  }
}

// The count on the screen goes by lists: after every twelfth node of a list it shows that list's count.
void writeTree(Program& program, LineWriter& writer, std::string& scratch) {
  std::vector<int> counts{0};
  TreeWalk walk(program.project.root);
  for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
    if (step == TreeWalk::Step::EndOfBranch) {
      LineWrite(writer, "#EOB\n");
      counts.pop_back();
      continue;
    }
    if (walk.depth() == counts.size()) counts.push_back(0);
    const StoreNode& node = *walk.node();
    writeNode(writer, node, scratch);
    if (node.child != nullptr && !IsProduct(node)) LineWrite(writer, "#BRANCH\n");
    if (++counts.back() % kNodesPerCount == 0) program.screen.showTaskCount(counts.back());
  }
}

void removeBars(Text& name) {
  std::string kept(name.view());
  if (std::erase(kept, '|') > 0) name.assignLine(kept);
}

void writeVariables(StoreProject& project, LineWriter& writer, std::string& scratch) {
  for (UserVariable* variable = project.variables; variable != nullptr; variable = variable->next) {
    removeBars(variable->name);
    LineWrite(writer, "VAR=", variable->name, "|", EscapeLines(variable->value.view(), scratch), "\n");
  }
}

// Each formatted piece of a freight line has the limit of a written line for itself.
void writeMethod(LineWriter& writer, const FreightRegion& region, std::size_t index) {
  static const FreightMethod kNoMethod;
  const FreightMethod& method = region.method[index] == nullptr ? kNoMethod : *region.method[index];
  LineWrite(writer, "$", region.code, index);
  for (const Text& value : method.value) LineWrite(writer, ",", value);
  LineWrite(writer, ",", region.regionValue);
  LineWrite(writer, ",|", std::int32_t{method.active}, "\n");
  if (!method.rule.isNull()) LineWrite(writer, "RULE=", index, ",", method.rule, "\n");
}

void writeFreight(const StoreProject& project, LineWriter& writer) {
  for (const FreightRegion* region = project.regions; region != nullptr; region = region->next) {
    for (std::size_t index = 0; index < kFreightMethods; ++index) writeMethod(writer, *region, index);
  }
}

void writeSettings(const StoreProject& project, LineWriter& writer, std::string& scratch) {
  const Scheme* scheme = project.projectScheme;
  if (scheme != nullptr && scheme->name.isSet()) LineWrite(writer, "LAYOUT=", SchemePath(scheme), "\n");
  writeSet(writer, "WEB", project.webDir);
  writeSet(writer, "STITLE", project.storeTitle);
  writeSet(writer, "TAXF", project.tax.freightTaxRate);
  LineWrite(writer, "OMESSAGE=", EscapeLines(project.orderMessage.view(), scratch), "\n");
  LineWrite(writer, "CMESSAGE=", EscapeLines(project.confirmMessage.view(), scratch), "\n");
  LineWrite(writer, "VO=", project.templateVersionOrder, "\n");
  LineWrite(writer, "VC=", project.templateVersionConfirm, "\n");
  LineWrite(writer, "TAXD=", project.tax.taxEnabled, "\n");
  LineWrite(writer, "TAXO=", project.tax.taxOption, "\n");
  LineWrite(writer, "CURR=", project.currency, "\n");
  for (std::size_t index = 0; index < kFreightMethods; ++index) {
    if (!project.methodName[index].isNull()) {
      LineWrite(writer, "FNAME=", index, ",", project.methodName[index], "\n");
    }
  }
  for (const CardEntry* card = project.acceptedCards; card != nullptr; card = card->next) {
    LineWrite(writer, "CC=", card->custom, ":", card->name, "\n");
  }
}

bool writeWhole(Program& program, FileHandle file) {
  LineWriter writer(program.files, file);
  ProjectWrite(program, writer);
  return writer.finish();
}

// Empty when there is none.
std::string newestBackup(Program& program) {
  if (program.project.projectDir.isNull()) return {};
  for (int number = 1; number <= kBackups; ++number) {
    std::string path = BackupPath(program.project, number);
    if (FileExists(program.files, path) == 1) return path;
  }
  return {};
}

void tellIncomplete(Program& program) {
  std::string text = FillMessage(message::kFileIncomplete, program.project.projectFile.view());
  const std::string backup = newestBackup(program);
  if (!backup.empty()) text.append(FillMessage(message::kNewestBackup, backup));
  ErrorBox(program, text);
}

bool saveProject(Program& program) {
  StoreProject& project = program.project;
  OpenFile file(program.files, program.files.create(project.projectFile.view()));
  if (!file.isOpen()) {
    ErrorBox(program, message::kProjectWriteError);
    return false;
  }
  const bool whole = writeWhole(program, file.handle());
  file.close();
  const bool formsWhole = FormTemplatesSave(program);
  project.cutFile = whole ? Text() : project.projectFile;
  if (!whole) tellIncomplete(program);
  SetDirty(program, whole && formsWhole ? 0 : 1);
  return whole && formsWhole;
}

}  // namespace

void ProjectWrite(Program& program, LineWriter& writer) {
  StoreProject& project = program.project;
  std::string scratch;
  LineWrite(writer, "TIME=", program.clock.now(), "\n");
  LineWrite(writer, "VERSION=", kFileVersion, "\n");
  LineWrite(writer, "OWNER=", kProductName, "\n");
  writeTree(program, writer, scratch);
  for (const Text& name : project.templateNames) {
    if (!name.isNull()) LineWrite(writer, "TPL=", name, "\n");
  }
  writeVariables(project, writer, scratch);
  writeFreight(project, writer);
  writeSettings(project, writer, scratch);
}

bool ProjectSave(Program& program) {
  if (!program.project.projectFile.isSet()) return false;
  const int saved = program.screen.runTask(kProductName, message::kSavingProject, [&] {
    WaitCursorOn(program);
    const bool result = saveProject(program);
    WaitCursorOff(program);
    return result ? 1 : 0;
  });
  return saved == 1;
}

}  // namespace varlo
