#include "core/text/line_escape.h"

#include <random>
#include <string>

#include <gtest/gtest.h>

#include "core/text/limits.h"

namespace varlo {
namespace {

std::string escaped(std::string_view text) {
  std::string buffer = "left over";
  return std::string(EscapeLines(text, buffer));
}

std::string unescaped(std::string_view text) {
  std::string buffer = "left over";
  return std::string(UnescapeLines(text, buffer));
}

TEST(EscapeLines, EscapesCrLfAndLeavesABareLf) { EXPECT_EQ(escaped("a\r\nb\nc"), "a@@@b\nc"); }
TEST(EscapeLines, LeavesABareCr) { EXPECT_EQ(escaped("a\rb\r"), "a\rb\r"); }
TEST(EscapeLines, ReplacesEveryPair) { EXPECT_EQ(escaped("\r\n\r\na\r\n"), "@@@@@@a@@@"); }
TEST(EscapeLines, TakesTheLastCrOfARow) { EXPECT_EQ(escaped("\r\r\n\n"), "\r@@@\n"); }
TEST(EscapeLines, LeavesATextWithoutLineEnds) { EXPECT_EQ(escaped("plain"), "plain"); }
TEST(EscapeLines, TakesTheEmptyText) { EXPECT_EQ(escaped(""), ""); }
TEST(EscapeLines, LeavesAnEscapeThatIsInTheText) { EXPECT_EQ(escaped("a@@@b"), "a@@@b"); }

TEST(EscapeLines, CutsTheTextAt20000BytesBeforeItEscapes) {
  const std::string exact(kLineBuffer, 'x');
  EXPECT_EQ(escaped(exact), exact);
  EXPECT_EQ(escaped(exact + "y"), exact);
  const std::string front(kLineBuffer - 2, 'x');
  EXPECT_EQ(escaped(front + "\r\nrest"), front + "@@@");
}

TEST(EscapeLines, ACutThroughAPairLeavesItsCr) {
  const std::string front(kLineBuffer - 1, 'x');
  EXPECT_EQ(escaped(front + "\r\nrest"), front + "\r");
}

TEST(EscapeLines, MayGrowBeyondTheCut) {
  std::string text;
  std::string expected;
  for (std::size_t i = 0; i < kLineBuffer / 2; ++i) {
    text += "\r\n";
    expected += "@@@";
  }
  EXPECT_EQ(escaped(text), expected);
}

TEST(UnescapeLines, PutsLineEndsBack) { EXPECT_EQ(unescaped("a@@@b@@@@@@"), "a\r\nb\r\n\r\n"); }
TEST(UnescapeLines, LeavesOneOrTwoSigns) { EXPECT_EQ(unescaped("@ @@ a@b.c"), "@ @@ a@b.c"); }
TEST(UnescapeLines, TakesTheFirstThreeOfALongerRow) { EXPECT_EQ(unescaped("@@@@@"), "\r\n@@"); }
TEST(UnescapeLines, LeavesABareLf) { EXPECT_EQ(unescaped("a\nb"), "a\nb"); }
TEST(UnescapeLines, TakesTheEmptyText) { EXPECT_EQ(unescaped(""), ""); }
TEST(UnescapeLines, HasNoLimit) { EXPECT_EQ(unescaped(std::string(30000, '@')).size(), 20000U); }

TEST(UnescapeLines, ATextThatHoldsTheEscapeComesBackWithALineEnd) {
  EXPECT_EQ(unescaped(escaped("a@@@b\r\nc")), "a\r\nb\r\nc");
}

TEST(UnescapeLines, UndoesTheEscapeOfATextWithoutSigns) {
  std::mt19937 random(7);
  const std::string_view bytes = "\r\n\r\nab";
  for (int round = 0; round < 2000; ++round) {
    std::string text;
    for (std::size_t left = random() % 60; left > 0; --left) text += bytes[random() % bytes.size()];
    const std::string once = escaped(text);
    EXPECT_EQ(once.find("\r\n"), std::string::npos);
    EXPECT_EQ(unescaped(once), text);
  }
}

}  // namespace
}  // namespace varlo
