#include "tests/fuzz/plain_losses.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace varlo::fuzz {
namespace {

constexpr std::size_t kLongestLine = 19968;

// Calls `see` with each text that stands at the end of a line, as it stands there.
template <typename See>
void forEachLineEnd(const PlainProject& project, See see) {
  const auto text = [&](const PlainText& value) { see(value.value_or("")); };
  const auto lines = [&](const PlainText& value) { see(Escaped(value.value_or(""))); };
  for (const std::size_t index : WalkTree(project)) {
    const PlainNode& node = project.nodes[index];
    text(node.title);
    for (const auto& [key, value] : node.text) key == kBodyText ? lines(value) : text(value);
  }
  for (const PlainText& name : project.templateNames) text(name);
  for (const PlainVariable& variable : project.variables) lines(variable.value);
  for (const PlainRegion& region : project.regions) {
    for (const PlainMethod& method : region.method) text(method.rule);
  }
  for (const PlainText* value : {&project.webDir, &project.storeTitle, &project.freightTax, &project.currency}) {
    text(*value);
  }
  lines(project.orderMessage);
  lines(project.confirmMessage);
  for (const PlainText& name : project.methodName) text(name);
  for (const PlainCard& card : project.cards) text(card.name);
}

bool allLinesFit(std::string_view file) {
  for (std::size_t end = file.find('\n'); end != std::string_view::npos; end = file.find('\n')) {
    if (end + 1 > kLongestLine) return false;
    file.remove_prefix(end + 1);
  }
  return file.size() <= kLongestLine;
}

bool isCell(const PlainText& text) { return text.value_or("").find_first_of(",|\n") == std::string::npos; }

bool isTameRegion(const PlainRegion& region) {
  if (!isCell(region.code) || !isCell(region.regionValue)) return false;
  return std::all_of(region.method.begin(), region.method.end(), [](const PlainMethod& method) {
    return std::all_of(method.value.begin(), method.value.end(), isCell);
  });
}

// A text on a line of its own comes back without what TrimEnd takes.
std::string text(const PlainText& value) { return WithoutEnd(value.value_or("")); }

// The same through the escape of line ends.
std::string lines(const PlainText& value) { return Unescaped(WithoutEnd(Escaped(value.value_or("")))); }

// A text whose line is left out when there is nothing in it comes back as none.
PlainText textIfSet(const PlainText& value) {
  return value.value_or("").empty() ? PlainText() : PlainText(text(value));
}

// The list of `from` below `node`, in new nodes of `to` with the links of a tree that was read. Products
// lose what hangs below them.
void copyTree(const PlainProject& from, PlainProject& to) {
  struct Open {
    const std::vector<std::size_t>& list;
    std::size_t owner;
  };
  std::vector<Open> open{{from.top, kNone}};
  while (!open.empty()) {
    const Open at = open.back();
    open.pop_back();
    std::size_t prev = at.owner;
    for (const std::size_t index : at.list) {
      const PlainNode& old = from.nodes[index];
      PlainNode node;
      node.kind = old.kind;
      node.status = old.status;
      node.modified = old.modified;
      node.title = text(old.title);
      for (const auto& [key, value] : old.text) {
        if (!value.empty()) node.text[key] = key == kBodyText ? lines(value) : text(value);
      }
      node.parent = at.owner;
      node.prev = prev;
      prev = to.nodes.size();
      to.nodes.push_back(std::move(node));
      ListBelow(to, at.owner).push_back(prev);
      if (old.kind != kProduct) open.push_back({old.children, prev});
    }
  }
}

// A region outside the catalogue is named by its code; absent values come back as empty ones.
PlainRegion regionAfter(const PlainRegion& region, const PlainCatalogue& catalogue) {
  PlainRegion after;
  const std::string code = region.code.value_or("");
  const auto known = std::find_if(catalogue.regions.begin(), catalogue.regions.end(),
                                  [&](const auto& entry) { return Lower(entry.code) == Lower(code); });
  const bool isKnown = known != catalogue.regions.end() && !known->name.value_or("").empty();
  after.code = isKnown ? known->code : code;
  after.name = isKnown ? known->name : code;
  after.regionValue = region.regionValue.value_or("");
  for (std::size_t i = 0; i < region.method.size(); ++i) {
    const PlainMethod& method = region.method[i];
    after.method[i].active = method.active;
    if (method.rule) after.method[i].rule = text(method.rule);
    std::transform(method.value.begin(), method.value.end(), after.method[i].value.begin(),
                   [](const PlainText& value) { return value.value_or(""); });
  }
  return after;
}

bool hasLayoutLine(const PlainProject& project, const PlainCatalogue& catalogue) {
  const PlainScheme& scheme = project.projectScheme;
  return !scheme.isNone() && !catalogue.styles[scheme.style].schemes[scheme.scheme].value_or("").empty();
}

void layoutAfter(const PlainProject& project, const PlainCatalogue& catalogue, PlainProject& after) {
  after.projectScheme = after.currentScheme = {};
  after.currentStyle = kNone;
  if (!hasLayoutLine(project, catalogue)) return;
  after.projectScheme = after.currentScheme =
      FindPath(catalogue, WithoutEnd(PathOf(catalogue, project.projectScheme)));
  after.currentStyle = after.currentScheme.isNone() ? 0 : after.currentScheme.style;
  if (after.currentScheme.isNone() && !catalogue.styles[0].schemes.empty()) after.currentScheme = {0, 0};
}

void cardsAfter(const PlainProject& project, const PlainCatalogue& catalogue, PlainProject& after) {
  after.cards.clear();
  after.cardSelected.assign(catalogue.cards.size(), 0);
  for (const PlainCard& card : project.cards) {
    const std::string name = text(card.name);
    after.cards.push_back({name, card.custom});
    const auto known = std::find(catalogue.cards.begin(), catalogue.cards.end(), name);
    if (known == catalogue.cards.end()) continue;
    after.cardSelected[static_cast<std::size_t>(known - catalogue.cards.begin())] = 1;
  }
}

}  // namespace

bool IsTame(const PlainProject& project, const PlainFile& file) {
  bool tame = !file.cut && allLinesFit(file.bytes);
  forEachLineEnd(project, [&](const std::string& end) { tame = tame && end.find('\n') == std::string::npos; });
  for (const PlainVariable& variable : project.variables) {
    tame = tame && variable.name.value_or("").find('\n') == std::string::npos;
  }
  std::unordered_set<std::string> codes;
  for (const PlainRegion& region : project.regions) {
    tame = tame && isTameRegion(region) && codes.insert(Lower(region.code.value_or(""))).second;
  }
  return tame;
}

bool WritesAlike(const PlainProject& project, const PlainCatalogue& catalogue) {
  bool alike = true;
  forEachLineEnd(project, [&](const std::string& end) { alike = alike && end == WithoutEnd(end); });
  for (const PlainRegion& region : project.regions) {
    alike = alike && regionAfter(region, catalogue).code == region.code.value_or("");
  }
  if (!hasLayoutLine(project, catalogue)) return alike;
  const std::string path = PathOf(catalogue, project.projectScheme);
  return alike && path == WithoutEnd(path) && !FindPath(catalogue, path).isNone();
}

PlainProject AfterRound(const PlainProject& project, const PlainCatalogue& catalogue, const PlainProject& before) {
  PlainProject after;
  copyTree(project, after);
  std::size_t templates = 0;
  for (const PlainText& name : project.templateNames) {
    if (name) after.templateNames[templates++] = text(name);
  }
  for (const PlainVariable& variable : project.variables) {
    after.variables.push_back({variable.name.value_or(""), lines(variable.value)});
  }
  for (const PlainRegion& region : project.regions) after.regions.push_back(regionAfter(region, catalogue));
  layoutAfter(project, catalogue, after);
  after.webDir = textIfSet(project.webDir);
  after.storeTitle = textIfSet(project.storeTitle);
  after.freightTax = textIfSet(project.freightTax);
  after.orderMessage = lines(project.orderMessage);
  after.confirmMessage = lines(project.confirmMessage);
  after.versionOrder = project.versionOrder;
  after.versionConfirm = before.versionConfirm;  // its line is written and never read
  after.taxEnabled = project.taxEnabled;
  after.taxOption = project.taxOption;
  after.currency = text(project.currency);
  for (std::size_t i = 0; i < project.methodName.size(); ++i) {
    after.methodName[i] = project.methodName[i] ? PlainText(text(project.methodName[i])) : before.methodName[i];
  }
  cardsAfter(project, catalogue, after);
  after.form = project.form;
  after.fileVersion = 107001;
  after.dirty = before.dirty;
  return after;
}

}  // namespace varlo::fuzz
