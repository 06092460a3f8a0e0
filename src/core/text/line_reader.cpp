#include "core/text/line_reader.h"

namespace varlo {
namespace {

constexpr std::size_t kReadSize = 64 * 1024;

const char* findByte(const char* bytes, char byte, std::size_t size) {
  return size == 0 ? nullptr : static_cast<const char*>(std::memchr(bytes, byte, size));
}

}  // namespace

// The buffer takes a whole line with every NUL that may be dropped in front of it, and a block more.
LineReader::LineReader(Files& files, FileHandle file, std::size_t maximum)
    : files_(files),
      file_(file),
      cut_(maximum / kReadBlock * kReadBlock),
      capacity_(std::max(kReadSize, 2 * maximum + kReadBlock)),
      buffer_(std::make_unique_for_overwrite<char[]>(capacity_)),
      atEnd_(file == kNoFile) {}

LineReader::LineReader(Files& files, FileHandle file, LineBuffer& buffer) : LineReader(files, file) {
  lineBuffer_ = &buffer;
}

// Moves what is left to the front and fills the rest; false when nothing came.
bool LineReader::fill() {
  leaveLine();
  if (atEnd_) return false;
  std::memmove(buffer_.get(), buffer_.get() + begin_, end_ - begin_);
  end_ -= begin_;
  begin_ = 0;
  const std::size_t before = end_;
  while (end_ < capacity_) {
    const std::size_t got = files_.read(file_, buffer_.get() + end_, capacity_ - end_);
    if (got == 0) {
      atEnd_ = true;
      break;
    }
    end_ += got;
  }
  holdsNul_ = findByte(buffer_.get(), '\0', end_) != nullptr;
  return end_ > before;
}

// A line that begins with a NUL: block by block, as the dropping of NULs goes by blocks. Behind the whole
// blocks up to the cut, one more brings the line to its full length, and drops nothing.
std::size_t LineReader::takeBehindNul(std::string_view& line) {
  std::size_t raw = 0;
  std::size_t dropped = 0;
  while (raw - dropped < cut_) {
    if (end_ - begin_ < raw + kReadBlock) fill();
    const std::size_t left = end_ - begin_ - raw;
    if (left == 0) break;
    const char* base = buffer_.get() + begin_;
    const std::size_t block = std::min({kReadBlock, cut_ - (raw - dropped), left});
    if (raw < cut_ && base[dropped] == '\0') ++dropped;
    const char* lineEnd = findByte(base + raw, '\n', block);
    raw = lineEnd == nullptr ? raw + block : static_cast<std::size_t>(lineEnd - base) + 1;
    if (lineEnd != nullptr) break;
  }
  begin_ += dropped;
  return take(raw - dropped, line);
}

std::size_t LineReader::takeSlowly(std::string_view& line) {
  for (;;) {
    const char* base = buffer_.get() + begin_;
    const std::size_t size = end_ - begin_;
    if (size > 0 && base[0] == '\0') return takeBehindNul(line);
    const char* lineEnd = findByte(base, '\n', std::min(size, cut_));
    if (lineEnd != nullptr) return take(static_cast<std::size_t>(lineEnd - base) + 1, line);
    if (size >= cut_) return take(cut_, line);
    if (!fill()) return take(size, line);
  }
}

}  // namespace varlo
