#include "tests/fuzz/fuzz_program.h"

#include <algorithm>
#include <array>

#include "core/program/project_close.h"
#include "core/tree/store_tree.h"
#include "core/tree/store_tree_check.h"
#include "persist/project/project_load.h"
#include "persist/project/project_merge.h"
#include "persist/project/project_save.h"
#include "tests/fuzz/plain_writer.h"
#include "tests/fuzz/snapshot.h"

namespace varlo::fuzz {
namespace {

constexpr std::string_view kOtherFile = "C:\\other\\other.stp";
constexpr std::string_view kTemplateFolder = "C:\\shop\\Template";
constexpr std::array<std::string_view, 2> kForms{"C:\\shop\\Template\\order.htm", "C:\\shop\\Template\\confirm.htm"};
constexpr std::string_view kShippedOrder = "C:\\Varlo\\template\\order.dat";

// Names that repeat, differ in case, are missing, begin another one, or end in a blank.
PlainCatalogue catalogueFor(const FuzzInput& input) {
  PlainCatalogue catalogue;
  if (input.hasRegions()) {
    catalogue.regions = {{"Australia", "AU"}, {"United States", "us"},     {"Austria", "au"}, {std::nullopt, "NZ"},
                         {"", "XX"},          {"Rest of the world", "ROW"}};
  }
  if (input.hasCards()) catalogue.cards = {"Visa", "MasterCard", "Visa", "", "Diners "};
  if (!input.hasSchemes()) return catalogue;
  if (input.firstStyleIsEmpty()) catalogue.styles.push_back({"Bare", {}});
  catalogue.styles.push_back({"A", {"B/C", "Red"}});
  catalogue.styles.push_back({"A/B", {"C", "Default ", "Default"}});
  catalogue.styles.push_back({std::nullopt, {"Nobody"}});
  catalogue.styles.push_back({"", {"Red", "/Red"}});
  catalogue.styles.push_back({"Classic", {std::nullopt, "", "Blue"}});
  return catalogue;
}

PlainMachine machineFor(const FuzzInput& input) {
  PlainMachine machine;
  machine.hasTemplateFolder = input.hasTemplateFolder();
  if (input.hasTemplateFolder()) machine.form = {"<p>order</p>\r\n", "<p>confirm</p>"};
  if (input.hasInstallation()) machine.shippedOrder = "<p>shipped</p>";
  return machine;
}

std::vector<int> sorted(std::vector<int> numbers) {
  std::sort(numbers.begin(), numbers.end());
  return numbers;
}

StoreNode& nodeAt(StoreNode* root, std::size_t index) {
  TreeWalk walk(root, true);
  for (;;) {
    const TreeWalk::Step step = walk.advance();
    Require(step != TreeWalk::Step::Done, "the walk meets every node");
    if (step == TreeWalk::Step::Node && index-- == 0) return *walk.node();
  }
}

std::string withWords(std::string_view when, std::string_view words) {
  return std::string(when).append(": ").append(words);
}

}  // namespace

FuzzInput::FuzzInput(const std::uint8_t* data, std::size_t size) {
  const std::size_t settings = std::min(size, settings_.size());
  std::copy_n(data, settings, settings_.begin());
  if (size > settings) file_ = {reinterpret_cast<const char*>(data) + settings, size - settings};
}

FuzzProgram::FuzzProgram(const FuzzInput& input) : catalogue_(catalogueFor(input)), machine_(machineFor(input)) {
  Install(engine_.program, catalogue_);
  plain_.cardSelected.assign(catalogue_.cards.size(), 0);
  if (machine_.hasTemplateFolder) engine_.files.putFolder(kTemplateFolder);
  for (std::size_t i = 0; i < kForms.size(); ++i) {
    if (machine_.form[i]) engine_.files.put(kForms[i], *machine_.form[i]);
  }
  if (machine_.shippedOrder) engine_.files.put(kShippedOrder, *machine_.shippedOrder);
}

void FuzzProgram::takeDisk(const FuzzProgram& other) {
  engine_.files = other.engine_.files;
  machine_.form = other.machine_.form;
}

void FuzzProgram::load(std::string_view when, std::string_view bytes) {
  engine_.files.put(kProjectFile, bytes);
  engine_.project().projectFile.assign(kProjectFile);
  engine_.screen.taskCounts.clear();
  Require(ProjectLoad(engine_.program) == 1, withWords(when, "the load succeeds"));
  const std::vector<int> counts = PlainLoad(plain_, machine_, catalogue_, bytes);
  Require(engine_.screen.taskCounts == counts, withWords(when, "the counts are shown"));
  const StoreProject& project = engine_.project();
  Require(project.currentNode == project.root && project.treeNode == project.root,
          withWords(when, "the root is current"));
  Require(compare(when) == 0, withWords(when, "a tree that was read has no strange link"));
}

void FuzzProgram::merge(std::string_view file, std::size_t pick) {
  const std::vector<std::size_t> nodes = WalkTree(plain_);
  const std::size_t index = nodes.empty() ? kNone : pick % nodes.size();
  if (!nodes.empty()) engine_.project().currentNode = &nodeAt(engine_.project().root, index);
  engine_.files.put(kOtherFile, file);
  Require(ProjectMerge(engine_.program, kOtherFile.data()) == 1, "the merge succeeds");
  if (nodes.empty()) {
    PlainParse(plain_, catalogue_, file, kNone, false, plain_.top);
    plain_.dirty = 1;
  } else {
    PlainMerge(plain_, catalogue_, file, nodes[index]);
  }
  compare("merge");
}

void FuzzProgram::importFreight(std::string_view file) {
  engine_.files.put(kOtherFile, file);
  Require(FreightImport(engine_.program, kOtherFile.data()) == 1, "the import succeeds");
  PlainImportFreight(plain_, catalogue_, file);
  compare("import");
}

std::string FuzzProgram::save(std::string_view when) {
  engine_.screen.taskCounts.clear();
  Require(ProjectSave(engine_.program), withWords(when, "the save succeeds"));
  const PlainFile file = PlainWrite(plain_, catalogue_, test::kTestTime);
  plain_.dirty = 0;
  for (std::size_t i = 0; i < kForms.size(); ++i) {
    if (!machine_.hasTemplateFolder) ++machine_.boxes;
    if (machine_.hasTemplateFolder) machine_.form[i] = plain_.form[i];
    Require(engine_.files.content(kForms[i]) == machine_.form[i], withWords(when, "the form templates are written"));
  }
  const std::string bytes = engine_.files.content(kProjectFile).value_or("no file");
  RequireSameBytes(when, file.bytes, bytes);
  Require(sorted(engine_.screen.taskCounts) == sorted(file.counts), withWords(when, "the counts are shown"));
  compare(when);
  return bytes;
}

void FuzzProgram::translateTexts() {
  TranslateTexts(engine_.program);
  TranslateTexts(plain_);
  // A file never brings this number in.
  engine_.project().templateVersionConfirm = plain_.versionConfirm = 7;
}

std::size_t FuzzProgram::compare(std::string_view when) {
  RequireSame(when, plain_, Snapshot(engine_.program, catalogue_));
  return check(when);
}

std::size_t FuzzProgram::check(std::string_view when) {
  Require(engine_.files.openHandles() == 0, withWords(when, "no file is left open"));
  Require(!engine_.program.waitCursorShown, withWords(when, "the wait cursor is gone"));
  Require(engine_.screen.boxes.size() == machine_.boxes, withWords(when, "the messages are those expected"));
  const StoreTreeReport report = StoreTreeCheck(engine_.project());
  Require(report.faults.empty(), withWords(when, report.faults.empty() ? "" : report.faults.front()));
  Require(report.nodes == WalkTree(plain_).size(), withWords(when, "the check meets every node"));
  return report.strangePrev + report.strangeParent;
}

void FuzzProgram::close() {
  ProjectClose(engine_.program);
  PlainClose(plain_);
  compare("close");
  const StoreProject& project = engine_.project();
  Require(project.nodes.size() == 0 && project.currentNode == nullptr && project.treeNode == nullptr,
          "closing leaves no node");
}

}  // namespace varlo::fuzz
