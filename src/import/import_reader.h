// Reading a delimited text file into its raw lines. Their fields are cut out later, each time they are shown or used,
// so that the owner can change how they are read.
#pragma once

#include <string_view>
#include <vector>

#include "core/text/text.h"

namespace varlo {

struct Program;

// A line of the file, without its line end.
struct ImportRow {
  Text text;
};

// In the order of the file.
using ImportRows = std::vector<ImportRow>;

// Replaces the rows by the lines of a file, empty ones left out, and gives their number. The delimiter becomes the
// one that the first rows show, and stays as it is when they show none. A file that can't be opened gives no rows and
// no message. Deliberate: in a file of more than one block (kImportBlock) bytes are lost where a line crosses the end
// of a block, as many as the line has in front of it. A last line without a line end is lost in any file.
int ReadImportFile(Program& program, std::string_view path, ImportRows& rows, char& fieldDelimiter);

// Releases the rows.
void ReleaseRows(ImportRows& rows);

}  // namespace varlo
