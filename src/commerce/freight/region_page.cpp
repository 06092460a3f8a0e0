#include "commerce/freight/region_page.h"

#include "commerce/freight/freight_rows.h"
#include "commerce/freight/region_lists.h"
#include "core/forms/field_text.h"
#include "core/program/program.h"

namespace varlo {
namespace {

using namespace regions;

constexpr int kColumnWidth = 160;
constexpr ListColumn kOfferedColumn[] = {{"Regions:", kColumnWidth}};
constexpr ListColumn kStoreColumn[] = {{"Deliver to:", kColumnWidth}};

std::vector<FreightRegion*> selected(Dialog& dialog, ControlId list, const std::vector<FreightRegion*>& rows) {
  std::vector<FreightRegion*> selected;
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (dialog.isRowSelected(list, static_cast<int>(row))) selected.push_back(rows[row]);
  }
  return selected;
}

void fill(RegionPage& page, Dialog& dialog) {
  page.offered = OfferedRegions(page.program.config);
  page.store = StoreRegions(page.program.project);
  dialog.setRowCount(kOffered, static_cast<int>(page.offered.size()));
  dialog.setRowCount(kStore, static_cast<int>(page.store.size()));
  dialog.enable(kAdd, false);
  dialog.enable(kRemove, false);
}

// A selection in one list takes the button of the other away.
void followSelection(Dialog& dialog, ControlId list, ControlId button, ControlId other) {
  const bool hasSelection = dialog.selectedRow(list) != kNoRow;
  dialog.enable(button, hasSelection);
  if (hasSelection) dialog.enable(other, false);
}

void take(RegionPage& page, Dialog& dialog) {
  RegionsTake(page.program, selected(dialog, kOffered, page.offered));
  fill(page, dialog);
}

void remove(RegionPage& page, Dialog& dialog) {
  RegionsRemove(page.program, selected(dialog, kStore, page.store));
  fill(page, dialog);
}

void takeTyped(RegionPage& page, Dialog& dialog) {
  RegionTakeTyped(page.program, FieldText(dialog, kOther).view());
  fill(page, dialog);
}

void pressed(RegionPage& page, Dialog& dialog, ControlId button) {
  if (button == kAdd) take(page, dialog);
  if (button == kRemove) remove(page, dialog);
  if (button == kAddOther) takeTyped(page, dialog);
}

void showMenu(RegionPage& page, Dialog& dialog, ControlId list, Command selectAll) {
  const PopupMenu menu{{.label = "Select &All", .command = selectAll}};
  if (page.program.screen.popupMenu(menu) == selectAll) dialog.selectAllRows(list);
}

void enableOther(Dialog& dialog) { dialog.enable(kAddOther, !dialog.text(kOther).empty()); }

void inOffered(RegionPage& page, Dialog& dialog, Notice notice) {
  if (notice == Notice::SelectionChanged) followSelection(dialog, kOffered, kAdd, kRemove);
  if (notice == Notice::RightClicked) showMenu(page, dialog, kOffered, Command::SelectAllOfferedRegions);
}

void inStore(RegionPage& page, Dialog& dialog, const ControlEvent& event) {
  if (event.notice == Notice::SelectionChanged) followSelection(dialog, kStore, kRemove, kAdd);
  if (event.notice == Notice::RightClicked) showMenu(page, dialog, kStore, Command::SelectAllStoreRegions);
  if (event.notice == Notice::KeyPressed && event.key == Key::Delete) remove(page, dialog);
}

}  // namespace

void RegionPageOpen(RegionPage& page, Dialog& dialog) {
  dialog.setColumns(kOffered, kOfferedColumn);
  dialog.setColumns(kStore, kStoreColumn);
  fill(page, dialog);
  enableOther(dialog);
}

bool RegionPageControl(RegionPage& page, Dialog& dialog, const ControlEvent& event) {
  if (event.control < kOffered || event.control > kAddOther) return false;
  if (event.control == kOffered) inOffered(page, dialog, event.notice);
  if (event.control == kStore) inStore(page, dialog, event);
  if (event.control == kOther && event.notice == Notice::Changed) enableOther(dialog);
  if (event.notice == Notice::Clicked) pressed(page, dialog, event.control);
  return true;
}

std::string RegionPageText(const RegionPage& page, ControlId list, int row) {
  if (list != kOffered && list != kStore) return {};
  const std::vector<FreightRegion*>& rows = list == kOffered ? page.offered : page.store;
  const auto number = static_cast<std::size_t>(row);
  return number < rows.size() ? std::string(rows[number]->name.view()) : std::string();
}

}  // namespace varlo
