// RowList: the rows of a list in columns. They hold nothing: number and order of display are kept here, texts and
// marks are asked for when they are painted. A selection that changes is told once for each doing of the user.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <span>
#include <vector>

#include "platform/dialog.h"

namespace varlo {

class RowList {
 public:
  // Whom to tell what happens. It may be gone afterwards, and the list with it.
  using Teller = std::function<void(const ControlEvent&)>;

  RowList(HWND list, ControlId id, bool marked, DialogLogic& logic, Teller teller);
  ~RowList();
  RowList(const RowList&) = delete;
  RowList& operator=(const RowList&) = delete;

  [[nodiscard]] HWND window() const { return list_; }
  // A notification of the list view; the result is what the message gives.
  LRESULT notified(NMHDR& header);

  void setColumns(std::span<const ListColumn> columns);
  void setHeading(int column, std::string_view heading);
  void setCount(int count);
  void order(std::span<const int> rows);
  void repaint(int row);
  void show(int row);
  [[nodiscard]] int selected() const;
  void select(int row);
  [[nodiscard]] bool isSelected(int row) const;
  void selectAll();

 private:
  LRESULT send(UINT message, WPARAM wParam, const void* data = nullptr) const;
  [[nodiscard]] int rowAt(int place) const;
  [[nodiscard]] int placeOf(int row) const;
  void setState(int place, UINT state, UINT mask);
  void fill(LVITEMA& item);
  [[nodiscard]] int find(const NMLVFINDITEMA& search) const;
  void tell(ControlEvent event);
  void tellSelection();
  void clicked(const NMITEMACTIVATE& click, Notice notice);
  [[nodiscard]] Point popupPlace() const;
  static LRESULT CALLBACK messages(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                   DWORD_PTR self);

  HWND list_;
  ControlId id_;
  DialogLogic& logic_;
  Teller teller_;
  HIMAGELIST marks_ = nullptr;
  std::vector<int> rows_;    // on display from top to bottom; empty for the order of the numbers
  std::vector<int> places_;  // the other way round
  int count_ = 0;
  int depth_ = 0;                  // of messages that the list view is handling
  bool selectionChanged_ = false;  // and is still to be told
  bool byKey_ = false;
};

}  // namespace varlo
