// From rows to products: new ones at the current node, and new values for those that have the code of a row.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "import/import_columns.h"
#include "import/import_dialect.h"
#include "import/import_reader.h"

namespace varlo {

class ProductCodeIndex;
struct Program;
struct StoreNode;

// A file that is looked at, and how.
struct ImportSheet {
  ImportRows rows;
  ImportDialect dialect;
  ImportColumns columnField{};
};

// Puts the fields of a row into the texts that their columns are assigned to, also empty ones.
void ApplyRowFields(const ImportSheet& sheet, StoreNode& node, std::string_view row);

// Makes a product of a row, links it at the current node and makes it current; 1 when it counts. 0 and nothing
// happens without a current node and a tree node. 0 as well below a tree node that is a product of the top level: the
// product is made and current, but nowhere shown. Deliberate: at a product without a chain it becomes the next one,
// and the siblings that stood behind are out of the store: an import is meant to run at the end of a list. The view
// is not told; see ImportProducts.
int ImportProduct(Program& program, const ImportSheet& sheet, std::string_view row);

// The same for some rows of the sheet, one behind the other, and tells the view. Gives how many count.
int ImportProducts(Program& program, const ImportSheet& sheet, std::span<const std::size_t> rows);

// The column whose text is the code to find a product by, the last one that carries it; kImportColumns for none.
[[nodiscard]] std::size_t ProductCodeColumn(const ImportColumns& columns);

// Applies a row to the first node that has its code; 1 when there is one. 0 and nothing happens without a current
// node and a tree node; 0 and a message without a column of codes. `codes` tells the nodes of the tree as it is.
// Deliberate: the project is not marked as changed.
int UpdateProduct(Program& program, const ImportSheet& sheet, ProductCodeIndex& codes, std::string_view row);

// The same for some rows of the sheet. Gives how many count.
int UpdateProducts(Program& program, const ImportSheet& sheet, std::span<const std::size_t> rows);

}  // namespace varlo
