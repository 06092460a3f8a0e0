// Small edits of byte strings. Letters are the ASCII letters, white space is blank, TAB, LF, VT, FF
// and CR, everywhere in the program.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace varlo {

[[nodiscard]] constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
[[nodiscard]] constexpr bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
[[nodiscard]] constexpr bool IsSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
[[nodiscard]] constexpr char LowerChar(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// The text without every blank, CR and LF at its end.
[[nodiscard]] constexpr std::string_view TrimEnd(std::string_view text) {
  while (!text.empty() && (text.back() == ' ' || text.back() == '\r' || text.back() == '\n')) {
    text.remove_suffix(1);
  }
  return text;
}

// Turns letters to lower case in place.
void TextLower(std::string& text);

// Encodes in place for the value of an address: letters, digits, "*", ".", "-" and "_" stay, a blank
// becomes "+", every other byte "%" and two hexadecimal digits in upper case.
void TextUrlEncode(std::string& text);

// Replaces the first `from` at or behind `start` by `to`. Gives the position just behind what was put
// in; npos when `from` was not found, any argument is null, or `from` or the text is empty.
std::size_t TextReplace(std::string& text, const char* from, const char* to, std::size_t start = 0);

// The same with a search that ignores case.
std::size_t TextReplaceNoCase(std::string& text, const char* from, const char* to, std::size_t start = 0);

// Copies at most `maximum` bytes of `source`.
void TextCopyBounded(std::string& target, std::string_view source, std::size_t maximum);

// Copies `source` up to, not including, the first `stop`, or all of it.
void TextCopyUntil(std::string& target, std::string_view source, char stop);

// The same with at most `maximum` bytes.
void TextCopyUntilBounded(std::string& target, std::string_view source, char stop, std::size_t maximum);

// Appends in the same way.
void TextAppendUntil(std::string& target, std::string_view source, char stop);

}  // namespace varlo
