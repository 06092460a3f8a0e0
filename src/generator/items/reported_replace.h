// Replacements that report an endless one: a line of the build's log with the name of the file in work, and
// an error counted.
#pragma once

#include <string>
#include <string_view>

#include "generator/items/replace.h"

namespace varlo {

struct Generator;

// Logs and counts the replacement of `key` in a file when it was endless.
void ReportEndless(Generator& generator, Replaced result, std::string_view fileName, std::string_view key);

// Replaces the first `key` of a text, again and again, `times` at most; reports a text that would get too long.
void ReplaceSome(Generator& generator, int times, std::string& text, std::string_view key, const Value& value,
                 std::string_view fileName);

// Replaces every `key` of a text. A value that holds its own key leaves the text as it is, and is reported.
void ReplaceEvery(Generator& generator, std::string& text, std::string_view key, const Value& value,
                  std::string_view fileName);

}  // namespace varlo
