// The program on the demo store, and what the tests of its window do again and again.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/main_window.h"
#include "shell/tabs/inventory_page.h"
#include "tests/desktop/desktop_program.h"
#include "tests/desktop/window_driving.h"
#include "tests/desktop/window_reading.h"

namespace varlo::test {

inline const TreePath kTea{"Home", "Tea"};
inline const TreePath kBlackTea{"Home", "Tea", "Black tea"};
inline const TreePath kGreenTea{"Home", "Tea", "Green and white tea"};
inline const TreePath kAssam{"Home", "Tea", "Black tea", "Assam Breakfast"};

class DesktopTest : public ::testing::Test {
 protected:
  DesktopTest() { installation_.configure(); }

  void start() { program_ = std::make_unique<DesktopProgram>(installation_.folder()); }
  // Quits without saving.
  void stop() { program_.reset(); }
  DesktopProgram& program() { return *program_; }
  [[nodiscard]] HWND window() const { return program_->window(); }
  [[nodiscard]] HWND tree() const { return program_->control(main_window::kTree); }
  [[nodiscard]] HWND list() const { return program_->control(main_window::kItemList); }
  [[nodiscard]] HWND tabs() const { return program_->control(main_window::kTabs); }

  // Clicks an item of the tree.
  HTREEITEM pick(const TreePath& path) {
    const HTREEITEM item = FindItem(tree(), path);
    EXPECT_NE(item, nullptr) << path.back();
    if (item != nullptr) Click(program(), CentreOfItem(tree(), item));
    return item;
  }
  [[nodiscard]] std::vector<std::string> below(const TreePath& path) const {
    return LabelsBelow(tree(), FindItem(tree(), path));
  }
  // The label of the item that is selected in the tree.
  [[nodiscard]] std::string selectedItem() const {
    return LabelOf(tree(), reinterpret_cast<HTREEITEM>(::SendMessageA(tree(), TVM_GETNEXTITEM, TVGN_CARET, 0)));
  }
  [[nodiscard]] std::string formText(ControlId field) const { return TextOf(program_->field(field)); }
  [[nodiscard]] std::string formTitle() const { return formText(inventory::kTitle); }
  [[nodiscard]] bool isEnabled(Command command) const { return EntryEnabled(window(), static_cast<UINT>(command)); }
  [[nodiscard]] bool canSave() const { return isEnabled(Command::Save); }
  // Clicks into a field of the page, behind its text, and types.
  void typeInto(ControlId field, const std::string& text) {
    Click(program(), CentreOf(program().field(field)));
    PressWith(program(), VK_CONTROL, VK_END);
    TypeText(program(), text);
  }

  Installation installation_;
  std::unique_ptr<DesktopProgram> program_;
};

}  // namespace varlo::test
