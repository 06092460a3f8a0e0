#include "commerce/tax/tax_pages.h"

#include <algorithm>
#include <numeric>

#include "commerce/freight/freight_rows.h"
#include "commerce/tax/tax_rows.h"
#include "core/forms/field_text.h"
#include "core/program/program.h"
#include "platform/item_images.h"

namespace varlo {
namespace {

constexpr ListColumn kTaxableColumns[] = {{"Region", 300}};
constexpr ListColumn kRateColumns[] = {{"Region", 300}, {"Tax", 100}};

FreightRegion* regionOf(const TaxPage& page, int row) {
  const auto number = static_cast<std::size_t>(row);
  return number < page.rows.size() ? page.rows[number] : nullptr;
}

int rowOf(const TaxPage& page, const FreightRegion* region) {
  const auto found = std::find(page.rows.begin(), page.rows.end(), region);
  return found == page.rows.end() ? kNoRow : static_cast<int>(found - page.rows.begin());
}

void fill(TaxPage& page, Dialog& dialog, ControlId list) {
  page.rows = StoreRegions(page.program.project);
  page.order.resize(page.rows.size());
  std::iota(page.order.begin(), page.order.end(), 0);
  page.current = nullptr;
  dialog.setRowCount(list, static_cast<int>(page.rows.size()));
  if (!page.rows.empty()) dialog.selectRow(list, 0);
}

void sort(TaxPage& page, Dialog& dialog, ControlId list, int column) {
  SortTaxRows(page.rows, page.order, column);
  dialog.orderRows(list, page.order);
}

// A double click on a row; true when it was one on a region.
bool toggle(const TaxPage& page, Dialog& dialog, const ControlEvent& event) {
  FreightRegion* region = regionOf(page, event.row);
  if (region == nullptr) return false;
  ToggleTaxable(*region);
  dialog.repaintRow(event.control, event.row);
  return true;
}

void showTaxable(TaxPage& page, Dialog& dialog) {
  page.current = regionOf(page, dialog.selectedRow(taxable::kRegions));
  dialog.enable(taxable::kTaxable, page.current != nullptr);
  dialog.check(taxable::kTaxable, page.current != nullptr && IsTaxed(*page.current));
}

void tick(TaxPage& page, Dialog& dialog) {
  if (page.current == nullptr) return;
  SetTaxable(*page.current, dialog.isChecked(taxable::kTaxable));
  dialog.repaintRow(taxable::kRegions, rowOf(page, page.current));
}

void storeRate(TaxPage& page, Dialog& dialog) {
  if (page.current == nullptr) return;
  page.current->regionValue = FieldText(dialog, tax_rates::kRate);
  dialog.repaintRow(tax_rates::kRegions, rowOf(page, page.current));
}

void showRate(TaxPage& page, Dialog& dialog) {
  page.current = regionOf(page, dialog.selectedRow(tax_rates::kRegions));
  dialog.enable(tax_rates::kRate, page.current != nullptr);
  dialog.setText(tax_rates::kRate, page.current == nullptr ? std::string_view() : page.current->regionValue.view());
}

// Only another row stores the field: a double click tells of its row twice.
void rateRowSelected(TaxPage& page, Dialog& dialog) {
  if (regionOf(page, dialog.selectedRow(tax_rates::kRegions)) == page.current) return;
  storeRate(page, dialog);
  showRate(page, dialog);
}

}  // namespace

void TaxablePageOpen(TaxPage& page, Dialog& dialog) {
  dialog.setColumns(taxable::kRegions, kTaxableColumns);
  fill(page, dialog, taxable::kRegions);
  showTaxable(page, dialog);
}

void TaxablePageControl(TaxPage& page, Dialog& dialog, const ControlEvent& event) {
  if (event.control == taxable::kTaxable && event.notice == Notice::Clicked) tick(page, dialog);
  if (event.control != taxable::kRegions) return;
  if (event.notice == Notice::SelectionChanged) showTaxable(page, dialog);
  if (event.notice == Notice::HeadingClicked) sort(page, dialog, event.control, event.column);
  if (event.notice == Notice::DoubleClicked && toggle(page, dialog, event)) showTaxable(page, dialog);
}

void TaxRatesPageOpen(TaxPage& page, Dialog& dialog) {
  dialog.setColumns(tax_rates::kRegions, kRateColumns);
  fill(page, dialog, tax_rates::kRegions);
  showRate(page, dialog);
}

// Deliberate: the field keeps its text when a double click changes the value, and is stored over it later.
void TaxRatesPageControl(TaxPage& page, Dialog& dialog, const ControlEvent& event) {
  if (event.control != tax_rates::kRegions) return;
  if (event.notice == Notice::SelectionChanged) rateRowSelected(page, dialog);
  if (event.notice == Notice::HeadingClicked) sort(page, dialog, event.control, event.column);
  if (event.notice == Notice::DoubleClicked) toggle(page, dialog, event);
}

void TaxRatesPageLeave(TaxPage& page, Dialog& dialog) { storeRate(page, dialog); }

std::string TaxPageText(const TaxPage& page, int row, int column) {
  const FreightRegion* region = regionOf(page, row);
  if (region == nullptr) return {};
  if (column == kTaxRegionColumn) return std::string(region->name.view());
  return IsTaxed(*region) ? std::string(region->regionValue.view()) : "-";
}

int TaxPageMark(const TaxPage& page, int row) {
  const FreightRegion* region = regionOf(page, row);
  return region != nullptr && IsTaxed(*region) ? item_image::kTickedBox : item_image::kEmptyBox;
}

}  // namespace varlo
