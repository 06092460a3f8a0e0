#include "core/text/charset.h"

#include <random>
#include <string>

#include <gtest/gtest.h>

namespace varlo {
namespace {

std::string allBytes() {
  std::string bytes;
  for (int value = 0; value < 256; ++value) bytes += static_cast<char>(value);
  return bytes;
}

TEST(Utf8FromBytes, LeavesAscii) { EXPECT_EQ(Utf8FromBytes("Shop 1\r\n~"), "Shop 1\r\n~"); }
TEST(Utf8FromBytes, TurnsTheUpperHalfLikeLatin1) {
  EXPECT_EQ(Utf8FromBytes("\xA0\xA9\xC9\xE9\xFF"), "\xC2\xA0\xC2\xA9\xC3\x89\xC3\xA9\xC3\xBF");
}
TEST(Utf8FromBytes, TurnsTheSignsOfTheWindowsSet) {
  EXPECT_EQ(Utf8FromBytes("\x80\x8A\x93\x99\x9F"), "\xE2\x82\xAC\xC5\xA0\xE2\x80\x9C\xE2\x84\xA2\xC5\xB8");
}
TEST(Utf8FromBytes, OpenBytesBecomeTheControlOfTheirNumber) {
  EXPECT_EQ(Utf8FromBytes("\x81\x8D\x8F\x90\x9D"), "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
}
TEST(Utf8FromBytes, KeepsANul) { EXPECT_EQ(Utf8FromBytes(std::string_view("a\0b", 3)), std::string("a\0b", 3)); }

TEST(BytesFromUtf8, ReadsBackEveryByte) {
  const std::string bytes = allBytes();
  EXPECT_EQ(BytesFromUtf8(Utf8FromBytes(bytes)), bytes);
}

TEST(BytesFromUtf8, ReadsBackEveryPairOfBytes) {
  const std::string bytes = allBytes();
  for (const char first : bytes) {
    for (const char second : bytes) {
      const std::string pair{first, second};
      ASSERT_EQ(BytesFromUtf8(Utf8FromBytes(pair)), pair);
    }
  }
}

TEST(BytesFromUtf8, WhatHasNoByteInTheSetGoesThroughAsItIs) {
  const std::string_view kanji = "\xE6\x97\xA5.htm";
  EXPECT_EQ(BytesFromUtf8(kanji), kanji);
  const std::string_view aMacron = "\xC4\x81";
  EXPECT_EQ(BytesFromUtf8(aMacron), aMacron);
  const std::string_view smile = "\xF0\x9F\x98\x80";
  EXPECT_EQ(BytesFromUtf8(smile), smile);
}

TEST(BytesFromUtf8, WhatIsNotUtf8GoesThroughAsItIs) {
  for (const std::string_view bytes : {"\xE9", "caf\xE9", "\xC3", "\xC3(", "\xE2\x82", "\xE2\x82(", "\xA9\xA9",
                                       "\xC0\x80", "\xC1\xBF", "\xED\xA0\x80", "\xF5\x80\x80\x80", "\xFF\xFE"}) {
    EXPECT_EQ(BytesFromUtf8(bytes), bytes);
  }
}

TEST(BytesFromUtf8, GoesOnBehindABrokenSequence) { EXPECT_EQ(BytesFromUtf8("\xE2\x82\xC3\xA9"), "\xE2\x82\xE9"); }

TEST(BytesFromUtf8, NeverMakesATextLonger) {
  std::mt19937 random(3);
  for (int round = 0; round < 20000; ++round) {
    std::string bytes;
    for (std::size_t left = random() % 12; left > 0; --left) bytes += static_cast<char>(random() % 256);
    EXPECT_LE(BytesFromUtf8(bytes).size(), bytes.size());
  }
}

TEST(Utf8FromLatin1, TakesEachByteAsTheCodePointOfItsNumber) {
  EXPECT_EQ(Utf8FromLatin1("a\x80\x9F\xA9\xFF"), "a\xC2\x80\xC2\x9F\xC2\xA9\xC3\xBF");
}

TEST(Utf8FromLatin1, LosesNoByte) {
  const std::string bytes = allBytes();
  const std::string utf8 = Utf8FromLatin1(bytes);
  ASSERT_EQ(utf8.size(), 128U + 2 * 128U);
  for (std::size_t value = 0; value < 128; ++value) EXPECT_EQ(utf8[value], static_cast<char>(value));
  for (std::size_t value = 128; value < 256; ++value) {
    const std::size_t at = 128 + 2 * (value - 128);
    EXPECT_EQ(utf8[at], static_cast<char>(0xC0 | value >> 6));
    EXPECT_EQ(utf8[at + 1], static_cast<char>(0x80 | (value & 0x3F)));
  }
}

TEST(LowerByte, TurnsTheLettersOfTheSet) {
  EXPECT_EQ(LowerByte('A'), 'a');
  EXPECT_EQ(LowerByte('Z'), 'z');
  EXPECT_EQ(LowerByte('\xC0'), '\xE0');
  EXPECT_EQ(LowerByte('\xDE'), '\xFE');
  EXPECT_EQ(LowerByte('\x8A'), '\x9A');
  EXPECT_EQ(LowerByte('\x8C'), '\x9C');
  EXPECT_EQ(LowerByte('\x8E'), '\x9E');
  EXPECT_EQ(LowerByte('\x9F'), '\xFF');
}

TEST(LowerByte, LeavesWhatIsNoCapital) {
  for (const char byte : std::string_view("az@[`{09\xD7\xDF\xE0\xF7\xFF\x9A\x80\xA9"))
    EXPECT_EQ(LowerByte(byte), byte);
}

TEST(LowerByte, TurnsNothingTwice) {
  int turned = 0;
  for (const char byte : allBytes()) {
    EXPECT_EQ(LowerByte(LowerByte(byte)), LowerByte(byte));
    turned += LowerByte(byte) != byte ? 1 : 0;
  }
  EXPECT_EQ(turned, 26 + 30 + 4);
}

}  // namespace
}  // namespace varlo
