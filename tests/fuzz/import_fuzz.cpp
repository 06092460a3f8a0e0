// Reads any bytes as a delimited text file under any dialect. Rows, delimiter and fields must be those that the
// second telling of the rules gives, and products that are made of the rows must leave a sound tree.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <string>
#include <vector>

#include "core/tree/store_tree_check.h"
#include "import/import_fields.h"
#include "import/import_products.h"
#include "tests/import/plain_fields.h"
#include "tests/support/test_program.h"

namespace {

using namespace varlo;

void require(bool holds) {
  if (!holds) std::abort();
}

// The first three bytes of an input are delimiter, quote and escape, NUL for none; the next is the decimal point.
constexpr std::size_t kSettings = 4;
// The second telling takes the square of a line's length.
constexpr std::size_t kLongestCompared = 800;
constexpr int kColumnsCompared = 30;

std::string textOf(char byte) { return byte == '\0' ? std::string() : std::string(1, byte); }

void checkFields(const ImportDialect& dialect, const test::PlainDialect& plain, const std::string& line) {
  const int count = CountFields(dialect, line);
  require(count >= 1);
  const bool compared = line.size() <= kLongestCompared;
  if (compared) require(count == test::PlainCountFields(plain, line));
  for (int column = 0; column <= std::min(count + 1, kColumnsCompared); ++column) {
    const std::string field = GetField(dialect, line, static_cast<std::size_t>(column));
    require(field.size() <= line.size());
    if (compared) require(field == test::PlainGetField(plain, line, column));
  }
}

void checkRows(const ImportSheet& sheet, const test::PlainDialect& plain, const test::PlainFile& expected) {
  require(sheet.rows.size() == expected.rows.size());
  for (std::size_t i = 0; i < sheet.rows.size(); ++i) {
    const std::string line(sheet.rows[i].text.view());
    require(!line.empty() && line == expected.rows[i]);
    if (i < 40) checkFields(sheet.dialect, plain, line);
  }
}

// Every column carries a field, so that every treatment is reached.
void checkProducts(Program& program, ImportSheet& sheet) {
  StoreProject& project = program.project;
  project.root = project.currentNode = project.treeNode = project.nodes.allocate();
  std::iota(sheet.columnField.begin(), sheet.columnField.end(), ImportFieldNumber{1});
  std::vector<std::size_t> rows(std::min<std::size_t>(sheet.rows.size(), 40));
  std::iota(rows.begin(), rows.end(), 0U);
  const int made = ImportProducts(program, sheet, rows);
  require(static_cast<std::size_t>(made) == rows.size());
  require(UpdateProducts(program, sheet, rows) <= made);
  require(StoreTreeCheck(project).faults.empty());
  require(StoreTreeCheck(project).nodes == rows.size() + 1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < kSettings) return 0;
  const std::string input(reinterpret_cast<const char*>(data), size);
  const std::string content = input.substr(kSettings);
  test::TestProgram t;
  t.files.put("list", content);

  ImportSheet sheet;
  sheet.dialect = {input[0], textOf(input[1]), textOf(input[2]), textOf(input[3])};
  ReadImportFile(t.program, "list", sheet.rows, sheet.dialect.fieldDelimiter);
  const test::PlainFile expected = test::PlainReadFile(content, input[0]);
  require(sheet.dialect.fieldDelimiter == expected.delimiter);
  checkRows(sheet, {expected.delimiter, input[1], input[2]}, expected);
  checkProducts(t.program, sheet);
  require(t.files.openHandles() == 0 && t.screen.boxes.empty());
  return 0;
}
