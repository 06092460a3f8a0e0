// How a value reaches a text: plain, case-sensitive replacement of a key, in the modes that the
// substitution steps ask for. A value that is absent leaves the key as it stands; an empty one removes
// it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "core/text/text.h"

namespace varlo {

// The value of a variable; none when it is absent.
using Value = std::optional<std::string_view>;

// The value that a text holds: absent when it is null.
[[nodiscard]] inline Value ValueOf(const Text& text) { return text.isNull() ? Value() : Value(text.view()); }

// What became of a replacement that could go on for ever. Endless: the text is left as it stood when
// that showed.
enum class Replaced { Done, Endless };

// The longest text that replacements make. One that would make a longer one counts as endless: values that
// hold the keys of others can multiply without bounds, and so can the items of a page.
inline constexpr std::size_t kLongestText = 64 * 1024 * 1024;

// Replaces the first `key` at or behind `start`, in a text that cannot be long. Gives the position just behind
// the value; npos, and nothing is changed, when the key is not there or empty or the value absent.
std::size_t ReplaceFirst(std::string& text, std::string_view key, const Value& value, std::size_t start = 0);

// Replaces the first `key`, again and again from the front, `times` at most; further occurrences stay. Endless
// when the text would become too long.
[[nodiscard]] Replaced ReplaceUpTo(int times, std::string& text, std::string_view key, const Value& value);

// Replaces the first `key`, again and again from the front, until there is none. Endless for a value that
// holds the key itself, for one that goes on making it at its joints to the text, and for one that makes the
// text too long.
[[nodiscard]] Replaced ReplaceAll(std::string& text, std::string_view key, const Value& value);

// The mode for optional attributes. With a value every key becomes it, and the value is not searched
// again. Without one, or with an empty one, the first key goes, again and again: alone when a ">" is the
// first angle bracket in front of it, and with the whole tag around it, from the "<" in front (or the
// start of the text) through the next ">", otherwise. Endless when no ">" stands behind the key: it then stays
// in either case, with what follows. Endless as well for a value that makes the text too long.
[[nodiscard]] Replaced SubstituteTagAware(std::string& text, std::string_view key, const Value& value);

}  // namespace varlo
