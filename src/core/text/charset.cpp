#include "core/text/charset.h"

#include <algorithm>
#include <array>

namespace varlo {
namespace {

// Code points of the bytes 0x80 to 0x9F; the others are those of Latin-1.
constexpr std::array<char16_t, 32> kHigh{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                         0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                         0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                         0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t codePoint(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return value >= 0x80 && value <= 0x9F ? kHigh[value - 0x80U] : value;
}

// Appends a code point below 0x10000.
void appendUtf8(std::string& text, char16_t code) {
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0 | code >> 6);
    text += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | code >> 12);
    text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
    text += static_cast<char>(0x80 | (code & 0x3F));
  }
}

// The byte of a code point; false when it has none.
bool byteOf(char16_t code, char& byte) {
  if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) {
    byte = static_cast<char>(code);
    return true;
  }
  const auto found = std::find(kHigh.begin(), kHigh.end(), code);
  if (found == kHigh.end()) return false;
  byte = static_cast<char>(0x80 + (found - kHigh.begin()));
  return true;
}

// Length of the UTF-8 sequence of two or three bytes at the front, with its code point; 0 when there is
// none.
std::size_t decode(std::string_view text, char16_t& code) {
  const auto lead = static_cast<unsigned char>(text[0]);
  const std::size_t length = lead >= 0xC2 && lead <= 0xDF ? 2 : lead >= 0xE0 && lead <= 0xEF ? 3 : 0;
  if (length == 0 || text.size() < length) return 0;
  unsigned value = length == 2 ? lead & 0x1FU : lead & 0x0FU;
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0) != 0x80) return 0;
    value = value << 6 | (byte & 0x3FU);
  }
  code = static_cast<char16_t>(value);
  return length;
}

bool isAscii(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

}  // namespace

std::string Utf8FromBytes(std::string_view bytes) {
  const auto other = std::find_if_not(bytes.begin(), bytes.end(), isAscii);
  std::string text(bytes.begin(), other);
  for (const char byte : bytes.substr(text.size())) appendUtf8(text, codePoint(byte));
  return text;
}

std::string BytesFromUtf8(std::string_view utf8) {
  std::string bytes(utf8.begin(), std::find_if_not(utf8.begin(), utf8.end(), isAscii));
  utf8.remove_prefix(bytes.size());
  while (!utf8.empty()) {
    char16_t code = 0;
    char byte = utf8[0];
    const std::size_t length = decode(utf8, code);
    const bool known = length != 0 && byteOf(code, byte);
    bytes += byte;
    utf8.remove_prefix(known ? length : 1);
  }
  return bytes;
}

std::string Utf8FromLatin1(std::string_view bytes) {
  std::string text;
  for (const char byte : bytes) appendUtf8(text, static_cast<unsigned char>(byte));
  return text;
}

char LowerByte(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  const bool latin = value >= 0xC0 && value <= 0xDE && value != 0xD7;
  if (latin || (byte >= 'A' && byte <= 'Z')) return static_cast<char>(value + 0x20);
  if (value == 0x8A || value == 0x8C || value == 0x8E) return static_cast<char>(value + 0x10);
  if (value == 0x9F) return static_cast<char>(0xFF);
  return byte;
}

}  // namespace varlo
