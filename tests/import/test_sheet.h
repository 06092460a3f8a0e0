// Import sheets for tests, made of lines as they stand in a file.
#pragma once

#include <initializer_list>
#include <numeric>
#include <string_view>
#include <vector>

#include "import/import_products.h"

namespace varlo::test {

// A sheet with these rows and, by their names, these columns; "" carries nothing.
inline ImportSheet SheetOf(std::initializer_list<std::string_view> columns,
                           std::initializer_list<std::string_view> rows) {
  ImportSheet sheet;
  for (const std::string_view row : rows) sheet.rows.emplace_back().text.assign(row);
  std::size_t column = 0;
  for (const std::string_view name : columns) sheet.columnField[column++] = FindImportField(name);
  return sheet;
}

inline std::vector<std::size_t> AllRows(const ImportSheet& sheet) {
  std::vector<std::size_t> rows(sheet.rows.size());
  std::iota(rows.begin(), rows.end(), 0U);
  return rows;
}

}  // namespace varlo::test
