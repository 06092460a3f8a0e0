#include "shell/tabs/form_template.h"

#include <optional>
#include <string>

#include "core/program/program.h"
#include "generator/cart/order_pages.h"
#include "shell/browser/browser.h"
#include "shell/state/shell.h"
#include "shell/tabs/form.h"
#include "shell/tabs/template_choice.h"

namespace varlo {
namespace {

void takeTextInHand(Shell& shell, const FormTemplate& form) {
  const TextSlot& slot = shell.program.slots[static_cast<std::size_t>(form.slot)];
  (shell.program.project.*form.text).assign(slot.text());
}

}  // namespace

const FormTemplate kOrderFormTemplate{.slot = kSlotOrderForm,
                                      .shippedFile = "template\\order.dat",
                                      .text = &StoreProject::orderTemplate,
                                      .preview = PreviewOrderForm,
                                      .resetShowsAnew = true};
const FormTemplate kConfirmationTemplate{.slot = kSlotConfirmation,
                                         .shippedFile = "template\\confirm.dat",
                                         .text = &StoreProject::confirmTemplate,
                                         .preview = PreviewConfirmation};

void chooseFormTemplate(Shell& shell, const FormTemplate& form) {
  const std::optional<std::string> path = chooseTemplateFile(shell.program);
  if (!path) return;
  if (FileReadToSlot(shell.program, form.slot, *path, false) == 1) {
    takeTextInHand(shell, form);
  } else {
    shell.heldTemplateName.release();
  }
  loadForm(shell);
}

// Deliberate: without the shipped file, the text that was read last comes back.
void resetFormTemplate(Shell& shell, const FormTemplate& form) {
  if (!askForReset(shell.program)) return;
  FileReadToSlot(shell.program, form.slot, form.shippedFile, false);
  takeTextInHand(shell, form);
  if (form.resetShowsAnew) shell.descriptionCache.reset();
  loadForm(shell);
  SetDirty(shell.program, 1);
}

void viewFormTemplate(Shell& shell, const FormTemplate& form) {
  if (form.preview(shell.generator) == 1) openInBrowser(shell, FormPreviewPath(shell.program.project));
}

}  // namespace varlo
