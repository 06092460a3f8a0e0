// The real main window, with a logic that keeps what it is told, in the test's own thread.
#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/main_window.h"
#include "shell/window/main_layout.h"
#include "tests/win32/window_support.h"
#include "win32/dialog_host.h"
#include "win32/dialog_template.h"
#include "win32/resource_ids.h"
#include "win32/win32_main_window.h"

namespace varlo::test {

class RecordingMainLogic : public MainWindowLogic {
 public:
  std::vector<std::string> told;
  bool consumesKeys = false;

  [[nodiscard]] int count(const std::string& line) const {
    int number = 0;
    for (const std::string& each : told) number += each == line ? 1 : 0;
    return number;
  }

  [[nodiscard]] const DialogShape& shape() const override { return MainWindowShape(); }
  void opened(MainWindow& /*window*/) override { tell("opened"); }
  void command(Command command) override { tell("command", static_cast<int>(command)); }
  void tabSelected(int tab) override { tell("tab", tab); }
  void resized() override { tell("resized"); }
  void moved() override { tell("moved"); }
  void closeRequested() override { tell("closeRequested"); }
  void closing() override { tell("closing"); }
  std::string_view toolTip(Command command) override {
    tell("toolTip", static_cast<int>(command));
    return "The tip";
  }
  void focusMoved() override { tell("focusMoved"); }

  void treeSelectionChanged(TreeItem item) override { tell("selected", static_cast<int>(item)); }
  void treeItemExpanding(TreeItem item) override { tell("expanding", static_cast<int>(item)); }
  bool treeKey(Key key) override {
    tell("treeKey", static_cast<int>(key));
    return consumesKeys;
  }
  void treeRightClicked(Point /*point*/) override { tell("treeRightClicked"); }
  void treeDragBegun(TreeItem item) override { tell("treeDrag", static_cast<int>(item)); }

  std::string_view cellText(ItemData data, int column) override {
    text_ = *static_cast<std::string*>(data) + "/" + std::to_string(column);
    return text_;
  }
  int rowIcon(ItemData /*data*/) override { return 11; }
  void rowClicked(int row) override { tell("rowClicked", row); }
  void rowDoubleClicked(int row) override { tell("rowDoubleClicked", row); }
  void rowChanged(int row) override { tell("rowChanged", row); }
  void columnClicked(int column) override { tell("column", column); }
  void listKey(Key key, bool control) override { tell(control ? "listKey ctrl" : "listKey", static_cast<int>(key)); }
  void listRightClicked(Point /*point*/) override { tell("listRightClicked"); }
  void listDragBegun(int row) override { tell("listDrag", row); }

  void dragMoved(Point /*point*/) override { tell("dragMoved"); }
  void dragTicked() override { tell("dragTicked"); }
  void dragReleased(Point /*point*/) override { tell("dragReleased"); }

 private:
  void tell(const std::string& what) { told.push_back(what); }
  void tell(const std::string& what, int number) { told.push_back(what + " " + std::to_string(number)); }

  std::string text_;
};

class MainWindowTest : public testing::Test {
 protected:
  RecordingMainLogic logic;
  std::unique_ptr<Win32MainWindow> window;
  HWND handle = nullptr;

  void SetUp() override {
    LoadControlClasses();
    const DialogTemplate frame(logic.shape(), RESOURCE_MAIN_MENU);
    handle = ::CreateDialogIndirectParamA(::GetModuleHandleA(nullptr), frame.get(), nullptr, procedure,
                                          reinterpret_cast<LPARAM>(this));
    ASSERT_NE(handle, nullptr);
    window->controls().place(layOutMainWindow({.client = window->clientSize(),
                                               .rowHeight = window->rowHeight(),
                                               .leftWidth = window->scaled(384),
                                               .scale = window->scaled(100)})
                                 .controls);
    ::ShowWindow(handle, SW_SHOW);
    settle();
  }
  void TearDown() override {
    ::DestroyWindow(handle);
    window.reset();
  }

  [[nodiscard]] HWND item(ControlId control) const { return ::GetDlgItem(handle, control); }
  HWND treeHandle() const { return item(main_window::kTree); }
  HWND listHandle() const { return item(main_window::kItemList); }
  // Runs what is queued and forgets what was told.
  void settle() {
    pump(handle);
    logic.told.clear();
  }

 private:
  static INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
      auto* self = reinterpret_cast<MainWindowTest*>(lParam);
      self->window = std::make_unique<Win32MainWindow>(dialog, self->logic);
      ::SetWindowLongPtrA(dialog, DWLP_USER, reinterpret_cast<LONG_PTR>(self->window.get()));
      self->window->open();
      return TRUE;
    }
    auto* window = reinterpret_cast<Win32MainWindow*>(::GetWindowLongPtrA(dialog, DWLP_USER));
    return window == nullptr ? FALSE : window->handle(message, wParam, lParam);
  }
};

}  // namespace varlo::test
