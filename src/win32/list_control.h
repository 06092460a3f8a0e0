// ListControl: the item list in a list view. Rows hold no text and no icon; the list view asks for them when it
// paints.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <unordered_set>
#include <vector>

#include "platform/main_window.h"
#include "win32/drag_image.h"

namespace varlo {

class ListControl : public ListWindow {
 public:
  ListControl(HWND list, HIMAGELIST icons, MainWindowLogic& logic, const DragImage& dragImage);
  ~ListControl() override;
  ListControl(const ListControl&) = delete;
  ListControl& operator=(const ListControl&) = delete;

  [[nodiscard]] HWND window() const { return list_; }
  // A notification of the list view. True when what it tells of must not be.
  bool notified(NMHDR& header);
  // The picture of a row, and where the mouse holds it; null when it can't be made.
  HIMAGELIST dragPicture(int row, Point mouse, POINT& grabbed) const;

  void setColumns(std::span<const ListColumn> columns) override;
  void append(ItemData data) override;
  void remove(int row) override;
  void removeAll() override;
  [[nodiscard]] int count() const override;
  [[nodiscard]] ItemData data(int row) const override;
  [[nodiscard]] bool isSelected(int row) const override;
  void setSelected(int row, bool on) override;
  void sort(const std::function<int(ItemData, ItemData)>& compare) override;
  void repaint(int row) override;
  void repaintAll() override;
  void holdPainting(bool on) override;
  [[nodiscard]] int rowAt(Point point) const override;

 private:
  class OwnChange;

  LRESULT send(UINT message, WPARAM wParam, const void* data = nullptr) const;
  void fill(LVITEMA& item);
  [[nodiscard]] bool isRefused(const NMLISTVIEW& change) const;
  void rowChanged(const NMLISTVIEW& change);
  void tellKeyChanges() const;
  void prepareShownRows();
  static LRESULT CALLBACK keys(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR self);

  HWND list_;
  MainWindowLogic& logic_;
  const DragImage& dragImage_;
  int columns_ = 0;
  int holds_ = 0;
  int ownChanges_ = 0;
  std::unordered_set<ItemData> prepared_;  // rows whose cells are asked for
  bool inKey_ = false;                     // the list view is handling a key
  std::vector<int> keyChanges_;            // rows that changed by it
  bool selectedByKey_ = false;             // the selection changed by it
};

}  // namespace varlo
