#include "shell/text/colour_text.h"

#include <array>
#include <cstdlib>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "tests/shell/text/slow_colouring.h"
#include "tests/support/fake_rich_text.h"

namespace varlo {
namespace {

using test::ColouredSlowly;
using test::FakeRichText;

// The colours of a text as letters, line ends as they are: plain text, tag, comment, variable.
std::string lettersOf(const FakeRichText& edit) {
  std::string letters;
  for (std::size_t i = 0; i < edit.text().size(); ++i) {
    const char c = edit.text()[i];
    letters += c == '\r' || c == '\n' ? c : "ptcv"[static_cast<std::size_t>(stateOf(edit.colours()[i]))];
  }
  return letters;
}

void pass(FakeRichText& edit, bool wholeText) {
  bool colouring = false;
  colourText(edit, wholeText, colouring);
}

std::string coloured(std::string_view text) {
  FakeRichText edit(text);
  pass(edit, true);
  return lettersOf(edit);
}

// Puts `text` at a position, as a user types it, with a pass behind each character.
void type(FakeRichText& edit, std::size_t position, std::string_view text) {
  edit.select({static_cast<int>(position), static_cast<int>(position)});
  for (const char c : text) {
    edit.replaceSelection(std::string_view(&c, 1));
    pass(edit, false);
  }
}

struct Case {
  const char* name;
  const char* text;
  const char* colours;
};

constexpr Case kCases[] = {
    {"nothing special", "a b", "ppp"},
    {"a tag with its marks", "a<b>c", "ptttp"},
    {"a comment with its marks", "a<!--b-->c", "pccccccccp"},
    {"a variable up to a blank", "a$b c", "pvvpp"},
    {"letters, digits and _ belong to a variable", "$aZ_09.", "vvvvvvp"},
    {"a $ before a digit stays in plain text", "a$5b", "pppp"},
    {"a $ before a digit stays in its tag", "<a$5b>", "tttttt"},
    {"a $ before a digit ends a variable", "$a$5", "vvpp"},
    {"a $ before a blank is a variable of one character", "a$ b", "pvpp"},
    {"a $ at the end is a variable of one character", "a$", "pv"},
    {"a $ before another ends the first", "$$a", "vvv"},
    {"a variable in a tag goes back to the tag", "<a $b c>d", "tttvvtttp"},
    {"a second variable goes back to where the first one was", "<$a$b c>d", "tvvvvtttp"},
    {"a byte from 0x80 on ends a variable", "$a\xE9 b", "vvppp"},
    {"a > closes the tag behind a variable", "<a $b>c", "tttvvtp"},
    {"a > behind a variable looks like a tag's in plain text too", "$a>b", "vvtp"},
    {"a > in plain text is plain", "a>b", "ppp"},
    {"a < in a tag begins another", "<a<b>c>", "tttttpp"},
    {"a < in a variable begins a tag", "$a<b>c", "vvtttp"},
    {"a > inside quotes closes the tag", "<a b=\">\">c", "tttttttppp"},
    {"a comment begins in a tag", "<a<!--b-->c", "ttccccccccp"},
    {"a comment begins in a variable", "$a<!--b-->c", "vvccccccccp"},
    {"behind a comment in a tag the text is plain", "<a <!--b--> c>", "tttccccccccppp"},
    {"tags, variables and comments mean nothing in a comment", "<!--<a>$b<!--c-->d", "cccccccccccccccccp"},
    {"the marks of a comment share no character", "<!-->-->a", "ccccccccp"},
    {"a comment ends at the first end", "<!----->a", "ccccccccp"},
    {"an unclosed comment goes on to the end", "a<!--b\r\n<c>\r\n$d", "pccccc\r\nccc\r\ncc"},
    {"an unclosed comment goes on to the next end", "<!--a\r\nb-->c\r\nd", "ccccc\r\nccccp\r\np"},
    {"an unclosed tag goes on to the next >", "<a\r\nb\r\nc>d", "tt\r\nt\r\nttp"},
    {"a variable ends with its line", "$a\r\nb", "vv\r\np"},
    {"a $ at the end of a line leaves the next plain", "a$\r\nb", "pv\r\np"},
    {"a $ at the end of a line in a tag leaves the next in the tag", "<a$\r\nb>", "ttv\r\ntt"},
    {"a single line feed ends a line as well", "<a\nb>$c\nd", "tt\nttvv\np"},
    {"a mark that a line end parts is none", "<!-\r\n-a-->b", "ttt\r\ntttttp"},
    {"an end that a line end parts is none", "<!--a-\r\n->b-->c", "cccccc\r\nccccccp"},
    {"an empty line changes nothing", "<a\r\n\r\nb>c", "tt\r\n\r\nttp"},
    {"no text", "", ""},
    {"a line end alone", "\r\n", "\r\n"},
};

TEST(ColourText, GivesEachPieceTheColourOfWhatItIs) {
  for (const Case& one : kCases) EXPECT_EQ(coloured(one.text), one.colours) << one.name;
}

TEST(ColourText, HasAColourForEachState) {
  EXPECT_EQ(colourOf(TextState::PlainText), ColourOf(0, 0, 0));
  EXPECT_EQ(colourOf(TextState::InTag), ColourOf(0, 0, 190));
  EXPECT_EQ(colourOf(TextState::InComment), ColourOf(0, 120, 0));
  EXPECT_EQ(colourOf(TextState::InVariable), ColourOf(250, 0, 0));
}

TEST(ColourText, TakesAnyOtherColourForPlainText) {
  EXPECT_EQ(stateOf(ColourOf(0, 0, 191)), TextState::PlainText);
  EXPECT_EQ(stateOf(ColourOf(255, 255, 255)), TextState::PlainText);
}

TEST(ColourText, AWholePassMakesNothingOfTheColoursBefore) {
  for (const Case& one : kCases) {
    FakeRichText edit;
    edit.set(one.text, kCommentColour);
    pass(edit, true);
    EXPECT_EQ(lettersOf(edit), one.colours) << one.name;
  }
}

TEST(ColourText, ASecondWholePassChangesNothing) {
  for (const Case& one : kCases) {
    FakeRichText edit(one.text);
    pass(edit, true);
    edit.select({});
    pass(edit, true);
    EXPECT_EQ(lettersOf(edit), one.colours) << one.name;
  }
}

TEST(ColourText, AWholePassBeginsAtTheLineOfTheSelectionToo) {
  FakeRichText edit("<a>\r\n<b>\r\n<c>");
  edit.select({6, 9});
  pass(edit, true);
  EXPECT_EQ(lettersOf(edit), "ppp\r\nttt\r\nttt");
}

// The line in which a pass begins.
struct StartCase {
  const char* name;
  const char* text;
  Colour colour;  // of the whole text, before the pass
  int caret;
  const char* colours;
};

constexpr StartCase kStartCases[] = {
    {"the first line begins plain behind nothing, whatever its colour: tag", "a", kTagColour, 0, "p"},
    {"the first line begins plain: comment", "a", kCommentColour, 1, "p"},
    {"the first line begins plain: variable", "a", kVariableColour, 0, "p"},
    {"a variable does not go on in the next line", "$a\r\nb", kVariableColour, 4, "vv\r\np"},
    {"a tag goes on", "<a\r\nb", kTagColour, 4, "tt\r\nt"},
    {"a tag does not go on behind a >", "a>\r\nb", kTagColour, 4, "tt\r\np"},
    {"blanks behind the > do not count", "a> \t \r\nb", kTagColour, 7, "ttttt\r\np"},
    {"a line feed alone does not either", "a>\nb", kTagColour, 3, "tt\np"},
    {"a tag goes on behind a > that is not the last", "a>b\r\nc", kTagColour, 5, "ttt\r\nt"},
    {"a tag goes on behind an empty line", "a>\r\n\r\nb", kTagColour, 6, "tt\r\n\r\nt"},
    {"a comment goes on", "a\r\nb", kCommentColour, 3, "c\r\nc"},
    {"a comment goes on behind a >", "a>\r\nb", kCommentColour, 4, "cc\r\nc"},
    {"a comment does not go on behind a ->", "a->\r\nb", kCommentColour, 5, "ccc\r\np"},
    {"a comment does not go on behind a -->", "a-->\r\nb", kCommentColour, 6, "cccc\r\np"},
    {"blanks behind the -> do not count", "a-> \t\r\nb", kCommentColour, 7, "ccccc\r\np"},
    {"a comment goes on behind a - alone", ">-\r\nb", kCommentColour, 4, "cc\r\nc"},
    {"any other colour begins plain", "a\r\nb", 0x123456, 3, "p\r\np"},
};

TEST(ColourText, CorrectsWhatALineBeginsIn) {
  for (const StartCase& one : kStartCases) {
    FakeRichText edit;
    edit.set(one.text, one.colour);
    edit.select({one.caret, one.caret});
    pass(edit, false);
    EXPECT_EQ(lettersOf(edit), one.colours) << one.name;
  }
}

TEST(ColourText, TypingALessThanColoursTheNextLinesUpToTheNextGreaterThan) {
  FakeRichText edit("a\r\nb\r\nc>d\r\ne");
  pass(edit, true);
  type(edit, 1, "<");
  EXPECT_EQ(lettersOf(edit), "pt\r\nt\r\nttp\r\np");
}

TEST(ColourText, TypingAGreaterThanGivesTheNextLinesBack) {
  FakeRichText edit("<a\r\nb\r\nc>d\r\ne");
  pass(edit, true);
  type(edit, 2, ">");
  EXPECT_EQ(lettersOf(edit), "ttt\r\np\r\nppp\r\np");
}

TEST(ColourText, TypingACommentColoursUpToTheEndOfTheTextOrOfTheComment) {
  FakeRichText edit("a\r\n<b>\r\nc");
  pass(edit, true);
  type(edit, 0, "<!--");
  EXPECT_EQ(lettersOf(edit), "ccccc\r\nccc\r\nc");
  type(edit, 5, "-->");
  EXPECT_EQ(lettersOf(edit), "cccccccc\r\nttt\r\np");
}

TEST(ColourText, WhatIsTypedBehindAVariableEndsIt) {
  FakeRichText edit;
  type(edit, 0, "<p>$TITLE costs $5");
  EXPECT_EQ(lettersOf(edit), "tttvvvvvvppppppppp");
}

TEST(ColourText, StopsAtTheLineWhoseStartHasTheRightColour) {
  FakeRichText edit("a\r\nb\r\nc");
  const std::vector<Colour> untouched(8, kCommentColour);
  edit.setColours({0, 0, 0, 0, kTagColour, 0, 0, 0});
  pass(edit, false);
  EXPECT_EQ(edit.colours()[4], kTagColour) << "The second line began in the right colour.";
  edit.setColours(untouched);
  pass(edit, false);
  EXPECT_EQ(lettersOf(edit), "p\r\np\r\np") << "Each line began in a wrong colour.";
}

TEST(ColourText, AKeyInATextLooksAtTheLinesThatItMust) {
  std::string text;
  for (int i = 0; i < 1000; ++i) text += "text <b>bold</b> $NAME\r\n";
  FakeRichText edit(text);
  pass(edit, true);
  edit.linesAsked = edit.coloured = 0;
  type(edit, text.size() / 2 / 24 * 24 + 2, "x");
  EXPECT_EQ(edit.linesAsked, 3) << "The line before, its own and the beginning of the next.";
  EXPECT_EQ(edit.coloured, 7);
}

TEST(ColourText, LeavesACaretWhereTheSelectionEnded) {
  FakeRichText edit("<a>\r\n<b>");
  edit.select({1, 6});
  pass(edit, false);
  EXPECT_EQ(edit.selection(), (TextRange{6, 6}));
  EXPECT_FALSE(edit.isColouring());
}

TEST(ColourText, DoesNothingWhileAPassIsAtWork) {
  FakeRichText edit("<a>");
  bool colouring = true;
  colourText(edit, true, colouring);
  EXPECT_EQ(edit.passes, 0);
  EXPECT_EQ(edit.coloured, 0);
  EXPECT_TRUE(colouring);
  colouring = false;
  colourText(edit, true, colouring);
  EXPECT_EQ(edit.passes, 1);
  EXPECT_FALSE(colouring);
}

TEST(ColourText, LongNamesTagsAndCommentsAreColouredWhole) {
  for (const std::size_t length : {20U, 31U, 64U, 255U, 256U, 300U, 5000U}) {
    const std::string word(length, 'w');
    const auto run = [length](char c) { return std::string(length, c); };
    EXPECT_EQ(coloured("$" + word + " <" + word + "><!--" + word + "-->" + word),
              "v" + run('v') + "pt" + run('t') + "tcccc" + run('c') + "ccc" + run('p'))
        << length;
  }
}

// Texts of marks, names and line ends, and edits of them.
class RandomText {
 public:
  explicit RandomText(unsigned seed) : random_(seed) {}

  std::size_t below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_); }

  std::string text(std::size_t pieces) {
    static constexpr std::array<const char*, 31> kPieces{
        "<",  ">",    "$",    "<!--", "-->",  "-",  "!",           "a",   "Z9",      "_",  " ",
        "\t", "\r\n", "\n",   "\r",   "\r\n", "$5", "$A",          "<b>", "</b>",    "->", "x",
        ".",  "\"",   "\xE9", "<a",   "--",   "=",  "$LONG_NAME1", "<!-", "\r\n\r\n"};
    std::string made;
    for (std::size_t i = below(pieces + 1); i > 0; --i) made += kPieces[below(kPieces.size())];
    if (below(50) == 0) made.insert(below(made.size() + 1), 20 + below(280), 'n');
    return made;
  }

  void edit(FakeRichText& edit) {
    const std::size_t from = below(edit.text().size() + 1);
    const std::size_t to = below(3) == 0 ? from + below(edit.text().size() - from + 1) : from;
    edit.select({static_cast<int>(from), static_cast<int>(to)});
    edit.replaceSelection(text(below(4) == 0 ? 12 : 1));
  }

  std::vector<Colour> colours(std::size_t size) {
    static constexpr std::array<Colour, 5> kAny{kPlainTextColour, kTagColour, kCommentColour, kVariableColour,
                                                0x808080};
    std::vector<Colour> made(size);
    for (Colour& colour : made) colour = kAny[below(kAny.size())];
    return made;
  }

 private:
  std::mt19937 random_;
};

// One text: from scratch, over the colours of something else, and after each of some edits.
void followOneText(RandomText& random) {
  FakeRichText edit(random.text(60));
  const std::vector<Colour> fromScratch = ColouredSlowly(edit.text(), edit.colours(), 0, true);
  pass(edit, true);
  ASSERT_EQ(edit.colours(), fromScratch) << edit.text();
  edit.setColours(random.colours(edit.text().size()));
  edit.select({});
  pass(edit, true);
  ASSERT_EQ(edit.colours(), fromScratch) << edit.text();
  for (int i = 0; i < 4; ++i) {
    random.edit(edit);
    const int caret = edit.selection().from;
    const std::vector<Colour> told = ColouredSlowly(edit.text(), edit.colours(), caret, false);
    pass(edit, false);
    ASSERT_EQ(edit.colours(), told) << edit.text() << "\ncaret at " << caret;
    ASSERT_EQ(edit.selection(), (TextRange{caret, caret}));
  }
}

// VARLO_RANDOM_TEXTS sets another number, as for the 100,000 of a long run.
TEST(ColourText, AgreesWithASlowTellingOverRandomTexts) {
  const char* wanted = std::getenv("VARLO_RANDOM_TEXTS");
  const int texts = wanted == nullptr ? 3000 : std::atoi(wanted);
  RandomText random(14);
  for (int i = 0; i < texts; ++i) {
    followOneText(random);
    ASSERT_FALSE(HasFatalFailure()) << "text " << i;
  }
}

}  // namespace
}  // namespace varlo
