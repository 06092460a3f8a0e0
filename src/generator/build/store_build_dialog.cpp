#include "generator/build/store_build_dialog.h"

#include <optional>
#include <string>

#include "core/program/field_text.h"
#include "core/program/messages.h"
#include "core/program/program.h"
#include "generator/build/build_driver.h"
#include "generator/state/build_target.h"
#include "generator/state/generator.h"
#include "platform/control_ids.h"

namespace varlo {
namespace {

using namespace control::store_build;

void enableBuild(Dialog& dialog) { dialog.enable(kBuild, !dialog.text(kDirectory).empty()); }

}  // namespace

void StoreBuildDialog::opened(Dialog& dialog) {
  const StoreProject& project = generator_.program.project;
  window_ = &dialog;
  generator_.log.buildWindow = this;
  dialog.limitText(kDirectory, kDirectoryLimit);
  dialog.setText(kDirectory, StartDirectory(project));
  dialog.setText(kTitle, project.storeTitle.view());
  dialog.setProgressTop(kProgress, project.nodesRead);
  enableBuild(dialog);
  LogBuild(generator_.log, ReadyLine());
}

void StoreBuildDialog::notified(Dialog& dialog, const ControlEvent& event) {
  if (event.control == kDirectory && event.notice == Notice::Changed) enableBuild(dialog);
  if (event.notice == Notice::Clicked) pressed(dialog, event.control);
}

void StoreBuildDialog::pressed(Dialog& dialog, ControlId button) {
  switch (button) {
    case kBuild:
      build(dialog);
      break;
    case kBrowse:
      browse(dialog);
      break;
    case control::kHelp:
      generator_.program.view.openHelpPane(dialog::kStoreBuild);
      break;
    case control::kCancel:
      closeRequested(dialog);
      break;
    default:
      break;
  }
}

void StoreBuildDialog::closeRequested(Dialog& dialog) {
  generator_.log.stopRequested = true;
  leave();
  dialog.end(0);
}

void StoreBuildDialog::leave() {
  window_ = nullptr;
  if (generator_.log.buildWindow == this) generator_.log.buildWindow = nullptr;
}

void StoreBuildDialog::build(Dialog& dialog) {
  const Text title = FieldText(dialog, kTitle);
  const Text directory = FieldText(dialog, kDirectory);
  RunBuild(generator_, std::string(directory.view()), title.view());
}

void StoreBuildDialog::browse(Dialog& dialog) {
  const std::optional<std::string> chosen = generator_.program.screen.chooseFolder(message::kChooseWebDirectory);
  if (chosen) dialog.setText(kDirectory, *chosen);
}

// A build holds up all other painting, so what it shows is painted at once.

void StoreBuildDialog::clearLog() {
  window_->clearListBox(kLog);
  rows_ = 0;
}

void StoreBuildDialog::addLogLine(std::string_view line) {
  window_->addListBoxRow(kLog, line);
  window_->showListBoxRow(kLog, rows_++);
  window_->repaint(kLog);
}

void StoreBuildDialog::stepProgress() {
  window_->stepProgress(kProgress);
  window_->repaint(kProgress);
}

void StoreBuildDialog::resetProgress() { window_->setProgress(kProgress, 0); }

void StoreBuildDialog::showLabel(std::string_view label) {
  window_->setText(kLabel, label);
  window_->repaint(kLabel);
}

}  // namespace varlo
