#include "persist/dialogs/restore_dialog.h"

#include <array>

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/text/number_text.h"
#include "persist/life/project_life.h"

namespace varlo {
namespace {

using namespace restore;

constexpr Row kRows[] = {
    {{{.id = kList,
       .kind = Kind::List,
       .label = "&Backups:",
       .labelWidth = kLabelAbove,
       .lines = 10,
       .options = Option::FixedHeadings}}},
};
constexpr FootButton kFoot[] = {{kOk, "OK", Option::Default}, {kCancel, "Cancel"}, {kHelp, "&Help"}};

constexpr std::array kColumns{ListColumn{"Backup Date/Time", 140}, ListColumn{"Size", 70}};

}  // namespace

constinit const DialogShape RestoreDialog::kShape{
    .id = kWindow, .title = "Restore project from Backup", .size = {330, 0}, .rows = kRows, .foot = kFoot};

void RestoreDialog::opened(Dialog& dialog) {
  backups_ = BackupListRead(program_);
  selectedBackup_ = nullptr;
  dialog.setColumns(kList, kColumns);
  dialog.setRowCount(kList, static_cast<int>(backups_.size()));
  dialog.enable(kOk, false);
}

void RestoreDialog::notified(Dialog& dialog, const ControlEvent& event) {
  if (event.control == kList && event.notice == Notice::SelectionChanged) select(dialog);
  if (event.notice != Notice::Clicked) return;
  if (event.control == kOk) restore(dialog);
  if (event.control == kCancel) dialog.end(0);
  if (event.control == kHelp) program_.view.openHelpPane(restore::kWindow);
}

std::string RestoreDialog::cellText(ControlId /*list*/, int row, int column) {
  const BackupEntry& backup = backups_.at(static_cast<std::size_t>(row));
  if (column == 0) return DateToText(program_.clock, backup.time, false);
  return IntToText(static_cast<std::int32_t>(backup.size));
}

void RestoreDialog::select(Dialog& dialog) {
  const int row = dialog.selectedRow(kList);
  selectedBackup_ = row == kNoRow ? nullptr : &backups_.at(static_cast<std::size_t>(row));
  dialog.enable(kOk, selectedBackup_ != nullptr);
  program_.view.showHelp(restore::kWindow);
}

void RestoreDialog::restore(Dialog& dialog) {
  if (selectedBackup_ == nullptr || !program_.project.projectFile.isSet()) return;
  const Answer answer = program_.screen.messageBox({.text = message::kRestore,
                                                    .title = message::kConfirmation,
                                                    .buttons = Buttons::YesNoCancel,
                                                    .icon = Icon::Question});
  if (answer != Answer::Yes) return;
  ProjectRestore(program_, selectedBackup_->path);
  dialog.end(1);
}

}  // namespace varlo
