// A shell with an open page on fakes: a home page with a product, which is current.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "shell/state/shell.h"
#include "shell/tabs/tab_switch.h"
#include "tests/support/fake_browsers.h"
#include "tests/support/fake_window.h"
#include "tests/support/test_program.h"
#include "tests/support/tree.h"

namespace varlo::test {

// A window that also records in which order fields are filled.
class RecordingWindow : public FakeWindow {
 public:
  using FakeWindow::FakeWindow;
  std::vector<ControlId> filled;

  void setText(ControlId control, std::string_view text) override {
    filled.push_back(control);
    FakeWindow::setText(control, text);
  }
};

struct TestForm : TestProgram {
  FakeBrowsers browsers;
  Shell shell{program, browsers};
  StoreNode* home = AddCategory(project(), "Home");
  StoreNode* ball = AddProduct(project(), "Ball", home);
  std::shared_ptr<TabPage> logic;
  std::unique_ptr<RecordingWindow> page;

  TestForm() { Select(project(), ball); }
  ~TestForm() { close(); }
  TestForm(const TestForm&) = delete;
  TestForm& operator=(const TestForm&) = delete;

  void open(Tab tab = Tab::Inventory) {
    close();
    shell.currentTab = tab;
    shell.pageLogic = logic = traitsOf(tab).makePage(shell);
    page = std::make_unique<RecordingWindow>(*logic);
    page->open();
    view.calls.clear();
    page->filled.clear();
  }
  void close() {
    page.reset();
    if (logic != nullptr) logic->closed();
    shell.pageLogic = nullptr;
    logic.reset();
  }
};

}  // namespace varlo::test
