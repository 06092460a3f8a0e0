#include "generator/template/text_signs.h"

#include <algorithm>

#include "generator/template/fill_plan.h"
#include "generator/template/page_marks.h"

namespace varlo {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

// Calls `look` with the place of each `sign` from `from` on: the library's search for one byte is many
// times faster than any loop over all of them.
template <typename Look>
void atEach(std::string_view text, char sign, std::size_t from, Look look) {
  for (std::size_t at = text.find(sign, from); at != kNone; at = text.find(sign, at + 1)) look(at);
}

// Whether `part` stands in the text so that its byte number `offset` is the one at `at`.
bool standsAt(std::string_view text, std::size_t at, std::size_t offset, std::string_view part) {
  return at >= offset && text.substr(at - offset).starts_with(part);
}

}  // namespace

bool TextSigns::find(std::string_view text, std::size_t from) {
  constexpr std::size_t kX = kLetterPage.find('x');
  keys.clear();
  found = {};
  atEach(text, '$', from, [&](std::size_t at) {
    if (keys.size() <= kMostKeys) keys.push_back(at);
  });
  const auto dollars = static_cast<std::ptrdiff_t>(keys.size());
  atEach(text, 'x', from, [&](std::size_t at) {
    if (keys.size() <= kMostKeys && standsAt(text, at, kX, kLetterPage)) keys.push_back(at - kX);
  });
  std::inplace_merge(keys.begin(), keys.begin() + dollars, keys.end());
  atEach(text, '!', from, [&](std::size_t at) {
    if (standsAt(text, at, 1, kCommentOpen)) found.comment = true;
    if (standsAt(text, at, 1, kPlusOpen)) found.plusComment = true;
  });
  atEach(text, '+', from, [&](std::size_t at) {
    if (standsAt(text, at, 0, kPlusClose)) found.plusComment = true;
  });
  return keys.size() <= kMostKeys;
}

}  // namespace varlo
