#include "persist/project/project_migrate.h"

#include <gtest/gtest.h>

#include "tests/support/project_text.h"

namespace varlo {
namespace {

using namespace test;

const std::string kFirstMessage =
    "Your project was saved with an older version of Varlo PRO.\r\n\r\nFor compatibility, Varlo needs to replace "
    "your "
    "Shelf, Order form, and Confirmation page templates.  If you have made changes to these templates, a copy of the "
    "changed versions will be saved as shelf.bak, order.bak and confirm.bak in your project's template directory.";
const std::string kSecondMessage =
    "Your project was saved with an older version of Varlo PRO.\r\n\r\nFor compatibility, Varlo needs to replace "
    "your "
    "Order form, and Confirmation page templates.  If you have made changes to these templates, a copy of the "
    "changed "
    "versions will be saved as order.bak and confirm.bak in your project's template directory.";

class ProjectMigrateTest : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();

  void SetUp() override {
    for (const char* name : {"shelf.htm", "order.htm", "confirm.htm"}) t.files.put(inProject(name), "own");
    t.files.put("template\\shelf.htm", "new shelf");
    t.files.put("template\\order.dat", "new order");
    t.files.put("template\\confirm.dat", "new confirm");
  }
  static std::string inProject(std::string_view name) {
    return std::string("Projects\\Shop\\Template\\").append(name);
  }
  std::string content(std::string_view name) { return t.files.content(inProject(name)).value_or("(none)"); }
  void expectMessage(const std::string& text) {
    ASSERT_EQ(t.screen.boxes.size(), 1U);
    EXPECT_EQ(t.screen.boxes[0], (ShownBox{text, "Project Upgrade", Buttons::Ok, Icon::Exclamation}));
  }
};

TEST_F(ProjectMigrateTest, Version101003ReplacesShelfAndOrderAndMakesACofirm) {
  LoadText(t, "VERSION=101003\n");
  expectMessage(kFirstMessage);
  EXPECT_EQ(content("shelf.bak"), "own");
  EXPECT_EQ(content("shelf.htm"), "new shelf");
  EXPECT_EQ(content("order.bak"), "own");
  EXPECT_EQ(content("order.htm"), "new order");
  EXPECT_EQ(content("cofirm.htm"), "new confirm");
  EXPECT_EQ(content("confirm.htm"), "own");
  EXPECT_EQ(content("confirm.bak"), "(none)");
  EXPECT_EQ(project.dirty, 1);
  EXPECT_EQ(project.fileVersion, 107001);
  EXPECT_STREQ(project.orderTemplate.get(), "new order");
}

TEST_F(ProjectMigrateTest, Version101004LeavesTheShelf) {
  LoadText(t, "VERSION=101004\n");
  expectMessage(kSecondMessage);
  EXPECT_EQ(content("shelf.bak"), "(none)");
  EXPECT_EQ(content("shelf.htm"), "own");
  EXPECT_EQ(content("order.bak"), "own");
}

TEST_F(ProjectMigrateTest, Version103000GivesTheSecondMessage) {
  LoadText(t, "VERSION=103000\n");
  expectMessage(kSecondMessage);
}

TEST_F(ProjectMigrateTest, Version103001ChangesNothing) {
  LoadText(t, "VERSION=103001\n");
  EXPECT_TRUE(t.screen.boxes.empty());
  EXPECT_TRUE(t.files.log.empty());
  EXPECT_EQ(project.dirty, 0);
  EXPECT_EQ(project.fileVersion, 107001);
}

TEST_F(ProjectMigrateTest, AFileWithoutVersionLoadedFirstIsTheOldest) {
  LoadText(t, "NODE0=Home\n");
  expectMessage(kFirstMessage);
}

TEST_F(ProjectMigrateTest, AFileWithoutVersionLoadedLaterIsOfTheVersionReadLast) {
  LoadText(t, "VERSION=105001\n");
  LoadText(t, "NODE0=Home\n");
  EXPECT_TRUE(t.screen.boxes.empty());
}

TEST_F(ProjectMigrateTest, FailingCopiesRaiseTheVersionAllTheSame) {
  t.files.shallFail = [](const std::string&) { return true; };
  LoadText(t, "VERSION=101003\n");
  EXPECT_EQ(project.fileVersion, 107001);
  EXPECT_EQ(t.screen.boxes.size(), 1U);
}

}  // namespace
}  // namespace varlo
