#include "core/text/line_escape.h"

#include "core/text/limits.h"

namespace varlo {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kEscape = "@@@";

std::string_view replaceEvery(std::string_view text, std::string_view from, std::string_view to,
                              std::string& buffer) {
  std::size_t found = text.find(from);
  if (found == std::string_view::npos) return text;
  buffer.clear();
  std::size_t done = 0;
  for (; found != std::string_view::npos; found = text.find(from, done)) {
    buffer.append(text.substr(done, found - done)).append(to);
    done = found + from.size();
  }
  buffer.append(text.substr(done));
  return buffer;
}

}  // namespace

// Deliberate: a LF without CR is not escaped. Such a text breaks over two lines of the file, and what
// reads it back drops the second. Files rely on it.
std::string_view EscapeLines(std::string_view text, std::string& buffer) {
  return replaceEvery(text.substr(0, kLineBuffer), kLineEnd, kEscape, buffer);
}

std::string_view UnescapeLines(std::string_view text, std::string& buffer) {
  return replaceEvery(text, kEscape, kLineEnd, buffer);
}

}  // namespace varlo
