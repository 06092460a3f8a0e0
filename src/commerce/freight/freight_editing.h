// What the menu of the Freight tab does to the tables of the current method.
#pragma once

#include <span>

#include "core/store/freight_record.h"

namespace varlo {

struct Program;

using FreightRows = std::span<FreightRegion* const>;

// The freight clipboard becomes a copy of the current region's table. Nothing without a current region.
void FreightCopy(Program& program);

// Cells, rule and offer of the clipboard go into the table of each row. Without a clipboard the tables become
// empty and are offered no longer.
void FreightPaste(Program& program, FreightRows rows);

// Releases the cells of each row and offers it no longer. Deliberate: the rule stays.
void FreightClear(Program& program, FreightRows rows);

// Deliberate: neither marks the project as changed.
void FreightEnable(Program& program, FreightRows rows);
void FreightDisable(Program& program, FreightRows rows);

// Takes the regions out of the store, without a question.
void FreightDelete(Program& program, FreightRows rows);

}  // namespace varlo
