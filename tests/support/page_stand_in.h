// The window of a page whose logic does nothing, for tests of what goes on around pages.
#pragma once

#include "tests/support/fake_window.h"

namespace varlo::test {

struct PageStandIn {
  struct NoLogic : DialogLogic {
    void opened(Dialog& /*dialog*/) override {}
    void notified(Dialog& /*dialog*/, const ControlEvent& /*event*/) override {}
  };
  NoLogic logic;
  FakeWindow window{logic};
};

}  // namespace varlo::test
