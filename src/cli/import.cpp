#include <algorithm>
#include <iostream>
#include <numeric>
#include <vector>

#include "cli/commands.h"
#include "cli/find_page.h"
#include "cli/guarded_files.h"
#include "cli/headless_program.h"
#include "core/program/messages.h"
#include "core/text/open_file.h"
#include "import/import_fields.h"
#include "import/import_messages.h"
#include "import/import_products.h"
#include "persist/life/project_life.h"

namespace varlo {
namespace {

// Says what is wrong; false, for the caller to pass on.
bool tell(const std::string& words) {
  std::cerr << "varlo-cli: " << words << '\n';
  return false;
}

std::string quoted(std::string_view words) { return "'" + std::string(words) + "'"; }

std::string fieldNames() {
  std::string names;
  for (ImportFieldNumber number = 1; number <= kImportFields; ++number) {
    names.append(names.empty() ? "" : ", ").append(ImportFieldOf(number).name);
  }
  return names;
}

bool assignColumn(ImportColumns& columns, std::size_t column, std::string_view name) {
  if (name.empty()) return true;
  const ImportFieldNumber number = FindImportField(name);
  if (number == kNoImportField) return tell("there is no field " + quoted(name) + "; the fields are " + fieldNames());
  if (column >= columns.size()) {
    return tell("column " + std::to_string(column + 1) + " can carry nothing, only the first 26 can");
  }
  if (IsAssigned(columns, number)) return tell("the field " + quoted(name) + " is on two columns");
  columns[column] = number;
  return true;
}

bool assignColumns(ImportColumns& columns, std::string_view names) {
  for (std::size_t column = 0;; ++column) {
    const std::size_t comma = names.find(',');
    if (!assignColumn(columns, column, names.substr(0, comma))) return false;
    if (comma == std::string_view::npos) return true;
    names.remove_prefix(comma + 1);
  }
}

bool hasNeededColumns(const ImportColumns& columns, const CommandArguments& arguments) {
  if (arguments.show >= 0) return true;
  if (columns == ImportColumns{}) return tell("--columns must tell what the columns carry");
  const bool found = !arguments.update || IsAssigned(columns, kProductCodeField);
  return found || tell("an update needs a column with the code");
}

// Fills the sheet as the arguments tell; false when they are wrong, or the file is not there.
bool readSheet(Program& program, const CommandArguments& arguments, ImportSheet& sheet) {
  if (!assignColumns(sheet.columnField, arguments.columns)) return false;
  if (!hasNeededColumns(sheet.columnField, arguments)) return false;
  const std::string file = program.files.nameOf(arguments.list);
  if (FileExists(program.files, file) == 0) return tell("there is no file " + quoted(arguments.list));
  ReadImportFile(program, file, sheet.rows, sheet.dialect.fieldDelimiter);
  if (arguments.hasDelimiter) sheet.dialect.fieldDelimiter = TextFromArgument(arguments.delimiter).c_str()[0];
  sheet.dialect.quote = TextFromArgument(arguments.quote);
  sheet.dialect.quoteEscape = TextFromArgument(arguments.escape);
  sheet.dialect.decimalPoint = TextFromArgument(arguments.decimal);
  return true;
}

void showRow(const ImportSheet& sheet, std::size_t row) {
  const std::string_view line = sheet.rows[row].text.view();
  std::cout << "Row " << row + 1 << '\n';
  const auto count = static_cast<std::size_t>(CountFields(sheet.dialect, line));
  for (std::size_t column = 0; column < count; ++column) {
    std::cout << "  " << column + 1 << ' ' << ColumnHeading(sheet.columnField, column) << ": "
              << TerminalText(GetField(sheet.dialect, line, column)) << '\n';
  }
}

int showRows(const ImportSheet& sheet, std::size_t first, std::size_t count) {
  int columns = 0;
  for (const ImportRow& row : sheet.rows) columns = std::max(columns, CountFields(sheet.dialect, row.text.view()));
  const char delimiter = sheet.dialect.fieldDelimiter;
  std::cout << sheet.rows.size() << " rows, " << columns << " columns, delimiter "
            << (delimiter == '\0' ? "none" : TerminalText(std::string_view(&delimiter, 1))) << '\n';
  const std::size_t end = first + std::min(count, sheet.rows.size() - first);
  for (std::size_t row = first; row < end; ++row) showRow(sheet, row);
  return std::cout.flush() ? kExitDone : kExitFailed;
}

// The node to import below; null, after a message, when there is none that can hold products. For an update any will
// do.
StoreNode* findHolder(const StoreProject& project, const CommandArguments& arguments) {
  const bool named = !arguments.below.empty();
  StoreNode* holder = named ? FindPage(project.root, TextFromArgument(arguments.below)) : project.root;
  if (holder == nullptr) {
    tell(named ? "there is no page " + quoted(arguments.below) : std::string("the project has no page"));
    return nullptr;
  }
  if (!IsProduct(*holder) || arguments.update) return holder;
  // In the window an import at a product takes what stands behind it out of the store; a person sees that.
  tell("the page " + quoted(TerminalText(holder->fileName.view())) + " is that of a product, which holds no others");
  return nullptr;
}

std::vector<std::size_t> rowsFrom(const ImportSheet& sheet, std::size_t first) {
  std::vector<std::size_t> rows(sheet.rows.size() - first);
  std::iota(rows.begin(), rows.end(), first);
  return rows;
}

int changeProject(Program& program, const CommandArguments& arguments, const ImportSheet& sheet, std::size_t first) {
  StoreProject& project = program.project;
  project.currentNode = project.treeNode = findHolder(project, arguments);
  const std::vector<std::size_t> rows = rowsFrom(sheet, first);
  const int count = arguments.update ? UpdateProducts(program, sheet, rows) : ImportProducts(program, sheet, rows);
  if (count > 0 && ProjectSaveNow(program) != 1) return kExitFailed;
  const std::string_view message = arguments.update ? message::kUpdated : message::kImported;
  std::cout << FillMessage(message, std::to_string(count)) << '\n';
  return static_cast<std::size_t>(count) == rows.size() ? kExitDone : kExitErrors;
}

}  // namespace

// Nothing is written before it is known that all can be done.
int RunImport(Machine& machine, const CommandArguments& arguments) {
  GuardedFiles files(*machine.files);
  HeadlessProgram headless(machine, files);
  Program& program = headless.program();
  ImportSheet sheet;
  if (!readSheet(program, arguments, sheet)) return kExitFailed;
  const std::size_t first = std::min(static_cast<std::size_t>(arguments.skip), sheet.rows.size());
  if (arguments.show >= 0) return showRows(sheet, first, static_cast<std::size_t>(arguments.show));
  if (!headless.load(arguments.project) || findHolder(program.project, arguments) == nullptr) return kExitFailed;
  files.lift();
  return headless.load(arguments.project) ? changeProject(program, arguments, sheet, first) : kExitFailed;
}

}  // namespace varlo
