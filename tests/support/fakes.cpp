// The fakes' beginnings and ends, and so all that their virtual functions are made of: compiled once, not in every
// test.

#include "tests/support/fake_browsers.h"
#include "tests/support/fake_main_window.h"
#include "tests/support/fake_screen.h"
#include "tests/support/fake_window.h"
#include "tests/support/recording_view.h"
#include "tests/support/test_program.h"

namespace varlo::test {

FakeBrowsers::FakeBrowsers() = default;
FakeBrowsers::~FakeBrowsers() = default;

FakeList::FakeList() = default;
FakeList::~FakeList() = default;

FakeMainWindow::FakeMainWindow(MainWindowLogic& logic) : logic_(logic) { theTree.logic = theList.logic = &logic; }
FakeMainWindow::~FakeMainWindow() = default;

FakeScreen::FakeScreen() = default;
FakeScreen::~FakeScreen() = default;

FakeTree::FakeTree() = default;
FakeTree::~FakeTree() = default;

RecordingView::RecordingView() = default;
RecordingView::~RecordingView() = default;

TestProgram::TestProgram() = default;
TestProgram::~TestProgram() = default;

}  // namespace varlo::test
