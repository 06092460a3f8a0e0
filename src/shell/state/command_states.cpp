#include "shell/state/command_states.h"

#include "core/program/scheme.h"

namespace varlo {
namespace {

bool isShelf(std::optional<NodeKind> kind) { return kind == NodeKind::Shelf; }
bool isList(std::optional<NodeKind> kind) { return kind == NodeKind::List; }
bool isShelfOrList(std::optional<NodeKind> kind) { return isShelf(kind) || isList(kind); }

bool isInNodes(const CommandFacts& facts) {
  return facts.focus == FocusPlace::Tree || facts.focus == FocusPlace::ItemList;
}
bool isInStyles(const CommandFacts& facts) {
  return facts.tab == Tab::Layout && (facts.focus == FocusPlace::StyleList || facts.focus == FocusPlace::SchemeList);
}
bool isInRegions(const CommandFacts& facts) {
  return facts.tab == Tab::Freight && facts.focus == FocusPlace::RegionList;
}
bool isInVariables(const CommandFacts& facts) {
  return facts.tab == Tab::Variables && facts.focus == FocusPlace::VariableList;
}

bool canPaste(const CommandFacts& facts) {
  if (isInNodes(facts)) return facts.nodeCopied;
  if (facts.focus == FocusPlace::RichEdit) return facts.textToPaste;
  if (isInRegions(facts)) return facts.regionCopied;
  if (isInVariables(facts)) return facts.variableCopied;
  return isInStyles(facts) && facts.styleCopied && facts.styleType.value_or(kSchemeShipped) != kSchemeShipped;
}

bool canDelete(const CommandFacts& facts) {
  if (isInNodes(facts)) return facts.node.has_value();
  if (facts.focus == FocusPlace::RichEdit) return facts.textSelected;
  if (isInRegions(facts)) return facts.regionCurrent;
  if (isInVariables(facts)) return facts.variableCurrent;
  if (!isInStyles(facts)) return false;
  const auto type = facts.focus == FocusPlace::StyleList ? facts.styleType : facts.schemeType;
  return type.value_or(kSchemeOwn) == kSchemeOwn;
}

bool canCopy(const CommandFacts& facts) {
  return isInStyles(facts) ? facts.focus == FocusPlace::SchemeList : canDelete(facts);
}

bool canSelectAll(FocusPlace focus) {
  return focus == FocusPlace::ItemList || focus == FocusPlace::RichEdit || focus == FocusPlace::RegionList;
}

CommandStates::Entries entryStates(const CommandFacts& facts) {
  return {.free = true,
          .save = facts.dirty && facts.projectOpen,
          .needProject = facts.projectOpen,
          .needTree = facts.treeFilled,
          .copy = canCopy(facts),
          .paste = canPaste(facts),
          .remove = canDelete(facts),
          .find = facts.focus == FocusPlace::RichEdit,
          .selectAll = canSelectAll(facts.focus),
          .preview = facts.node.has_value(),
          .build = facts.projectOpen && facts.treeFilled};
}

CommandStates::Buttons buttonStates(const CommandFacts& facts) {
  const bool isInShelfOrList = isShelfOrList(facts.node) || isShelfOrList(facts.parent);
  return {.preview = facts.node.has_value(),
          .productAndBuild = facts.projectOpen && facts.node.has_value(),
          .holders = facts.projectOpen && !isInShelfOrList};
}

CommandStates::Tools toolStates(const CommandFacts& facts) {
  // Deliberate: other than the buttons, the toolbar does not mind a parent that is a list.
  const bool isInShelf = isShelfOrList(facts.node) || isShelf(facts.parent);
  return {.free = true,
          .save = facts.dirty && facts.projectOpen && facts.treeFilled,
          .product = facts.projectOpen && facts.node.has_value(),
          .holders = facts.projectOpen && !isInShelf,
          .buildAndPreview = facts.projectOpen && facts.treeFilled};
}

CommandStates::Page pageStates(const CommandFacts& facts) {
  const bool ready = facts.projectOpen && facts.treeFilled && facts.node.has_value();
  return {
      .fields = ready, .ownPage = ready && !isShelfOrList(facts.parent), .imageLink = ready && facts.nodeHasImage};
}

}  // namespace

// Buttons and fields stay as they are while something is at work: one that is turned off loses the focus.
CommandStates commandStates(const CommandFacts& facts) {
  return {.entries = facts.atWork ? CommandStates::Entries{} : entryStates(facts),
          .buttons = buttonStates(facts),
          .tools = facts.atWork ? CommandStates::Tools{} : toolStates(facts),
          .page = pageStates(facts)};
}

}  // namespace varlo
