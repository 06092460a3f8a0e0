#include "persist/installation/config_file.h"

#include <map>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/program/scheme.h"
#include "core/store/record.h"
#include "core/store/string_item.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

const ShownBox kConfigBox{"ERROR W114: Unable to open file 'drelk.ini'", "Error"};
const ShownBox kCatalogueBox{"ERROR W124: Unable to open file 'scheme.ini'", "Error"};

// What the lines of a settings file can change, by the key that changes it; "-" for an absent text.
using Settings = std::map<std::string, std::string>;

std::string shown(const Text& text) { return text.isNull() ? "-" : std::string(text.view()); }

Settings settingsOf(TestProgram& t) {
  const AppConfig& config = t.config();
  Settings all{{"browser=", shown(config.browser)},
               {"proxy=", shown(config.proxy)},
               {"varlo=", shown(config.orderServer)},
               {"file=", shown(t.project().projectFile)},
               {"id=", shown(config.accountId)},
               {"port=", std::to_string(config.proxyPort)},
               {"uid=", std::to_string(config.uid)},
               {"newwin=", std::to_string(config.newWindow)},
               {"case=", std::to_string(config.lowerCaseLinks)},
               {"other=", std::to_string(config.directoryLink)},
               {"display=", std::to_string(config.display)},
               {"control=", std::to_string(config.control)},
               {"view=", std::to_string(config.viewFlags)},
               {"help=", std::to_string(config.helpAtStart)}};
  for (std::size_t i = 0; i < 4; ++i) all["LD" + std::to_string(i + 1) + "="] = shown(config.lastDir[i]);
  for (const std::string& operation : t.files.log) {
    if (operation.starts_with("remove ")) all["delete="] += operation;
  }
  return all;
}

// The keys in the order in which a line is tested for them; "SCHEMA=", which counts at the start of a
// line only, stands between "LD4=" and "port=".
const std::vector<std::string> kKeysInOrder{
    "browser=", "proxy=", "varlo=",  "server=", "LD1=",   "LD2=",     "LD3=",     "LD4=",  "port=", "file=",
    "uid=",     "id=",    "newwin=", "case=",   "other=", "display=", "control=", "view=", "help=", "delete="};

// Keys of `after` that have another value in `before`.
std::vector<std::string> changes(const Settings& before, const Settings& after) {
  std::vector<std::string> keys;
  for (const auto& [key, value] : after) {
    const auto found = before.find(key);
    if (found == before.end() || found->second != value) keys.push_back(key);
  }
  return keys;
}

class ConfigReadTest : public testing::Test {
 protected:
  TestProgram t;
  AppConfig& config = t.config();

  int read(std::string_view text, std::string_view path = "config.ini") {
    t.files.put(path, text);
    return ConfigRead(t.program, path);
  }

  // What a file of this one line changes in a new program.
  static std::vector<std::string> changedBy(const std::string& line) {
    TestProgram fresh;
    const Settings before = settingsOf(fresh);
    fresh.files.put("config.ini", line + "\n");
    ConfigRead(fresh.program, "config.ini");
    return changes(before, settingsOf(fresh));
  }

  SchemeStyle* addStyle(const char* name) {
    SchemeStyle* style = SchemeInit(nullptr);
    style->name.assign(name);
    SchemeStyle* last = RecordLast(config.schemeStyles);
    RecordAppend(config.schemeStyles, last, style);
    return style;
  }

  // The one scheme of the layout section that a file with these lines behind "SCHEMA=Old" opens.
  const Scheme& section(const std::string& lines) {
    addStyle("Shipped");
    read("SCHEMA=Old\n" + lines);
    return *config.schemeStyles->next->schemes;
  }

  static std::vector<std::string> filesOf(const Scheme& scheme) {
    std::vector<std::string> files;
    for (const StringItem* item = scheme.files; item != nullptr; item = item->next)
      files.emplace_back(item->text.view());
    return files;
  }

  static int setSlots(const Scheme& scheme) {
    int count = 0;
    for (const Text& slot : scheme.slot) count += slot.isNull() ? 0 : 1;
    return count;
  }
};

// The keys.

TEST_F(ConfigReadTest, EachTextKeySetsItsField) {
  EXPECT_EQ(read("browser=c:\\b.exe\nproxy=p.example\nvarlo=s.example\nfile=c:\\shop\\a.stp\nLD1=c:\\1\nLD2=c:\\2\n"
                 "LD3=c:\\3\nLD4=c:\\4\nid=shop7\n"),
            1);
  EXPECT_STREQ(config.browser.get(), "c:\\b.exe");
  EXPECT_STREQ(config.proxy.get(), "p.example");
  EXPECT_STREQ(config.orderServer.get(), "s.example");
  EXPECT_STREQ(t.project().projectFile.get(), "c:\\shop\\a.stp");
  EXPECT_STREQ(config.lastDir[0].get(), "c:\\1");
  EXPECT_STREQ(config.lastDir[1].get(), "c:\\2");
  EXPECT_STREQ(config.lastDir[2].get(), "c:\\3");
  EXPECT_STREQ(config.lastDir[3].get(), "c:\\4");
  EXPECT_STREQ(config.accountId.get(), "shop7");
}

TEST_F(ConfigReadTest, EachNumberKeySetsItsField) {
  EXPECT_EQ(read("port=8080\nnewwin=2\ncase=3\nview=4\nother=5\ndisplay=6\ncontrol=7\nhelp=8\nuid=9\n"), 1);
  EXPECT_EQ(config.proxyPort, 8080);
  EXPECT_EQ(config.newWindow, 2);
  EXPECT_EQ(config.lowerCaseLinks, 3);
  EXPECT_EQ(config.viewFlags, 4);
  EXPECT_EQ(config.directoryLink, 5);
  EXPECT_EQ(config.display, 6);
  EXPECT_EQ(config.control, 7);
  EXPECT_EQ(config.helpAtStart, 8);
  EXPECT_EQ(config.uid, 9);
}

TEST_F(ConfigReadTest, EachKeyChangesNothingButItsField) {
  for (const std::string& key : kKeysInOrder) {
    SCOPED_TRACE(key);
    EXPECT_THAT(changedBy(key + "7"), ElementsAre(key == "server=" ? "varlo=" : key));
  }
}

TEST_F(ConfigReadTest, AKeyIsFoundAnywhereInTheLine) {
  for (const std::string& key : kKeysInOrder) {
    SCOPED_TRACE(key);
    EXPECT_THAT(changedBy("; old: " + key + "7"), ElementsAre(key == "server=" ? "varlo=" : key));
  }
}

TEST_F(ConfigReadTest, OfTwoKeysInALineTheOneThatIsTestedFirstTakesIt) {
  for (std::size_t first = 0; first < kKeysInOrder.size(); ++first) {
    for (std::size_t second = first + 1; second < kKeysInOrder.size(); ++second) {
      const std::string& winner = kKeysInOrder[first];
      const std::string& loser = kKeysInOrder[second];
      SCOPED_TRACE(winner + " and " + loser);
      EXPECT_THAT(changedBy(winner + "7" + loser), ElementsAre(winner == "server=" ? "varlo=" : winner));
      EXPECT_THAT(changedBy(loser + "7" + winner), ElementsAre(winner == "server=" ? "varlo=" : winner));
    }
  }
}

TEST_F(ConfigReadTest, ALineXproxySetsTheProxy) {
  read("xproxy=abc\n");
  EXPECT_STREQ(config.proxy.get(), "abc");
}

TEST_F(ConfigReadTest, TheValueIsTheTextBehindTheFirstEqualsSign) {
  read("LD1=c:\\a=b\na=proxy=p\n");
  EXPECT_STREQ(config.lastDir[0].get(), "c:\\a=b");
  EXPECT_STREQ(config.proxy.get(), "proxy=p");
}

TEST_F(ConfigReadTest, AFileNameThatHoldsAnEarlierKeyGoesToThatKey) {
  read("file=c:\\proxy=\\a.stp\n");
  EXPECT_TRUE(t.project().projectFile.isNull());
  EXPECT_STREQ(config.proxy.get(), "c:\\proxy=\\a.stp");
}

TEST_F(ConfigReadTest, TheSearchMindsCase) {
  EXPECT_THAT(changedBy("Proxy=a"), IsEmpty());
  EXPECT_THAT(changedBy("PORT=7"), IsEmpty());
  EXPECT_THAT(changedBy("ld1=a"), IsEmpty());
  EXPECT_THAT(changedBy("schema=a"), IsEmpty());
}

TEST_F(ConfigReadTest, AKeyNeedsItsEqualsSign) {
  EXPECT_THAT(changedBy("proxy a=b"), IsEmpty());
  EXPECT_THAT(changedBy("port"), IsEmpty());
}

TEST_F(ConfigReadTest, TheVersionLineIsSkipped) {
  EXPECT_THAT(changedBy("version=1.07"), IsEmpty());
  EXPECT_EQ(config.schemeStyles, nullptr);
}

TEST_F(ConfigReadTest, ALineWithoutAKnownKeyIsSkippedInSilence) {
  EXPECT_THAT(changedBy("colour=7"), IsEmpty());
  EXPECT_EQ(read("\n\r\ncolour=7\n=\n"), 1);
  EXPECT_TRUE(t.screen.boxes.empty());
}

TEST_F(ConfigReadTest, UidDoesNotSetTheAccount) {
  read("uid=1033\n");
  EXPECT_EQ(config.uid, 1033);
  EXPECT_TRUE(config.accountId.isNull());
}

TEST_F(ConfigReadTest, ATextThatIsNoNumberIsZero) {
  read("port=none\ncase=\nview=x3\nhelp=-\n");
  EXPECT_EQ(config.proxyPort, 0);
  EXPECT_EQ(config.lowerCaseLinks, 0);
  EXPECT_EQ(config.viewFlags, 0);
  EXPECT_EQ(config.helpAtStart, 0);
}

TEST_F(ConfigReadTest, ANumberIsTheLeadingDecimalOne) {
  read("port=80a9\nuid=-12\nview= 2\n");
  EXPECT_EQ(config.proxyPort, 80);
  EXPECT_EQ(config.uid, -12);
  EXPECT_EQ(config.viewFlags, 2);
}

TEST_F(ConfigReadTest, BlanksAndLineEndsBehindAValueAreLost) {
  read("browser=b  \r\nproxy=p \nid= i d ");
  EXPECT_STREQ(config.browser.get(), "b");
  EXPECT_STREQ(config.proxy.get(), "p");
  EXPECT_STREQ(config.accountId.get(), " i d");
}

TEST_F(ConfigReadTest, AnEmptyValueIsTheEmptyText) {
  read("browser=\n");
  EXPECT_STREQ(config.browser.get(), "");
}

TEST_F(ConfigReadTest, ALaterLineOverridesAnEarlierOne) {
  read("browser=a\nport=1\nbrowser=b\nport=2\n");
  EXPECT_STREQ(config.browser.get(), "b");
  EXPECT_EQ(config.proxyPort, 2);
}

TEST_F(ConfigReadTest, WhatTheFileDoesNotNameStays) {
  config.proxy.assign("p");
  config.proxyPort = 12;
  read("browser=b\n");
  EXPECT_STREQ(config.proxy.get(), "p");
  EXPECT_EQ(config.proxyPort, 12);
  EXPECT_EQ(config.display, 31);
}

TEST_F(ConfigReadTest, AMissingFileIsZeroWithoutAMessage) {
  const Settings before = settingsOf(t);
  EXPECT_EQ(ConfigRead(t.program, "config.ini"), 0);
  EXPECT_TRUE(t.screen.boxes.empty());
  EXPECT_EQ(settingsOf(t), before);
}

TEST_F(ConfigReadTest, ClosesItsFile) {
  read("browser=b\n");
  EXPECT_EQ(t.files.openHandles(), 0U);
}

// The order server.

TEST_F(ConfigReadTest, ServerSetsTheOrderServerWhenItHasNoValue) {
  read("server=s\n");
  EXPECT_STREQ(config.orderServer.get(), "s");
}

TEST_F(ConfigReadTest, VarloWinsOverServerInEitherOrderOfTheLines) {
  read("varlo=v\nserver=s\n");
  EXPECT_STREQ(config.orderServer.get(), "v");
  config.orderServer.release();
  read("server=s\nvarlo=v\n");
  EXPECT_STREQ(config.orderServer.get(), "v");
}

TEST_F(ConfigReadTest, OfTwoServerLinesTheFirstStands) {
  read("server=a\nserver=b\n");
  EXPECT_STREQ(config.orderServer.get(), "a");
}

TEST_F(ConfigReadTest, AServerFileBehindAVarloLineChangesNothing) {
  read("varlo=v\n");
  read("server=s\n", "server.ini");
  EXPECT_STREQ(config.orderServer.get(), "v");
}

TEST_F(ConfigReadTest, AVarloLineInTheServerFileReplacesTheValue) {
  read("varlo=v\n");
  read("varlo=w\n", "server.ini");
  EXPECT_STREQ(config.orderServer.get(), "w");
}

TEST_F(ConfigReadTest, AnEmptyVarloKeepsTheServerOut) {
  read("varlo=\n");
  read("server=s\n", "server.ini");
  EXPECT_STREQ(config.orderServer.get(), "");
}

TEST_F(ConfigReadTest, ATakenServerIsWrittenAsVarlo) {
  read("server=s\n", "server.ini");
  ConfigSave(t.program);
  EXPECT_THAT(*t.files.content("config.ini"), HasSubstr("\nvarlo=s\n"));
  EXPECT_THAT(*t.files.content("config.ini"), Not(HasSubstr("server=")));
  EXPECT_EQ(t.files.content("server.ini"), "server=s\n");
}

// Clean-up orders.

TEST_F(ConfigReadTest, DeleteRemovesTheFileAtEveryReading) {
  for (int start = 0; start < 2; ++start) {
    t.files.put("old.exe", "x");
    read("delete=old.exe\n", "server.ini");
    EXPECT_FALSE(t.files.content("old.exe").has_value());
  }
}

TEST_F(ConfigReadTest, DeleteActsAtOnceWhenItsLineIsRead) {
  std::string proxyThen;
  t.files.put("old.exe", "x");
  t.files.shallFail = [&](const std::string& operation) {
    if (operation == "remove C:\\Varlo\\old.exe") proxyThen = shown(config.proxy);
    return false;
  };
  read("proxy=before\ndelete=old.exe\nproxy=behind\n");
  EXPECT_EQ(proxyThen, "before");
  EXPECT_STREQ(config.proxy.get(), "behind");
}

TEST_F(ConfigReadTest, DeleteOfAFileThatIsGoneIsSilent) {
  EXPECT_EQ(read("delete=gone.exe\nproxy=p\n"), 1);
  EXPECT_TRUE(t.screen.boxes.empty());
  EXPECT_STREQ(config.proxy.get(), "p");
}

// The current style.

TEST_F(ConfigReadTest, TheFirstStyleIsCurrentAtTheEndOfTheFile) {
  SchemeStyle* first = addStyle("A");
  config.currentStyle = addStyle("B");
  read("");
  EXPECT_EQ(config.currentStyle, first);
}

TEST_F(ConfigReadTest, WithoutStylesNoneIsCurrent) {
  read("browser=b\n");
  EXPECT_EQ(config.currentStyle, nullptr);
}

TEST_F(ConfigReadTest, AMissingFileLeavesTheCurrentStyle) {
  addStyle("A");
  SchemeStyle* second = config.currentStyle = addStyle("B");
  ConfigRead(t.program, "config.ini");
  EXPECT_EQ(config.currentStyle, second);
}

// The layout section of old settings files.

TEST_F(ConfigReadTest, TheFirstSchemaMakesAStyleAtTheEndWithASchemeBelow) {
  SchemeStyle* first = addStyle("A");
  SchemeStyle* last = addStyle("B");
  read("SCHEMA=Red\n");
  EXPECT_EQ(first->next, last);
  SchemeStyle* style = last->next;
  ASSERT_NE(style, nullptr);
  EXPECT_EQ(style->prev, last);
  EXPECT_EQ(style->next, nullptr);
  EXPECT_EQ(style->type, 1);
  EXPECT_STREQ(style->name.get(), "v1.02 Schema");
  const Scheme* scheme = style->schemes;
  ASSERT_NE(scheme, nullptr);
  EXPECT_EQ(scheme->prev, style);
  EXPECT_EQ(scheme->next, nullptr);
  EXPECT_EQ(scheme->type, 1);
  EXPECT_STREQ(scheme->name.get(), "Red");
  EXPECT_EQ(scheme->files, nullptr);
  EXPECT_EQ(setSlots(*scheme), 0);
}

TEST_F(ConfigReadTest, EachFurtherSchemaAppendsAScheme) {
  addStyle("A");
  read("SCHEMA=Red\nSCHEMA=Green\nSCHEMA=Blue\n");
  const SchemeStyle* style = config.schemeStyles->next;
  ASSERT_NE(style, nullptr);
  EXPECT_EQ(style->next, nullptr);
  const Scheme* red = style->schemes;
  const Scheme* green = red->next;
  ASSERT_NE(green, nullptr);
  const Scheme* blue = green->next;
  ASSERT_NE(blue, nullptr);
  EXPECT_STREQ(red->name.get(), "Red");
  EXPECT_STREQ(green->name.get(), "Green");
  EXPECT_STREQ(blue->name.get(), "Blue");
  EXPECT_EQ(green->prev, red);
  EXPECT_EQ(blue->prev, green);
  EXPECT_EQ(blue->next, nullptr);
  EXPECT_EQ(blue->type, 1);
  EXPECT_EQ(SchemePath(blue), "v1.02 Schema/Blue");
}

TEST_F(ConfigReadTest, AFirstSchemaWithAnEmptyCatalogueHeadsTheList) {
  read("SCHEMA=Red\n");
  ASSERT_NE(config.schemeStyles, nullptr);
  EXPECT_STREQ(config.schemeStyles->name.get(), "v1.02 Schema");
  EXPECT_EQ(config.schemeStyles->prev, nullptr);
  EXPECT_EQ(config.currentStyle, config.schemeStyles);
}

TEST_F(ConfigReadTest, SchemaCountsAtTheStartOfTheLineOnly) {
  read("xSCHEMA=Red\n SCHEMA=Red\n3=a\n");
  EXPECT_EQ(config.schemeStyles, nullptr);
}

TEST_F(ConfigReadTest, SchemaIsTestedBehindTheDirectoriesAndBeforeThePort) {
  read("SCHEMA=Red port=7\n");
  EXPECT_STREQ(config.schemeStyles->schemes->name.get(), "Red port=7");
  EXPECT_EQ(config.proxyPort, 0);
  read("SCHEMA=LD4=x\n");
  EXPECT_STREQ(config.lastDir[3].get(), "LD4=x");
  EXPECT_EQ(config.schemeStyles->next, nullptr);
}

TEST_F(ConfigReadTest, ASectionTakesSlotsByTheirNumbers) {
  std::string lines;
  for (int i = 0; i <= 30; ++i) lines += std::to_string(i) + "=v" + std::to_string(i) + "\n";
  const Scheme& scheme = section(lines);
  for (std::size_t i = 0; i < kSchemeSlots; ++i) EXPECT_EQ(scheme.slot[i].view(), "v" + std::to_string(i));
}

TEST_F(ConfigReadTest, ASlotIsReplacedByALaterLine) { EXPECT_STREQ(section("3=a\n3=b=c\n").slot[3].get(), "b=c"); }

TEST_F(ConfigReadTest, ASlotLineWithoutEqualsSignOrAboveTheLastSlotIsIgnored) {
  EXPECT_EQ(setSlots(section("3\n12 a\n31=a\n99999=a\n")), 0);
}

TEST_F(ConfigReadTest, ASectionNamesSlotsByWords) {
  const Scheme& scheme = section("A=a\nG=g\nF=f\nO=o\nADD=add\nREM=rem\nBACK=back\n");
  EXPECT_STREQ(scheme.slot[27].get(), "a");
  EXPECT_STREQ(scheme.slot[25].get(), "g");
  EXPECT_STREQ(scheme.slot[24].get(), "f");
  EXPECT_STREQ(scheme.slot[26].get(), "o");
  EXPECT_STREQ(scheme.slot[28].get(), "add");
  EXPECT_STREQ(scheme.slot[30].get(), "rem");
  EXPECT_STREQ(scheme.slot[29].get(), "back");
  EXPECT_EQ(setSlots(scheme), 7);
}

TEST_F(ConfigReadTest, TheWordsOfASectionCountAtTheStartOfTheLineAndWithCase) {
  const Scheme& scheme = section(" A=a\nxG=g\nadd=1\nREMOVE=1\n 3=a\nxCLR=FF\nxSCF=a\n");
  EXPECT_EQ(setSlots(scheme), 0);
  EXPECT_EQ(scheme.customColours, CustomColours{});
  EXPECT_EQ(scheme.files, nullptr);
}

TEST_F(ConfigReadTest, ASectionTakesCustomColours) {
  std::string line = "CLR=";
  for (int i = 0; i < 32; ++i) line += "0Fa0";
  const Scheme& scheme = section(line + "\n");
  for (std::size_t i = 0; i < scheme.customColours.size(); ++i) {
    EXPECT_EQ(scheme.customColours[i], i % 2 == 0 ? 0x0F : 0xA0) << i;
  }
}

TEST_F(ConfigReadTest, CustomColoursWithTooFewDigitsFillWhatIsThere) {
  const Scheme& scheme = section("CLR=0102FF\n");
  CustomColours expected{};
  expected[0] = 1;
  expected[1] = 2;
  expected[2] = 255;
  EXPECT_EQ(scheme.customColours, expected);
}

TEST_F(ConfigReadTest, ASectionListsItsFilesInOrder) {
  const Scheme& scheme = section("SCF=img\\a.gif\nSCF=img\\b.gif\nSCF=img\\c.gif\n");
  EXPECT_THAT(filesOf(scheme), ElementsAre("img\\a.gif", "img\\b.gif", "img\\c.gif"));
  EXPECT_EQ(scheme.files->prev, nullptr);
  EXPECT_EQ(scheme.files->next->prev, scheme.files);
}

TEST_F(ConfigReadTest, LinesOfASectionGoToItsLastScheme) {
  addStyle("A");
  read("SCHEMA=Red\n3=a\nSCF=r\nSCHEMA=Green\n3=b\nSCF=g\n");
  const Scheme* red = config.schemeStyles->next->schemes;
  EXPECT_STREQ(red->slot[3].get(), "a");
  EXPECT_THAT(filesOf(*red), ElementsAre("r"));
  EXPECT_STREQ(red->next->slot[3].get(), "b");
  EXPECT_THAT(filesOf(*red->next), ElementsAre("g"));
}

TEST_F(ConfigReadTest, SlotLinesBeforeASectionAreSkipped) {
  addStyle("A");
  read("3=a\nG=b\nCLR=FF\nSCF=x\n");
  EXPECT_EQ(config.schemeStyles->next, nullptr);
  EXPECT_EQ(setSlots(*config.schemeStyles), 0);
  EXPECT_EQ(config.schemeStyles->files, nullptr);
}

TEST_F(ConfigReadTest, AKeyOfTheSettingsInsideASectionIsTakenAndTheSectionStaysOpen) {
  const Scheme& scheme = section("3=a\nport=8080\n4=b\n");
  EXPECT_EQ(config.proxyPort, 8080);
  EXPECT_STREQ(scheme.slot[3].get(), "a");
  EXPECT_STREQ(scheme.slot[4].get(), "b");
}

TEST_F(ConfigReadTest, ASlotWhoseTextHoldsAKeyGoesToThatKey) {
  const Scheme& scheme = section("10=<IMG id=x>\n");
  EXPECT_EQ(setSlots(scheme), 0);
  EXPECT_STREQ(config.accountId.get(), "<IMG id=x>");
}

TEST_F(ConfigReadTest, ASectionEndsWithItsFile) {
  const Scheme& scheme = section("3=a\n");
  read("4=b\nSCF=x\n", "server.ini");
  EXPECT_EQ(setSlots(scheme), 1);
  EXPECT_EQ(scheme.files, nullptr);
}

TEST_F(ConfigReadTest, ASectionOfAnotherFileMakesAnotherStyle) {
  section("3=a\n");
  read("SCHEMA=New\n", "server.ini");
  const SchemeStyle* second = config.schemeStyles->next->next;
  ASSERT_NE(second, nullptr);
  EXPECT_STREQ(second->name.get(), "v1.02 Schema");
  EXPECT_STREQ(second->schemes->name.get(), "New");
}

TEST_F(ConfigReadTest, TheCatalogueTakesTheSectionOverAtTheNextSave) {
  section("3=a\nSCF=x\n");
  ConfigSave(t.program);
  EXPECT_THAT(*t.files.content("config.ini"), Not(HasSubstr("SCHEMA=")));
  EXPECT_THAT(*t.files.content("config.ini"), Not(HasSubstr("\n3=a\n")));
  const std::string zeroes(128, '0');
  EXPECT_EQ(t.files.content("scheme.ini"),
            "product=Varlo PRO\nversion=1.07\n"
            "\nSCHEMA=v1.02 Schema\nTYP=1\nCLR=" +
                zeroes +
                "\n#CAT\n"
                "\nSCHEMA=Old\nTYP=1\n3=a\nCLR=" +
                zeroes + "\nSCF=x\n#BREAK\n");
}

// Writing.

class ConfigSaveTest : public testing::Test {
 protected:
  TestProgram t;
  AppConfig& config = t.config();

  void fill() {
    config.browser.assign("c:\\b.exe");
    config.proxy.assign("p.example");
    config.orderServer.assign("s.example");
    t.project().projectFile.assign("c:\\shop\\a.stp");
    for (std::size_t i = 0; i < 4; ++i) config.lastDir[i].assign("c:\\" + std::to_string(i + 1));
    config.proxyPort = 8080;
    config.newWindow = 2;
    config.lowerCaseLinks = 0;
    config.viewFlags = 1;
    config.directoryLink = -1;
    config.display = 63;
    config.control = 4;
    config.helpAtStart = 5;
    config.uid = 1033;
    config.accountId.assign("shop7");
  }
  std::string saved() {
    ConfigSave(t.program);
    return t.files.content("config.ini").value_or("(no file)");
  }
  void failAt(const std::string& operation) {
    t.files.shallFail = [operation](const std::string& asked) { return asked == operation; };
  }
};

TEST_F(ConfigSaveTest, WritesTheKeysInTheirOrder) {
  fill();
  EXPECT_EQ(saved(),
            "version=1.07\nbrowser=c:\\b.exe\nproxy=p.example\nvarlo=s.example\nfile=c:\\shop\\a.stp\n"
            "LD1=c:\\1\nLD2=c:\\2\nLD3=c:\\3\nLD4=c:\\4\nport=8080\nnewwin=2\ncase=0\nview=1\nother=-1\n"
            "display=63\ncontrol=4\nhelp=5\nuid=1033\nid=shop7\n");
}

const std::string kDefaultFile =
    "version=1.07\nport=0\nnewwin=0\ncase=1\nview=3\nother=1\ndisplay=31\ncontrol=0\nhelp=1\nuid=0\n";

TEST_F(ConfigSaveTest, LeavesOutTextsThatAreNotThereAndWritesEveryNumber) { EXPECT_EQ(saved(), kDefaultFile); }

TEST_F(ConfigSaveTest, LeavesOutEmptyTexts) {
  for (Text* text : {&config.browser, &config.proxy, &config.orderServer, &config.accountId, &config.lastDir[0],
                     &config.lastDir[1], &config.lastDir[2], &config.lastDir[3], &t.project().projectFile}) {
    text->assign("");
  }
  EXPECT_EQ(saved(), kDefaultFile);
}

TEST_F(ConfigSaveTest, EachDirectoryIsWrittenOnItsOwn) {
  config.lastDir[2].assign("c:\\x");
  EXPECT_THAT(saved(), StartsWith("version=1.07\nLD3=c:\\x\nport=0\n"));
}

TEST_F(ConfigSaveTest, TextsAreWrittenUnchanged) {
  config.browser.assign("\"c:\\my b.exe\" -a=@@@ \xA9%s|");
  EXPECT_THAT(saved(), HasSubstr("\nbrowser=\"c:\\my b.exe\" -a=@@@ \xA9%s|\n"));
}

TEST_F(ConfigSaveTest, ATextTooLongForALineLosesItsLineEnd) {
  config.accountId.assign("7");
  config.proxy.assign(std::string(4000, 'p'));
  EXPECT_THAT(saved(), StartsWith("version=1.07\nproxy=" + std::string(3095 - 6, 'p') + "port=0\n"));
}

TEST_F(ConfigSaveTest, GivesOneAndWritesTheCatalogueToo) {
  EXPECT_EQ(ConfigSave(t.program), 1);
  EXPECT_EQ(t.files.content("scheme.ini"), "product=Varlo PRO\nversion=1.07\n");
  EXPECT_TRUE(t.screen.boxes.empty());
  EXPECT_EQ(t.files.openHandles(), 0U);
}

TEST_F(ConfigSaveTest, WritesTheConfigurationBeforeTheCatalogue) {
  ConfigSave(t.program);
  EXPECT_THAT(t.files.log, ElementsAre("create C:\\Varlo\\config.ini", "write C:\\Varlo\\config.ini",
                                       "create C:\\Varlo\\scheme.ini", "write C:\\Varlo\\scheme.ini"));
}

TEST_F(ConfigSaveTest, ReplacesAnOlderFile) {
  t.files.put("config.ini", std::string(5000, 'x'));
  EXPECT_EQ(saved(), kDefaultFile);
}

TEST_F(ConfigSaveTest, WithoutAConfigurationFileTheCatalogueIsNotWrittenEither) {
  failAt("create C:\\Varlo\\config.ini");
  EXPECT_EQ(ConfigSave(t.program), 0);
  EXPECT_THAT(t.screen.boxes, ElementsAre(kConfigBox));
  EXPECT_FALSE(t.files.content("scheme.ini").has_value());
  EXPECT_THAT(t.files.log, Not(Contains("create C:\\Varlo\\scheme.ini")));
  EXPECT_EQ(t.files.openHandles(), 0U);
}

TEST_F(ConfigSaveTest, ACatalogueThatCanNotBeWrittenMakesTheResultZero) {
  failAt("create C:\\Varlo\\scheme.ini");
  EXPECT_EQ(ConfigSave(t.program), 0);
  EXPECT_THAT(t.screen.boxes, ElementsAre(kCatalogueBox));
  EXPECT_EQ(t.files.content("config.ini"), kDefaultFile);
}

TEST_F(ConfigSaveTest, WhatIsSavedReadsBackTheSame) {
  fill();
  TestProgram next;
  next.files.put("config.ini", saved());
  EXPECT_EQ(ConfigRead(next.program, "config.ini"), 1);
  Settings expected = settingsOf(t);
  EXPECT_EQ(settingsOf(next), expected);
  EXPECT_EQ(ConfigSave(next.program), 1);
  EXPECT_EQ(next.files.content("config.ini"), t.files.content("config.ini"));
}

}  // namespace
}  // namespace varlo
