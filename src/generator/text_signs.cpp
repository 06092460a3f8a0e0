#include "generator/text_signs.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "core/text_search.h"
#include "generator/fill_plan.h"
#include "generator/page_marks.h"

namespace varlo {
namespace {

// Sixteen bytes at once, with the compilers' own vectors: loops of this kind they do not turn into such.
constexpr std::size_t kLane = 16;
constexpr std::size_t kBlock = 4 * kLane;
using Lane = unsigned char __attribute__((vector_size(kLane)));

Lane load(const char* bytes) {
  Lane lane;
  std::memcpy(&lane, bytes, kLane);
  return lane;
}

// Whether a sign may stand at a byte, by that byte and the next.
template <typename Byte>
auto mayBeSign(Byte c, Byte next) {
  return (c == '$') | (c == '!') | (c == '+') | ((c == 'x') & (next == 'a')) | (((c | 0x20) == 'f') & (next == '>'));
}

// The same for any of the bytes of a lane, which reads one more.
Lane mayHoldSign(const char* bytes) { return reinterpret_cast<Lane>(mayBeSign(load(bytes), load(bytes + 1))); }

bool isAny(Lane lane) {
  std::uint64_t halves[2];
  std::memcpy(halves, &lane, kLane);
  return (halves[0] | halves[1]) != 0;
}

// Whether a block of text, of which one more byte is there, is worth a closer look.
bool blockMayHoldSign(const char* bytes) {
  return isAny(mayHoldSign(bytes) | mayHoldSign(bytes + kLane) | mayHoldSign(bytes + 2 * kLane) |
               mayHoldSign(bytes + 3 * kLane));
}

// Whether `part` stands in the text so that its byte number `offset` is the one at `at`.
bool standsAt(std::string_view text, std::size_t at, std::size_t offset, std::string_view part) {
  return at >= offset && text.substr(at - offset).starts_with(part);
}

}  // namespace

void TextSigns::look(std::string_view text, std::size_t at) {
  constexpr std::size_t kX = kLetterPage.find('x');
  switch (text[at]) {
    case '$':
      keys.push_back(at);
      break;
    case 'x':
      if (standsAt(text, at, kX, kLetterPage)) keys.push_back(at - kX);
      break;
    case '!':
      if (standsAt(text, at, 1, kCommentOpen)) found.comment = true;
      if (standsAt(text, at, 1, kPlusOpen)) found.plusComment = true;
      break;
    case '+':
      if (standsAt(text, at, 0, kPlusClose)) found.plusComment = true;
      break;
    case 'f':
    case 'F':
      if (at >= 5 && EqualsNoCase(text.substr(at - 4, 6), "SHELF>")) found.shelfMark = true;
      break;
    default:
      break;
  }
}

void TextSigns::lookAtEach(std::string_view text, std::size_t from, std::size_t to) {
  for (std::size_t at = from; at < to; ++at) {
    if (mayBeSign<int>(text[at], text[at + 1]) != 0) look(text, at);
  }
}

void TextSigns::find(std::string_view text, std::size_t from) {
  keys.clear();
  found = {};
  if (text.size() <= from) return;
  // The last byte has no next one, and is looked at by itself.
  const std::size_t end = text.size() - 1;
  std::size_t at = from;
  while (at < end) {
    if (at + kBlock <= end && !blockMayHoldSign(text.data() + at)) {
      at += kBlock;
      continue;
    }
    const std::size_t behind = std::min(at + kBlock, end);
    for (; at + kLane <= behind; at += kLane) {
      if (isAny(mayHoldSign(text.data() + at))) lookAtEach(text, at, at + kLane);
    }
    lookAtEach(text, at, behind);
    at = behind;
  }
  look(text, end);
}

}  // namespace varlo
