#include <gtest/gtest.h>

#include "shell/commands.h"
#include "shell/shell.h"
#include "tests/support/fake_browsers.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(RequireServer, IsTrueWithAnOrderServer) {
  TestProgram t;
  FakeBrowsers browsers;
  Shell shell(t.program, browsers);
  t.config().orderServer.assign("http://orders.example");
  EXPECT_TRUE(requireServer(shell));
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST(RequireServer, TellsWhenThereIsNone) {
  TestProgram t;
  FakeBrowsers browsers;
  Shell shell(t.program, browsers);
  for (const char* none : {static_cast<const char*>(nullptr), ""}) {
    t.config().orderServer.assign(none);
    t.screen.boxes.clear();
    EXPECT_FALSE(requireServer(shell));
    EXPECT_THAT(
        t.screen.boxes,
        ElementsAre(ShownBox{"No Varlo server selected.  Please select an Varlo server address in Preferences.",
                             "Configuration Error", Buttons::Ok, Icon::Stop}));
  }
}

}  // namespace
}  // namespace varlo
