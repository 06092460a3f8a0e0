#include "generator/build/store_build_dialog.h"

#include <optional>
#include <string>

#include "core/forms/field_text.h"
#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/program/work.h"
#include "generator/build/build_driver.h"
#include "generator/state/build_target.h"
#include "generator/state/generator.h"

namespace varlo {
namespace {

using namespace store_build;

constexpr Row kRows[] = {
    {{{.kind = Kind::Text,
       .label =
           "You are about to re-build the entire store.  Please specify a target directory where the store should "
           "be built and the store title.",
       .lines = 2}}},
    {{{.id = kDirectory,
       .kind = Kind::Edit,
       .label = "&Directory:",
       .labelWidth = 78,
       .options = Option::RightLabel,
       .buttons = {{kBrowse, "B&rowse...", 82}}}},
     4},
    {{{.id = kTitle, .kind = Kind::Edit, .label = "Store &Title:", .labelWidth = 78, .options = Option::RightLabel}}},
    {{{.id = kLog, .kind = Kind::ListBox, .label = "&Log:", .labelWidth = kLabelAbove, .lines = 9}}},
    {{{.id = kLabel, .kind = Kind::Text, .width = 180, .options = Option::Plain},
      {.id = kProgress, .kind = Kind::Progress, .label = "Progress", .labelWidth = kLabelUnseen}},
     4},
};
constexpr FootButton kFoot[] = {{kBuild, "&Build", Option::Default}, {kCancel, "Cancel"}, {kHelp, "&Help"}};

void enableBuild(Dialog& dialog) { dialog.enable(kBuild, !dialog.text(kDirectory).empty()); }

}  // namespace

constinit const DialogShape StoreBuildDialog::kShape{
    .id = kWindow, .title = "Store Build", .form = Form::Modeless, .size = {490, 0}, .rows = kRows, .foot = kFoot};

void StoreBuildDialog::opened(Dialog& dialog) {
  const StoreProject& project = generator_.program.project;
  ModelessLogic::opened(dialog);
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
    case kHelp:
      generator_.program.view.openHelpPane(store_build::kWindow);
      break;
    case kCancel:
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

void StoreBuildDialog::closed() {
  leave();
  ModelessLogic::closed();
}

void StoreBuildDialog::leave() {
  if (generator_.log.buildWindow == this) generator_.log.buildWindow = nullptr;
}

void StoreBuildDialog::build(Dialog& dialog) {
  const Work work(generator_.program);
  if (!work) return;
  const Text title = FieldText(dialog, kTitle);
  const Text directory = FieldText(dialog, kDirectory);
  RunBuild(generator_, std::string(directory.view()), title.view());
  // The key of the button, pressed twice, asks for one build.
  generator_.program.screen.dropWaitingInput();
}

void StoreBuildDialog::browse(Dialog& dialog) {
  const Work work(generator_.program);
  if (!work) return;
  const std::optional<std::string> chosen = generator_.program.screen.chooseFolder(message::kChooseWebDirectory);
  if (chosen) dialog.setText(kDirectory, *chosen);
}

// A build holds up all other painting, so what it shows is painted at once.

void StoreBuildDialog::clearLog() {
  window()->clearRows(kLog);
  rows_ = 0;
}

void StoreBuildDialog::addLogLine(std::string_view line) {
  window()->addRow(kLog, line);
  window()->showRow(kLog, rows_++);
  window()->repaint(kLog);
}

void StoreBuildDialog::stepProgress() {
  window()->stepProgress(kProgress);
  window()->repaint(kProgress);
}

void StoreBuildDialog::resetProgress() { window()->setProgress(kProgress, 0); }

void StoreBuildDialog::showLabel(std::string_view label) {
  window()->setText(kLabel, label);
  window()->repaint(kLabel);
}

}  // namespace varlo
