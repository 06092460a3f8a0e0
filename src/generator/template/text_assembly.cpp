#include "generator/template/text_assembly.h"

#include <algorithm>

#include "generator/items/replace.h"

namespace varlo {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

bool isAngle(char c) { return c == '<' || c == '>'; }

// What a value must not hold where a tag around it is looked for: it would change the tag, or be lost with
// it before anyone has looked whether it holds a key.
bool disturbsTags(std::string_view value) {
  return std::any_of(value.begin(), value.end(), [](char c) { return isAngle(c) || c == '$'; });
}

// The last angle bracket; it is never far in front of a place.
std::size_t findLastAngle(std::string_view text) {
  std::size_t at = text.size();
  while (at > 0 && !isAngle(text[at - 1])) --at;
  return at == 0 ? kNone : at - 1;
}

}  // namespace

void TextAssembly::start(const FillPlan& plan, const PreparedText& text) {
  plan_ = &plan;
  prepared_ = &text;
  left_.clear();
  put_ = 0;
  segments_.resize(text.begins.size() - 1);
  for (std::size_t i = 0; i < segments_.size(); ++i) {
    segments_[i] = {{}, nullptr, text.begins[i], text.begins[i + 1], i > 0};
  }
}

bool TextAssembly::isOpen(const PreparedText::Use& use) const {
  const auto first = prepared_->places.begin() + use.first;
  return std::any_of(first, first + use.count, [this](std::uint32_t place) { return segments_[place].open; });
}

template <typename Put>
void TextAssembly::fillEach(const PreparedText::Use& use, Put put) {
  const FillStep& step = plan_->steps()[use.step];
  std::uint32_t left = step.times;
  for (std::uint32_t i = 0; i < use.count && left > 0; ++i) {
    Segment& segment = segments_[prepared_->places[use.first + i]];
    if (!segment.open) continue;
    segment.open = false;
    segment.begin += static_cast<std::uint32_t>(step.key.size());
    put(segment);
    if (left != kEveryTime) --left;
  }
}

void TextAssembly::fill(const PreparedText::Use& use, std::string_view value) {
  fillEach(use, [this, value](Segment& segment) {
    segment.value = value;
    put_ += value.size();
  });
}

void TextAssembly::fill(const PreparedText::Use& use, const Parts& parts) {
  fillEach(use, [&parts](Segment& segment) { segment.parts = &parts; });
}

// The angle bracket in front of a segment; the start of the text when there is none. False when a value in
// between disturbs.
bool TextAssembly::findAngleBefore(std::size_t segment, Position& angle) const {
  while (segment-- > 0) {
    const Segment& s = segments_[segment];
    const std::string_view text = source(s.begin, s.end);
    const std::size_t found = findLastAngle(text);
    if (found != kNone) {
      angle = {segment, s.begin + static_cast<std::uint32_t>(found), text[found] == '>'};
      return true;
    }
    if (disturbsTags(s.value)) return false;
  }
  angle = {0, segments_[0].begin, false};
  return true;
}

// The end of the tag behind the key of a segment. False when there is none or a value disturbs.
bool TextAssembly::findTagEnd(std::size_t segment, std::uint32_t keySize, Position& end) const {
  std::uint32_t from = segments_[segment].begin + keySize;
  for (; segment < segments_.size(); ++segment) {
    const Segment& s = segments_[segment];
    if (s.begin > from) from = s.begin;
    const std::size_t found = source(from, std::max(from, s.end)).find('>');
    if (found != kNone) {
      end = {segment, from + static_cast<std::uint32_t>(found) + 1, true};
      return true;
    }
    if (segment + 1 == segments_.size() || disturbsTags(segments_[segment + 1].value)) return false;
    from = segments_[segment + 1].begin;
  }
  return false;
}

// Whether a ">" stands anywhere behind the key of a segment, in the text as it is now.
bool TextAssembly::hasGreaterBehind(std::size_t segment, std::uint32_t keySize) const {
  std::uint32_t from = segments_[segment].begin + keySize;
  while (source(from, segments_[segment].end).find('>') == kNone) {
    if (++segment == segments_.size()) return false;
    if (segments_[segment].value.find('>') != kNone) return true;
    from = segments_[segment].begin;
  }
  return true;
}

bool TextAssembly::cut(const Position& from, const Position& to) {
  // A "$" in the tag that begins no place could have been completed by a value; one in front of the tag
  // could be completed by what follows the tag.
  Segment& front = segments_[from.segment];
  for (std::size_t i = from.segment; i <= to.segment; ++i) {
    const Segment& s = segments_[i];
    const std::uint32_t begin = i == from.segment ? from.at : s.begin + (s.open ? 1 : 0);
    const std::uint32_t end = i == to.segment ? to.at : s.end;
    if (begin < end && source(begin, end).find('$') != kNone) return false;
  }
  if (front.open && plan_->isFrontOfKey(source(front.begin, from.at))) return false;
  front.end = from.at;
  for (std::size_t i = from.segment + 1; i <= to.segment; ++i) {
    Segment& s = segments_[i];
    s.value = {};
    s.open = false;
    s.begin = i == to.segment ? to.at : s.end;
  }
  return true;
}

bool TextAssembly::removeTagAware(const PreparedText::Use& use) {
  const auto keySize = static_cast<std::uint32_t>(plan_->steps()[use.step].key.size());
  for (std::uint32_t i = 0; i < use.count; ++i) {
    const std::size_t place = prepared_->places[use.first + i];
    Segment& segment = segments_[place];
    if (!segment.open) continue;
    Position angle;
    Position end;
    if (!findAngleBefore(place, angle)) return false;
    if (angle.isGreater) {
      if (!hasGreaterBehind(place, keySize)) return false;
      segment.open = false;
      segment.begin += keySize;
      continue;
    }
    if (!findTagEnd(place, keySize, end) || !cut(angle, end)) return false;
  }
  return true;
}

bool TextAssembly::holdsOnlyKnownKeys(std::string_view result) const {
  auto known = left_.begin();
  for (const std::size_t at : signs_.keys) {
    while (known != left_.end() && *known < at) ++known;
    if (known != left_.end() && *known == at) continue;
    if (result[at] != '$' || plan_->isKeyAt(result.substr(at))) return false;
  }
  return true;
}

std::size_t TextAssembly::filledSize() const {
  std::size_t size = 0;
  for (const Segment& segment : segments_) {
    size += segment.value.size() + segment.end - segment.begin;
    if (segment.parts == nullptr) continue;
    for (const std::string_view part : *segment.parts) size += part.size();
  }
  return size;
}

// The steps refuse what makes a text too long at any time. What comes near to that is left to them.
bool TextAssembly::mayGetTooLong() const {
  std::size_t most = prepared_->text.size() + put_;
  for (const Segment& segment : segments_) {
    if (segment.parts == nullptr) continue;
    for (const std::string_view part : *segment.parts) most += part.size();
  }
  return most > kLongestText / 2;
}

bool TextAssembly::finish(std::string& result, std::size_t from) {
  if (mayGetTooLong()) return false;
  result.resize(from + filledSize());
  char* at = result.data() + from;
  const auto put = [&at](std::string_view piece) { at = std::copy(piece.begin(), piece.end(), at); };
  for (const Segment& segment : segments_) {
    put(segment.value);
    if (segment.parts != nullptr) std::for_each(segment.parts->begin(), segment.parts->end(), put);
    if (segment.open) left_.push_back(static_cast<std::size_t>(at - result.data()));
    put(source(segment.begin, segment.end));
  }
  return signs_.find(result, from) && holdsOnlyKnownKeys(result);
}

}  // namespace varlo
