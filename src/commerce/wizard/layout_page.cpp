#include "commerce/wizard/layout_page.h"

#include <algorithm>

#include "commerce/wizard/wizard_shapes.h"
#include "core/program/program.h"
#include "layout/preview_picture.h"
#include "layout/scheme_marks.h"
#include "layout/scheme_selection.h"

namespace varlo {
namespace {

using namespace wizard;

constexpr ListColumn kStyleColumn[] = {{"Select Style", 110}};
constexpr ListColumn kSchemeColumn[] = {{"Select Schema", 110}};

std::vector<SchemeRecord*> recordsOf(SchemeRecord* head) {
  std::vector<SchemeRecord*> records;
  for (SchemeRecord* record = head; record != nullptr; record = record->next) records.push_back(record);
  return records;
}

SchemeRecord* recordOf(const std::vector<SchemeRecord*>& records, int row) {
  const auto number = static_cast<std::size_t>(row);
  return number < records.size() ? records[number] : nullptr;
}

void showPicture(const LayoutPage& page, Dialog& dialog) {
  dialog.setPicture(kPicture, PreviewPicture(page.program.config.currentScheme));
}

void fillSchemes(LayoutPage& page, Dialog& dialog, const SchemeStyle* style) {
  page.schemes = recordsOf(style == nullptr ? nullptr : style->schemes);
  dialog.setRowCount(kSchemes, static_cast<int>(page.schemes.size()));
}

// Marks a row without telling of it.
void markRow(LayoutPage& page, Dialog& dialog, ControlId list, const SchemeRecord* record) {
  const std::vector<SchemeRecord*>& records = list == kStyles ? page.styles : page.schemes;
  const auto found = std::find(records.begin(), records.end(), record);
  page.muted = true;
  if (found != records.end()) dialog.selectRow(list, static_cast<int>(found - records.begin()));
  page.muted = false;
}

// A layout editor that is open must follow the current scheme.
void styleSelected(LayoutPage& page, Dialog& dialog) {
  SchemeStyle* style = recordOf(page.styles, dialog.selectedRow(kStyles));
  if (style == nullptr) return;
  StyleSelect(page.program, *style);
  fillSchemes(page, dialog, style);
  showPicture(page, dialog);
  page.program.view.loadForm();
}

void schemeSelected(LayoutPage& page, Dialog& dialog) {
  Scheme* scheme = recordOf(page.schemes, dialog.selectedRow(kSchemes));
  if (scheme == nullptr) return;
  page.program.config.currentScheme = scheme;
  showPicture(page, dialog);
  page.program.view.loadForm();
}

}  // namespace

// Deliberate: the schemes of the first style are shown, whichever is current. A style is marked only where its own
// schemes are on show: else a click on it would choose nothing.
void LayoutPageOpen(LayoutPage& page, Dialog& dialog) {
  const AppConfig& config = page.program.config;
  dialog.setColumns(kStyles, kStyleColumn);
  dialog.setColumns(kSchemes, kSchemeColumn);
  page.styles = recordsOf(config.schemeStyles);
  dialog.setRowCount(kStyles, static_cast<int>(page.styles.size()));
  fillSchemes(page, dialog, config.schemeStyles);
  if (config.currentStyle == config.schemeStyles) markRow(page, dialog, kStyles, config.currentStyle);
  markRow(page, dialog, kSchemes, config.currentScheme);
  dialog.enable(kPreview, page.program.project.currentNode != nullptr);
  showPicture(page, dialog);
}

void LayoutPageControl(LayoutPage& page, Dialog& dialog, const ControlEvent& event) {
  if (event.notice == Notice::Clicked && event.control == kPreview) page.program.view.previewScheme();
  if (event.notice != Notice::SelectionChanged || page.muted) return;
  if (event.control == kStyles) styleSelected(page, dialog);
  if (event.control == kSchemes) schemeSelected(page, dialog);
}

std::string LayoutPageText(const LayoutPage& page, ControlId list, int row) {
  const SchemeRecord* record = recordOf(list == kStyles ? page.styles : page.schemes, row);
  return record == nullptr ? std::string() : std::string(record->name.view());
}

int LayoutPageMark(const LayoutPage& page, ControlId list, int row) {
  const SchemeRecord* record = recordOf(list == kStyles ? page.styles : page.schemes, row);
  if (record == nullptr) return 0;
  return list == kStyles ? StyleMark(*record) : SchemeMark(page.program.project, *record);
}

}  // namespace varlo
