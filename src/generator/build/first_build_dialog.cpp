#include "generator/build/first_build_dialog.h"

#include "core/forms/field_text.h"
#include "core/program/messages.h"
#include "core/program/program.h"
#include "generator/state/build_target.h"
#include "generator/state/generator.h"
#include "persist/life/project_life.h"

namespace varlo {
namespace {

using namespace first_build;

constexpr Row kRows[] = {
    {{{.id = kDirectory, .kind = Kind::Edit, .label = "&Directory for Preview files:", .labelWidth = kLabelAbove}}},
    {{{.id = kTitle, .kind = Kind::Edit, .label = "Store &Title:", .labelWidth = kLabelAbove}}, 4},
};
constexpr FootButton kFoot[] = {{kOk, "OK", Option::Default}, {kCancel, "Cancel"}};

void enableOk(Dialog& dialog) { dialog.enable(kOk, !dialog.text(kDirectory).empty()); }

}  // namespace

constinit const DialogShape FirstBuildDialog::kShape{
    .id = kWindow, .title = "Build", .size = {375, 0}, .rows = kRows, .foot = kFoot};

void FirstBuildDialog::opened(Dialog& dialog) {
  const StoreProject& project = generator_.program.project;
  dialog.limitText(kDirectory, kDirectoryLimit);
  dialog.setText(kDirectory, StartDirectory(project));
  dialog.setText(kTitle, project.storeTitle.view());
  enableOk(dialog);
}

void FirstBuildDialog::notified(Dialog& dialog, const ControlEvent& event) {
  if (event.control == kDirectory && event.notice == Notice::Changed) enableOk(dialog);
  if (event.notice != Notice::Clicked) return;
  if (event.control == kOk) accept(dialog);
  if (event.control == kCancel) closeRequested(dialog);
}

void FirstBuildDialog::closeRequested(Dialog& dialog) {
  generator_.log.stopRequested = true;
  dialog.end(0);
}

// Deliberate: a trailing back slash stays in webDir; generated paths are freed of the double one that it
// makes.
void FirstBuildDialog::accept(Dialog& dialog) {
  Program& program = generator_.program;
  const Text directory = FieldText(dialog, kDirectory);
  if (!CheckDirectoryName(program, directory.view())) return;
  if (DirectoryCreatePath(program, directory.view()) == 0) {
    ErrorBox(program, FillMessage(message::kPreviewFolderError, directory.view()));
    return;
  }
  program.project.webDir = directory;
  program.project.storeTitle = FieldText(dialog, kTitle);
  generator_.log.stopRequested = false;
  dialog.end(1);
}

}  // namespace varlo
