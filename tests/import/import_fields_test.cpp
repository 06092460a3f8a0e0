#include "import/import_fields.h"

#include <string>

#include <gmock/gmock.h>

#include "import/import_dialect.h"
#include "tests/import/plain_fields.h"

namespace varlo {
namespace {

const ImportDialect kDefault;
const ImportDialect kBackSlash{.quoteEscape = "\\"};

std::vector<std::string> fields(const ImportDialect& dialect, std::string_view line) {
  std::vector<std::string> all;
  const auto count = static_cast<std::size_t>(CountFields(dialect, line));
  for (std::size_t column = 0; column < count; ++column) all.push_back(GetField(dialect, line, column));
  return all;
}

using testing::ElementsAre;

// Quote tests.

TEST(IsQuoteAt, TheFirstByteIsAQuoteWhenItIsTheQuoteByte) {
  EXPECT_TRUE(IsQuoteAt(kDefault, "\"a", 0, 0));
  EXPECT_FALSE(IsQuoteAt(kDefault, "a\"", 0, 0));
  EXPECT_TRUE(IsQuoteAt(kBackSlash, "\\\"a", 1, 1));  // what stands in front of the start is not looked at
}

TEST(IsQuoteAt, OfDoubledQuotesThoseAtOddPlacesOfTheirRunCount) {
  const std::string_view text = "a\"\"\"b\"";
  EXPECT_FALSE(IsQuoteAt(kDefault, text, 0, 0));
  EXPECT_TRUE(IsQuoteAt(kDefault, text, 0, 1));
  EXPECT_FALSE(IsQuoteAt(kDefault, text, 0, 2));
  EXPECT_TRUE(IsQuoteAt(kDefault, text, 0, 3));
  EXPECT_FALSE(IsQuoteAt(kDefault, text, 0, 4));
  EXPECT_TRUE(IsQuoteAt(kDefault, text, 0, 5));
}

TEST(IsQuoteAt, ARunBeginsAtTheStartOfTheText) {
  EXPECT_FALSE(IsQuoteAt(kDefault, "\"\"\"\"", 0, 3));
  EXPECT_TRUE(IsQuoteAt(kDefault, "\"\"\"\"", 1, 3));
}

TEST(IsQuoteAt, WithAnotherEscapeAQuoteBehindItDoesNotCount) {
  const std::string_view text = "a\"\\\"\"";
  EXPECT_TRUE(IsQuoteAt(kBackSlash, text, 0, 1));
  EXPECT_FALSE(IsQuoteAt(kBackSlash, text, 0, 2));
  EXPECT_FALSE(IsQuoteAt(kBackSlash, text, 0, 3));
  EXPECT_TRUE(IsQuoteAt(kBackSlash, text, 0, 4));
}

TEST(IsQuoteAt, WithoutAQuoteNothingIs) {
  EXPECT_FALSE(IsQuoteAt({.quote = ""}, "\"", 0, 0));
  EXPECT_FALSE(IsQuoteAt({.quote = "", .quoteEscape = ""}, "\"\"", 0, 1));
}

TEST(IsQuoteAt, WithoutAnEscapeEveryQuoteIs) {
  EXPECT_TRUE(IsQuoteAt({.quoteEscape = ""}, "\"\"\"", 0, 1));
  EXPECT_TRUE(IsQuoteAt({.quoteEscape = ""}, "\"\"\"", 0, 2));
}

TEST(IsQuoteAt, APlaceInFrontOfTheStartHasNoRun) { EXPECT_FALSE(IsQuoteAt(kDefault, "a\"b\"", 3, 1)); }

TEST(IsEscapedQuote, NeedsTheEscapeAndThenTheQuote) {
  EXPECT_TRUE(IsEscapedQuote(kDefault, "\"\"", 0));
  EXPECT_FALSE(IsEscapedQuote(kDefault, "\"\"", 1));
  EXPECT_FALSE(IsEscapedQuote(kDefault, "\"a\"", 0));
  EXPECT_TRUE(IsEscapedQuote(kBackSlash, "\\\"", 0));
  EXPECT_FALSE(IsEscapedQuote(kBackSlash, "\"\"", 0));
  EXPECT_FALSE(IsEscapedQuote({.quoteEscape = ""}, "\"\"", 0));
  EXPECT_FALSE(IsEscapedQuote({.quote = ""}, "\"\"", 0));
}

// CountFields.

TEST(CountFields, IsAtLeastOne) {
  EXPECT_EQ(CountFields(kDefault, ""), 1);
  EXPECT_EQ(CountFields(kDefault, "abc"), 1);
}

TEST(CountFields, CountsDelimitersOutsideOfQuotes) {
  EXPECT_EQ(CountFields(kDefault, "a,b,c"), 3);
  EXPECT_EQ(CountFields(kDefault, ",,"), 3);
  EXPECT_EQ(CountFields(kDefault, "\"a,b\",c"), 2);
  EXPECT_EQ(CountFields(kDefault, "\"a\"\",\"\"b\",c"), 2);
  EXPECT_EQ(CountFields(kBackSlash, "\"a\\\",b\",c"), 2);
}

TEST(CountFields, AnOpeningQuoteWithoutAnEndStopsTheCount) {
  EXPECT_EQ(CountFields(kDefault, "a,\"b,c,d"), 2);
  EXPECT_EQ(CountFields(kDefault, "17\" screen,19\" screen,a"), 2);
}

TEST(CountFields, TwoQuotesAreAnEscapedQuoteAndOpenNothing) { EXPECT_EQ(CountFields(kDefault, "\"\",a,b"), 3); }

TEST(CountFields, BehindAClosingQuoteAQuoteOpensNothing) {
  EXPECT_EQ(CountFields({.quoteEscape = ""}, "\"a\"\"b,c,d"), 3);
}

TEST(CountFields, WithoutADelimiterALineIsOneField) {
  EXPECT_EQ(CountFields({.fieldDelimiter = '\0'}, "a,b;c"), 1);
  EXPECT_THAT(fields({.fieldDelimiter = '\0'}, " a,b;c"), ElementsAre(" a,b;c"));
}

TEST(CountFields, WithoutAQuoteOnlyDelimitersCount) { EXPECT_EQ(CountFields({.quote = ""}, "\"a,b\",c"), 3); }

// GetField: plain fields.

TEST(GetField, PlainFieldsAreTakenBetweenTheDelimiters) {
  EXPECT_THAT(fields(kDefault, "a,b c,,d"), ElementsAre("a", "b c", "", "d"));
  EXPECT_THAT(fields({.fieldDelimiter = ';'}, "a;b,c;d"), ElementsAre("a", "b,c", "d"));
}

TEST(GetField, AColumnThatTheLineDoesNotHaveIsEmpty) {
  EXPECT_EQ(GetField(kDefault, "a,b", 2), "");
  EXPECT_EQ(GetField(kDefault, "a,b", 3), "");
  EXPECT_EQ(GetField(kDefault, "", 0), "");
  EXPECT_EQ(GetField(kDefault, "\"a\"", 1), "");
}

TEST(GetField, ALeadingBlankGoesAndATrailingOneStays) {
  EXPECT_EQ(GetField(kDefault, "a, 12,b", 1), "12");
  EXPECT_EQ(GetField(kDefault, "a,12 ,b", 1), "12 ");
  EXPECT_EQ(GetField(kDefault, " 12 ,b", 0), "12 ");
  EXPECT_EQ(GetField(kDefault, "a, \t\v\f\r12", 1), "12");
}

TEST(GetField, NoWhiteSpaceIsSkippedInALineOfOneField) { EXPECT_EQ(GetField(kDefault, "  a", 0), "  a"); }

TEST(GetField, AFieldOfBlanksIsEmpty) {
  EXPECT_EQ(GetField(kDefault, "a,  ,b", 1), "");
  EXPECT_EQ(GetField(kDefault, "a,  ", 1), "");
  EXPECT_EQ(GetField(kDefault, "  ,a", 0), "");
}

TEST(GetField, BetweenTabsWhiteSpaceIsTheDelimiterTooAndEmptyFieldsMove) {
  const ImportDialect tabs{.fieldDelimiter = '\t'};
  EXPECT_THAT(fields(tabs, "a\tb\tc"), ElementsAre("a", "b", "c"));
  EXPECT_THAT(fields(tabs, "a\t\tb\tc"), ElementsAre("a", "b", "b", "c"));
}

// GetField: quoted fields.

TEST(GetField, AQuotedFieldLosesItsQuotes) {
  EXPECT_THAT(fields(kDefault, "\"a\",\"b,c\",\"d\""), ElementsAre("a", "b,c", "d"));
  EXPECT_THAT(fields(kDefault, "\"a\", \"b\" ,c"), ElementsAre("a", "b\"", "c"));
}

TEST(GetField, ADoubledQuoteIsOneQuote) {
  EXPECT_EQ(GetField(kDefault, "\"a\"\"b\"", 0), "a\"b");
  EXPECT_EQ(GetField(kDefault, "x,\"17\"\" screen\",y", 1), "17\" screen");
}

TEST(GetField, AnEscapedQuoteIsOneQuote) {
  EXPECT_THAT(fields(kBackSlash, "\"a\\\"b\",c\\\"d"), ElementsAre("a\"b", "c\"d"));
}

TEST(GetField, AnEmptyQuotedFieldInFrontOfADelimiterIsOneQuote) {
  EXPECT_EQ(GetField(kDefault, "\"\",a", 0), "\"");
  EXPECT_EQ(GetField(kDefault, "a,\"\",b", 1), "\"");
}

TEST(GetField, AnEmptyQuotedFieldAtTheEndIsOneQuote) { EXPECT_EQ(GetField(kDefault, "a,\"\"", 1), "\""); }

TEST(GetField, WithAnotherEscapeAnEmptyQuotedFieldTakesTheRestOfTheLine) {
  EXPECT_EQ(GetField(kBackSlash, "\"\",a", 0), "\"\",a");
  EXPECT_EQ(GetField(kBackSlash, "a,\"\",b", 1), "\"\",b");
}

TEST(GetField, TextBehindTheClosingQuoteStaysButForItsLastByte) {
  EXPECT_EQ(GetField(kDefault, "x,\"abc\"def,y", 1), "abc\"de");
  EXPECT_EQ(GetField(kDefault, "x,\"abc\" ,y", 1), "abc\"");
}

TEST(GetField, TextBehindTheClosingQuoteAtTheEndOfTheLineStaysWhole) {
  EXPECT_EQ(GetField(kDefault, "x,\"abc\"def", 1), "abc\"def");
  EXPECT_EQ(GetField(kDefault, "x,\"abc\" ", 1), "abc\" ");
}

TEST(GetField, BehindTheClosingQuoteTheNextQuoteEndsTheField) {
  EXPECT_EQ(GetField(kDefault, "\"abc\"de\"f,g", 0), "abc\"de");
  EXPECT_EQ(GetField(kBackSlash, "\"abc\"\"def\",g", 0), "abc\"");
}

TEST(GetField, AQuoteInTheMiddleOfAFieldOpensToo) {
  EXPECT_EQ(GetField(kDefault, "ab\"c,d\",e", 0), "ab\"c,d");
  EXPECT_EQ(GetField(kDefault, " \"a,b\",c", 0), " \"a,b");
}

TEST(GetField, ALeadingBlankBeforeAQuotedFirstColumnStays) {
  EXPECT_EQ(GetField(kDefault, " \"a\",b", 0), " \"a");
  EXPECT_EQ(GetField(kDefault, "b, \"a\",c", 1), "a");
}

TEST(GetField, WithoutAClosingQuoteAFieldIsTheRestOfTheLineWithItsQuote) {
  EXPECT_EQ(GetField(kDefault, "a,\"b,c,d", 1), "\"b,c,d");
  EXPECT_EQ(GetField(kDefault, "a,x\"b,c,d", 1), "x\"b,c,d");
}

TEST(GetField, BehindAQuoteThatNeverClosesThereAreNoFields) {
  EXPECT_EQ(GetField(kDefault, "a,\"b,c,d", 2), "");
  EXPECT_EQ(GetField(kDefault, "a,\"b,c,d", 3), "");
  EXPECT_EQ(CountFields(kDefault, "a,\"b,c,d"), 2);
}

TEST(GetField, BehindAFieldThatIsPassedOverAQuoteOpensNothing) {
  EXPECT_EQ(GetField({.quoteEscape = ""}, "\"a\"\"b,c\",d", 1), "c\",d");
}

TEST(GetField, TheRunOfQuotesIsCountedFromTheFieldAndNotFromTheLine) {
  // From the line's start the second field would begin at an even place of the run.
  const ImportDialect quotes{.fieldDelimiter = '"'};
  EXPECT_EQ(GetField(quotes, "a\"\"b", 0), test::PlainGetField({.delimiter = '"'}, "a\"\"b", 0));
  EXPECT_EQ(GetField(quotes, "a\"\"b", 1), test::PlainGetField({.delimiter = '"'}, "a\"\"b", 1));
}

TEST(GetField, PairsAreReplacedFromLeftToRightAndNotLookedAtAgain) {
  EXPECT_EQ(GetField(kDefault, "a\"\"\"\"b", 0), "a\"\"b");
  EXPECT_EQ(GetField(kDefault, "x,\"\"\"\",y", 1), test::PlainGetField({}, "x,\"\"\"\",y", 1));
}

TEST(GetField, OfLongerTextsTheFirstByteCounts) {
  const ImportDialect dialect{.quote = "^quote", .quoteEscape = "^escape"};
  EXPECT_THAT(fields(dialect, "^a,b^,^c^^d^"), ElementsAre("a,b", "c^d"));
}

TEST(GetField, WithoutAQuoteNothingIsQuotedOrUnescaped) {
  EXPECT_THAT(fields({.quote = ""}, "\"a\",b\"\"c"), ElementsAre("\"a\"", "b\"\"c"));
}

TEST(GetField, WithoutAnEscapeNothingIsUnescaped) {
  EXPECT_THAT(fields({.quoteEscape = ""}, "\"a\",b"), ElementsAre("a", "b"));
  EXPECT_EQ(GetField({.quoteEscape = ""}, "x,b\\\"c", 1), "b\\\"c");
}

TEST(GetField, ABlankAsQuoteIsStillDefined) {
  const ImportDialect blanks{.quote = " ", .quoteEscape = "\\"};
  const test::PlainDialect plain{.quote = ' ', .escape = '\\'};
  for (const char* line : {"a,  b, c", "a,   ", " , ,  ,", "a,\t b, c "}) {
    for (int column = 0; column < 4; ++column) {
      EXPECT_EQ(GetField(blanks, line, static_cast<std::size_t>(column)), test::PlainGetField(plain, line, column));
    }
  }
}

TEST(GetField, ALineOfQuotesAloneTakesNoLongerThanAnother) {
  // With the square of its length a single line of this size would take minutes.
  const std::string quotes(2000000, '"');
  EXPECT_EQ(CountFields(kDefault, quotes), 1);
  EXPECT_EQ(GetField(kDefault, quotes, 1), "");
  EXPECT_EQ(CountFields(kBackSlash, quotes), 1);
}

}  // namespace
}  // namespace varlo
