#include "commerce/tax/tax_options_dialog.h"

#include "commerce/freight/freight_rows.h"
#include "commerce/tax/tax_rows.h"
#include "commerce/tax/tax_settings.h"
#include "core/forms/field_text.h"
#include "core/program/messages.h"
#include "core/program/program.h"

namespace varlo {
namespace {

using namespace tax_options;

constexpr Row kFreightRows[] = {
    {{{.id = kFreightRate, .kind = Kind::Edit}}},
};
constexpr Row kMethodRows[] = {
    {{{.id = kNoTax, .kind = Kind::Radio, .label = "No Tax"}}},
    {{{.id = kByProduct, .kind = Kind::Radio, .label = "Product Based"}}},
    {{{.id = kByRegion, .kind = Kind::Radio, .label = "Region based:"}}},
};
constexpr Row kSettings[] = {
    {{{.kind = Kind::Group, .label = "Tax on Freight", .rows = kFreightRows}}},
    {{{.kind = Kind::Group, .label = "Tax Calculation Method:", .rows = kMethodRows}}, 4},
    {{{.kind = Kind::Space, .lines = kFill}}},
};
constexpr Row kRows[] = {
    {{{.id = kRegions,
       .kind = Kind::List,
       .label = "Region",
       .labelWidth = kLabelUnseen,
       .lines = kFill,
       .options = Option::FixedHeadings},
      {.kind = Kind::Box, .width = 180, .rows = kSettings}}},
};
constexpr FootButton kFoot[] = {
    {kOk, "&OK", Option::Default}, {kEdit, "&Edit"}, {kCancel, "&Cancel"}, {kHelp, "&Help"}};
constexpr ListColumn kColumns[] = {{"Region", 160}, {"Tax", 60}};

ControlId choiceOf(const TaxSettings& tax) {
  if (tax.taxEnabled == 0) return kNoTax;
  return tax.taxOption == kTaxByProduct ? kByProduct : kByRegion;
}

}  // namespace

constinit const DialogShape TaxOptionsDialog::kShape{
    .id = kWindow, .title = "Tax Options", .size = {480, 300}, .rows = kRows, .foot = kFoot};

void TaxOptionsDialog::opened(Dialog& dialog) {
  dialog.setColumns(kRegions, kColumns);
  refresh(dialog);
  dialog.focus(kOk);
  program_.view.showHelp(kWindow);
}

void TaxOptionsDialog::refresh(Dialog& dialog) {
  rows_ = StoreRegions(program_.project);
  dialog.setRowCount(kRegions, static_cast<int>(rows_.size()));
  dialog.setText(kFreightRate, program_.project.tax.freightTaxRate.view());
  const ControlId choice = choiceOf(program_.project.tax);
  for (const ControlId radio : {kNoTax, kByProduct, kByRegion}) dialog.check(radio, radio == choice);
}

void TaxOptionsDialog::notified(Dialog& dialog, const ControlEvent& event) {
  if (event.notice == Notice::GotFocus) program_.view.showHelp(event.control);
  if (event.notice == Notice::Clicked) pressed(dialog, event.control);
}

void TaxOptionsDialog::pressed(Dialog& dialog, ControlId button) {
  switch (button) {
    case kNoTax:
    case kByProduct:
    case kByRegion:
      askToChange(dialog);
      break;
    case kEdit:
      edit(dialog);
      break;
    case kOk:
      program_.project.tax.freightTaxRate = FieldText(dialog, kFreightRate);
      SetDirty(program_, 1);
      dialog.end(1);
      break;
    case kCancel:
      dialog.end(0);
      break;
    case kHelp:
      program_.view.openHelpPane(kWindow);
      break;
    default:
      break;
  }
}

// A choice changes nothing by itself: only the wizard does, and what stands in the project is shown again.
void TaxOptionsDialog::askToChange(Dialog& dialog) {
  if (asking_) return;
  asking_ = true;
  const Answer answer = program_.screen.messageBox({.text = message::kChangeTax,
                                                    .title = message::kConfirmation,
                                                    .buttons = Buttons::YesNo,
                                                    .icon = Icon::Question});
  if (answer == Answer::Yes) runTaxWizard_();
  refresh(dialog);
  asking_ = false;
}

void TaxOptionsDialog::edit(Dialog& dialog) {
  runTaxWizard_();
  refresh(dialog);
}

std::string TaxOptionsDialog::cellText(ControlId /*list*/, int row, int column) {
  const auto number = static_cast<std::size_t>(row);
  if (number >= rows_.size()) return {};
  const FreightRegion& region = *rows_[number];
  return std::string((column == kTaxRegionColumn ? region.name : region.regionValue).view());
}

}  // namespace varlo
