// The logic of the dialog "Restore project from Backup".
#pragma once

#include <vector>

#include "persist/life/backup.h"
#include "platform/dialog.h"

namespace varlo {

namespace restore {
enum : ControlId { kWindow = 1200, kList };
}

class RestoreDialog : public DialogLogic {
 public:
  explicit RestoreDialog(Program& program) : program_(program) {}

  static const DialogShape kShape;
  [[nodiscard]] const DialogShape& shape() const override { return kShape; }

  void opened(Dialog& dialog) override;
  void notified(Dialog& dialog, const ControlEvent& event) override;
  std::string cellText(ControlId list, int row, int column) override;

 private:
  void select(Dialog& dialog);
  void restore(Dialog& dialog);

  Program& program_;
  std::vector<BackupEntry> backups_;
  const BackupEntry* selectedBackup_ = nullptr;
};

}  // namespace varlo
