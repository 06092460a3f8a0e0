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

}  // namespace
}  // namespace varlo
