// The logic of the window "Varlo PRO - Data Import": a list as a table, whose columns the owner assigns to texts of
// the store, and whose rows become products or update them.
#pragma once

#include <string>
#include <vector>

#include "core/forms/modeless_window.h"
#include "import/import_products.h"
#include "import/import_state.h"

namespace varlo {

struct Program;

namespace import_window {
enum : ControlId {
  kWindow = 1600,
  kDelimiter,
  kQuote,
  kQuoteEscape,
  kDecimalPoint,
  kTable,
  kRecord,
  kImport,
  kUpdate,
  kSelectAll,
  kStatus,
};
}

class ImportWindow : public ModelessLogic {
 public:
  // Shows the file at `path`. The delimiter is found out or typed here, and outlives the window.
  ImportWindow(Program& program, char& fieldDelimiter, std::string path)
      : program_(program), fieldDelimiter_(fieldDelimiter), path_(std::move(path)) {}

  static const DialogShape kShape;
  [[nodiscard]] const DialogShape& shape() const override { return kShape; }

  void opened(Dialog& dialog) override;
  void notified(Dialog& dialog, const ControlEvent& event) override;
  std::string cellText(ControlId list, int row, int column) override;

 private:
  void fieldChanged(Dialog& dialog, ControlId field);
  void pressed(Dialog& dialog, ControlId button);

  void readDialect(Dialog& dialog);
  void buildColumns(Dialog& dialog);
  void fillTable(Dialog& dialog);

  void assignColumn(Dialog& dialog, int column);
  void showRowMenu(Dialog& dialog, bool hitRow);

  void selectRow(Dialog& dialog, int row);
  void changeRow(Dialog& dialog);
  [[nodiscard]] std::vector<std::size_t> selectedRows(Dialog& dialog) const;
  void import(Dialog& dialog);
  void update(Dialog& dialog);
  void deleteRows(Dialog& dialog);
  void followSelectedRow(Dialog& dialog, const std::vector<std::size_t>& gone);
  void showCount(Dialog& dialog);

  Program& program_;
  char& fieldDelimiter_;
  std::string path_;
  ImportSheet sheet_;
  int selectedRow_ = kNoRow;  // the one whose text is in the box
  bool filling_ = false;      // changes of the fields are the program's own
};

// Lets the owner choose a file and shows it, in place of the one that is shown. Nothing happens when none is chosen.
void OpenImport(Program& program, ImportState& state);

}  // namespace varlo
