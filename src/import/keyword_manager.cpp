#include "import/keyword_manager.h"

#include "core/forms/field_text.h"
#include "core/program/program.h"
#include "import/keywords.h"

namespace varlo {
namespace {

using namespace keyword_manager;

constexpr std::string_view kTabName = "Keywords";
constexpr int kKeywordLimit = 50;
constexpr int kAdditionalLimit = 160;

constexpr ControlId keywordField(std::size_t number) { return kFirstKeyword + static_cast<ControlId>(number); }

constexpr Cell keywordCell(int number, std::string_view label) {
  return Cell{.id = kFirstKeyword + number - 1,
              .kind = Kind::Edit,
              .label = label,
              .labelWidth = 24,
              .options = Option::RightLabel};
}

constexpr Row kFields[] = {
    {{keywordCell(1, "1"), keywordCell(2, "2"), keywordCell(3, "3")}},
    {{keywordCell(4, "4"), keywordCell(5, "5"), keywordCell(6, "6")}},
    {{keywordCell(7, "7"), keywordCell(8, "8"), keywordCell(9, "9")}},
    {{keywordCell(10, "10"), keywordCell(11, "11"), keywordCell(12, "12")}},
    {{keywordCell(13, "13"), keywordCell(14, "14"), keywordCell(15, "15")}},
    {{{.id = kAdditional, .kind = Kind::Edit, .label = "&Additional Keywords:", .labelWidth = 120}}, 4},
};
constexpr Row kRows[] = {{{{.id = kTab, .kind = Kind::Group, .rows = kFields}}}};
constexpr FootButton kFoot[] = {
    {kOk, "OK", Option::Default}, {kCancel, "Cancel"}, {kClear, "&Clear"}, {kHelp, "&Help"}};

Keywords readFields(Dialog& dialog) {
  Keywords keywords;
  for (std::size_t i = 0; i < kKeywordFields; ++i) keywords.field[i] = FieldText(dialog, keywordField(i)).view();
  keywords.additional = FieldText(dialog, kAdditional).view();
  return keywords;
}

// What the keywords do not reach has no limit.
void fillFields(Dialog& dialog, std::string_view text) {
  std::size_t reached = 0;
  const Keywords keywords = SplitKeywords(text, reached);
  for (std::size_t i = 0; i < reached; ++i) {
    dialog.limitText(keywordField(i), kKeywordLimit);
    dialog.setText(keywordField(i), keywords.field[i]);
  }
  dialog.limitText(kAdditional, kAdditionalLimit);
  dialog.setText(kAdditional, keywords.additional);
}

void clearFields(Dialog& dialog) {
  for (std::size_t i = 0; i < kKeywordFields; ++i) dialog.setText(keywordField(i), "");
  dialog.setText(kAdditional, "");
}

}  // namespace

constinit const DialogShape KeywordManager::kShape{
    .id = kWindow, .title = "Keyword Manager", .size = {560, 0}, .rows = kRows, .foot = kFoot};

// Deliberate: for a node without keywords nothing is set up: no name of the tab, no limits, no help.
void KeywordManager::opened(Dialog& dialog) {
  const StoreNode* node = program_.project.currentNode;
  if (node == nullptr || !node->metaKeywords.isSet()) return;
  program_.view.showHelp(kWindow);
  dialog.setText(kTab, kTabName);
  fillFields(dialog, node->metaKeywords.view());
}

void KeywordManager::notified(Dialog& dialog, const ControlEvent& event) {
  if (event.notice != Notice::Clicked) return;
  if (event.control == kOk) store(dialog);
  if (event.control == kCancel) dialog.end(0);
  if (event.control == kClear) clearFields(dialog);
  if (event.control == kHelp) program_.view.openHelpPane(kWindow);
}

void KeywordManager::store(Dialog& dialog) {
  StoreNode* node = program_.project.currentNode;
  if (node != nullptr) {
    node->metaKeywords = JoinKeywords(readFields(dialog));
    program_.view.loadForm();
    SetDirty(program_, 1);
  }
  dialog.end(1);
}

void ShowKeywordManager(Program& program) {
  if (program.project.currentNode == nullptr) return;
  KeywordManager logic(program);
  program.screen.runDialog(logic);
}

}  // namespace varlo
