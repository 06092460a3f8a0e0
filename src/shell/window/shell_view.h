// ShellView: what the model tells the screen, shown in the main window.
#pragma once

#include "core/program/view.h"
#include "shell/state/page_logic.h"

namespace varlo {

struct Shell;

class ShellView : public View {
 public:
  // The program needs a view before the shell can be made of it.
  void setShell(Shell* shell) { shell_ = shell; }

  void loadForm() override;
  void loadItemList(StoreNode* holder) override;
  void refreshCommandStates() override;
  void workBegan() override;
  void workEnded() override;
  void clearTree() override;
  void fillTree() override;
  void insertTreeItem(StoreNode& node, StoreNode* behind) override;
  void insertTreeItems(std::span<StoreNode* const> nodes) override;
  void moveTreeItem(StoreNode& node) override;
  void removeTreeItem(StoreNode& node) override;
  void refreshTreeItem(StoreNode& node) override;
  void selectInTree(StoreNode& node) override;
  void nodeRenamed(StoreNode& node) override;
  void loadFreightList() override;
  void loadVariableList() override;
  void loadCardList() override;
  void loadSchemeLists() override;
  void showHelp(int id) override;
  void openInBrowser(std::string_view address) override;
  void previewScheme() override;
  void storeForm() override;
  void setWindowTitle(std::string_view title) override;

 private:
  void refillList(PageList list);

  Shell* shell_ = nullptr;
};

}  // namespace varlo
