#include "shell/tabs/form.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "core/program/field_text.h"
#include "core/program/program.h"
#include "core/text/text_edit.h"
#include "core/tree/store_tree.h"
#include "shell/state/shell.h"
#include "shell/state/state_display.h"
#include "shell/tabs/form_fields.h"

namespace varlo {
namespace {

using namespace control::inventory;

// The rich edit keeps a text that it has already: a long one takes its time.
void showDescription(Shell& shell, const StoreNode* node) {
  if (node == nullptr || node->body.isNull()) {
    shell.tabPage->setText(kDescription, "");
    shell.descriptionCache.reset();
  } else if (shell.descriptionCache != node->body.view()) {
    shell.tabPage->setText(kDescription, node->body.view());
    shell.descriptionCache = node->body.view();
  }
}

// Deliberate: an item of a shelf or a list shows the file name of its holder. The next change in any field
// reads it as the item's own.
std::string_view shownFileName(const StoreNode& node) {
  const StoreNode* holder = IsShownByParent(node) ? LiveParent(node) : nullptr;
  return (holder == nullptr ? node : *holder).fileName.view();
}

std::string_view shownText(const FormField& field, const StoreNode& node) {
  if (field.control == kFileName) return shownFileName(node);
  if (field.control == kTemplate && !node.templateName.isSet()) return TraitsOf(node.kind).defaultTemplate;
  return textOf(field, node).view();
}

void fillInventory(Shell& shell) {
  const StoreNode* node = shell.program.project.currentNode;
  showDescription(shell, node);
  for (const FormField& field : kFormFields) {
    if (field.control == kDescription) continue;
    shell.tabPage->setText(field.control, node == nullptr ? std::string_view() : shownText(field, *node));
  }
}

Text readField(Dialog& page, const FormField& field) {
  Text text = FieldText(page, field.control, kFieldText);
  if (field.backSlashes == BackSlashes::Turned)
    std::replace(text.data(), text.data() + text.view().size(), '\\', '/');
  if (!text.isSet() && field.empty == EmptyField::NoText) text.release();
  return text;
}

// Deliberate: `modified` of the node does not rise by a change of its texts.
void store(Program& program, StoreNode& node, StoreNode& scratch) {
  if (node.title.view() != scratch.title.view()) {
    node.title = scratch.title;
    program.view.nodeRenamed(node);
  }
  for (const FormField& field : kFormFields) {
    if (field.control != kTitle) textOf(field, node) = textOf(field, scratch);
  }
}

void readInventory(Shell& shell, StoreNode& node) {
  StoreNode scratch;
  for (const FormField& field : kFormFields) textOf(field, scratch) = readField(*shell.tabPage, field);
  shell.descriptionCache = scratch.body.view();
  if (formDiffers(&node, &scratch)) store(shell.program, node, scratch);
}

}  // namespace

void loadForm(Shell& shell) {
  if (shell.formBusy) return;
  shell.formLoading = true;
  if (shell.tabPage != nullptr) {
    refreshCommandStates(shell);
    if (shell.currentTab == Tab::Inventory) fillInventory(shell);
  }
  shell.formLoading = false;
}

void readForm(Shell& shell) {
  StoreNode* node = shell.program.project.currentNode;
  if (shell.formBusy || shell.tabPage == nullptr || node == nullptr) return;
  if (shell.currentTab == Tab::Inventory) readInventory(shell, *node);
}

// Deliberate: a change marks the project, whether or not the form then differs from the node.
bool onFieldCommand(Shell& shell, const ControlEvent& event) {
  if (event.notice == Notice::GotFocus) {
    shell.program.view.showHelp(event.control);
    return true;
  }
  if (event.notice != Notice::Changed || shell.formLoading) return false;
  readForm(shell);
  SetDirty(shell.program, 1);
  return true;
}

bool formDiffers(const StoreNode* node, const StoreNode* scratch) {
  if (node == nullptr || scratch == nullptr) return false;
  return std::any_of(kFormFields.begin(), kFormFields.end(), [&](const FormField& field) {
    return textOf(field, *node).view() != textOf(field, *scratch).view();
  });
}

void digitsOnly(Dialog& page, ControlId control) {
  std::string text(FieldText(page, control, kFieldText).view());
  if (std::erase_if(text, [](char c) { return !IsDigit(c) && c != '.'; }) == 0) return;
  page.setText(control, text);
  page.caretToEnd(control);
}

}  // namespace varlo
