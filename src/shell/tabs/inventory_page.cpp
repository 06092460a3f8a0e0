#include "shell/tabs/inventory_page.h"

#include <optional>
#include <string>

#include "core/forms/field_text.h"
#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/program/work.h"
#include "core/text/paths.h"
#include "core/text/text_search.h"
#include "core/tree/store_tree.h"
#include "import/keyword_manager.h"
#include "shell/browser/browser.h"
#include "shell/state/shell.h"
#include "shell/tabs/form.h"

namespace varlo {
namespace {

using namespace inventory;

// The place of the image choosers among the last directories.
constexpr std::size_t kImageFolder = 2;

void showImage(Shell& shell, Text StoreNode::*image) {
  const Work work(shell.program);
  if (!work) return;
  const StoreNode* node = shell.program.project.currentNode;
  if (node != nullptr && (node->*image).isSet()) openInBrowser(shell, (node->*image).view());
}

// Deliberate: an item of a shelf or a list shows the file name of its holder. The next change in any field
// reads it as the item's own.
std::string_view shownFileName(const StoreNode& node) {
  const StoreNode* holder = IsShownByParent(node) ? LiveParent(node) : nullptr;
  return (holder == nullptr ? node : *holder).fileName.view();
}

std::string_view shownText(ControlId field, const StoreNode& node) {
  if (field == kFileName) return shownFileName(node);
  if (field == kTemplate && !node.templateName.isSet()) return TraitsOf(node.kind).defaultTemplate;
  return TextOf(InventoryField(field), node).view();
}

struct ControlState {
  ControlId control = 0;
  bool CommandStates::Page::*state = nullptr;
};

// The buttons beside the image fields follow what stands in these; the rules of the page see to them.
using States = CommandStates::Page;
constexpr ControlState kStates[] = {
    {kTitle, &States::fields},       {kPageTitle, &States::fields},    {kFileName, &States::ownPage},
    {kProductCode, &States::fields}, {kMetaKeywords, &States::fields}, {kMetaDescription, &States::fields},
    {kImage, &States::fields},       {kImageLink, &States::imageLink}, {kTemplate, &States::ownPage},
    {kCost, &States::fields},        {kWeight, &States::fields},       {kFreight, &States::fields},
    {kTax, &States::fields},         {kDescription, &States::fields},  {kKeywordManager, &States::fields},
    {kChooseImage, &States::fields}, {kPreview, &States::fields},      {kBuild, &States::fields},
};
constexpr int kCustomFields = 12;  // labels and values, which follow each other

// Room for the labels: in the first column, in the middle of a row, and of the custom fields.
constexpr int kFirst = 104;
constexpr int kMiddle = 80;
constexpr int kShort = 44;

constexpr Cell field(ControlId id, std::string_view label, int labelWidth = kFirst, Kind kind = Kind::Edit) {
  return Cell{.id = id, .kind = kind, .label = label, .labelWidth = labelWidth, .options = Option::RightLabel};
}

constexpr Cell withButtons(Cell cell, SmallButton first, SmallButton second = {}) {
  cell.buttons[0] = first;
  cell.buttons[1] = second;
  return cell;
}

// The pairs of label and value with the numbers `pair` and the next.
constexpr Row customRow(int pair, int gapAbove = 0) {
  return {{field(kLabel1 + pair, " Label:", kShort), field(kValue1 + pair, " Value:", kShort),
           field(kLabel1 + pair + 1, " Label:", kShort), field(kValue1 + pair + 1, " Value:", kShort)},
          gapAbove};
}

constexpr Row kRows[] = {
    {{withButtons(field(kTitle, "T&itle:"), {kPreview, "Preview", 72},
                  {kBuild, "Build", 0, Kind::Button, Option::Hidden})}},
    {{field(kPageTitle, "&Page Title:")}},
    {{field(kFileName, "File&name:"), field(kProductCode, "Prod&uct Code:", kMiddle)}},
    {{withButtons(field(kMetaKeywords, "Meta &Keywords:"), {kKeywordManager, ">>"})}, 4},
    {{{.id = kMetaDescription,
       .kind = Kind::Lines,
       .label = "&Meta Description:",
       .labelWidth = kFirst,
       .lines = 2,
       .options = Option::RightLabel}}},
    {{withButtons(field(kImage, "Ima&ge:"), {kChooseImage, "<<"}, {kShowImage, ">>"})}, 4},
    {{withButtons(field(kImageLink, "Image &Link:"), {kChooseImageLink, "<<"}, {kShowImageLink, ">>"})}},
    {{field(kTemplate, "&Template:", kFirst, Kind::Combo)}, 4},
    {{field(kCost, "&Cost:"), field(kWeight, "&Weight:", kMiddle)}},
    {{field(kFreight, "F&reight:"), field(kTax, "T&ax:", kMiddle)}},
    customRow(0, 4),
    customRow(2),
    customRow(4),
    {{{.id = kDescription,
       .kind = Kind::RichEdit,
       .label = "&Description:",
       .labelWidth = kLabelAbove,
       .lines = kFill}},
     4},
};

std::optional<std::string> chooseImageFile(Program& program, std::string_view title) {
  const Work work(program);
  if (!work) return std::nullopt;
  Text& folder = program.config.lastDir[kImageFolder];
  std::optional<std::string> path = program.screen.chooseFile(
      {.folder = folder.orEmpty(), .title = title, .filter = message::kImageFilter, .extension = {}});
  if (path) folder.assign(std::string_view(*path).substr(0, path->rfind('\\')));
  return path;
}

void enableLinkButton(Dialog& page) { page.enable(kShowImageLink, !page.text(kImageLink).empty()); }

}  // namespace

constinit const DialogShape InventoryPage::kShape{.id = kWindow, .form = Form::Page, .rows = kRows};

// The drop-down offers the templates of this project that were used lately.
void InventoryPage::prepare(Dialog& page) {
  const StoreProject& project = shell_.program.project;
  page.clearRows(kTemplate);
  for (const Text& name : project.templateNames) {
    const bool ours = name.isSet() && name.view().starts_with(project.projectDir.view());
    if (ours) page.addRow(kTemplate, PathName(name.view()));
  }
}

// The rich edit keeps a text that it has already: a long one takes its time.
void InventoryPage::showDescription(Dialog& page, const StoreNode* node) {
  if (node == nullptr || node->body.isNull()) {
    page.setText(kDescription, "");
    shell_.descriptionCache.reset();
  } else if (shell_.descriptionCache != node->body.view()) {
    page.setText(kDescription, node->body.view());
    shell_.descriptionCache = node->body.view();
  }
}

void InventoryPage::fill(Dialog& page) {
  const StoreNode* node = shell_.program.project.currentNode;
  showDescription(page, node);
  for (const ControlId field : FilledInventoryFields()) {
    page.setText(field, node == nullptr ? std::string_view() : shownText(field, *node));
  }
}

// Deliberate: `modified` of the node does not rise by a change of its texts.
void InventoryPage::store(StoreNode& node, StoreNode& scratch) {
  if (node.title.view() != scratch.title.view()) {
    node.title = scratch.title;
    shell_.program.view.nodeRenamed(node);
  }
  for (const Field<StoreNode>& field : InventoryFields()) {
    if (field.id != kTitle) TextOf(field, node) = TextOf(field, scratch);
  }
}

void InventoryPage::read(Dialog& page) {
  StoreNode* node = shell_.program.project.currentNode;
  if (node == nullptr) return;
  StoreNode scratch;
  ReadFields(page, InventoryFields(), scratch);
  shell_.descriptionCache = scratch.body.view();
  if (formDiffers(node, &scratch)) store(*node, scratch);
}

void InventoryPage::showStates(Dialog& page, const CommandStates::Page& states) {
  for (const auto& [control, state] : kStates) page.enable(control, states.*state);
  for (int i = 0; i < kCustomFields; ++i) page.enable(kLabel1 + i, states.fields);
}

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
  if (shell_.program.atWork || node == nullptr || !node->templateName.isSet()) return;
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
    case kKeywordManager:
      ShowKeywordManager(shell_.program);
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

// The change of the field stores the path, once the work of choosing is over.
void InventoryPage::chooseImage(Dialog& page, ControlId field, std::string_view title) {
  const std::optional<std::string> path = chooseImageFile(shell_.program, title);
  if (path) page.setText(field, *path);
}

}  // namespace varlo
