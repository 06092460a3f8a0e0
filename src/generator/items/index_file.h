// The index file of a site: a line for each page, for programs that list the store. Fields go in raw.
#pragma once

#include <string>
#include <string_view>

#include "core/text/open_file.h"

namespace varlo {

struct BuildLog;
struct Generator;
struct StoreNode;

inline constexpr std::string_view kIndexFileName = "\\varlo.idx";

// The index file of one build. While this lives and the file is open, the build's log names its writer.
class IndexFile {
 public:
  // Replaces the index file in the target folder and writes its head; without it, after a message, when it
  // can't be created.
  explicit IndexFile(Generator& generator);
  ~IndexFile();
  IndexFile(const IndexFile&) = delete;
  IndexFile& operator=(const IndexFile&) = delete;

 private:
  BuildLog& log_;
  OpenFile file_;
};

// Writes the line of a page; nothing without an open index file. A line is cut at 3,095 bytes, and the next
// one then follows on it.
void IndexFileAddNode(BuildLog& log, const StoreNode& node);

}  // namespace varlo
