#include "core/text/paths.h"

#include <gtest/gtest.h>

namespace varlo {
namespace {

TEST(SingleBackSlashes, ReducesEveryRunToOne) {
  EXPECT_EQ(SingleBackSlashes("C:\\\\shop\\\\\\\\web\\a.htm"), "C:\\shop\\web\\a.htm");
  EXPECT_EQ(SingleBackSlashes("\\\\"), "\\");
}

TEST(SingleBackSlashes, LeavesOtherPaths) {
  EXPECT_EQ(SingleBackSlashes("C:\\shop\\a.htm"), "C:\\shop\\a.htm");
  EXPECT_EQ(SingleBackSlashes("http://shop//a"), "http://shop//a");
  EXPECT_EQ(SingleBackSlashes(""), "");
}

TEST(PathName, IsWhatFollowsTheLastBackSlash) {
  EXPECT_EQ(PathName("C:\\shop\\a.htm"), "a.htm");
  EXPECT_EQ(PathName("a.htm"), "a.htm");
  EXPECT_EQ(PathName("C:\\shop\\"), "");
  EXPECT_EQ(PathName("web/a.htm"), "web/a.htm");
  EXPECT_EQ(PathName(""), "");
}

TEST(PathStem, IsTheNameWithoutItsExtension) {
  EXPECT_EQ(PathStem("C:\\shop\\demo.stp"), "demo");
  EXPECT_EQ(PathStem("C:\\shop\\demo.old.stp"), "demo.old");
  EXPECT_EQ(PathStem("C:\\shop.dir\\demo"), "demo");
  EXPECT_EQ(PathStem("demo"), "demo");
  EXPECT_EQ(PathStem(".stp"), "");
  EXPECT_EQ(PathStem(""), "");
}

TEST(StaysBelow, AnOrdinaryNameDoes) {
  for (const char* name :
       {"a.htm", "..a.htm", "a..htm", "...a", ".htaccess", "a b.htm", "\xe9t\xe9.htm", "$~#%&.htm"}) {
    EXPECT_TRUE(StaysBelow(name)) << name;
  }
}

TEST(StaysBelow, ANameWithFoldersDoes) {
  for (const char* name : {"a\\b.htm", "a/b.htm", "a\\b/c\\d.htm", "a\\\\b.htm", "a\\", ".\\a.htm", "a\\.\\b.htm"}) {
    EXPECT_TRUE(StaysBelow(name)) << name;
  }
}

TEST(StaysBelow, TheFolderItselfDoes) {
  for (const char* name : {"", ".", "a\\..", "a/..", ".\\", "a\\b\\..\\.."}) EXPECT_TRUE(StaysBelow(name)) << name;
}

TEST(StaysBelow, TwoDotsThatComeBackDo) {
  for (const char* name : {"a\\..\\b.htm", "a/b/../../c.htm", "a\\.\\..\\b", "a\\\\..\\b"}) {
    EXPECT_TRUE(StaysBelow(name)) << name;
  }
}

TEST(StaysBelow, TwoDotsThatClimbDoNot) {
  for (const char* name :
       {"..", "../", "..\\", "..\\a.htm", "../a.htm", "a\\..\\..\\b.htm", "a/../../b.htm", "a\\..\\../a\\b",
        ".\\..\\a", "a\\.\\..\\..\\b", "a\\\\..\\..\\b", "..\\..\\..\\upgrade.new"}) {
    EXPECT_FALSE(StaysBelow(name)) << name;
  }
}

TEST(StaysBelow, ClimbingAndComingBackDoesNot) {
  EXPECT_FALSE(StaysBelow("..\\web\\a.htm"));
  EXPECT_FALSE(StaysBelow("a\\..\\..\\web\\a.htm"));
}

TEST(StaysBelow, ASlashInFrontDoesNot) {
  for (const char* name : {"\\a.htm", "/a.htm", "\\", "/", "\\\\server\\share\\a.htm", "//server/a.htm", "\\..\\a"}) {
    EXPECT_FALSE(StaysBelow(name)) << name;
  }
}

TEST(StaysBelow, ADriveDoesNot) {
  for (const char* name :
       {"C:", "c:\\a.htm", "C:/a.htm", "C:a.htm", "Z:\\etc\\passwd", "a\\C:\\b.htm", "\\\\?\\C:\\a"}) {
    EXPECT_FALSE(StaysBelow(name)) << name;
  }
}

TEST(StaysBelow, AStreamOfAFileOrAFolderDoesNot) {
  for (const char* name : {"a.htm:stream", "..::$INDEX_ALLOCATION\\a.htm", "a\\..:x"}) {
    EXPECT_FALSE(StaysBelow(name)) << name;
  }
}

TEST(StaysBelow, DotsAndBlanksThatSystemsReadDifferentlyDoNot) {
  for (const char* name : {"...", "....", ".. ", "..  .", ". .", "a\\...\\b.htm", "a\\.. \\..\\b.htm", "a/.. "}) {
    EXPECT_FALSE(StaysBelow(name)) << name;
  }
}

TEST(StaysBelow, ANulDoesNot) {
  EXPECT_FALSE(StaysBelow(std::string_view("..\0x", 4)));
  EXPECT_FALSE(StaysBelow(std::string_view("a\0", 2)));
}

TEST(StaysBelow, TheLengthOfANameDoesNotMatter) {
  const std::string part(300, 'x');
  std::string deep;
  for (int i = 0; i < 100; ++i) deep += part + "\\";
  EXPECT_TRUE(StaysBelow(deep + "a.htm"));
  std::string climb = deep;
  for (int i = 0; i < 100; ++i) climb += "..\\";
  EXPECT_TRUE(StaysBelow(climb + "a.htm"));
  EXPECT_FALSE(StaysBelow(climb + "..\\a.htm"));
}

}  // namespace
}  // namespace varlo
