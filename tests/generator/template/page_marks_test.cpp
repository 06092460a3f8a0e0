#include "generator/template/page_marks.h"

#include <random>

#include <gtest/gtest.h>

#include "core/text/text_edit.h"

namespace varlo {
namespace {

std::string block(std::string_view text) {
  const ShelfBlock found = FindShelfBlock(text);
  if (!found.found) return "(none)";
  return std::string(text.substr(0, found.begin))
      .append("{")
      .append(found.block)
      .append("}")
      .append(text.substr(found.end));
}
std::string opened(std::string text) {
  OpenPlusComment(text);
  return text;
}
std::string unmarked(std::string text) {
  RemoveShelfMarks(text);
  return text;
}
std::string uncommented(std::string text) {
  const bool complete = RemoveComments(text);
  return (complete ? "" : "open: ") + text;
}

TEST(ShelfBlock, StandsBetweenTheFirstTwoMarksInAnyCase) {
  EXPECT_EQ(block("a<SHELF>b</SHELF>c"), "a{b}c");
  EXPECT_EQ(block("a<shelf>b</Shelf>c"), "a{b}c");
  EXPECT_EQ(block("<SHELF>1</SHELF><SHELF>2</SHELF>"), "{1}<SHELF>2</SHELF>");
  EXPECT_EQ(block("<SHELF>1<SHELF>2</SHELF>"), "{1<SHELF>2}");
}

TEST(ShelfBlock, MayBeEmpty) { EXPECT_EQ(block("a<SHELF></SHELF>b"), "a{}b"); }

TEST(ShelfBlock, NeedsBothMarksInTheirOrder) {
  EXPECT_EQ(block(""), "(none)");
  EXPECT_EQ(block("a<SHELF>b"), "(none)");
  EXPECT_EQ(block("a</SHELF>b"), "(none)");
  EXPECT_EQ(block("a</SHELF>b<SHELF>c"), "(none)");
  EXPECT_EQ(block("</SHELF><SHELF>c</SHELF>"), "(none)") << "each is the first from the start";
  EXPECT_EQ(block("<SHELF >b</SHELF>"), "(none)");
}

TEST(PlusComment, TheFirstPairIsOpened) {
  EXPECT_EQ(opened("a<!--+b+-->c<!--+d+-->"), "abc<!--+d+-->");
  EXPECT_EQ(opened("<!-- x --><!--+b+-->"), "<!-- x -->b");
}

TEST(PlusComment, EachMarkGoesByItself) {
  EXPECT_EQ(opened("a+-->b<!--+c"), "abc");
  EXPECT_EQ(opened("a<!--+b"), "ab");
  EXPECT_EQ(opened("a++-->b"), "a+b");
  EXPECT_EQ(opened("a<!--b-->"), "a<!--b-->");
  EXPECT_EQ(opened("a+b"), "a+b");
}

TEST(ShelfMarks, AllGoInAnyCase) {
  EXPECT_EQ(unmarked("a<SHELF>b</shelf>c<Shelf>d</SHELF>"), "abcd");
  EXPECT_EQ(unmarked("a<SHELFb>"), "a<SHELFb>");
  EXPECT_EQ(unmarked("half> of"), "half> of");
}

TEST(ShelfMarks, OnesThatComeAboutGoAsWell) {
  EXPECT_EQ(unmarked("a<SH<SHELF>ELF>b"), "ab");
  EXPECT_EQ(unmarked("a<<SHELF>/SHELF>b"), "ab") << "the closing marks go behind the opening ones";
  EXPECT_EQ(unmarked("a<SH</SHELF>ELF>b"), "a<SHELF>b");
}

TEST(ShelfMarks, ManyTakeNoLongerThanTheirBytes) {
  std::string text;
  for (int i = 0; i < 200000; ++i) text += "<SHELF>";
  EXPECT_EQ(unmarked(text + "x"), "x");
}

TEST(ShelfMarks, AreRemovedAsByALoopFromTheFront) {
  std::mt19937 random(3);
  constexpr std::string_view kPieces[] = {"<SHELF>", "</shelf>", "<SH", "ELF>", "<", "/", "x", "f>"};
  for (int i = 0; i < 50000; ++i) {
    std::string text;
    for (std::size_t left = random() % 8; left > 0; --left) text += kPieces[random() % 8];
    std::string expected = text;
    while (TextReplaceNoCase(expected, "<SHELF>", "") != std::string::npos) {
    }
    while (TextReplaceNoCase(expected, "</SHELF>", "") != std::string::npos) {
    }
    ASSERT_EQ(unmarked(text), expected) << text;
  }
}

TEST(Comments, AreCutFromTheirStartThroughTheirEnd) {
  EXPECT_EQ(uncommented("a<!-- b -->c<!---->d"), "acd");
  EXPECT_EQ(uncommented("<script><!-- code --></script>"), "<script></script>");
  EXPECT_EQ(uncommented("no comment! here-->"), "no comment! here-->");
}

TEST(Comments, OneInsideAnotherEndsItAtTheFirstEnd) {
  EXPECT_EQ(uncommented("a<!-- b <!-- c --> d --> e"), "a d --> e");
}

TEST(Comments, TheTwoMarksMayShareTheirHyphens) {
  EXPECT_EQ(uncommented("a<!-->b"), "ab");
  EXPECT_EQ(uncommented("a<!--->b"), "ab");
  EXPECT_EQ(uncommented("a<!->b"), "a<!->b");
}

TEST(Comments, OneWithoutAnEndStaysWithTheRest) {
  EXPECT_EQ(uncommented("a<!-- b --><!-- c"), "open: a<!-- c");
  EXPECT_EQ(uncommented("<!--"), "open: <!--");
  EXPECT_EQ(uncommented("a<!-- b -- >"), "open: a<!-- b -- >");
}

TEST(Comments, TheSearchGoesOnAtTheSamePlace) {
  EXPECT_EQ(uncommented("<!<!-- x -->-- y -->"), "<!-- y -->") << "a comment that only comes about stays";
}

}  // namespace
}  // namespace varlo
