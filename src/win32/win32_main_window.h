// Win32MainWindow: what the shell can ask of the main window, and the messages that the window gets.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <optional>
#include <string>

#include "platform/main_window.h"
#include "win32/drag_image.h"
#include "win32/list_control.h"
#include "win32/tree_control.h"
#include "win32/win32_dialog.h"

namespace varlo {

class Win32MainWindow : public MainWindow {
 public:
  Win32MainWindow(HWND window, MainWindowLogic& logic);
  ~Win32MainWindow() override;
  Win32MainWindow(const Win32MainWindow&) = delete;
  Win32MainWindow& operator=(const Win32MainWindow&) = delete;

  // Shows the window to its logic.
  void open() { logic_.opened(*this); }
  // A message of the window; TRUE when it was all that is to be done about it.
  INT_PTR handle(UINT message, WPARAM wParam, LPARAM lParam);

  TreeWindow& tree() override { return tree_; }
  ListWindow& list() override { return list_; }
  Dialog& controls() override { return controls_; }

  void enableEntry(Command command, bool on) override;
  void checkEntry(Command command, bool on) override;
  void createToolbar(std::span<const ToolbarButton> buttons) override;
  void enableTool(Command command, bool on) override;
  void setTitle(std::string_view title) override;
  void setTabs(std::span<const std::string_view> labels) override;
  void setStatusParts(std::span<const int> edges) override;

  Dialog* openPage(std::shared_ptr<DialogLogic> logic) override;
  void closePage() override;

  [[nodiscard]] Focus focus() const override;

  [[nodiscard]] Size clientSize() const override { return controls_.clientSize(); }
  [[nodiscard]] int rowHeight() const override;
  [[nodiscard]] int scaled(int pixels) const override { return controls_.scaled(pixels); }
  void placePage(const Rectangle& place) override;
  void redraw() override;

  bool beginTreeDrag(TreeItem item) override;
  bool beginListDrag(int row) override;
  void moveDrag(Point point) override { dragImage_.move(point); }
  void endDrag() override;
  [[nodiscard]] Point cursor() const override;

  void end() override { ::EndDialog(window_, 1); }

 private:
  [[nodiscard]] HWND item(ControlId control) const { return ::GetDlgItem(window_, control); }
  HWND makeControls();
  void setSize() const;
  void loadIcon() const;
  bool filterKey(MSG& message) const;
  void command(int id, int code);
  [[nodiscard]] INT_PTR answer(bool result) const;
  INT_PTR notify(NMHDR& header);
  INT_PTR treeNotified(NMHDR& header);
  INT_PTR listNotified(NMHDR& header);
  void giveToolTip(NMTTDISPINFOA& info);
  void menuOpens(HMENU menu);
  bool contextMenu(HWND window, LPARAM place);
  [[nodiscard]] bool selectionPlace(HWND window, RECT& place) const;
  void sized(WPARAM how);
  void limitSize(MINMAXINFO& limits) const;
  void released(Point point);
  bool beginDrag(HWND source, HIMAGELIST picture, POINT grabbed);

  HWND window_;
  MainWindowLogic& logic_;
  Win32Dialog controls_;
  HIMAGELIST icons_;
  DragImage dragImage_;
  HWND dragSource_ = nullptr;  // while something is dragged
  TreeControl tree_;
  ListControl list_;
  HWND page_ = nullptr;
  std::string toolTip_;
};

}  // namespace varlo
