// The line-end escape of multi-line values in project files. It can't be undone for a text that itself
// holds "@@@": on reading, that becomes a line end.
#pragma once

#include <string>
#include <string_view>

namespace varlo {

// The text, cut at 20,000 bytes, with "@@@" for each CR LF. A bare LF goes through unchanged. Gives a
// view of `text` or of `buffer`.
[[nodiscard]] std::string_view EscapeLines(std::string_view text, std::string& buffer);

// The text with CR LF for each "@@@". Gives a view of `text` or of `buffer`.
[[nodiscard]] std::string_view UnescapeLines(std::string_view text, std::string& buffer);

}  // namespace varlo
