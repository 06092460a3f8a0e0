// The logic of the dialog "Save Project As": gives the open project a new name and a folder of its own.
// The file of the new name is made by the next save.
#pragma once

#include <string>

#include "platform/dialog.h"

namespace varlo {

struct Program;

namespace save_as {
enum : ControlId { kWindow = 1100, kName, kBrowse };
}

class SaveAsDialog : public DialogLogic {
 public:
  explicit SaveAsDialog(Program& program) : program_(program) {}

  static const DialogShape kShape;
  [[nodiscard]] const DialogShape& shape() const override { return kShape; }

  void opened(Dialog& dialog) override;
  void notified(Dialog& dialog, const ControlEvent& event) override;
  void closeRequested(Dialog& dialog) override;

 private:
  void browse(Dialog& dialog);
  bool saveAs(const std::string& name);
  bool makeProjectFolder(const std::string& name, const std::string& folder);
  void copyCompanions(const std::string& oldFile, const std::string& folder, const std::string& name);

  Program& program_;
};

}  // namespace varlo
