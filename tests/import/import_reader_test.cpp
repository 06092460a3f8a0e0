#include "import/import_reader.h"

#include <random>
#include <string>

#include <gmock/gmock.h>

#include "core/text/limits.h"
#include "tests/import/plain_fields.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Lines = std::vector<std::string>;

constexpr std::size_t kBlock = kImportBlock;

class ImportReader : public testing::Test {
 protected:
  test::TestProgram t;
  ImportRows rows;
  char delimiter = ',';

  Lines read(const std::string& content) {
    t.files.put("list.csv", content);
    const int count = ReadImportFile(t.program, "list.csv", rows, delimiter);
    EXPECT_EQ(static_cast<std::size_t>(count), rows.size());
    EXPECT_EQ(t.files.openHandles(), 0);
    Lines lines;
    for (const ImportRow& row : rows) lines.emplace_back(row.text.view());
    return lines;
  }
};

TEST_F(ImportReader, EachLineBecomesARowWithoutItsLineEnd) {
  EXPECT_THAT(read("a,b\nc,d\r\ne\n"), ElementsAre("a,b", "c,d", "e"));
}

TEST_F(ImportReader, AFileWithOneLineWithoutALineEndGivesNoRows) { EXPECT_THAT(read("a,b,c"), IsEmpty()); }

TEST_F(ImportReader, ALastLineWithoutALineEndIsNotImported) { EXPECT_THAT(read("a\nb"), ElementsAre("a")); }

TEST_F(ImportReader, AnEmptyFileGivesNoRows) { EXPECT_THAT(read(""), IsEmpty()); }

TEST_F(ImportReader, AFileThatIsNotThereGivesNoRowsAndNoMessage) {
  read("a\n");
  EXPECT_EQ(ReadImportFile(t.program, "none.csv", rows, delimiter), 0);
  EXPECT_THAT(rows, IsEmpty());
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST_F(ImportReader, ASecondReadReplacesTheRows) {
  read("a\nb\n");
  EXPECT_THAT(read("c\n"), ElementsAre("c"));
}

TEST_F(ImportReader, RowsAreReleased) {
  read("a\nb\n");
  ReleaseRows(rows);
  EXPECT_THAT(rows, IsEmpty());
}

TEST_F(ImportReader, TheWaitCursorIsShownWhileTheFileIsRead) {
  read("a\n");
  EXPECT_THAT(t.screen.waitCursor, ElementsAre(true, false));
}

TEST_F(ImportReader, BlankLinesAreDropped) { EXPECT_THAT(read("\n\r\na\n\n\nb\n\r\n"), ElementsAre("a", "b")); }

TEST_F(ImportReader, ALineOfBlanksIsKept) { EXPECT_THAT(read(" \n\t\r\n"), ElementsAre(" ", "\t")); }

TEST_F(ImportReader, OneCarriageReturnIsCutInFrontOfALineFeedAndNoneElsewhere) {
  EXPECT_THAT(read("a\r\r\n\rb\rc\n\r\r\n"), ElementsAre("a\r", "\rb\rc", "\r"));
}

TEST_F(ImportReader, BytesOfAnyCharacterSetGoThrough) {
  EXPECT_THAT(read("L\xF8iten;\xC3\xA9\xFF\n"), ElementsAre("L\xF8iten;\xC3\xA9\xFF"));
}

TEST_F(ImportReader, BlankLinesDoNotUseUpOneOfTheTenRowsThatAreCounted) {
  std::string content;
  for (int i = 0; i < 9; ++i) content += "\n\r\nplain\n";
  read(content + "a;b\n");
  EXPECT_EQ(delimiter, ';');
}

TEST_F(ImportReader, FromTheEleventhRowOnNothingIsCounted) {
  std::string content;
  for (int i = 0; i < 10; ++i) content += "a|b\n";
  read(content + ";;;;;;;;;;;;;;;;;;\n");
  EXPECT_EQ(delimiter, '|');
}

TEST_F(ImportReader, EquallyManyCommasAndSemicolonsKeepThePreviousDelimiter) {
  delimiter = ':';
  read("a,b;c\nd;e,f\n");
  EXPECT_EQ(delimiter, ':');
}

TEST_F(ImportReader, TheDelimiterIsNotResetByTheNextFile) {
  read("a;b\n");
  read("plain\n");
  EXPECT_EQ(delimiter, ';');
}

TEST_F(ImportReader, ACommaBetweenTwoDoubleQuotesOrTwoApostrophesDoesNotCount) {
  read("\"a,b,c\";'d,e,f';g\n");
  EXPECT_EQ(delimiter, ';');
}

TEST_F(ImportReader, ALineEndInsideOfQuotesEndsTheRow) {
  EXPECT_THAT(read("\"a\nb\",c\n"), ElementsAre("\"a", "b\",c"));
}

// Rows of 100 bytes with their line ends, numbered from 0.
std::string numberedRow(std::size_t number) {
  std::string row = "row " + std::to_string(number) + " ";
  row.resize(98, 'x');
  return row;
}
std::string numberedFile(std::size_t rows) {
  std::string content;
  for (std::size_t i = 0; i < rows; ++i) content += numberedRow(i) + "\r\n";
  return content;
}

TEST_F(ImportReader, AFileOfOneBlockIsReadWhole) {
  const std::string content = numberedFile(199) + std::string(98, 'y') + "\n";
  ASSERT_EQ(content.size(), kBlock);
  const Lines lines = read(content);
  EXPECT_EQ(lines.size(), 200U);
  EXPECT_EQ(lines.back(), std::string(98, 'y'));
}

TEST_F(ImportReader, BehindATailAsManyBytesOfTheNextBlockAreLostAsTheTailHas) {
  // The first block ends in front of the line feed of row 199, so the tail has 99 bytes, and of the second block the
  // last 99 are lost: the line feed of row 398 and row 399 but for its line end.
  const Lines lines = read(numberedFile(500));
  ASSERT_GT(lines.size(), 400U);
  for (std::size_t i = 0; i < 398; ++i) EXPECT_EQ(lines[i], numberedRow(i));
  EXPECT_EQ(lines[398], numberedRow(398) + "\r");
  EXPECT_EQ(lines[399], numberedRow(400));
}

TEST_F(ImportReader, ALineAcrossTheEndOfABlockIsWholeAndTheBytesThatAreLostComeLater) {
  std::string first(kBlock - 6, 'x');
  first.back() = '\n';
  const std::string second = "gh\n" + std::string(kBlock - 11, 'z') + "\nLOSTME!";
  ASSERT_EQ(second.size(), kBlock);
  const Lines lines = read(first + "abcdef" + second + "end\n?");
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(lines[1], "abcdefgh");
  EXPECT_EQ(lines[2], std::string(kBlock - 11, 'z'));
  EXPECT_EQ(lines[3], "Lend");
}

TEST_F(ImportReader, AFileOfOneByteMoreThanABlockLosesThatByteBehindATail) {
  EXPECT_THAT(read("a\n" + std::string(kBlock - 2, 'b') + "\n"), ElementsAre("a"));
}

TEST_F(ImportReader, WithoutATailNothingIsLostAtTheEndOfABlock) {
  std::string first(kBlock, 'x');
  first.back() = '\n';
  EXPECT_THAT(read(first + "a\nb\n"), ElementsAre(first.substr(0, kBlock - 1), "a", "b"));
}

TEST_F(ImportReader, ABlockShorterThanTheTailIsLostAndTheTailIsCut) {
  std::string first(kBlock, 'x');
  first[kBlock - 11] = '\n';  // a tail of 10 bytes
  EXPECT_THAT(read(first + "a\nb\nc\n"), ElementsAre(first.substr(0, kBlock - 11)));
}

TEST_F(ImportReader, ALineLongerThanABlockGivesNoRow) {
  EXPECT_THAT(read(std::string(kBlock + 1, 'x') + "\na\n"), IsEmpty());
  EXPECT_THAT(read(std::string(3 * kBlock, 'x') + "\na\n"), IsEmpty());
}

TEST_F(ImportReader, ANulEndsTheTextOfItsBlock) {
  EXPECT_THAT(read(std::string("a\nb\0c\nd\n", 8)), ElementsAre("a"));
}

TEST_F(ImportReader, WhatStandsInFrontOfANulIsTheTail) {
  // The block loses everything behind the NUL but is a whole block, so the next one follows the tail "b".
  std::string first("a\nb\0", 4);
  first.resize(kBlock, '\n');
  EXPECT_THAT(read(first + "c\nde\n"), ElementsAre("a", "bc"));
}

TEST_F(ImportReader, AgreesWithASecondTellingOnRandomFiles) {
  std::mt19937 random(20);
  const std::string bytes = "\n\n\r,;|:\"'ab";
  for (int file = 0; file < 60; ++file) {
    std::string content;
    // Lines of all lengths: short ones here, some of more than a block there.
    const unsigned rarity = 1U << random() % 12;
    const std::size_t size = random() % (file % 3 == 0 ? 90000 : 25000);
    while (content.size() < size) content += random() % rarity == 0 ? bytes[random() % bytes.size()] : 'x';
    if (file % 10 == 9 && size > 0) content[random() % size] = '\0';
    delimiter = ":*"[random() % 2];
    const test::PlainFile expected = test::PlainReadFile(content, delimiter);
    EXPECT_EQ(read(content), expected.rows) << file;
    EXPECT_EQ(delimiter, expected.delimiter) << file;
  }
}

}  // namespace
}  // namespace varlo
