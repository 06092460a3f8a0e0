#include "generator/page_marks.h"

#include <algorithm>

#include "core/text_edit.h"
#include "core/text_search.h"
#include "generator/replace.h"

namespace varlo {
namespace {

constexpr std::string_view kShelfOpen = "<SHELF>";
constexpr std::string_view kShelfClose = "</SHELF>";
constexpr std::string_view kCommentOpen = "<!--";
constexpr std::string_view kCommentClose = "-->";
constexpr std::size_t kNone = std::string_view::npos;

// Whether an "F>" stands somewhere, in any case. Most pages hold none, and this tells it for many bytes at
// a time.
bool mayHoldShelfMark(std::string_view text) {
  unsigned char hit = 0;
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    hit = static_cast<unsigned char>(hit | (((text[i] | 0x20) == 'f') & (text[i + 1] == '>')));
  }
  return hit != 0;
}

void removeNoCase(std::string& text, std::string_view mark) {
  std::size_t at = 0;
  while ((at = FindNoCase(text, mark, at)) != kNone) {
    text.erase(at, mark.size());
    at -= std::min(at, mark.size() - 1);  // what is left may join to a mark
  }
}

// The "!" of a comment's start is rarer than its "<".
std::size_t findComment(std::string_view text, std::size_t from) {
  for (std::size_t at = text.find('!', from); at != kNone; at = text.find('!', at + 1)) {
    if (at > from && text.substr(at - 1).starts_with(kCommentOpen)) return at - 1;
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
  const std::size_t open = findComment(page, 0);
  if (open != kNone) ReplaceFirst(page, "<!--+", "", open);
  const std::size_t plus = page.find('+');
  if (plus != kNone) ReplaceFirst(page, "+-->", "", plus);
}

void RemoveShelfMarks(std::string& page) {
  if (!mayHoldShelfMark(page)) return;
  removeNoCase(page, kShelfOpen);
  removeNoCase(page, kShelfClose);
}

bool RemoveComments(std::string& page) {
  std::size_t open = findComment(page, 0);
  if (open == kNone) return true;
  std::string kept(page, 0, open);
  std::size_t from = open;
  while (open != kNone) {
    const std::size_t close = page.find(kCommentClose, open);
    if (close == kNone) {
      kept.append(page, open);
      page = std::move(kept);
      return false;
    }
    from = close + kCommentClose.size();
    open = findComment(page, from);
    kept.append(page, from, open == kNone ? kNone : open - from);
  }
  page = std::move(kept);
  return true;
}

}  // namespace varlo
