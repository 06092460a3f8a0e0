#include "shell/tabs/inventory_page.h"

#include <optional>
#include <string>

#include "core/program/field_text.h"
#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/text/paths.h"
#include "core/text/text_search.h"
#include "platform/control_ids.h"
#include "shell/browser/browser.h"
#include "shell/state/shell.h"
#include "shell/tabs/form.h"
#include "shell/tabs/inventory_layout.h"

namespace varlo {
namespace {

using namespace control::inventory;

// The place of the image choosers among the last directories.
constexpr std::size_t kImageFolder = 2;

void showImage(Shell& shell, Text StoreNode::*image) {
  const StoreNode* node = shell.program.project.currentNode;
  if (node != nullptr && (node->*image).isSet()) openInBrowser(shell, (node->*image).view());
}

void enableLinkButton(Dialog& page) { page.enable(kShowImageLink, !page.text(kImageLink).empty()); }

}  // namespace

// The drop-down offers the templates of this project that were used lately.
void InventoryPage::prepare(Dialog& page) {
  const StoreProject& project = shell_.program.project;
  page.clearCombo(kTemplate);
  for (const Text& name : project.templateNames) {
    const bool ours = name.isSet() && name.view().starts_with(project.projectDir.view());
    if (ours) page.addComboRow(kTemplate, PathName(name.view()));
  }
}

void InventoryPage::resized(Dialog& page) { page.place(layOutInventoryPage(page.clientSize(), page.scaled(100))); }

void InventoryPage::notified(Dialog& page, const ControlEvent& event) {
  if (event.notice == Notice::Posted) {
    if (event.control == kTemplate) templateChosen(page);
    return;
  }
  TabPage::notified(page, event);
  if (event.notice == Notice::Clicked) pressed(page, event.control);
  if (event.notice == Notice::GotFocus) focusGained(event.control);
  applyRule(page, event);
}

// The rules of single fields.
void InventoryPage::applyRule(Dialog& page, const ControlEvent& event) {
  const bool changed = event.notice == Notice::Changed;
  switch (event.control) {
    case kCost:
    case kFreight:
    case kWeight:
      digitsOnly(page, event.control);
      break;
    case kTitle:
      if (changed) titleChanged();
      break;
    case kTemplate:
      templateTouched(page);
      break;
    case kImage:
      if (changed) enableImageButtons(page);
      break;
    case kImageLink:
      if (changed) enableLinkButton(page);
      break;
    default:
      break;
  }
}

void InventoryPage::titleChanged() {
  StoreNode* node = shell_.program.project.currentNode;
  if (!shell_.formLoading && node != nullptr) shell_.program.view.nodeRenamed(*node);
}

// The field has the text of a row only after the notice of its choice. Filling the field is no doing of the user's.
void InventoryPage::templateTouched(Dialog& page) {
  if (shell_.formLoading) return;
  page.post(kTemplate);
  shell_.program.view.showHelp(kTemplate);
}

// Deliberate: a node without a template of its own gets none by a choice; what is typed reaches it all the same.
void InventoryPage::templateChosen(Dialog& page) {
  StoreNode* node = shell_.program.project.currentNode;
  if (node == nullptr || !node->templateName.isSet()) return;
  const Text chosen = FieldText(page, kTemplate, kFieldText);
  if (EqualsNoCase(chosen.view(), node->templateName.view())) return;
  SetDirty(shell_.program, 1);
  node->templateName = chosen;
}

// Without an image there is nothing to link and nothing to show.
void InventoryPage::enableImageButtons(Dialog& page) {
  const StoreNode* node = shell_.program.project.currentNode;
  const bool hasImage = node != nullptr && node->image.isSet();
  for (const ControlId control : {kImageLink, kShowImageLink, kChooseImageLink, kShowImage}) {
    page.enable(control, hasImage);
  }
  enableLinkButton(page);
}

// The custom fields and the description stand in one row of numbers.
void InventoryPage::focusGained(ControlId field) {
  if (field < kLabel1 || field > kDescription) return;
  shell_.focusedField = shell_.linkedField = field;
}

void InventoryPage::pressed(Dialog& page, ControlId button) {
  switch (button) {
    case kChooseImage:
      chooseImage(page, kImage, message::kOpenImageTitle);
      break;
    case kChooseImageLink:
      chooseImage(page, kImageLink, message::kOpenImageLinkTitle);
      break;
    case kShowImage:
      showImage(shell_, &StoreNode::image);
      break;
    case kShowImageLink:
      showImage(shell_, &StoreNode::imageLink);
      break;
    case kPreview:
    case kBuild:
      shell_.program.screen.postCommand(Command::PreviewPage);
      break;
    default:
      break;
  }
}

// The change of the field stores the path.
void InventoryPage::chooseImage(Dialog& page, ControlId field, std::string_view title) {
  Text& folder = shell_.program.config.lastDir[kImageFolder];
  const std::optional<std::string> path = shell_.program.screen.chooseFile(
      {.folder = folder.orEmpty(), .title = title, .filter = message::kImageFilter, .extension = {}});
  if (!path) return;
  folder.assign(std::string_view(*path).substr(0, path->rfind('\\')));
  page.setText(field, *path);
}

}  // namespace varlo
