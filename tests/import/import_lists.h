// The lists of tests/import/lists: each of the shape of a real export, with what its columns carry and the project
// that it must become.
#pragma once

#include <cstddef>
#include <ostream>
#include <string_view>

namespace varlo::test {

struct ImportList {
  std::string_view file;
  std::string_view project;  // in lists/expected
  std::string_view columns;  // their names, by commas
  std::string_view quote = "\"";
  std::string_view decimal = ".";
  std::size_t first = 1;  // row that the import begins with
};

inline void PrintTo(const ImportList& list, std::ostream* out) { *out << list.file; }

inline constexpr ImportList kImportLists[] = {
    {"comma-quotes.csv", "comma-quotes.stp",
     ",,code,title,,,,meta-description,description,,,,,,,,,,weight,,,,,,,cost"},
    {"semicolon-no-last-end.csv", "semicolon-no-last-end.stp", ",,title,,cost,code,weight,meta-keywords,field1"},
    {"semicolon-all-quoted.csv", "semicolon-all-quoted.stp",
     "code,title,meta-description,description,cost,,image,field2,field1"},
    {"semicolon-decimal-comma.csv", "semicolon-decimal-comma.stp", "code,cost,,,,title,field1,field2", "\"", ","},
    {"semicolon-latin1.csv", "semicolon-latin1.stp",
     ",code,title,field1,cost,,,,,,,,,,,,,,,,meta-keywords,,,,description", "\"", ","},
    {"bar-caret.dat", "bar-caret.stp", "code,title,description,,,,cost", "^", ".", 0},
};

// The category of start.stp that the lists are imported into, and the counter of the installation before.
inline constexpr std::string_view kListCategory = "2.htm";
inline constexpr int kListUid = 100;

}  // namespace varlo::test
