#include "bench/literal_line_reader.h"

#include <cstdint>
#include <cstring>

namespace varlo::bench {

LiteralLineReader::LiteralLineReader(Files& files, FileHandle file, std::size_t maximum)
    : files_(files), file_(file), maximum_(maximum), buffer_(std::make_unique<char[]>(maximum + 1)) {}

std::size_t LiteralLineReader::read(std::string_view& line) {
  char* buffer = buffer_.get();
  std::size_t total = 0;
  while (total + kReadBlock <= maximum_) {
    const std::size_t got = files_.read(file_, buffer + total, kReadBlock);
    if (got == 0) break;
    std::size_t block = total;
    total += got;
    if (buffer[0] == '\0') {
      std::memmove(buffer, buffer + 1, --total);
      if (block > 0) --block;
    }
    const void* lineEnd = std::memchr(buffer + block, '\n', total - block);
    if (lineEnd == nullptr) continue;
    const std::size_t length = static_cast<std::size_t>(static_cast<const char*>(lineEnd) - buffer) + 1;
    files_.seek(file_, static_cast<std::int64_t>(length) - static_cast<std::int64_t>(total), SeekFrom::Current);
    total = length;
    break;
  }
  line = {buffer, total};
  return total;
}

}  // namespace varlo::bench
