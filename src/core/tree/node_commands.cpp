#include "core/tree/node_commands.h"

#include "core/program/program.h"
#include "core/text/number_text.h"
#include "core/text/text_search.h"
#include "core/tree/store_tree.h"

namespace varlo {
namespace {

const std::string_view kCategoryTemplate = TraitsOf(NodeKind::Category).defaultTemplate;

StoreNode* makeNode(Program& program, NodeKind kind) {
  StoreNode* node = program.project.nodes.allocate();
  DrawNodeId(program, *node);
  node->kind = kind;
  node->title.assign(TraitsOf(kind).newTitle);
  node->fileName = PageNameOf(*node);
  return node;
}

// A new product uses the template of its future first sibling, else that of the node it is made at.
const Text& neighbourTemplate(const StoreNode& current) {
  const bool fromChild = current.child != nullptr && current.child->templateName.isSet();
  return fromChild ? current.child->templateName : current.templateName;
}

void choosePage(StoreNode& product, const StoreNode& current) {
  const StoreNode* parent = LiveParent(current);
  if (parent != nullptr && parent->kind == NodeKind::List) {
    product.templateName.assign(TraitsOf(NodeKind::List).defaultTemplate);
    return;
  }
  product.fileName = PageNameOf(product);
  product.templateName = neighbourTemplate(current);
  if (!product.templateName.isSet() || EqualsNoCase(product.templateName.view(), kCategoryTemplate)) {
    product.templateName.assign(TraitsOf(NodeKind::Product).defaultTemplate);
  }
}

// Hangs the product in at the current node; gives what its prev is to name.
StoreNode* linkProduct(StoreNode& product, StoreNode& current, StoreNode& treeNode) {
  if (!IsProduct(current)) {
    StoreNode* last = LastSibling(current.child);
    (last == nullptr ? current.child : last->next) = &product;
    return last == nullptr ? &treeNode : last;
  }
  if (current.child == nullptr) {
    product.next = current.next;
    if (product.next != nullptr) product.next->prev = &product;
    current.next = &product;
    return &treeNode;
  }
  product.child = current.child;
  product.child->prev = &product;
  current.child = &product;
  return &current;
}

}  // namespace

void DrawNodeId(Program& program, StoreNode& node) {
  program.config.uid = static_cast<std::int32_t>(static_cast<std::uint32_t>(program.config.uid) + 1U);
  node.id = program.config.uid;
}

Text PageNameOf(const StoreNode& node) { return Text(std::string_view(IntToText(node.id) + ".htm")); }

int NewProduct(Program& program, const char* title) {
  StoreProject& project = program.project;
  StoreNode* current = project.currentNode;
  StoreNode* treeNode = project.treeNode;
  if (current == nullptr || treeNode == nullptr) return 0;

  StoreNode* product = project.nodes.allocate();
  DrawNodeId(program, *product);
  product->kind = NodeKind::Product;
  product->title.assign(title == nullptr ? "" : title);
  product->productCode.assign(std::string_view(IntToText(product->id)));
  product->label = current->label;
  choosePage(*product, *current);

  // Deliberate: with a product selected in the list, prev names the node that the tree shows.
  product->prev = linkProduct(*product, *current, *treeNode);
  product->parent = IsProduct(*treeNode) ? LiveParent(*treeNode) : treeNode;

  project.currentNode = product;
  program.view.loadForm();
  program.view.loadItemList(product->parent);
  SetDirty(program, 1);
  program.view.insertTreeItem(*product, product->prev);
  return 1;
}

int NewNode(Program& program, NodeKind kind) {
  StoreNode* node = makeNode(program, kind);
  if (StoreNodeInsert(program, node, program.project.currentNode) == 0) return 0;
  program.view.selectInTree(*node);
  SetDirty(program, 1);
  return 1;
}

void NewCategoryCommand(Program& program) {
  if (program.project.root != nullptr) {
    NewNode(program, NodeKind::Category);
  } else {
    program.screen.postCommand(Command::TreeNewCategory);
  }
}

void NewTopCategory(Program& program) {
  StoreProject& project = program.project;
  StoreNode* category = makeNode(program, NodeKind::Category);
  StoreNode* last = LastSibling(project.root);
  category->prev = last;
  (last == nullptr ? project.root : last->next) = category;
  project.currentNode = category;
  project.treeNode = category;
  program.view.insertTreeItem(*category, last);
  program.view.selectInTree(*category);
  SetDirty(program, 1);
}

void CopyNode(Program& program) {
  StoreProject& project = program.project;
  if (project.currentNode == nullptr) return;
  auto copy = std::make_unique<StoreNode>();
  StoreNodeCopy(*copy, project.currentNode);
  project.clipboardNode = std::move(copy);
  program.view.refreshCommandStates();
}

int PasteNode(Program& program) {
  StoreProject& project = program.project;
  if (project.clipboardNode == nullptr) return 0;
  StoreNode* copy = project.nodes.allocate();
  StoreNodeCopy(*copy, project.clipboardNode.get());
  const int inserted = StoreNodeInsert(program, copy, project.currentNode);
  project.currentNode = copy;
  project.treeNode = copy;
  program.view.loadItemList(copy);
  program.view.loadForm();
  SetDirty(program, 1);
  return inserted;
}

}  // namespace varlo
