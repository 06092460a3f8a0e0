// A reader of lines that does it in the plainest way: it reads blocks of 256 bytes, and sets the file back
// behind each line. The program's own reader has to give the same lines, and is measured against it.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

#include "core/text/limits.h"
#include "platform/files.h"

namespace varlo::bench {

class LiteralLineReader {
 public:
  LiteralLineReader(Files& files, FileHandle file, std::size_t maximum = kLineBuffer);

  // The next line with its line end, and its length; 0 at the end of the file.
  std::size_t read(std::string_view& line);

 private:
  Files& files_;
  FileHandle file_;
  std::size_t maximum_;
  std::unique_ptr<char[]> buffer_;
};

}  // namespace varlo::bench
