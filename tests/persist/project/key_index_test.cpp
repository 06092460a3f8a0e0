#include "persist/project/key_index.h"

#include <gtest/gtest.h>

namespace varlo {
namespace {

class KeyIndexTest : public testing::Test {
 protected:
  KeyIndex index;
  std::string_view value;

  void SetUp() override {
    index.add("F", 1);
    index.add("FILE", 2);
    index.add("CMESSAGE", 3);
  }
};

TEST_F(KeyIndexTest, TellsKeysApartByTheirFullText) {
  EXPECT_EQ(index.find("F=a", value), 1U);
  EXPECT_EQ(value, "a");
  EXPECT_EQ(index.find("FILE=b=c", value), 2U);
  EXPECT_EQ(value, "b=c");
}

TEST_F(KeyIndexTest, AKeyOfEightBytesIsTheLongest) {
  EXPECT_EQ(index.find("CMESSAGE=", value), 3U);
  EXPECT_EQ(value, "");
  EXPECT_EQ(index.find("XCMESSAGE=x", value), KeyIndex::kNone);
}

TEST_F(KeyIndexTest, NearMissesAreNotFound) {
  for (const char* line : {"", "=", "=F", "F", "FILE", "f=1", "FI=1", "FILES=1", " F=1", "CMESSAGEX", "CMESSAGE"}) {
    EXPECT_EQ(index.find(line, value), KeyIndex::kNone) << line;
  }
}

}  // namespace
}  // namespace varlo
