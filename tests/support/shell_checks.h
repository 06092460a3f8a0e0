// What the form and the commands must show, told from the store and not by the code that shows it.
#pragma once

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "shell/tabs/inventory_page.h"
#include "tests/support/shown_store.h"

namespace varlo::test {

// What a field may show besides: an empty template as it was typed, until the form is filled anew.
enum class EmptyTemplate { ShowsTheDefault, MayShowNothing };

inline StoreNode* parentOf(const StoreNode& node) {
  return node.parent == nullptr || node.parent->released ? nullptr : node.parent;
}

inline bool holdsItems(const StoreNode* node) {
  return node != nullptr && (node->kind == NodeKind::Shelf || node->kind == NodeKind::List);
}

class FormCheck {
 public:
  FormCheck(FakeWindow& page, const StoreNode* node, EmptyTemplate empty) : page_(page), node_(node), empty_(empty) {}

  void expectFewFields() {
    expect(inventory::kTitle, &StoreNode::title);
    expectFileName();
    expectTemplate();
    expect(inventory::kDescription, &StoreNode::body);
  }

  void expectAllFields() {
    using namespace inventory;
    expectFewFields();
    expect(kPageTitle, &StoreNode::pageTitle);
    expect(kProductCode, &StoreNode::productCode);
    expect(kMetaKeywords, &StoreNode::metaKeywords);
    expect(kMetaDescription, &StoreNode::metaDescription);
    expectImage(kImage, &StoreNode::image);
    expectImage(kImageLink, &StoreNode::imageLink);
    expect(kCost, &StoreNode::cost);
    expect(kWeight, &StoreNode::weight);
    expect(kFreight, &StoreNode::freight);
    expect(kTax, &StoreNode::tax);
    for (std::size_t i = 0; i < 6; ++i) {
      EXPECT_EQ(shown(kLabel1 + static_cast<int>(i)), node_ == nullptr ? "" : node_->label[i].orEmpty());
      EXPECT_EQ(shown(kValue1 + static_cast<int>(i)), node_ == nullptr ? "" : node_->field[i].orEmpty());
    }
  }

 private:
  std::string shown(ControlId field) { return page_.text(field); }
  std::string kept(Text StoreNode::*text) const { return node_ == nullptr ? "" : (node_->*text).orEmpty(); }

  void expect(ControlId field, Text StoreNode::*text) { EXPECT_EQ(shown(field), kept(text)) << "field " << field; }

  // Back slashes that were typed stay in the field, and making a page writes the paths of its images anew.
  static std::string plainPath(std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    path.erase(std::unique(path.begin(), path.end(), [](char a, char b) { return a == '/' && b == '/'; }),
               path.end());
    return path;
  }
  void expectImage(ControlId field, Text StoreNode::*text) {
    EXPECT_EQ(plainPath(shown(field)), plainPath(kept(text))) << "field " << field;
  }

  // Items of a shelf and of a list show its page.
  void expectFileName() {
    const StoreNode* parent = node_ == nullptr ? nullptr : parentOf(*node_);
    const StoreNode* owner = holdsItems(parent) ? parent : node_;
    EXPECT_EQ(shown(inventory::kFileName), owner == nullptr ? "" : owner->fileName.orEmpty());
  }

  void expectTemplate() {
    static constexpr const char* kDefaults[] = {"category.htm", "product.htm", "shelf.htm", "list.htm"};
    std::string wanted = kept(&StoreNode::templateName);
    const std::string field = shown(inventory::kTemplate);
    if (wanted.empty() && empty_ == EmptyTemplate::MayShowNothing && field.empty()) return;
    if (wanted.empty() && node_ != nullptr) wanted = kDefaults[static_cast<int>(node_->kind)];
    EXPECT_EQ(field, wanted);
  }

  FakeWindow& page_;
  const StoreNode* node_;
  EmptyTemplate empty_;
};

// The rules of entries, tools, buttons and fields of which the reasons are few.
inline void expectStates(TestShell& shell) {
  FakeMainWindow& window = shell.window;
  const StoreProject& project = shell.project();
  const StoreNode* node = project.currentNode;
  const bool open = !project.projectFile.view().empty();
  const bool filled = project.root != nullptr;
  const bool unsaved = open && project.dirty != 0;
  const StoreNode* parent = node == nullptr ? nullptr : parentOf(*node);
  const bool onHolder = holdsItems(node);

  EXPECT_EQ(window.entryEnabled(Command::Save), unsaved);
  EXPECT_EQ(window.toolEnabled(Command::Save), unsaved && filled);
  EXPECT_EQ(window.entryEnabled(Command::SaveAs), open);
  EXPECT_EQ(window.entryEnabled(Command::NewCategory), open);
  EXPECT_EQ(window.entryEnabled(Command::NewProduct), filled);
  EXPECT_EQ(window.entryEnabled(Command::Disable), filled);
  EXPECT_TRUE(window.entryEnabled(Command::NewList));
  EXPECT_EQ(window.entryEnabled(Command::PreviewPage), node != nullptr);
  EXPECT_EQ(window.entryEnabled(Command::BuildStore), open && filled);
  EXPECT_EQ(window.toolEnabled(Command::NewProduct), open && node != nullptr);
  EXPECT_EQ(window.toolEnabled(Command::NewShelf),
            open && !onHolder && (parent == nullptr || parent->kind != NodeKind::Shelf));
  EXPECT_EQ(window.frame().isEnabled(main_window::kProduct), open && node != nullptr);
  EXPECT_EQ(window.frame().isEnabled(main_window::kCategory), open && !onHolder && !holdsItems(parent));

  const Focus focus = window.focused;
  if (focus.place == Focus::Place::Tree || focus.place == Focus::Place::ItemList) {
    EXPECT_EQ(window.entryEnabled(Command::Copy), node != nullptr);
    EXPECT_EQ(window.entryEnabled(Command::Delete), node != nullptr);
    EXPECT_EQ(window.entryEnabled(Command::Paste), project.clipboardNode != nullptr);
    EXPECT_EQ(window.entryEnabled(Command::SelectAll), focus.place == Focus::Place::ItemList);
    EXPECT_FALSE(window.entryEnabled(Command::Find));
  }
  if (window.pageId() != inventory::kWindow) return;
  FakeWindow& page = *window.page();
  const bool ready = open && filled && node != nullptr;
  EXPECT_EQ(page.isEnabled(inventory::kTitle), ready);
  EXPECT_EQ(page.isEnabled(inventory::kValue1 + 5), ready);
  EXPECT_EQ(page.isEnabled(inventory::kDescription), ready);
  EXPECT_EQ(page.isEnabled(inventory::kFileName), ready && !holdsItems(parent));
  EXPECT_EQ(page.isEnabled(inventory::kTemplate), ready && !holdsItems(parent));
}

}  // namespace varlo::test
