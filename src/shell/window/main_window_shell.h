// MainWindowShell: the logic of the main window. It routes what the window tells to the routines of the shell.
#pragma once

#include "platform/popup_menu.h"
#include "shell/state/shell.h"

namespace varlo {

class MainWindowShell : public MainWindowLogic {
 public:
  explicit MainWindowShell(Shell& shell) : shell_(shell) {}

  [[nodiscard]] const DialogShape& shape() const override;
  void opened(MainWindow& window) override;
  void command(Command command) override;
  void tabSelected(int tab) override;
  void resized() override;
  void moved() override;
  void closeRequested() override;
  void closing() override;
  std::string_view toolTip(Command command) override;
  void focusMoved() override;
  [[nodiscard]] bool isFree() const override;

  void treeSelectionChanged(TreeItem item) override;
  void treeItemExpanding(TreeItem item) override;
  bool treeKey(Key key) override;
  void treeRightClicked(Point point) override;
  void treeDragBegun(TreeItem item) override;

  std::string_view cellText(ItemData data, int column) override;
  int rowIcon(ItemData data) override;
  void rowClicked(int row) override;
  void rowDoubleClicked(int row) override;
  void rowChanged(int row) override;
  void columnClicked(int column) override;
  void listKey(Key key, bool control) override;
  void listRightClicked(Point point) override;
  void listDragBegun(int row) override;

  void dragMoved(Point point) override;
  void dragTicked() override;
  void dragReleased(Point point) override;

 private:
  // Shows a menu at the mouse and runs what is chosen in it.
  void showPopup(const PopupMenu& menu);

  Shell& shell_;
};

}  // namespace varlo
