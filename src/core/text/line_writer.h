// Writing text files by formatted pieces. The cut of a long piece is behaviour: see LineWrite.
#pragma once

#include <array>
#include <charconv>
#include <concepts>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>

#include "core/text/limits.h"
#include "core/text/text.h"
#include "platform/files.h"

namespace varlo {

class LineWriter {
 public:
  // Writes to an open file, which the caller closes behind this object; kNoFile takes nothing. What was
  // collected goes out when the object ends. Only those look at the results of the writes who ask finish().
  LineWriter(Files& files, FileHandle file)
      : files_(files), file_(file), buffer_(std::make_unique_for_overwrite<char[]>(kBuffer)), at_(buffer_.get()) {}
  ~LineWriter() { flush(); }
  LineWriter(const LineWriter&) = delete;
  LineWriter& operator=(const LineWriter&) = delete;

  // Starts a piece of at most kWrittenLine bytes.
  void begin() {
    if (buffer_.get() + kBuffer - at_ < static_cast<std::ptrdiff_t>(kWrittenLine)) flush();
    cut_ = at_ + kWrittenLine;
  }
  void add(std::string_view bytes) {
    const std::size_t size = bytes.size() < room() ? bytes.size() : room();
    if (size == 0) return;
    std::memcpy(at_, bytes.data(), size);
    at_ += size;
  }
  void add(const Text& text) { add(text.view()); }
  // A literal has a fixed size, so that it goes over in a move or two.
  template <std::size_t kSize>
  void add(const char (&literal)[kSize]) {
    constexpr std::size_t kLength = kSize - 1;
    if (room() < kLength) return add(std::string_view(literal, kLength));
    std::memcpy(at_, literal, kLength);
    at_ += kLength;
  }
  template <std::integral Number>
  void add(Number number) {
    std::array<char, 24> digits;
    const char* end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    add(std::string_view(digits.data(), static_cast<std::size_t>(end - digits.data())));
  }
  void flush();
  // Lets out what was collected; whether all of the text so far went out.
  [[nodiscard]] bool finish() {
    flush();
    return !lost_;
  }

 private:
  static constexpr std::size_t kBuffer = 64 * 1024;
  [[nodiscard]] std::size_t room() const { return static_cast<std::size_t>(cut_ - at_); }

  Files& files_;
  FileHandle file_;
  std::unique_ptr<char[]> buffer_;
  // One position that moves, and not a count beside it: two would be written apart and read back together,
  // which stalls on every piece.
  char* at_;
  char* cut_ = nullptr;  // end of the room of the running piece
  bool lost_ = false;    // a write took less than it was given
};

// Writes the values one behind the other: texts (an absent one is empty) and decimal numbers. More than
// 3,095 bytes are cut there, so the piece loses its end, the line end included, and what is written
// next follows on the same line of the file. Files rely on it.
template <typename... Values>
void LineWrite(LineWriter& writer, const Values&... values) {
  writer.begin();
  (writer.add(values), ...);
}

}  // namespace varlo
