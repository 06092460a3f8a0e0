#include "persist/project/key_index.h"

#include <algorithm>
#include <cassert>

namespace varlo {

std::uint64_t KeyIndex::pack(std::string_view key) {
  std::uint64_t packed = 0;
  for (const char c : key) packed = packed << 8 | static_cast<unsigned char>(c);
  return packed;
}

std::size_t KeyIndex::slotOf(std::uint64_t key) { return (key * 0x9E3779B97F4A7C15ULL) >> 57; }

void KeyIndex::add(std::string_view key, std::size_t number) {
  assert(!key.empty() && key.size() <= kLongestKey);
  const std::uint64_t packed = pack(key);
  std::size_t at = slotOf(packed);
  while (slots_[at].key != 0) at = (at + 1) % kSlots;
  slots_[at] = {packed, number};
}

std::size_t KeyIndex::find(std::string_view line, std::string_view& value) const {
  const std::size_t limit = std::min(line.size(), kLongestKey + 1);
  std::uint64_t packed = 0;
  for (std::size_t i = 0; i < limit; ++i) {
    if (line[i] != '=') {
      packed = packed << 8 | static_cast<unsigned char>(line[i]);
      continue;
    }
    std::size_t at = slotOf(packed);
    while (slots_[at].key != packed && slots_[at].key != 0) at = (at + 1) % kSlots;
    // A line that begins with "=" packs to 0, as an unused slot does.
    if (packed == 0 || slots_[at].key == 0) return kNone;
    value = line.substr(i + 1);
    return slots_[at].number;
  }
  return kNone;
}

}  // namespace varlo
