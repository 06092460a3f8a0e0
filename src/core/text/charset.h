// The program's texts are bytes of the 8-bit Windows character set. Where they meet a system that
// speaks UTF-8 (file names, terminals, JSON), they are turned here.
#pragma once

#include <string>
#include <string_view>

namespace varlo {

// Bytes of the Windows character set 1252 as UTF-8. The five bytes that the set leaves open become the
// control characters of the same number.
[[nodiscard]] std::string Utf8FromBytes(std::string_view bytes);

// UTF-8 as bytes of the set. A sequence that is not UTF-8, or that has no byte in the set, goes through
// byte by byte as it is.
[[nodiscard]] std::string BytesFromUtf8(std::string_view utf8);

// Each byte as the Latin-1 code point of its number, in UTF-8; so no byte is lost.
[[nodiscard]] std::string Utf8FromLatin1(std::string_view bytes);

// The byte in lower case, by the letters of the set.
[[nodiscard]] char LowerByte(char byte);

}  // namespace varlo
