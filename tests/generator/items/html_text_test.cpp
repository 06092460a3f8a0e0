#include "generator/items/html_text.h"

#include <array>
#include <cstring>

#include <gtest/gtest.h>

#include "core/store/store_node.h"

namespace varlo {
namespace {

std::string stripped(std::string text) {
  StripTags(text);
  return text;
}
std::string decoded(std::string text) {
  HtmlToText(text);
  return text;
}

// Tags.

TEST(StripTags, TagsGoAndTheTextBetweenThemStays) {
  EXPECT_EQ(stripped("<b>Red</b> shoe"), "Red shoe");
  EXPECT_EQ(stripped("no tags"), "no tags");
  EXPECT_EQ(stripped("<img src=a.gif>"), "");
  EXPECT_EQ(stripped("a<b<c>d"), "ad");
  EXPECT_EQ(stripped(""), "");
}

TEST(StripTags, AGreaterSignInQuotesDoesNotEndATag) {
  EXPECT_EQ(stripped("<a title=\"x>y\">z"), "z");
  EXPECT_EQ(stripped("<a title='x>y'>z"), "z");
  EXPECT_EQ(stripped("<a title=\"it's>\">z"), "z");
  EXPECT_EQ(stripped("5\" <b>wide</b>"), "5\" wide") << "a quote in front of the tag does not count";
}

TEST(StripTags, AQuoteWithoutAnEndEndsAtTheLine) {
  EXPECT_EQ(stripped("<a title=\"x\r\n>y"), "y");
  EXPECT_EQ(stripped("<a title='x\n>y"), "y");
}

TEST(StripTags, ALessSignWithoutAnEndStopsTheWorkAndStays) {
  EXPECT_EQ(stripped("<b>a</b> 1 < 2"), "a 1 < 2");
  EXPECT_EQ(stripped("<a title=\"x>y"), "<a title=\"x>y");
  EXPECT_EQ(stripped("a < b <c title='"), "a < b <c title='");
}

TEST(StripTags, AnEmptiedPlaceDoesNotMakeATag) {
  EXPECT_EQ(stripped("<<b>>x"), ">x") << "the first tag goes from the first sign to the next end";
}

// References.

TEST(HtmlToText, ANumberOfThreeDigitsIsItsByte) {
  EXPECT_EQ(decoded("a&#233;b"),
            "a\xE9"
            "b");
  EXPECT_EQ(decoded("&#065;&#066;"), "AB");
  EXPECT_EQ(decoded("&#353;"), "a") << "the low byte counts";
  EXPECT_EQ(decoded("&#1025;"), "\x01") << "four digits are at least three";
}

TEST(HtmlToText, ANumberOfFewerDigitsStays) {
  EXPECT_EQ(decoded("&#65;x"), "&#65;x");
  EXPECT_EQ(decoded("&#0065;x"), "&#0065;x") << "as do more than are needed";
  EXPECT_EQ(decoded("&#0;x"), "&#0;x");
  EXPECT_EQ(decoded("&#-65;x"), "&#-65;x");
  EXPECT_EQ(decoded("&#x41;x"), "&#x41;x");
}

TEST(HtmlToText, ANumberOfFewerDigitsTakesTheSameNumberFurtherOn) {
  EXPECT_EQ(decoded("&#65;-&#065;-&#065;"), "A#65;- -A") << "the later reference turns into a blank";
}

TEST(HtmlToText, ANumberWhoseLowByteIsZeroEndsTheText) {
  EXPECT_EQ(decoded("ab&#256;cd"), "ab");
  EXPECT_EQ(decoded("a&#512;"), "a");
}

TEST(HtmlToText, TheBasicReferencesAreDecodedInAnyCase) {
  EXPECT_EQ(decoded("&quot;a&QUOT; &amp; &Amp; &lt;b&gt; &LT;&GT;"), "\"a\" & & <b> <>");
  EXPECT_EQ(decoded("&amp;lt;"), "&lt;") << "the place moves behind what was decoded";
}

TEST(HtmlToText, ANumberedAmpersandIsTakenUpAsAReference) {
  EXPECT_EQ(decoded("&#038;amp;x"), "&x");
  EXPECT_EQ(decoded("&#038;lt;"), "<");
}

TEST(HtmlToText, AnAmpersandWithoutASemicolonBehindItEndsTheDecoding) {
  EXPECT_EQ(decoded("&lt;a & b"), "<a & b");
  EXPECT_EQ(decoded("a &"), "a &");
  EXPECT_EQ(decoded("; &lt"), "; &lt");
}

TEST(HtmlToText, AnyOtherNameStopsTheDecodingForGood) {
  EXPECT_EQ(decoded("caf&eacute; &lt;b&gt;"), "caf&eacute; &lt;b&gt;");
  EXPECT_EQ(decoded("&lt; &nbsp; &lt;"), "< &nbsp; &lt;");
  EXPECT_EQ(decoded("Bed & Table; &lt;"), "Bed & Table; &lt;");
}

TEST(HtmlToText, AnEthFurtherOnIsDecodedInAnyCaseAndWhatLayBetweenStays) {
  EXPECT_EQ(decoded("&nbsp; &lt; &ETH; &lt;"), "&nbsp; &lt; \xD0 <");
  EXPECT_EQ(decoded("&nbsp; &eth; &lt;"), "&nbsp; \xD0 <") << "with the byte of the capital letter";
  EXPECT_EQ(decoded("&eth;"), "\xD0");
  EXPECT_EQ(decoded("&Eth;x"), "\xD0x");
}

TEST(HtmlToText, AtAnEthItselfTheNextEntryIsLookedForFurtherOn) {
  EXPECT_EQ(decoded("&ETH;&lt;"), "&ETH;&lt;");
  EXPECT_EQ(decoded("&ETH; &lt; &AUML; &lt;"), "&ETH; &lt; \xC4 <");
  EXPECT_EQ(decoded("&ETH; &ETH;"), "&ETH; &ETH;");
}

TEST(HtmlToText, TheListIsSearchedFromItsStartForEachReference) {
  EXPECT_EQ(decoded("&nbsp;&ETH;&nbsp;&ETH;&nbsp;"), "&nbsp;\xD0&nbsp;\xD0&nbsp;");
}

TEST(HtmlToText, TagsGoFirst) {
  EXPECT_EQ(decoded("<b>&lt;i&gt;</b>"), "<i>");
  EXPECT_EQ(decoded("&<b>lt;</b>"), "<");
}

// The whole vocabulary, by the codes of ISO 8859-1.
TEST(HtmlReferences, AllStandInTheirOrderWithTheirBytes) {
  constexpr std::array<std::pair<const char*, int>, 94> kExpected{
      {{"&ETH;", 0xD0},    {"&Auml;", 0xC4},   {"&Euml;", 0xCB},   {"&Iuml;", 0xCF},   {"&Uuml;", 0xDC},
       {"&Ouml;", 0xD6},   {"&Acirc;", 0xC2},  {"&Aring;", 0xC5},  {"&AElig;", 0xC6},  {"&Ecirc;", 0xCA},
       {"&Icirc;", 0xCE},  {"&Ucirc;", 0xDB},  {"&THORN;", 0xDE},  {"&Ocirc;", 0xD4},  {"&Oacute;", 0xD3},
       {"&Ograve;", 0xD2}, {"&Oslash;", 0xD8}, {"&Otilde;", 0xD5}, {"&Aacute;", 0xC1}, {"&Agrave;", 0xC0},
       {"&Atilde;", 0xC3}, {"&Ntilde;", 0xD1}, {"&Ccedil;", 0xC7}, {"&Egrave;", 0xC8}, {"&Eacute;", 0xC9},
       {"&Igrave;", 0xCC}, {"&Iacute;", 0xCD}, {"&Ugrave;", 0xD9}, {"&Uacute;", 0xDA}, {"&Yacute;", 0xDD},
       {"&uml;", 0xA8},    {"&deg;", 0xB0},    {"&not;", 0xAC},    {"&reg;", 0xAE},    {"&shy;", 0xAD},
       {"&yen;", 0xA5},    {"&eth;", 0xF0},    {"&sup1;", 0xB9},   {"&sup2;", 0xB2},   {"&sup3;", 0xB3},
       {"&cent;", 0xA2},   {"&copy;", 0xA9},   {"&macr;", 0xAF},   {"&ordf;", 0xAA},   {"&para;", 0xB6},
       {"&ordm;", 0xBA},   {"&auml;", 0xE4},   {"&euml;", 0xEB},   {"&iuml;", 0xEF},   {"&ouml;", 0xF6},
       {"&uuml;", 0xFC},   {"&yuml;", 0xFF},   {"&raquo;", 0xBB},  {"&pound;", 0xA3},  {"&ucirc;", 0xFB},
       {"&laquo;", 0xAB},  {"&micro;", 0xB5},  {"&acute;", 0xB4},  {"&cedil;", 0xB8},  {"&times;", 0xD7},
       {"&szlig;", 0xDF},  {"&acirc;", 0xE2},  {"&aring;", 0xE5},  {"&aelig;", 0xE6},  {"&ecirc;", 0xEA},
       {"&icirc;", 0xEE},  {"&iexcl;", 0xA1},  {"&ocirc;", 0xF4},  {"&thorn;", 0xFE},  {"&ugrave;", 0xF9},
       {"&uacute;", 0xFA}, {"&brvbar;", 0xA6}, {"&curren;", 0xA4}, {"&frac14;", 0xBC}, {"&frac12;", 0xBD},
       {"&frac34;", 0xBE}, {"&iquest;", 0xBF}, {"&middot;", 0xB7}, {"&plusmn;", 0xB1}, {"&agrave;", 0xE0},
       {"&aacute;", 0xE1}, {"&atilde;", 0xE3}, {"&ntilde;", 0xF1}, {"&ograve;", 0xF2}, {"&oacute;", 0xF3},
       {"&ccedil;", 0xE7}, {"&egrave;", 0xE8}, {"&eacute;", 0xE9}, {"&igrave;", 0xEC}, {"&iacute;", 0xED},
       {"&otilde;", 0xF5}, {"&yacute;", 0xFD}, {"&divide;", 0xF7}, {"&oslash;", 0xF8}}};
  const auto references = HtmlReferences();
  ASSERT_EQ(references.size(), kExpected.size());
  for (std::size_t i = 0; i < kExpected.size(); ++i) {
    EXPECT_EQ(references[i].name, kExpected[i].first);
    EXPECT_EQ(static_cast<unsigned char>(references[i].byte), kExpected[i].second) << kExpected[i].first;
  }
}

// Only the first two can take effect: every other name at a place gives way to the first.
TEST(HtmlReferences, AtEveryOtherNameTheFirstEntryIsTheOneLookedFor) {
  for (const HtmlReference& reference : HtmlReferences()) {
    if (reference.name == "&ETH;" || reference.name == "&eth;") continue;
    const std::string name(reference.name);
    EXPECT_EQ(decoded("a" + name + "b"), "a" + name + "b");
    EXPECT_EQ(decoded(name + "&ETH;"), name + "\xD0");
    EXPECT_EQ(decoded(name + "&lt;"), name + "&lt;");
  }
}

// The title as it is displayed.

struct DisplayTitle : testing::Test {
  StoreNode node;
  std::string of(std::string_view title) {
    node.title.assign(title);
    return displayTitle(&node);
  }
};

TEST_F(DisplayTitle, IsNothingWithoutANodeOrATitle) {
  EXPECT_STREQ(displayTitle(nullptr), "");
  EXPECT_STREQ(displayTitle(&node), "");
  EXPECT_TRUE(node.displayTitle.isNull());
  EXPECT_EQ(of(""), "");
  EXPECT_TRUE(node.displayTitle.isNull());
}

TEST_F(DisplayTitle, APlainTitleIsGivenItselfAndTheCacheLeftAlone) {
  node.displayTitle.assign("former");
  node.title.assign("Red shoe");
  EXPECT_EQ(displayTitle(&node), node.title.get());
  EXPECT_EQ(node.displayTitle.view(), "former");
}

TEST_F(DisplayTitle, ABoldTitleComesWithoutItsTags) {
  EXPECT_EQ(of("<b>Red</b> shoe"), "Red shoe");
  EXPECT_EQ(node.displayTitle.view(), "Red shoe");
  EXPECT_EQ(of("<i>Blue</i>"), "Blue") << "the cache is renewed";
  EXPECT_EQ(node.title.view(), "<i>Blue</i>");
}

TEST_F(DisplayTitle, APictureShowsItsAltText) {
  EXPECT_EQ(of("<img src=a.gif ALT=\"Red shoe\">"), "Red shoe");
  EXPECT_EQ(of("<img alt='Red > \"shoe\"' src=a.gif>"), "Red > \"shoe\"");
  EXPECT_EQ(of("<img Alt=Red src=a.gif>"), "Red");
  EXPECT_EQ(of("<img alt=Red>"), "Red");
  EXPECT_EQ(of("<img alt= \r\n\t \"Red\">"), "Red");
  EXPECT_EQ(of("<img alt='Red>"), "<img alt='Red>") << "that is no tag";
  EXPECT_EQ(of("<img alt=Red><br>"), "Red");
}

TEST_F(DisplayTitle, APictureWithoutAltTextShowsTheWholeTag) {
  EXPECT_EQ(of("<img src=a.gif>"), "<img src=a.gif>");
  EXPECT_EQ(node.displayTitle.view(), "<img src=a.gif>");
  EXPECT_EQ(of("<img alt=\"\">"), "<img alt=\"\">");
  EXPECT_EQ(of("<img alt=>"), "<img alt=>");
  EXPECT_EQ(of("<img\nalt=Red>"), "<img\nalt=Red>") << "a blank must stand in front";
}

TEST_F(DisplayTitle, ANamedReferenceStaysWithAllThatFollows) {
  EXPECT_EQ(of("Caf&eacute; <b>&lt;</b>"), "Caf&eacute; &lt;");
}

TEST_F(DisplayTitle, ALongTitleIsCutAt500BytesAndAlwaysCached) {
  const std::string title(501, 'x');
  EXPECT_EQ(of(title), std::string(500, 'x'));
  EXPECT_EQ(node.displayTitle.view().size(), 500U);
  EXPECT_EQ(of(std::string(500, 'x')).size(), 500U);
}

TEST_F(DisplayTitle, TheAltTextIsLookedForInTheWholeTitle) {
  EXPECT_EQ(of("<b title='" + std::string(488, 'y') + "'><img alt=Far>"), "Far");
  const std::string cut = "<b title='" + std::string(490, 'y');
  EXPECT_EQ(of(cut + "'><img alt=Far>"), cut) << "a tag that is cut at 500 bytes is none";
}

}  // namespace
}  // namespace varlo
