// Reading text files by lines, as every text format of the program does. The limits of the reader are
// behaviour: see LineRead. It reads large blocks, with the results of one that reads 256 bytes at a
// time and sets the file back behind each line.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>

#include "core/text/limits.h"
#include "core/text/line_buffer.h"
#include "core/text/text_edit.h"
#include "platform/files.h"

namespace varlo {

class LineReader {
 public:
  // Reads from the position of an open file, which the caller closes; kNoFile has no lines. `maximum`
  // is the room for a line in bytes, of which whole blocks of 256 are used.
  LineReader(Files& files, FileHandle file, std::size_t maximum = kLineBuffer);
  // The same with the maximum used everywhere; the last line stays in `buffer`.
  LineReader(Files& files, FileHandle file, LineBuffer& buffer);
  ~LineReader() { leaveLine(); }
  LineReader(const LineReader&) = delete;
  LineReader& operator=(const LineReader&) = delete;

 private:
  friend std::size_t LineRead(LineReader& reader, std::string_view& line);
  friend std::size_t LineReadTrimmed(LineReader& reader, std::string_view& line);

  bool fill();
  std::size_t take(std::size_t size, std::string_view& line) {
    line = {buffer_.get() + begin_, size};
    begin_ += size;
    lastLine_ = size;
    return size;
  }
  // Holding every line would cost as much as reading it: only one that is not followed by another is held.
  void leaveLine() {
    if (lineBuffer_ != nullptr && lastLine_ > 0) lineBuffer_->hold({buffer_.get() + begin_ - lastLine_, lastLine_});
    lastLine_ = 0;
  }
  std::size_t takeSlowly(std::string_view& line);
  std::size_t takeBehindNul(std::string_view& line);

  Files& files_;
  FileHandle file_;
  std::size_t cut_;
  std::size_t capacity_;
  std::unique_ptr<char[]> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  bool atEnd_;
  bool holdsNul_ = false;
  LineBuffer* lineBuffer_ = nullptr;
  std::size_t lastLine_ = 0;  // length of the line that was given last, which ends at begin_
};

// Gives the next line with its line end, and its length; 0 at the end of the file. The line stays valid
// until the next call.
// - A line is cut at the maximum in whole blocks of 256 bytes (20,000 makes 19,968); the rest comes as
//   the next line, with no marker.
// - A NUL at the start of a line is dropped, one for each block that the line takes, and does not count
//   towards the cut. Other NULs stay: a reader that takes a line as a string sees it up to the first.
// - A last line without a line end is delivered.
inline std::size_t LineRead(LineReader& reader, std::string_view& line) {
  // Nearly every line lies whole in the buffer.
  const std::size_t size = std::min(reader.end_ - reader.begin_, reader.cut_);
  const char* base = reader.buffer_.get() + reader.begin_;
  if (size > 0 && base[0] != '\0') {
    const void* lineEnd = std::memchr(base, '\n', size);
    if (lineEnd != nullptr) {
      return reader.take(static_cast<std::size_t>(static_cast<const char*>(lineEnd) - base) + 1, line);
    }
  }
  return reader.takeSlowly(line);
}

// The same line as its reader sees it: up to its first NUL, then through TrimEnd. Gives 0 at the end of
// the file, else the length before trimming.
inline std::size_t LineReadTrimmed(LineReader& reader, std::string_view& line) {
  const std::size_t length = LineRead(reader, line);
  if (reader.holdsNul_) line = line.substr(0, line.find('\0'));
  line = TrimEnd(line);
  return length;
}

}  // namespace varlo
