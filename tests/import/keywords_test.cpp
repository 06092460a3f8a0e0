#include "import/keywords.h"

#include <algorithm>
#include <initializer_list>
#include <random>

#include <gmock/gmock.h>

namespace varlo {
namespace {

constexpr std::string_view kFifteen = "a,b,c,d,e,f,g,h,i,j,k,l,m,n,o";

Keywords split(std::string_view text, std::size_t reached) {
  std::size_t count = 0;
  Keywords keywords = SplitKeywords(text, count);
  EXPECT_EQ(count, reached);
  return keywords;
}

Text joined(std::initializer_list<const char*> fields, const char* additional = "") {
  Keywords keywords;
  std::size_t i = 0;
  for (const char* field : fields) keywords.field[i++] = field;
  keywords.additional = additional;
  return JoinKeywords(keywords);
}

TEST(SplitKeywords, EachKeywordGetsAField) {
  const Keywords keywords = split("a,b,c", 3);
  EXPECT_EQ(keywords.field[0], "a");
  EXPECT_EQ(keywords.field[1], "b");
  EXPECT_EQ(keywords.field[2], "c");
  EXPECT_EQ(keywords.field[3], "");
  EXPECT_EQ(keywords.additional, "");
}

TEST(SplitKeywords, AnEmptyKeywordLeavesItsFieldEmpty) {
  const Keywords keywords = split("a,,c", 3);
  EXPECT_EQ(keywords.field[1], "");
  EXPECT_EQ(keywords.field[2], "c");
}

TEST(SplitKeywords, BlanksStay) {
  const Keywords keywords = split(" red ball , blue ", 2);
  EXPECT_EQ(keywords.field[0], " red ball ");
  EXPECT_EQ(keywords.field[1], " blue ");
}

TEST(SplitKeywords, ACommaAtTheEndReachesOneFieldMore) { EXPECT_EQ(split("a,", 2).field[1], ""); }

TEST(SplitKeywords, AKeywordOfAnyLengthIsTakenWhole) {
  const std::string longKeyword(200, 'k');
  EXPECT_EQ(split(longKeyword + ",b", 2).field[0], longKeyword);
}

TEST(SplitKeywords, FifteenKeywordsFillTheFields) {
  const Keywords keywords = split(kFifteen, 15);
  EXPECT_EQ(keywords.field[14], "o");
  EXPECT_EQ(keywords.additional, "");
}

TEST(SplitKeywords, OfSeventeenKeywordsTwoAreAdditional) {
  const Keywords keywords = split(std::string(kFifteen) + ",p,q", 15);
  EXPECT_EQ(keywords.field[14], "o");
  EXPECT_EQ(keywords.additional, "p,q");
}

TEST(SplitKeywords, ACommaBehindTheFifteenthLeavesNothingAdditional) {
  EXPECT_EQ(split(std::string(kFifteen) + ",", 15).additional, "");
}

TEST(JoinKeywords, FieldsAreJoinedByCommasWithoutTheEmptyOnes) {
  EXPECT_STREQ(joined({"a", "b", "c"}).get(), "a,b,c");
  EXPECT_STREQ(joined({"a", "", "c"}).get(), "a,c");
  EXPECT_STREQ(joined({"", "", "c"}, "d").get(), "c,d");
  EXPECT_STREQ(joined({}, "p,q").get(), "p,q");
}

TEST(JoinKeywords, WithNothingInAnyFieldThereAreNone) { EXPECT_TRUE(joined({"", ""}).isNull()); }

TEST(JoinKeywords, TrailingBlanksAndLineEndsAreCutAndThenOneComma) {
  EXPECT_STREQ(joined({"a", "b \r\n "}).get(), "a,b");
  EXPECT_STREQ(joined({"a"}, "b, ").get(), "a,b");
  EXPECT_STREQ(joined({"a"}, "b,,").get(), "a,b,");
  EXPECT_STREQ(joined({"a"}, "b ,").get(), "a,b ");
}

TEST(JoinKeywords, BlanksAloneAreTheEmptyText) {
  const Text keywords = joined({"  "});
  EXPECT_FALSE(keywords.isNull());
  EXPECT_STREQ(keywords.get(), "");
}

TEST(JoinKeywords, ACommaAloneIsTheEmptyText) { EXPECT_STREQ(joined({","}).get(), ""); }

TEST(JoinKeywords, KeywordsWithoutEmptyOnesComeBackAsTheyWere) {
  std::mt19937 random(3);
  for (int i = 0; i < 2000; ++i) {
    std::string text;
    const std::size_t count = 1 + random() % 25;
    for (std::size_t part = 0; part < count; ++part) {
      text.append(part == 0 ? "" : ",").append(1 + random() % 60, 'k');
    }
    std::size_t reached = 0;
    EXPECT_EQ(JoinKeywords(SplitKeywords(text, reached)).view(), text);
    EXPECT_EQ(reached, std::min(count, kKeywordFields));
  }
}

}  // namespace
}  // namespace varlo
