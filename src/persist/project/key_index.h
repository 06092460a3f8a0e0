// KeyIndex: finds the key of a "KEY=value" line among a fixed set of short keys, in a few instructions.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace varlo {

class KeyIndex {
 public:
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);
  static constexpr std::size_t kLongestKey = 8;

  // Adds a key of 1 to 8 bytes without "=", under `number`. At most half of the table is used.
  void add(std::string_view key, std::size_t number);

  // The number of the key that stands before the first "=" of the line, with the text behind it in
  // `value`; kNone for a line without a known key.
  [[nodiscard]] std::size_t find(std::string_view line, std::string_view& value) const;

 private:
  static constexpr std::size_t kSlots = 128;
  struct Slot {
    std::uint64_t key = 0;
    std::size_t number = kNone;
  };
  static std::uint64_t pack(std::string_view key);
  static std::size_t slotOf(std::uint64_t key);

  std::array<Slot, kSlots> slots_;
};

}  // namespace varlo
