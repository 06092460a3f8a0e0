#include "import/import_products.h"

#include <string>
#include <vector>

#include "core/program/program.h"
#include "core/text/number_text.h"
#include "core/text/text_search.h"
#include "core/tree/node_commands.h"
#include "core/tree/store_tree.h"
#include "import/import_fields.h"
#include "import/import_messages.h"
#include "import/product_code_index.h"

namespace varlo {
namespace {

void setDefault(Text& text, std::string_view otherwise) {
  if (!text.isSet()) text.assign(otherwise);
}

std::string_view defaultTemplate(NodeKind kind) { return TraitsOf(kind).defaultTemplate; }

// Without a template of its own the product takes that of its future first sibling, else that of the node that it is
// made at. In no case it keeps that of categories.
void chooseTemplate(Text& name, const StoreNode& current) {
  const bool fromChild = current.child != nullptr && current.child->templateName.isSet();
  if (!name.isSet()) name = fromChild ? current.child->templateName : current.templateName;
  if (!name.isSet() || EqualsNoCase(name.view(), defaultTemplate(NodeKind::Category))) {
    name.assign(defaultTemplate(NodeKind::Product));
  }
}

// Deliberate: an item of a shelf gets no file name, but one of a list does.
void choosePage(StoreNode& product, const StoreNode& current) {
  const StoreNode* parent = LiveParent(current);
  if (parent != nullptr && parent->kind == NodeKind::Shelf) {
    setDefault(product.templateName, defaultTemplate(NodeKind::Shelf));
    return;
  }
  setDefault(product.fileName, PageNameOf(product).view());
  chooseTemplate(product.templateName, current);
}

void fillDefaults(StoreNode& product, const StoreNode& current) {
  setDefault(product.productCode, IntToText(product.id));
  for (std::size_t i = 0; i < product.label.size(); ++i) {
    if (!product.label[i].isSet()) product.label[i] = current.label[i];
  }
  choosePage(product, current);
}

// Hangs the product in at the current node; gives what its prev is to name.
StoreNode* linkProduct(StoreNode& product, StoreNode& current, StoreNode& treeNode) {
  if (current.child == nullptr) {
    (IsProduct(current) ? current.next : current.child) = &product;
    return &treeNode;
  }
  if (!IsProduct(current)) {
    StoreNode* last = LastSibling(current.child);
    last->next = &product;
    return last;
  }
  product.child = current.child;
  product.child->prev = &product;
  current.child = &product;
  return &current;
}

// The siblings that the next product drops out of the store.
StoreNode* siblingsToDrop(const StoreProject& project) {
  const StoreNode* current = project.currentNode;
  const bool drops = current != nullptr && IsProduct(*current) && current->child == nullptr;
  return drops ? current->next : nullptr;
}

// The products that were just made, one for each row, told to the view at once: their parent is one and the same.
// `dropped` is shown no more, else something could be put there and be lost with it.
void showImported(Program& program, const std::vector<StoreNode*>& products, StoreNode* dropped) {
  if (products.empty()) return;
  for (; dropped != nullptr; dropped = dropped->next) program.view.removeTreeItem(*dropped);
  program.view.loadForm();
  program.view.loadItemList(products.back()->parent);
  program.view.insertTreeItems(products);
  SetDirty(program, 1);
}

bool hasSelection(const StoreProject& project) {
  return project.currentNode != nullptr && project.treeNode != nullptr;
}

}  // namespace

void ApplyRowFields(const ImportSheet& sheet, StoreNode& node, std::string_view row) {
  for (std::size_t column = 0; column < kImportColumns; ++column) {
    const ImportFieldNumber number = sheet.columnField[column];
    if (number == kNoImportField) continue;
    const ImportField& field = ImportFieldOf(number);
    std::string value = GetField(sheet.dialect, row, column);
    TextOf(node, field.text).assign(std::string_view(TreatValue(sheet.dialect, field.treatment, std::move(value))));
  }
}

int ImportProduct(Program& program, const ImportSheet& sheet, std::string_view row) {
  StoreProject& project = program.project;
  if (!hasSelection(project)) return 0;
  StoreNode& current = *project.currentNode;
  StoreNode& treeNode = *project.treeNode;

  StoreNode& product = *project.nodes.allocate();
  product.kind = NodeKind::Product;
  ApplyRowFields(sheet, product, row);
  DrawNodeId(program, product);
  fillDefaults(product, current);
  product.prev = linkProduct(product, current, treeNode);
  product.parent = IsProduct(treeNode) ? LiveParent(treeNode) : &treeNode;
  project.currentNode = &product;
  return product.parent == nullptr ? 0 : 1;
}

int ImportProducts(Program& program, const ImportSheet& sheet, std::span<const std::size_t> rows) {
  std::vector<StoreNode*> products;
  // Behind the products that follow there is nothing to drop.
  StoreNode* dropped = siblingsToDrop(program.project);
  for (const std::size_t row : rows) {
    if (ImportProduct(program, sheet, sheet.rows[row].text.view()) == 1) {
      products.push_back(program.project.currentNode);
    }
  }
  showImported(program, products, dropped);
  return static_cast<int>(products.size());
}

std::size_t ProductCodeColumn(const ImportColumns& columns) {
  for (std::size_t column = columns.size(); column-- > 0;) {
    if (columns[column] == kProductCodeField) return column;
  }
  return kImportColumns;
}

int UpdateProduct(Program& program, const ImportSheet& sheet, ProductCodeIndex& codes, std::string_view row) {
  if (!hasSelection(program.project)) return 0;
  const std::size_t column = ProductCodeColumn(sheet.columnField);
  if (column == kImportColumns) {
    ErrorBox(program, message::kNoProductCodeColumn);
    return 0;
  }
  StoreNode* node = codes.find(GetField(sheet.dialect, row, column));
  if (node == nullptr) return 0;
  // The code that it was found by is the code that it keeps, so the index still holds.
  ApplyRowFields(sheet, *node, row);
  return 1;
}

int UpdateProducts(Program& program, const ImportSheet& sheet, std::span<const std::size_t> rows) {
  ProductCodeIndex codes(program.project.root);
  int updated = 0;
  for (const std::size_t row : rows) updated += UpdateProduct(program, sheet, codes, sheet.rows[row].text.view());
  return updated;
}

}  // namespace varlo
