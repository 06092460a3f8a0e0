// What an import of a long list costs: reading the file, looking at it, making and updating products. It prints
// tables; README.md says how to read them.
//
//   import_bench [FOLDER]    works in a new folder inside FOLDER, by default on the memory file system
#include <algorithm>
#include <cstdio>
#include <exception>
#include <fstream>
#include <memory>
#include <numeric>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/bench_program.h"
#include "bench/child_process.h"
#include "bench/stopwatch.h"
#include "bench/work_folder.h"
#include "core/store/store_project.h"
#include "import/import_fields.h"
#include "import/import_products.h"

namespace varlo::bench {
namespace {

constexpr const char* kListName = "list.csv";
constexpr std::size_t kRows = 100000;
constexpr std::size_t kRowSize = 200;  // with its line end
constexpr std::size_t kBlock = 64 * 1024;
constexpr int kRepeats = 9;
constexpr std::size_t kScreenRows = 40;

// A row as a shop exports it: some fields in quotes, one with delimiters and quotes in it, filled up to its size.
std::string rowOf(std::size_t number) {
  const std::string code = std::to_string(number);
  std::string row = "P-" + code + ",\"Tea pot no. " + code + "\",12.50,0.7,\"Red, green, \"\"blue\"\"\",pots/" +
                    code + ".gif,10,\"tea, pot, kitchen\",";
  row.resize(kRowSize - 1, 'x');
  return row + "\n";
}

void writeList(const std::string& folder, std::size_t rows) {
  std::ofstream file(folder + "/" + kListName, std::ios::binary);
  for (std::size_t i = 0; i < rows; ++i) file << rowOf(i);
  if (!file.flush()) throw std::runtime_error("The list can't be written.");
}

std::size_t readPlainly(Files& files, char* block) {
  const FileHandle file = files.openRead(kListName);
  std::size_t bytes = 0;
  while (const std::size_t size = files.read(file, block, kBlock)) bytes += size;
  files.close(file);
  return bytes;
}

// The columns are rebuilt: their greatest number, and the longest row.
int countColumns(const ImportSheet& sheet) {
  int columns = 0;
  std::size_t longest = 0;
  for (const ImportRow& row : sheet.rows) {
    columns = std::max(columns, CountFields(sheet.dialect, row.text.view()));
    longest = std::max(longest, row.text.view().size());
  }
  return columns + (longest == 0 ? 1 : 0);
}

std::size_t drawScreen(const ImportSheet& sheet, std::size_t columns) {
  std::size_t bytes = 0;
  for (std::size_t row = 0; row < kScreenRows; ++row) {
    for (std::size_t column = 0; column < columns; ++column) {
      bytes += GetField(sheet.dialect, sheet.rows[row].text.view(), column).size();
    }
  }
  return bytes;
}

struct ReadTimes {
  double plain = 0;
  double read = 0;
  double dialect = 0;
  double screen = 0;
  std::size_t rows = 0;
};

// The runs take turns, so that a slow moment of the machine hits them alike.
ReadTimes measureReading(const std::string& folder) {
  BenchProgram bench(folder, "none.stp");
  const auto block = std::make_unique<char[]>(kBlock);
  ImportSheet sheet;
  BestTime plain;
  BestTime read;
  BestTime dialect;
  BestTime screen;
  std::size_t found = 0;
  for (int i = 0; i < kRepeats; ++i) {
    plain.add(SecondsOf([&] { found += readPlainly(bench.files(), block.get()); }));
    read.add(
        SecondsOf([&] { ReadImportFile(bench.program(), kListName, sheet.rows, sheet.dialect.fieldDelimiter); }));
    int columns = 0;
    dialect.add(SecondsOf([&] { columns = countColumns(sheet); }));
    screen.add(SecondsOf([&] { found += drawScreen(sheet, static_cast<std::size_t>(columns)); }));
  }
  if (found == 0 || sheet.dialect.fieldDelimiter != ',') throw std::runtime_error("The list was not read.");
  return {plain.seconds(), read.seconds(), dialect.seconds(), screen.seconds(), sheet.rows.size()};
}

// The first read of a process, whose memory was never touched before.
double measureFirstRead(const std::string& folder) {
  BenchProgram bench(folder, "none.stp");
  ImportSheet sheet;
  return SecondsOf([&] { ReadImportFile(bench.program(), kListName, sheet.rows, sheet.dialect.fieldDelimiter); });
}

struct ProductTimes {
  double import = 0;
  double update = 0;
  int imported = 0;
  int updated = 0;
};

ImportSheet readSheet(BenchProgram& bench, std::size_t rows) {
  ImportSheet sheet;
  for (std::size_t i = 0; i < rows; ++i) {
    std::string row = rowOf(i);
    row.pop_back();
    sheet.rows.emplace_back().text.assign(std::string_view(row));
  }
  std::size_t column = 0;
  for (const char* name : {"code", "title", "cost", "weight", "field1", "image", "tax", "meta-keywords"}) {
    sheet.columnField[column++] = FindImportField(name);
  }
  StoreProject& project = bench.program().project;
  project.root = project.currentNode = project.treeNode = project.nodes.allocate();
  return sheet;
}

ProductTimes measureProducts(const std::string& folder, std::size_t count) {
  BenchProgram bench(folder, "none.stp");
  const ImportSheet sheet = readSheet(bench, count);
  std::vector<std::size_t> rows(count);
  std::iota(rows.begin(), rows.end(), 0U);
  ProductTimes times;
  times.import = SecondsOf([&] { times.imported = ImportProducts(bench.program(), sheet, rows); });
  times.update = SecondsOf([&] { times.updated = UpdateProducts(bench.program(), sheet, rows); });
  return times;
}

void printReading(const std::string& folder) {
  writeList(folder, kRows);
  const double mebi = 1024.0 * 1024.0;
  const double size = static_cast<double>(kRows * kRowSize);
  const auto first = RunInChild([&] { return measureFirstRead(folder); });
  const ReadTimes times = RunInChild([&] { return measureReading(folder); }).result;
  std::printf("%zu rows of %zu bytes, %.1f MiB; %zu rows read\n", kRows, kRowSize, size / mebi, times.rows);
  std::printf("  plain read           %8.2f ms\n", times.plain * 1e3);
  std::printf("  read into rows       %8.2f ms, ratio %.2f (target: below 5)\n", times.read * 1e3,
              times.read / times.plain);
  std::printf("  first of a process   %8.2f ms, ratio %.2f\n", first.result * 1e3, first.result / times.plain);
  std::printf("  change of dialect    %8.2f ms (target: below 300)\n", times.dialect * 1e3);
  std::printf("  %zu rows of a screen %8.3f ms\n", kScreenRows, times.screen * 1e3);
  std::printf("  peak memory          %8.1f MiB, %.2f times the file (target: below 2)\n",
              static_cast<double>(first.peakBytes) / mebi, static_cast<double>(first.peakBytes) / size);
}

void printProducts(const std::string& folder) {
  std::printf("\nImport into one category, then update of the same products\n");
  std::printf("%10s  %10s %10s\n", "products", "import ms", "update ms");
  for (const std::size_t count : {1000U, 10000U, 100000U}) {
    const ProductTimes times = RunInChild([&] { return measureProducts(folder, count); }).result;
    if (times.imported != static_cast<int>(count) || times.updated != times.imported) {
      throw std::runtime_error("Products are missing.");
    }
    std::printf("%10zu  %10.1f %10.1f\n", count, times.import * 1e3, times.update * 1e3);
  }
}

void run(const std::string& parent) {
  const WorkFolder folder(parent);
  printReading(folder.path());
  printProducts(folder.path());
}

}  // namespace
}  // namespace varlo::bench

int main(int argc, char** argv) {
  try {
    varlo::bench::run(argc > 1 ? argv[1] : "");
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "import_bench: %s\n", error.what());
    return 1;
  }
}
