#include "shell/browser/order_server.h"

#include <gtest/gtest.h>

#include "shell/window/commands.h"
#include "tests/support/test_shell.h"

namespace varlo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(RequireServer, IsTrueWithAnOrderServer) {
  TestShell t;
  t.config().orderServer.assign("http://orders.example");
  EXPECT_TRUE(requireServer(t.shell));
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST(RequireServer, TellsWhenThereIsNone) {
  TestShell t;
  for (const char* none : {static_cast<const char*>(nullptr), ""}) {
    t.config().orderServer.assign(none);
    t.screen.boxes.clear();
    EXPECT_FALSE(requireServer(t.shell));
    EXPECT_THAT(
        t.screen.boxes,
        ElementsAre(ShownBox{"No Varlo server selected.  Please select an Varlo server address in Preferences.",
                             "Configuration Error", Buttons::Ok, Icon::Stop}));
  }
}

class ViewOrders : public testing::Test {
 protected:
  TestShell t;

  void SetUp() override { t.config().browser.assign("C:\\web.exe"); }
  std::string addressFor(const char* server, const char* account) {
    t.config().orderServer.assign(server);
    t.config().accountId.assign(account);
    dispatchCommand(t.shell, Command::ViewOrders);
    return t.browsers.calls.empty() ? "(none)" : t.browsers.calls.back();
  }
};

TEST_F(ViewOrders, WithoutAServerIsToldAndStops) {
  t.config().accountId.assign("shop-1234");
  dispatchCommand(t.shell, Command::ViewOrders);
  EXPECT_THAT(t.screen.boxes,
              ElementsAre(ShownBox{"No Varlo server selected.  Please select an Varlo server address in Preferences.",
                                   "Configuration Error", Buttons::Ok, Icon::Stop}));
  EXPECT_THAT(t.browsers.calls, IsEmpty());
}

TEST_F(ViewOrders, ABareHostNameGetsTheSecurePrefix) {
  EXPECT_EQ(addressFor("orders.example", "shop-1234"), "start C:\\web.exe | https://orders.example?SN=shop-1234");
}

TEST_F(ViewOrders, AServerWithAColonIsUsedAsItStands) {
  EXPECT_EQ(addressFor("http://orders.example", "shop-1234"),
            "start C:\\web.exe | http://orders.example?SN=shop-1234");
}

TEST_F(ViewOrders, WithoutAnAccountTheAddressEndsInSN) {
  EXPECT_EQ(addressFor("orders.example", nullptr), "start C:\\web.exe | https://orders.example?SN=");
}

}  // namespace
}  // namespace varlo::test
