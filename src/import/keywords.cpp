#include "import/keywords.h"

#include "core/text/text_edit.h"

namespace varlo {
namespace {

void appendKeyword(std::string& joined, std::string_view keyword) {
  if (keyword.empty()) return;
  if (!joined.empty()) joined += ',';
  joined += keyword;
}

}  // namespace

Keywords SplitKeywords(std::string_view text, std::size_t& reached) {
  Keywords keywords;
  for (reached = 0; reached < kKeywordFields;) {
    const std::size_t comma = text.find(',');
    keywords.field[reached++] = text.substr(0, comma);
    if (comma == std::string_view::npos) return keywords;
    text.remove_prefix(comma + 1);
  }
  keywords.additional = text;
  return keywords;
}

Text JoinKeywords(const Keywords& keywords) {
  std::string joined;
  for (const std::string& keyword : keywords.field) appendKeyword(joined, keyword);
  appendKeyword(joined, keywords.additional);
  if (joined.empty()) return {};
  std::string_view trimmed = TrimEnd(joined);
  if (trimmed.ends_with(',')) trimmed.remove_suffix(1);
  return Text(trimmed);
}

}  // namespace varlo
