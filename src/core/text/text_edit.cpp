#include "core/text/text_edit.h"

#include <algorithm>

#include "core/text/text_search.h"

namespace varlo {
namespace {

bool staysInUrl(char c) {
  return IsLetter(c) || IsDigit(c) || c == ' ' || c == '*' || c == '.' || c == '-' || c == '_';
}

using Find = std::size_t (*)(std::string_view text, std::string_view part, std::size_t start);

std::size_t replaceFirst(std::string& text, const char* from, const char* to, std::size_t start, Find find) {
  if (from == nullptr || to == nullptr || *from == '\0' || text.empty()) return std::string::npos;
  const std::string_view searched(from);
  const std::string_view inserted(to);
  const std::size_t found = find(text, searched, start);
  if (found == std::string::npos) return found;
  text.replace(found, searched.size(), inserted);
  return found + inserted.size();
}

}  // namespace

void TextLower(std::string& text) { std::transform(text.begin(), text.end(), text.begin(), LowerChar); }

void TextUrlEncode(std::string& text) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string encoded;
  encoded.reserve(text.size());
  for (const char c : text) {
    if (staysInUrl(c)) {
      encoded += c == ' ' ? '+' : c;
      continue;
    }
    const auto byte = static_cast<unsigned char>(c);
    encoded += {'%', kDigits[byte >> 4], kDigits[byte & 15]};
  }
  text = std::move(encoded);
}

std::size_t TextReplace(std::string& text, const char* from, const char* to, std::size_t start) {
  return replaceFirst(text, from, to, start, [](std::string_view whole, std::string_view part, std::size_t at) {
    return whole.find(part, at);
  });
}

std::size_t TextReplaceNoCase(std::string& text, const char* from, const char* to, std::size_t start) {
  return replaceFirst(text, from, to, start, FindNoCase);
}

void TextCopyBounded(std::string& target, std::string_view source, std::size_t maximum) {
  target.assign(source.substr(0, maximum));
}

void TextCopyUntil(std::string& target, std::string_view source, char stop) {
  target.assign(source.substr(0, source.find(stop)));
}

void TextCopyUntilBounded(std::string& target, std::string_view source, char stop, std::size_t maximum) {
  target.assign(source.substr(0, std::min(source.find(stop), maximum)));
}

void TextAppendUntil(std::string& target, std::string_view source, char stop) {
  target.append(source.substr(0, source.find(stop)));
}

}  // namespace varlo
