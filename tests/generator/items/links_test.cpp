#include "generator/items/links.h"

#include <gtest/gtest.h>

namespace varlo {
namespace {

using namespace std::string_view_literals;

TEST(Links, SlashesTurnBothWays) {
  EXPECT_EQ(ForwardSlashes("a\\b/c\\"), "a/b/c/");
  EXPECT_EQ(BackSlashes("a\\b/c/"), "a\\b\\c\\");
  EXPECT_EQ(ForwardSlashes(""), "");
}

TEST(Links, BaseNameGoesByTheBackSlashFirst) {
  EXPECT_EQ(BaseName("img\\f.gif"sv), "f.gif");
  EXPECT_EQ(BaseName("img/f.gif"sv), "f.gif");
  EXPECT_EQ(BaseName("a\\b/c"sv), "b/c");
  EXPECT_EQ(BaseName("f.gif"sv), "f.gif");
  EXPECT_EQ(BaseName("img\\"sv), "");
  EXPECT_EQ(BaseName("<img src=\"x.gif\"></a>"sv), "a>") << "HTML with a slash loses what stands before its last";
}

TEST(Links, AnAbsentBaseNameStaysAbsent) {
  EXPECT_EQ(BaseName(Text()), Value());
  EXPECT_EQ(BaseName(Text("")), Value(""));
  EXPECT_EQ(BaseName(Text("img\\a.gif")), Value("a.gif"));
}

TEST(Links, AnImageBecomesItsLowerCaseNameBelowImg) {
  AppConfig config;
  EXPECT_EQ(RewriteImageUrl(config, "C:\\Pictures\\Red Shoe.GIF"), "img/red shoe.gif");
  EXPECT_EQ(RewriteImageUrl(config, "Pictures/Shoes\\Red.JPG"), "img/red.jpg");
  EXPECT_EQ(RewriteImageUrl(config, "Red.JPG"), "img/red.jpg");
  EXPECT_EQ(RewriteImageUrl(config, "Pictures\\"), "img/");
  config.lowerCaseLinks = 0;
  EXPECT_EQ(RewriteImageUrl(config, "C:\\Pictures\\Red.GIF"), "img/Red.GIF");
}

TEST(Links, AnOutsideOrEmptyImageStaysAsItIs) {
  AppConfig config;
  EXPECT_EQ(RewriteImageUrl(config, "http://other.example/A.gif"), "http://other.example/A.gif");
  EXPECT_EQ(RewriteImageUrl(config, "Pictures//A.gif"), "Pictures//A.gif");
  EXPECT_EQ(RewriteImageUrl(config, ""), "");
  EXPECT_EQ(RewriteImageUrl(config, "http:\\\\other\\A.gif"), "img/a.gif");
}

TEST(Links, OnlyTheFirst512BytesOfAnImageCount) {
  AppConfig config;
  const std::string head(508, 'a');
  EXPECT_EQ(RewriteImageUrl(config, head + "/xyz.gif"), "img/xyz");
  EXPECT_EQ(RewriteImageUrl(config, head + "bcde/xyz.gif"), "img/" + head + "bcde");
}

TEST(Links, TheAccountIsCutBehindTheSecondCharacterAfterItsHyphen) {
  AppConfig config;
  const auto user = [&config](const char* account) {
    config.accountId.assign(account);
    return AccountUser(config);
  };
  EXPECT_EQ(user("ab-cdefg"), "ab-cd");
  EXPECT_EQ(user("ab-cd-ef"), "ab-cd");
  EXPECT_EQ(user("abcdefg"), "abcdefg");
  EXPECT_EQ(user("ab-c"), "ab-c");
  EXPECT_EQ(user("ab-"), "ab-");
  EXPECT_EQ(user(nullptr), "");
}

}  // namespace
}  // namespace varlo
