#include "generator/template/page_index.h"

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/text/text_edit.h"
#include "core/tree/store_tree.h"
#include "generator/items/item_values.h"
#include "generator/items/links.h"
#include "generator/items/reported_replace.h"

namespace varlo {
namespace {

constexpr std::string_view kDirectoryPage = "/directory.htm";

Value turned(const Text& fileName, std::string& buffer) {
  if (fileName.isNull()) return {};
  return buffer = ForwardSlashes(fileName.view());
}

void replaceAll(const ItemValues& values, std::string& page, std::string_view key, const Value& value,
                const StoreNode& node) {
  ReplaceEvery(values.generator(), page, key, value, node.fileName.view());
}

// Adds the rows of a list that this page does not show yet, and stamps them; none any more to an index that is
// too long for a page already. Gives the page's letter where its own row was among them.
char addRows(const ItemValues& values, std::string& index, StoreNode* first, const StoreNode& node,
             const StoreNode* branch) {
  const std::uint32_t stamp = values.generator().pageCounter;
  char letter = 0;
  for (StoreNode* sibling = first; sibling != nullptr; sibling = sibling->next) {
    if (sibling->buildStamp == stamp || !IsIndexed(*sibling)) continue;
    sibling->buildStamp = stamp;
    if (sibling == &node) letter = LetterOf(node);
    if (index.size() > kLongestText) continue;
    if (sibling == &node) {
      OwnRow(index, values, node, true);
    } else {
      NodeRow(index, values, *sibling, sibling == branch);
    }
  }
  return letter;
}

}  // namespace

IndexPlan PlanIndex(StoreNode& node) {
  IndexPlan plan;
  StoreNode* parent = LiveParent(node);
  const bool opensItself = node.child != nullptr && node.kind != NodeKind::Shelf;
  if (!opensItself) plan.branch = parent;
  StoreNode* first = plan.branch == nullptr ? &node : plan.branch;
  while (first->prev != nullptr && first->prev->next == first) first = first->prev;
  plan.first = first;
  plan.parent = LiveParent(*first);
  // Deliberate: a first node that is no category leaves its siblings to the step behind, which below the
  // top level lists them after all.
  plan.listsSiblings = first != &node || node.kind == NodeKind::Category;
  if (parent != nullptr && plan.branch == nullptr) plan.further = parent->child;
  return plan;
}

void BeginIndex(std::string& index, const ItemValues& values, const IndexPlan& plan) {
  index = "<table width=100%>";
  if (plan.parent == nullptr) return;
  ListingRow(index, {.image = BulletName(values, kBulletParent),
                     .link = plan.parent->fileName.view(),
                     .name = plan.parent->title.view()});
}

void EndIndex(std::string& index, const ItemValues& values) {
  if (values.generator().program.config.directoryLink != 0) {
    const std::string address = std::string(kProductSite).append(kDirectoryPage);
    index += "<tr><td><br></td><td><br></td></tr><tr>";
    OutsideRow(index, {.image = BulletName(values, kBulletParent), .link = address, .name = "Other Stores"});
  }
  index += "</table>\n";
}

char LetterOf(const StoreNode& node) {
  if (!node.title.isSet()) return 0;
  const char letter = LowerChar(node.title.view().front());
  return letter >= 'a' && letter <= 'z' ? letter : 'a';
}

std::string LetterPage(char letter) { return std::string("index").append(1, letter).append(".htm"); }

Value BackOfIndex(const StoreNode& node, std::string& buffer) {
  if (node.prev != nullptr) return turned(node.prev->fileName, buffer);
  const StoreNode* parent = LiveParent(node);
  return parent != nullptr ? turned(parent->fileName, buffer) : ValueOf(node.fileName);
}

Value BackOfPage(const StoreNode& node, std::string& buffer) {
  return node.prev == nullptr ? Value("") : turned(node.prev->fileName, buffer);
}

const StoreNode* SubindexLevel(const StoreNode& node, const StoreNode* branch) {
  for (const StoreNode* level : {branch, &node}) {
    if (level != nullptr && level->kind == NodeKind::Category && level->child != nullptr) return level;
  }
  return nullptr;
}

StoreNode* ExpandIndex(const ItemValues& values, std::string& page, StoreNode& node, char& letter) {
  StoreNode* branch = nullptr;
  std::string buffer;
  letter = 0;
  if (page.find("$INDEX") != std::string::npos) {
    const IndexPlan plan = PlanIndex(node);
    branch = plan.branch;
    replaceAll(values, page, "$BACK", BackOfIndex(node, buffer), node);
    std::string& index = values.generator().scratch;
    BeginIndex(index, values, plan);
    if (plan.listsSiblings) letter = addRows(values, index, plan.first, node, branch);
    const char further = addRows(values, index, plan.further, node, nullptr);
    if (further != 0) letter = further;
    EndIndex(index, values);
    replaceAll(values, page, "$INDEX", index, node);
  }
  replaceAll(values, page, "$BACK", BackOfPage(node, buffer), node);
  return branch;
}

void BuildProductTables(const ItemValues& values, std::string& page, const StoreNode& node) {
  if (page.find("$PRODUCT") == std::string::npos) return;
  std::string& table = values.generator().scratch;
  table = ProductTableTwo(values, node);
  replaceAll(values, page, "$PRODUCTS2", table, node);
  replaceAll(values, page, "$PRODUCT2", table, node);
  table = ProductTableOne(values, node);
  replaceAll(values, page, "$PRODUCTS", table, node);
  replaceAll(values, page, "$PRODUCT", table, node);
}

void BuildSubindex(const ItemValues& values, std::string& page, const StoreNode& node, const StoreNode* branch) {
  const std::uint32_t stamp = values.generator().pageCounter;
  const StoreNode* level = SubindexLevel(node, branch);
  std::string text;
  for (StoreNode* child = level == nullptr ? nullptr : level->child; child != nullptr; child = child->next) {
    if (child->buildStamp == stamp || !IsIndexed(*child)) continue;
    child->buildStamp = stamp;
    if (text.size() > kLongestText) continue;
    if (text.empty()) text = kSubindexBegin;
    if (child == &node) {
      OwnRow(text, values, *child, false);
    } else {
      NodeRow(text, values, *child, false);
    }
  }
  if (!text.empty()) text += kSubindexEnd;
  replaceAll(values, page, kSubindexKey, text, node);
}

}  // namespace varlo
