// A view that records what the model told it, one line a call.
#pragma once

#include <string>
#include <vector>

#include "core/program/view.h"
#include "core/store/store_node.h"

namespace varlo::test {

class RecordingView : public View {
 public:
  RecordingView();
  ~RecordingView() override;

  std::vector<std::string> calls;

  void loadForm() override { calls.emplace_back("loadForm"); }
  void loadItemList(StoreNode* holder) override { calls.push_back("loadItemList" + named(holder)); }
  void refreshCommandStates() override { calls.emplace_back("refreshCommandStates"); }
  void clearTree() override { calls.emplace_back("clearTree"); }
  void fillTree() override { calls.emplace_back("fillTree"); }
  void insertTreeItem(StoreNode& node, StoreNode* behind) override {
    calls.push_back("insertTreeItem" + named(&node) + " behind" + named(behind));
  }
  void moveTreeItem(StoreNode& node) override { calls.push_back("moveTreeItem" + named(&node)); }
  void removeTreeItem(StoreNode& node) override { calls.push_back("removeTreeItem" + named(&node)); }
  void refreshTreeItem(StoreNode& node) override { calls.push_back("refreshTreeItem" + named(&node)); }
  void selectInTree(StoreNode& node) override { calls.push_back("selectInTree" + named(&node)); }
  void nodeRenamed(StoreNode& node) override { calls.push_back("nodeRenamed" + named(&node)); }
  void loadVariableList() override { calls.emplace_back("loadVariableList"); }
  void loadFreightList() override { calls.emplace_back("loadFreightList"); }
  void loadCardList() override { calls.emplace_back("loadCardList"); }
  void loadSchemeLists() override { calls.emplace_back("loadSchemeLists"); }
  void showHelp(int id) override { calls.push_back("showHelp " + std::to_string(id)); }
  void openHelpPane(int dialogId) override { calls.push_back("openHelpPane " + std::to_string(dialogId)); }
  void openInBrowser(std::string_view address) override { calls.push_back("openInBrowser " + std::string(address)); }
  void previewScheme() override { calls.emplace_back("previewScheme"); }
  void storeForm() override { calls.emplace_back("storeForm"); }
  void setWindowTitle(std::string_view title) override { calls.push_back("setWindowTitle " + std::string(title)); }

 private:
  static std::string named(const StoreNode* node) {
    return node == nullptr ? " -" : " " + std::string(node->title.orEmpty());
  }
};

}  // namespace varlo::test
