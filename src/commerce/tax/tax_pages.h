// The two tax pages of the wizard with a list of regions: which are taxable, and at which rates.
#pragma once

#include <string>
#include <vector>

#include "core/store/freight_record.h"
#include "platform/dialog.h"

namespace varlo {

struct Program;

namespace taxable {

enum : ControlId {
  kRegions = 3501,
  kTaxable,
};
inline constexpr Row kRows[] = {
    {{{.kind = Kind::Text, .label = "Place a tick next to all regions which are subject to taxation."}}},
    {{{.id = kRegions,
       .kind = Kind::List,
       .label = "Region",
       .labelWidth = kLabelUnseen,
       .lines = kFill,
       .options = Option::Marks}},
     4},
    {{{.id = kTaxable, .kind = Kind::Check, .label = "&Taxable"}}},
};

}  // namespace taxable

namespace tax_rates {

enum : ControlId {
  kRegions = 3551,
  kRate,
};
inline constexpr Row kRows[] = {
    {{{.kind = Kind::Text, .label = "Enter a percentage tax rate, for all taxable regions:"}}},
    {{{.id = kRegions, .kind = Kind::List, .label = "Region", .labelWidth = kLabelUnseen, .lines = kFill}}, 4},
    {{{.id = kRate, .kind = Kind::Edit, .label = "&Tax Rate:", .labelWidth = 64, .width = 200}}},
};

}  // namespace tax_rates

struct TaxPage {
  explicit TaxPage(Program& theProgram) : program(theProgram) {}

  Program& program;
  std::vector<FreightRegion*> rows;
  std::vector<int> order;            // in which they are displayed
  FreightRegion* current = nullptr;  // the row that the field or the check box shows
};

// The page of the taxable regions. The list has been normalised before.
void TaxablePageOpen(TaxPage& page, Dialog& dialog);
void TaxablePageControl(TaxPage& page, Dialog& dialog, const ControlEvent& event);

// The page of the rates. Leaving it, forwards or back, stores the rate in the field.
void TaxRatesPageOpen(TaxPage& page, Dialog& dialog);
void TaxRatesPageControl(TaxPage& page, Dialog& dialog, const ControlEvent& event);
void TaxRatesPageLeave(TaxPage& page, Dialog& dialog);

// The text of a row in either list, a rate that is absent as "-"; and the mark of one of the taxable regions.
[[nodiscard]] std::string TaxPageText(const TaxPage& page, int row, int column);
[[nodiscard]] int TaxPageMark(const TaxPage& page, int row);

}  // namespace varlo
