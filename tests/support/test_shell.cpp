#include "tests/support/test_shell.h"

namespace varlo::test {

HelpedView::HelpedView() = default;
HelpedView::~HelpedView() = default;

TestShell::TestShell() { view.setShell(&shell); }
TestShell::~TestShell() { view.setShell(nullptr); }

}  // namespace varlo::test
