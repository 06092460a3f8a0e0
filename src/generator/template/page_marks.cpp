#include "generator/template/page_marks.h"

#include <algorithm>
#include <cstring>

#include "core/text/text_edit.h"
#include "core/text/text_search.h"

namespace varlo {
namespace {

constexpr std::string_view kShelfOpen = "<SHELF>";
constexpr std::string_view kShelfClose = "</SHELF>";
constexpr std::string_view kCommentClose = "-->";
constexpr std::size_t kNone = std::string_view::npos;

// Whether an "F>" stands among the bytes, in any case, for many bytes at a time: neither of the two is rare.
bool mayHoldShelfMark(std::string_view text) {
  unsigned char hit = 0;
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    const int mark = static_cast<int>((text[i] | 0x20) == 'f') & static_cast<int>(text[i + 1] == '>');
    hit = static_cast<unsigned char>(hit | mark);
  }
  return hit != 0;
}

// Closes the text up byte by byte, so that marks which only come about by that go as well.
void removeNoCase(std::string& text, std::string_view mark) {
  const std::size_t first = FindNoCase(text, mark);
  if (first == kNone) return;
  std::size_t kept = first;
  for (std::size_t at = first; at < text.size(); ++at) {
    text[kept++] = text[at];
    if (text[at] != mark.back() || kept < mark.size()) continue;
    const std::string_view last = std::string_view(text).substr(kept - mark.size(), mark.size());
    if (EqualsNoCase(last, mark)) kept -= mark.size();
  }
  text.resize(kept);
}

// Where a comment starts, with "<!--" or the longer `mark`. The "!" is rarer than the "<".
std::size_t findComment(std::string_view text, std::size_t from, std::string_view mark = kCommentOpen) {
  for (std::size_t at = text.find('!', from); at != kNone; at = text.find('!', at + 1)) {
    if (at > from && text.substr(at - 1).starts_with(mark)) return at - 1;
  }
  return kNone;
}

}  // namespace

ShelfBlock FindShelfBlock(std::string_view text) {
  const std::size_t open = FindNoCase(text, kShelfOpen);
  const std::size_t close = FindNoCase(text, kShelfClose);
  if (open == kNone || close == kNone || close < open) return {};
  const std::size_t begin = open + kShelfOpen.size();
  return {true, open, close + kShelfClose.size(), text.substr(begin, close - begin)};
}

void OpenPlusComment(std::string& page) {
  const std::size_t open = findComment(page, 0, kPlusOpen);
  if (open != kNone) page.erase(open, kPlusOpen.size());
  const std::size_t close = page.find(kPlusClose);
  if (close != kNone) page.erase(close, kPlusClose.size());
}

bool RemoveShelfMarks(std::string& page) {
  const std::size_t before = page.size();
  if (!mayHoldShelfMark(page)) return false;
  removeNoCase(page, kShelfOpen);
  removeNoCase(page, kShelfClose);
  return page.size() < before;
}

bool RemoveComments(std::string& page) {
  std::size_t kept = findComment(page, 0);
  for (std::size_t open = kept; open != kNone;) {
    const std::size_t close = page.find(kCommentClose, open);
    const bool ends = close != kNone;
    const std::size_t from = ends ? close + kCommentClose.size() : open;
    open = ends ? findComment(page, from) : kNone;
    const std::size_t to = std::min(open, page.size());
    std::memmove(page.data() + kept, page.data() + from, to - from);
    kept += to - from;
    if (open == kNone) page.resize(kept);
    if (!ends) return false;
  }
  return true;
}

}  // namespace varlo
