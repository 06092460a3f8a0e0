#include "core/text_edit.h"

#include <gtest/gtest.h>

namespace varlo {
namespace {

TEST(TrimEnd, LineOfSpacesLeavesTheEmptyString) { EXPECT_EQ(TrimEnd("   \r\n"), ""); }

}  // namespace
}  // namespace varlo
