// The fields of a line of delimited text, cut out each time they are asked for. What counts as a quote depends on the
// bytes in front of it, so a line is walked from its start. Every line has a result; the odd ones are on purpose.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace varlo {

struct ImportDialect;

// Whether the byte at `position` is a quote that counts, in the text that begins at `start`: the first byte, or, with
// an escape that is the quote itself, one at an odd place in its run of quotes; with another escape, one that does
// not stand behind the escape. `position` is inside of the text.
[[nodiscard]] bool IsQuoteAt(const ImportDialect& dialect, std::string_view text, std::size_t start,
                             std::size_t position);

// Whether the byte at `position` is the escape and the next one the quote.
[[nodiscard]] bool IsEscapedQuote(const ImportDialect& dialect, std::string_view text, std::size_t position);

// How many fields the line has; at least 1.
[[nodiscard]] int CountFields(const ImportDialect& dialect, std::string_view line);

// The text of a field, counted from 0; empty for one that the line does not have. Takes time in proportion to the
// line, whatever stands in it.
[[nodiscard]] std::string GetField(const ImportDialect& dialect, std::string_view line, std::size_t column);

}  // namespace varlo
