#include "persist/installation/scheme_catalogue.h"

#include <array>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/store/record.h"
#include "core/store/string_item.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const ShownBox kCatalogueBox{"ERROR W124: Unable to open file 'scheme.ini'", "Error"};
const std::string kHead = "product=Varlo PRO\nversion=1.07\n";
const std::string kZeroes = "CLR=" + std::string(128, '0') + "\n";

std::vector<std::string> filesOf(const SchemeRecord& record) {
  std::vector<std::string> files;
  for (const StringItem* item = record.files; item != nullptr; item = item->next)
    files.emplace_back(item->text.view());
  return files;
}

// Numbers of the slots that are not null.
std::vector<std::size_t> slotsOf(const SchemeRecord& record) {
  std::vector<std::size_t> numbers;
  for (std::size_t i = 0; i < kSchemeSlots; ++i) {
    if (!record.slot[i].isNull()) numbers.push_back(i);
  }
  return numbers;
}

// Names of a list with those below, as in "A(B,C),D". Fails where a link back is not the true one.
std::string catalogueText(const SchemeRecord* head, const SchemeRecord* holder = nullptr) {
  std::string text;
  const SchemeRecord* before = holder;
  for (const SchemeRecord* record = head; record != nullptr; record = record->next) {
    EXPECT_EQ(record->prev, before) << record->name.view();
    before = record;
    if (record != head) text += ',';
    text += record->name.view();
    if (record->schemes != nullptr) text += "(" + catalogueText(record->schemes, record) + ")";
  }
  return text;
}

class SchemeCatalogueTest : public testing::Test {
 protected:
  TestProgram t;
  AppConfig& config = t.config();

  int read(std::string_view text, std::string_view path = "scheme.dat") {
    t.files.put(path, text);
    return SchemeCatalogueRead(t.program, path);
  }
  // The record that a file with these lines behind "SCHEMA=A" makes.
  const SchemeRecord& record(const std::string& lines) {
    read("SCHEMA=A\n" + lines);
    return *RecordLast(config.schemeStyles);
  }
  [[nodiscard]] std::string catalogue() const { return catalogueText(config.schemeStyles); }
  std::string saved() {
    SchemeCatalogueSave(t.program);
    return t.files.content("scheme.ini").value_or("(no file)");
  }
  // What is saved after reading this text.
  std::string rewritten(std::string_view text) {
    read(text);
    return saved();
  }
};

class SchemeCatalogueReadTest : public SchemeCatalogueTest {};

// The two levels.

TEST_F(SchemeCatalogueReadTest, AStyleWithTwoSchemesThenAnotherStyle) {
  EXPECT_EQ(read("SCHEMA=A\n#CAT\nSCHEMA=B\nSCHEMA=C\n#BREAK\nSCHEMA=D\n"), 1);
  EXPECT_EQ(catalogue(), "A(B,C),D");
  const SchemeStyle* style = config.schemeStyles;
  EXPECT_EQ(style->schemes->prev, style);
  EXPECT_EQ(style->schemes->next->prev, style->schemes);
  EXPECT_EQ(style->next->prev, style);
  EXPECT_EQ(SchemePath(style->schemes->next), "A/C");
}

TEST_F(SchemeCatalogueReadTest, SeveralStylesWithSchemes) {
  read("SCHEMA=A\n#CAT\nSCHEMA=B\n#BREAK\nSCHEMA=C\n#CAT\nSCHEMA=D\nSCHEMA=E\n#BREAK\nSCHEMA=F\nSCHEMA=G\n");
  EXPECT_EQ(catalogue(), "A(B),C(D,E),F,G");
}

TEST_F(SchemeCatalogueReadTest, ACategoryMarkEndsNothingByItself) {
  read("SCHEMA=A\n#CAT\nDEF=dir\n3=x\nSCHEMA=B\n4=y\n");
  const SchemeStyle* style = config.schemeStyles;
  EXPECT_STREQ(style->directory.get(), "dir");
  EXPECT_STREQ(style->slot[3].get(), "x");
  EXPECT_THAT(slotsOf(*style), ElementsAre(3U));
  EXPECT_STREQ(style->schemes->slot[4].get(), "y");
}

TEST_F(SchemeCatalogueReadTest, ABreakEndsNothingButTheList) {
  read("SCHEMA=A\n#CAT\nSCHEMA=B\n#BREAK\n4=y\n");
  EXPECT_STREQ(config.schemeStyles->schemes->slot[4].get(), "y");
  EXPECT_THAT(slotsOf(*config.schemeStyles), IsEmpty());
}

TEST_F(SchemeCatalogueReadTest, ACategoryMarkBeforeTheFirstRecordWaitsForTheSecond) {
  read("#CAT\nSCHEMA=A\nSCHEMA=B\n#BREAK\nSCHEMA=C\n");
  EXPECT_EQ(catalogue(), "A(B),C");
}

TEST_F(SchemeCatalogueReadTest, ABreakThatClosesNothingIsIgnored) {
  read("#BREAK\nSCHEMA=A\n#BREAK\nSCHEMA=B\n");
  EXPECT_EQ(catalogue(), "A,B");
}

TEST_F(SchemeCatalogueReadTest, ASecondBreakOfACategoryIsIgnored) {
  read("SCHEMA=A\n#CAT\nSCHEMA=B\n#BREAK\n#BREAK\nSCHEMA=C\n#BREAK\nSCHEMA=D\n");
  EXPECT_EQ(catalogue(), "A(B),C,D");
}

TEST_F(SchemeCatalogueReadTest, ACategoryMarkBelowASchemeIsIgnored) {
  read("SCHEMA=A\n#CAT\nSCHEMA=B\n#CAT\nSCHEMA=C\n#BREAK\nSCHEMA=D\n");
  EXPECT_EQ(catalogue(), "A(B,C),D");
}

TEST_F(SchemeCatalogueReadTest, ASecondCategoryOfAStyleReplacesItsSchemes) {
  read("SCHEMA=A\n#CAT\nSCHEMA=B\nSCF=b\n#BREAK\n#CAT\nSCHEMA=C\n#BREAK\nSCHEMA=D\n");
  EXPECT_EQ(catalogue(), "A(C),D");
}

TEST_F(SchemeCatalogueReadTest, AReplacedSchemeIsNoLongerCurrent) {
  read("SCHEMA=A\n#CAT\nSCHEMA=B\n#BREAK\n");
  config.currentScheme = t.project().projectScheme = config.schemeStyles->schemes;
  read("#CAT\nSCHEMA=C\n", "scheme.ini");
  EXPECT_EQ(catalogue(), "A(C)");
  EXPECT_EQ(config.currentScheme, nullptr);
  EXPECT_EQ(t.project().projectScheme, nullptr);
}

// The two files.

TEST_F(SchemeCatalogueReadTest, TheSecondFileGoesOnBehindTheLastStyle) {
  read("SCHEMA=A\n#CAT\nSCHEMA=B\n#BREAK\nSCHEMA=C\n#CAT\nSCHEMA=D\n#BREAK\n");
  read("SCHEMA=E\n#CAT\nSCHEMA=F\n#BREAK\nSCHEMA=G\n", "scheme.ini");
  EXPECT_EQ(catalogue(), "A(B),C(D),E(F),G");
}

TEST_F(SchemeCatalogueReadTest, TheSecondFileGoesOnInAListThatTheFirstLeftOpen) {
  read("SCHEMA=A\n#CAT\nSCHEMA=B\n");
  read("SCHEMA=C\n", "scheme.ini");
  EXPECT_EQ(catalogue(), "A(B,C)");
}

TEST_F(SchemeCatalogueReadTest, TheSecondFileAloneHeadsTheList) {
  EXPECT_EQ(SchemeCatalogueRead(t.program, "scheme.dat"), 0);
  EXPECT_EQ(read("SCHEMA=A\n#CAT\nSCHEMA=B\n#BREAK\nSCHEMA=C\n", "scheme.ini"), 1);
  EXPECT_EQ(catalogue(), "A(B),C");
  EXPECT_EQ(config.schemeStyles->prev, nullptr);
}

TEST_F(SchemeCatalogueReadTest, ACategoryMarkAtTheEndOfAFileIsForgotten) {
  read("SCHEMA=A\n#CAT\n");
  read("SCHEMA=B\n", "scheme.ini");
  EXPECT_EQ(catalogue(), "A,B");
}

TEST_F(SchemeCatalogueReadTest, KeysOfAFileDoNotReachTheRecordsOfTheOther) {
  read("SCHEMA=A\n");
  read("TYP=1\nDEF=x\n3=y\nSCF=z\nSCHEMA=B\n", "scheme.ini");
  EXPECT_EQ(config.schemeStyles->type, 0);
  EXPECT_TRUE(config.schemeStyles->directory.isNull());
  EXPECT_THAT(slotsOf(*config.schemeStyles), IsEmpty());
  EXPECT_EQ(config.schemeStyles->files, nullptr);
}

TEST_F(SchemeCatalogueReadTest, AMissingFileIsZeroWithoutAMessage) {
  EXPECT_EQ(SchemeCatalogueRead(t.program, "scheme.dat"), 0);
  EXPECT_TRUE(t.screen.boxes.empty());
  EXPECT_EQ(config.schemeStyles, nullptr);
}

TEST_F(SchemeCatalogueReadTest, AnEmptyFileIsRead) {
  EXPECT_EQ(read(""), 1);
  EXPECT_EQ(config.schemeStyles, nullptr);
}

TEST_F(SchemeCatalogueReadTest, ClosesItsFile) {
  read("SCHEMA=A\n");
  EXPECT_EQ(t.files.openHandles(), 0U);
}

TEST_F(SchemeCatalogueReadTest, MakesNothingCurrent) {
  read("SCHEMA=A\n#CAT\nSCHEMA=B\n#BREAK\n");
  EXPECT_EQ(config.currentStyle, nullptr);
  EXPECT_EQ(config.currentScheme, nullptr);
}

// The keys of a record.

TEST_F(SchemeCatalogueReadTest, EachKeySetsItsField) {
  const SchemeRecord& made = record("TYP=1\nPREVIEW=p.bmp\nDEF=dir\n");
  EXPECT_STREQ(made.name.get(), "A");
  EXPECT_EQ(made.type, 1);
  EXPECT_STREQ(made.preview.get(), "p.bmp");
  EXPECT_STREQ(made.directory.get(), "dir");
}

TEST_F(SchemeCatalogueReadTest, ARecordWithoutKeysIsShippedAndBare) {
  const SchemeRecord& made = record("");
  EXPECT_EQ(made.type, 0);
  EXPECT_TRUE(made.preview.isNull());
  EXPECT_TRUE(made.directory.isNull());
  EXPECT_THAT(slotsOf(made), IsEmpty());
  EXPECT_EQ(made.files, nullptr);
  EXPECT_EQ(made.customColours, CustomColours{});
}

TEST_F(SchemeCatalogueReadTest, TakesAllThirtyOneSlots) {
  std::string lines;
  for (int i = 0; i <= 30; ++i) lines += std::to_string(i) + "=v" + std::to_string(i) + "\n";
  const SchemeRecord& made = record(lines);
  for (std::size_t i = 0; i < kSchemeSlots; ++i) EXPECT_EQ(made.slot[i].view(), "v" + std::to_string(i));
}

TEST_F(SchemeCatalogueReadTest, ASlotIsTheTextBehindTheFirstEqualsSign) {
  EXPECT_STREQ(record("10=<IMG SRC=h1.gif>\n").slot[10].get(), "<IMG SRC=h1.gif>");
}

TEST_F(SchemeCatalogueReadTest, TheNumberOfASlotIsTheIntegerAtTheStart) {
  const SchemeRecord& made = record("3abc=x\n007=y\n");
  EXPECT_THAT(slotsOf(made), ElementsAre(3U, 7U));
  EXPECT_STREQ(made.slot[3].get(), "x");
}

TEST_F(SchemeCatalogueReadTest, AnEmptySlotLineSetsTheEmptyTextWhichIsNotWritten) {
  const SchemeRecord& made = record("TYP=1\n3=\n");
  EXPECT_STREQ(made.slot[3].get(), "");
  EXPECT_EQ(saved(), kHead + "\nSCHEMA=A\nTYP=1\n" + kZeroes);
}

TEST_F(SchemeCatalogueReadTest, ADigitLineWithoutEqualsSignIsIgnored) {
  EXPECT_THAT(slotsOf(record("3\n4 text\n")), IsEmpty());
}

TEST_F(SchemeCatalogueReadTest, ANumberAboveTheLastSlotIsIgnored) {
  EXPECT_THAT(slotsOf(record("31=a\n32=a\n1000000=a\n")), IsEmpty());
}

TEST_F(SchemeCatalogueReadTest, ANumberWrapsAtThirtyTwoBitsAsEveryNumberDoes) {
  EXPECT_THAT(slotsOf(record("2147483648=a\n4294967299=a\n18446744073709551617=a\n")), ElementsAre(1, 3));
}

TEST_F(SchemeCatalogueReadTest, ListsTheFilesOfARecordInOrder) {
  const SchemeRecord& made = record("SCF=img\\a.gif\nSCF=img\\b.gif\nSCF=img\\c.gif\n");
  EXPECT_THAT(filesOf(made), ElementsAre("img\\a.gif", "img\\b.gif", "img\\c.gif"));
  EXPECT_EQ(made.files->prev, nullptr);
  EXPECT_EQ(made.files->next->prev, made.files);
  EXPECT_EQ(made.files->next->next->prev, made.files->next);
}

TEST_F(SchemeCatalogueReadTest, EachRecordHasFilesOfItsOwn) {
  read("SCHEMA=A\nSCF=a\n#CAT\nSCHEMA=B\nSCF=b\nSCHEMA=C\nSCF=c\n");
  const SchemeStyle* style = config.schemeStyles;
  EXPECT_THAT(filesOf(*style), ElementsAre("a"));
  EXPECT_THAT(filesOf(*style->schemes), ElementsAre("b"));
  EXPECT_THAT(filesOf(*style->schemes->next), ElementsAre("c"));
}

TEST_F(SchemeCatalogueReadTest, CustomColoursAreSixtyFourPairsOfDigits) {
  std::string digits;
  for (int i = 0; i < 16; ++i) digits += "00ff7Fa0";
  const SchemeRecord& made = record("CLR=" + digits + "\n");
  constexpr std::array<std::uint8_t, 4> kBytes{0x00, 0xFF, 0x7F, 0xA0};
  for (std::size_t i = 0; i < made.customColours.size(); ++i) EXPECT_EQ(made.customColours[i], kBytes[i % 4]) << i;
}

TEST_F(SchemeCatalogueReadTest, CustomColoursWithTooFewDigitsFillWhatIsThere) {
  const SchemeRecord& made = record("CLR=" + std::string(128, 'F') + "\nCLR=0102FF\n");
  CustomColours expected{};
  expected[0] = 1;
  expected[1] = 2;
  expected[2] = 255;
  EXPECT_EQ(made.customColours, expected);
}

TEST_F(SchemeCatalogueReadTest, FurtherDigitsOfCustomColoursAreIgnored) {
  const SchemeRecord& made = record("CLR=" + std::string(128, '1') + "FFFF\n");
  CustomColours expected;
  expected.fill(0x11);
  EXPECT_EQ(made.customColours, expected);
}

TEST_F(SchemeCatalogueReadTest, ALaterLineOverridesAnEarlierOne) {
  const SchemeRecord& made = record("TYP=1\nDEF=a\n3=x\nTYP=0\nDEF=b\n3=y\n");
  EXPECT_EQ(made.type, 0);
  EXPECT_STREQ(made.directory.get(), "b");
  EXPECT_STREQ(made.slot[3].get(), "y");
}

TEST_F(SchemeCatalogueReadTest, ATypeThatIsNoNumberIsZero) { EXPECT_EQ(record("TYP=1\nTYP=own\n").type, 0); }

TEST_F(SchemeCatalogueReadTest, LinesBeforeTheFirstRecordAreSkipped) {
  EXPECT_EQ(read("TYP=1\nPREVIEW=p\nDEF=d\n3=x\nCLR=FF\nSCF=f\nSCHEMA=A\n"), 1);
  const SchemeRecord& made = *config.schemeStyles;
  EXPECT_EQ(made.type, 0);
  EXPECT_TRUE(made.preview.isNull());
  EXPECT_TRUE(made.directory.isNull());
  EXPECT_THAT(slotsOf(made), IsEmpty());
  EXPECT_EQ(made.files, nullptr);
}

TEST_F(SchemeCatalogueReadTest, ProductVersionAndOtherLinesAreIgnored) {
  const SchemeRecord& made = record("product=Other\nversion=9\ncolour=red\n\nA=a\nBACK=b\n");
  EXPECT_EQ(catalogue(), "A");
  EXPECT_THAT(slotsOf(made), IsEmpty());
  EXPECT_EQ(made.type, 0);
}

TEST_F(SchemeCatalogueReadTest, TheTemplateSetIsTakenWithAndWithoutARecord) {
  read("template=one\n");
  EXPECT_STREQ(config.schemeTemplateSet.get(), "one");
  read("SCHEMA=A\ntemplate=two=2\n");
  EXPECT_STREQ(config.schemeTemplateSet.get(), "two=2");
}

TEST_F(SchemeCatalogueReadTest, KeysCountAtTheStartOfALineAndWithCase) {
  const SchemeRecord& made = record(" TYP=1\ntyp=1\nxDEF=d\ndef=d\npreview=p\n 3=x\nxSCF=f\nscf=f\nclr=FF\n");
  EXPECT_EQ(made.type, 0);
  EXPECT_TRUE(made.directory.isNull());
  EXPECT_TRUE(made.preview.isNull());
  EXPECT_THAT(slotsOf(made), IsEmpty());
  EXPECT_EQ(made.files, nullptr);
  EXPECT_EQ(made.customColours, CustomColours{});
}

TEST_F(SchemeCatalogueReadTest, MarksCountAtTheStartOfALineAndWithCase) {
  read("SCHEMA=A\n #CAT\n#cat\nSCHEMA=B\n schema=C\nschema=C\nxSCHEMA=C\nTemplate=t\n");
  EXPECT_EQ(catalogue(), "A,B");
  EXPECT_TRUE(config.schemeTemplateSet.isNull());
}

TEST_F(SchemeCatalogueReadTest, WhatFollowsAMarkOnItsLineDoesNotMatter) {
  read("SCHEMA=A\n#CATEGORY\nSCHEMA=B\n#BREAK here\nSCHEMA=C\n");
  EXPECT_EQ(catalogue(), "A(B),C");
}

TEST_F(SchemeCatalogueReadTest, BlanksAndLineEndsBehindAValueAreLost) {
  read("SCHEMA=A  \r\nDEF=d \r\n3= x \r\n#CAT \r\nSCHEMA=B\r\n");
  EXPECT_EQ(catalogue(), "A(B)");
  EXPECT_STREQ(config.schemeStyles->directory.get(), "d");
  EXPECT_STREQ(config.schemeStyles->slot[3].get(), " x");
}

// Writing.

class SchemeCatalogueSaveTest : public SchemeCatalogueTest {};

TEST_F(SchemeCatalogueSaveTest, AnEmptyCatalogueIsTheTwoLinesOfTheHead) {
  EXPECT_EQ(SchemeCatalogueSave(t.program), 1);
  EXPECT_EQ(t.files.content("scheme.ini"), kHead);
}

TEST_F(SchemeCatalogueSaveTest, WritesTheLinesOfARecordInTheirOrder) {
  const std::string digits = "0123456789ABCDEF" + std::string(112, 'E');
  read("SCHEMA=A\nSCF=img\\a.gif\nSCF=img\\b.gif\nCLR=" + digits +
       "\n30=last\n10=ten\n0=first\nTYP=1\nDEF=dir\nPREVIEW=p.bmp\n");
  EXPECT_EQ(saved(), kHead + "\nSCHEMA=A\nPREVIEW=p.bmp\nDEF=dir\nTYP=1\n0=first\n10=ten\n30=last\nCLR=" + digits +
                         "\nSCF=img\\a.gif\nSCF=img\\b.gif\n");
}

TEST_F(SchemeCatalogueSaveTest, WritesEverySlotThatIsNotEmpty) {
  std::string lines;
  for (int i = 0; i <= 30; ++i) lines += std::to_string(i) + "=v" + std::to_string(i) + "\n";
  EXPECT_EQ(rewritten("SCHEMA=A\nTYP=1\n" + lines), kHead + "\nSCHEMA=A\nTYP=1\n" + lines + kZeroes);
}

TEST_F(SchemeCatalogueSaveTest, LeavesOutEmptyTexts) {
  EXPECT_EQ(rewritten("SCHEMA=A\nTYP=1\nPREVIEW=\nDEF=\n0=\n30=\n"), kHead + "\nSCHEMA=A\nTYP=1\n" + kZeroes);
}

TEST_F(SchemeCatalogueSaveTest, WritesTheSchemesOfAStyleBetweenTheMarks) {
  EXPECT_EQ(rewritten("SCHEMA=A\nTYP=1\n#CAT\nSCHEMA=B\nTYP=1\nSCHEMA=C\nTYP=1\n#BREAK\nSCHEMA=D\nTYP=1\n"),
            kHead + "\nSCHEMA=A\nTYP=1\n" + kZeroes + "#CAT\n\nSCHEMA=B\nTYP=1\n" + kZeroes + "\nSCHEMA=C\nTYP=1\n" +
                kZeroes + "#BREAK\n\nSCHEMA=D\nTYP=1\n" + kZeroes);
}

TEST_F(SchemeCatalogueSaveTest, ShippedRecordsAreNotWritten) {
  EXPECT_EQ(rewritten("template=t\nSCHEMA=A\n3=x\n#CAT\nSCHEMA=B\n4=y\n#BREAK\nSCHEMA=C\nTYP=1\n"),
            kHead + "\nSCHEMA=C\nTYP=1\n" + kZeroes);
}

TEST_F(SchemeCatalogueSaveTest, AnOwnSchemeBelowAShippedStyleIsNotWritten) {
  EXPECT_EQ(rewritten("SCHEMA=A\n#CAT\nSCHEMA=B\nTYP=1\n#BREAK\n"), kHead);
}

TEST_F(SchemeCatalogueSaveTest, AShippedSchemeBelowAnOwnStyleLeavesTheMarksOnly) {
  EXPECT_EQ(rewritten("SCHEMA=A\nTYP=1\n#CAT\nSCHEMA=B\n#BREAK\n"),
            kHead + "\nSCHEMA=A\nTYP=1\n" + kZeroes + "#CAT\n#BREAK\n");
}

TEST_F(SchemeCatalogueSaveTest, OnlyTypeOneIsWritten) {
  EXPECT_EQ(rewritten("SCHEMA=A\nTYP=2\n#CAT\nSCHEMA=B\nTYP=1\n#BREAK\nSCHEMA=C\nTYP=-1\n"), kHead);
}

TEST_F(SchemeCatalogueSaveTest, CustomColoursAlwaysHaveAllTheirDigitsInUpperCase) {
  EXPECT_THAT(rewritten("SCHEMA=A\nTYP=1\nCLR=0a\n"), HasSubstr("\nCLR=0A" + std::string(126, '0') + "\n"));
}

TEST_F(SchemeCatalogueSaveTest, ARecordWithoutANameAttachesToTheOneBeforeOnTheNextReading) {
  const std::string text = rewritten("SCHEMA=A\nTYP=1\n3=x\nSCHEMA=\nTYP=1\n3=y\n4=z\n");
  EXPECT_EQ(text, kHead + "\nSCHEMA=A\nTYP=1\n3=x\n" + kZeroes + "TYP=1\n3=y\n4=z\n" + kZeroes);
  TestProgram next;
  next.files.put("scheme.ini", text);
  SchemeCatalogueRead(next.program, "scheme.ini");
  const SchemeRecord* made = next.config().schemeStyles;
  EXPECT_EQ(catalogueText(made), "A");
  EXPECT_STREQ(made->slot[3].get(), "y");
  EXPECT_STREQ(made->slot[4].get(), "z");
}

TEST_F(SchemeCatalogueSaveTest, ASlotTooLongForALineLosesItsLineEnd) {
  read("SCHEMA=A\nTYP=1\n3=" + std::string(4000, 'x') + "\n4=y\n");
  EXPECT_THAT(saved(), HasSubstr("\n3=" + std::string(3095 - 2, 'x') + "4=y\n"));
}

TEST_F(SchemeCatalogueSaveTest, ReplacesAnOlderFileAndClosesIt) {
  t.files.put("scheme.ini", std::string(5000, 'x'));
  EXPECT_EQ(saved(), kHead);
  EXPECT_EQ(t.files.openHandles(), 0U);
  EXPECT_TRUE(t.screen.boxes.empty());
}

TEST_F(SchemeCatalogueSaveTest, AFileThatCanNotBeWrittenIsTold) {
  t.files.shallFail = [](const std::string& operation) { return operation == "create C:\\Varlo\\scheme.ini"; };
  EXPECT_EQ(SchemeCatalogueSave(t.program), 0);
  EXPECT_THAT(t.screen.boxes, ElementsAre(kCatalogueBox));
}

TEST_F(SchemeCatalogueSaveTest, WhatIsSavedReadsBackAndSavesTheSame) {
  const std::string first = rewritten(
      "SCHEMA=A\nTYP=1\nDEF=d\n#CAT\nSCHEMA=B\nTYP=1\n5=a=b\nSCF=f\nSCF=g\nSCHEMA=C\nTYP=1\nCLR=" +
      std::string(128, 'C') + "\n#BREAK\nSCHEMA=D\nTYP=1\nSCHEMA=E\nTYP=1\n#CAT\nSCHEMA=F\nTYP=1\n#BREAK\n");
  TestProgram next;
  next.files.put("scheme.ini", first);
  SchemeCatalogueRead(next.program, "scheme.ini");
  EXPECT_EQ(catalogueText(next.config().schemeStyles), "A(B,C),D,E(F)");
  SchemeCatalogueSave(next.program);
  EXPECT_EQ(next.files.content("scheme.ini"), first);
}

// The defaults of a new scheme.

class SchemeDefaultsTest : public SchemeCatalogueTest {
 protected:
  // In the catalogue, which releases it.
  SchemeRecord& scheme = *(config.schemeStyles = SchemeInit(nullptr));
};

TEST_F(SchemeDefaultsTest, SetsTheSlotsOfANewScheme) {
  SchemeDefaults(scheme);
  const std::array<const char*, kSchemeSlots> expected{
      "WHITE",
      "#900000",
      "PURPLE",
      "YELLOW",
      "WHITE",
      "BLACK",
      "#901000",
      "#800080",
      "YELLOW",
      "WHITE",
      R"(<IMG SRC=h1.gif ALIGN=TOP WIDTH=180 HEIGH=26></TD></TR><TR><TD VALIGN=TOP BGCOLOR=#DDDDDD>)",
      R"(<IMG SRC="h2.gif"><BR>)",
      R"(<IMG SRC="h3.gif"><BR>)",
      "WHITE",
      "BLACK",
      "#900000",
      "PURPLE",
      "YELLOW",
      "#C3C3C3",
      "#606090",
      "#C3C3C3",
      "#606090",
      "WHITE",
      nullptr,
      R"(img\f.gif)",
      R"(img\g.gif)",
      R"(img\o.gif)",
      R"(img\a.gif)",
      R"(img\add.gif)",
      R"(img\back.gif)",
      R"(img\remove.gif)"};
  for (std::size_t i = 0; i < kSchemeSlots; ++i) EXPECT_STREQ(scheme.slot[i].get(), expected[i]) << "slot " << i;
}

TEST_F(SchemeDefaultsTest, SetsTheFilesInOrder) {
  SchemeDefaults(scheme);
  EXPECT_THAT(filesOf(scheme),
              ElementsAre("img\\h1.gif", "img\\h2.gif", "img\\h3.gif", "img\\f.gif", "img\\g.gif", "img\\o.gif",
                          "img\\a.gif", "img\\add.gif", "img\\remove.gif", "img\\back.gif"));
  const StringItem* before = nullptr;
  for (const StringItem* item = scheme.files; item != nullptr; item = item->next) {
    EXPECT_EQ(item->prev, before);
    before = item;
  }
}

TEST_F(SchemeDefaultsTest, ReplacesAnEarlierListAndEarlierSlots) {
  AppendSchemeFile(scheme, "old.gif");
  scheme.slot[0].assign("old");
  SchemeDefaults(scheme);
  EXPECT_THAT(filesOf(scheme), testing::SizeIs(10));
  EXPECT_THAT(filesOf(scheme), Not(testing::Contains("old.gif")));
  EXPECT_STREQ(scheme.slot[0].get(), "WHITE");
}

TEST_F(SchemeDefaultsTest, LeavesNamePreviewDirectoryTypeAndColours) {
  scheme.name.assign("n");
  scheme.preview.assign("p");
  scheme.directory.assign("d");
  scheme.type = 1;
  scheme.customColours.fill(7);
  SchemeDefaults(scheme);
  EXPECT_STREQ(scheme.name.get(), "n");
  EXPECT_STREQ(scheme.preview.get(), "p");
  EXPECT_STREQ(scheme.directory.get(), "d");
  EXPECT_EQ(scheme.type, 1);
  CustomColours sevens;
  sevens.fill(7);
  EXPECT_EQ(scheme.customColours, sevens);
}

// version.ini.

class TemplateVersionsReadTest : public testing::Test {
 protected:
  TestProgram t;
  AppConfig& config = t.config();

  int read(std::string_view text) {
    t.files.put("version.ini", text);
    return TemplateVersionsRead(t.program);
  }
};

TEST_F(TemplateVersionsReadTest, TakesBothNumbers) {
  EXPECT_EQ(read("ORDER=107\nCONFIRM=108\n"), 1);
  EXPECT_EQ(config.templateVersionOrder, 107);
  EXPECT_EQ(config.templateVersionConfirm, 108);
  EXPECT_EQ(t.files.openHandles(), 0U);
}

TEST_F(TemplateVersionsReadTest, TheNumberStopsAtTheLineEnd) {
  read("CONFIRM=8 \r\nORDER=7\r\n");
  EXPECT_EQ(config.templateVersionOrder, 7);
  EXPECT_EQ(config.templateVersionConfirm, 8);
}

TEST_F(TemplateVersionsReadTest, ANumberThatIsNotThereIsZero) {
  config.templateVersionOrder = config.templateVersionConfirm = 5;
  EXPECT_EQ(read("ORDER=107\nother=3\n"), 1);
  EXPECT_EQ(config.templateVersionOrder, 107);
  EXPECT_EQ(config.templateVersionConfirm, 0);
}

TEST_F(TemplateVersionsReadTest, AMissingFileResetsBothWithoutAMessage) {
  config.templateVersionOrder = config.templateVersionConfirm = 5;
  EXPECT_EQ(TemplateVersionsRead(t.program), 0);
  EXPECT_EQ(config.templateVersionOrder, 0);
  EXPECT_EQ(config.templateVersionConfirm, 0);
  EXPECT_TRUE(t.screen.boxes.empty());
}

}  // namespace
}  // namespace varlo
