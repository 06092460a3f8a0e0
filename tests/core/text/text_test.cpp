#include "core/text/text.h"

#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>

namespace varlo {
namespace {

TEST(Text, StartsAbsent) {
  const Text text;
  EXPECT_TRUE(text.isNull());
  EXPECT_FALSE(text.isSet());
  EXPECT_EQ(text.get(), nullptr);
  EXPECT_STREQ(text.orEmpty(), "");
  EXPECT_EQ(text.view(), "");
}

TEST(Text, EmptyIsPresentButNotSet) {
  const Text text("");
  EXPECT_FALSE(text.isNull());
  EXPECT_FALSE(text.isSet());
  EXPECT_STREQ(text.get(), "");
}

TEST(Text, NullStaysNull) {
  const char* none = nullptr;
  EXPECT_TRUE(Text(none).isNull());
  Text text("old");
  text.assign(none);
  EXPECT_TRUE(text.isNull());
}

TEST(Text, ACopyHasBytesOfItsOwn) {
  std::string source = "shelf";
  Text text(source.c_str());
  source[0] = 'X';
  Text copy(text);
  copy.data()[0] = 'S';
  EXPECT_EQ(text.view(), "shelf");
  EXPECT_EQ(copy.view(), "Shelf");
}

TEST(Text, ACopyOfAnAbsentTextIsAbsent) {
  const Text absent;
  const Text copy(absent);
  EXPECT_TRUE(copy.isNull());
  Text assigned("old");
  assigned = absent;
  EXPECT_TRUE(assigned.isNull());
}

TEST(Text, AnEmptyViewIsNeverAbsent) {
  EXPECT_FALSE(Text(std::string_view()).isNull());
  Text text;
  text.assign(std::string_view());
  EXPECT_FALSE(text.isNull());
}

TEST(Text, TakesAViewUpToItsFirstNul) {
  EXPECT_EQ(Text(std::string_view("ab\0cd", 5)).view(), "ab");
  EXPECT_EQ(Text(std::string_view("\0cd", 3)).view(), "");
}

TEST(Text, TakesALineAsItIs) {
  Text text("old");
  text.assignLine("a longer line than before");
  EXPECT_EQ(text.view(), "a longer line than before");
  text.assignLine({});
  EXPECT_FALSE(text.isNull());
  EXPECT_EQ(text.view(), "");
}

TEST(Text, AMovedTextGivesItsBytesAway) {
  Text source("title");
  const char* bytes = source.get();
  const Text target(std::move(source));
  EXPECT_EQ(target.get(), bytes);
  EXPECT_EQ(target.view(), "title");
}

TEST(Text, MoveAssignmentTakesTheBytesOver) {
  Text source("new");
  const char* bytes = source.get();
  Text target("old");
  target = std::move(source);
  EXPECT_EQ(target.get(), bytes);
  EXPECT_EQ(target.view(), "new");
}

TEST(Text, SurvivesAssignmentToItself) {
  Text text("same");
  const Text& alias = text;
  text = alias;
  EXPECT_EQ(text.view(), "same");
  text.assign(text.get());
  EXPECT_EQ(text.view(), "same");
  Text& moved = text;
  text = std::move(moved);
  EXPECT_EQ(text.view(), "same");
}

TEST(Text, TakesAPartOfItself) {
  Text text("key=value");
  text.assign(text.view().substr(4));
  EXPECT_EQ(text.view(), "value");
  text.assign(text.get() + 1);
  EXPECT_EQ(text.view(), "alue");
}

TEST(Text, ReleaseMakesItAbsentAndMayBeRepeated) {
  Text text("gone");
  text.release();
  EXPECT_TRUE(text.isNull());
  text.release();
  EXPECT_TRUE(text.isNull());
  text.assign("back");
  EXPECT_EQ(text.view(), "back");
}

TEST(Text, EqualityKeepsAbsentAndEmptyApart) {
  EXPECT_TRUE(Text() == Text());
  EXPECT_TRUE(Text("") == Text(""));
  EXPECT_FALSE(Text() == Text(""));
  EXPECT_FALSE(Text("") == Text());
  EXPECT_TRUE(Text("a") == Text("a"));
  EXPECT_FALSE(Text("a") == Text("A"));
  EXPECT_FALSE(Text("a") == Text("ab"));
}

TEST(Text, KeepsBytesAboveSevenBits) { EXPECT_EQ(Text("\xA9\xFF\x80").view(), "\xA9\xFF\x80"); }

TEST(Text, MadeOfAStringItIsANewCopyAndNullForNull) {
  std::string original = "name";
  const Text copy(original.c_str());
  original[0] = 'g';
  EXPECT_EQ(copy.view(), "name");
  EXPECT_TRUE(Text(static_cast<const char*>(nullptr)).isNull());
}

}  // namespace
}  // namespace varlo
