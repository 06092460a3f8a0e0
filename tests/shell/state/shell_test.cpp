#include "shell/state/shell.h"

#include <gtest/gtest.h>

#include "tests/support/test_shell.h"

namespace varlo::test {
namespace {

TEST(Shell, StartsOnTheInventoryTabWithNothingUnderWay) {
  TestShell t;
  EXPECT_EQ(t.shell.currentTab, Tab::Inventory);
  EXPECT_FALSE(t.shell.treeDragging || t.shell.listDragging || t.shell.formLoading);
}

}  // namespace
}  // namespace varlo::test
