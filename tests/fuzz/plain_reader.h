// The project file read in the plain way: line by line into a PlainProject.
#pragma once

#include <string_view>
#include <vector>

#include "tests/fuzz/plain_project.h"

namespace varlo::fuzz {

// Gives the lines of a file by the rules of the program: read in blocks of 256 bytes, cut at 19,968
// bytes; a NUL that the line begins with after a block is dropped and does not count.
class PlainLines {
 public:
  explicit PlainLines(std::string_view file) : file_(file) {}
  // The next line with its line end; false at the end of the file.
  bool next(std::string& line);

 private:
  std::string_view file_;
  std::size_t at_ = 0;
};

// What the disk holds beside the project file, and what the screen was asked to show.
struct PlainMachine {
  bool hasTemplateFolder = false;
  std::array<PlainText, 2> form;  // order.htm and confirm.htm of the project
  PlainText shippedOrder;         // template\order.dat of the installation
  std::array<std::string, 2> slot;
  std::size_t boxes = 0;
};

// Reads a file into the project. The nodes of its top level are appended to `list`; their parent is
// `parent`, or that node's own when it is a product. Gives the counts that are shown meanwhile.
std::vector<int> PlainParse(PlainProject& project, const PlainCatalogue& catalogue, std::string_view file,
                            std::size_t parent, bool merging, std::vector<std::size_t>& list);

// Forgets what closing a project releases.
void PlainClose(PlainProject& project);

// Loads a project file in place of the open project. Gives the counts that are shown.
std::vector<int> PlainLoad(PlainProject& project, PlainMachine& machine, const PlainCatalogue& catalogue,
                           std::string_view file);

// Merges a file behind the last sibling of `current`.
void PlainMerge(PlainProject& project, const PlainCatalogue& catalogue, std::string_view file, std::size_t current);

// Replaces the freight data by that of a file.
void PlainImportFreight(PlainProject& project, const PlainCatalogue& catalogue, std::string_view file);

}  // namespace varlo::fuzz
