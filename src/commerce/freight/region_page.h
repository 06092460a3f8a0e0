// The wizard's page of delivery regions, which is also the dialog "Add/Remove Freight Regions": two lists, the
// buttons between them, and a field for a region that is in no list.
#pragma once

#include <string>
#include <vector>

#include "core/store/freight_record.h"
#include "platform/dialog.h"

namespace varlo {

struct Program;

namespace regions {

enum : ControlId {
  kOffered = 3451,
  kStore,
  kAdd,
  kRemove,
  kOther,
  kAddOther,
};

inline constexpr Row kMoveButtons[] = {
    {{{.kind = Kind::Space, .lines = kFill}}},
    {{{.id = kAdd, .kind = Kind::Button, .label = ">>"}}},
    {{{.id = kRemove, .kind = Kind::Button, .label = "<<"}}},
    {{{.kind = Kind::Space, .lines = kFill}}},
};
inline constexpr Row kRows[] = {
    {{{.kind = Kind::Text,
       .label =
           "Select delivery regions. Unless a region is selected, customers from that region will not be able to "
           "place orders. ",
       .lines = 2}}},
    {{{.id = kOffered,
       .kind = Kind::List,
       .label = "Regions:",
       .labelWidth = kLabelUnseen,
       .lines = kFill,
       .options = Option::FixedHeadings | Option::ManyRows | Option::Marks},
      {.kind = Kind::Box, .width = 48, .rows = kMoveButtons},
      {.id = kStore,
       .kind = Kind::List,
       .label = "Deliver to:",
       .labelWidth = kLabelUnseen,
       .lines = kFill,
       .options = Option::FixedHeadings | Option::ManyRows | Option::Marks}},
     4},
    {{{.id = kOther, .kind = Kind::Edit, .label = "O&ther:", .labelWidth = 48, .buttons = {{kAddOther, ">>", 48}}}}},
};

}  // namespace regions

struct RegionPage {
  explicit RegionPage(Program& theProgram) : program(theProgram) {}

  Program& program;
  std::vector<FreightRegion*> offered;  // the rows of the lists
  std::vector<FreightRegion*> store;
};

// Fills the controls as the page opens.
void RegionPageOpen(RegionPage& page, Dialog& dialog);

// What happens in these controls. True when it was in one of them.
bool RegionPageControl(RegionPage& page, Dialog& dialog, const ControlEvent& event);

// The text of a row of either list; empty for another list.
[[nodiscard]] std::string RegionPageText(const RegionPage& page, ControlId list, int row);

}  // namespace varlo
