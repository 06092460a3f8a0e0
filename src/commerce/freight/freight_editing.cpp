#include "commerce/freight/freight_editing.h"

#include <memory>

#include "commerce/freight/freight_rows.h"
#include "commerce/freight/region_lists.h"
#include "core/program/program.h"

namespace varlo {
namespace {

// Calls `change` for the table of each row.
template <typename Change>
void forTables(const StoreProject& project, FreightRows rows, Change change) {
  for (const FreightRegion* region : rows) {
    FreightMethod* table = CurrentTable(project, *region);
    if (table != nullptr) change(*table);
  }
}

void setOffered(Program& program, FreightRows rows, std::int8_t offered) {
  forTables(program.project, rows, [offered](FreightMethod& table) { table.active = offered; });
}

void showChange(Program& program) {
  program.view.loadForm();
  SetDirty(program, 1);
}

}  // namespace

void FreightCopy(Program& program) {
  StoreProject& project = program.project;
  const FreightMethod* table =
      project.currentRegion == nullptr ? nullptr : CurrentTable(project, *project.currentRegion);
  if (table != nullptr) project.freightClipboard.reset(FreightRecordCopy(nullptr, table));
}

void FreightPaste(Program& program, FreightRows rows) {
  const FreightMethod* copied = program.project.freightClipboard.get();
  forTables(program.project, rows, [copied](FreightMethod& table) { FreightRecordCopy(&table, copied); });
  showChange(program);
}

void FreightClear(Program& program, FreightRows rows) {
  forTables(program.project, rows, [](FreightMethod& table) {
    for (Text& cell : table.value) cell.release();
    table.active = 0;
  });
  showChange(program);
}

void FreightEnable(Program& program, FreightRows rows) { setOffered(program, rows, 1); }
void FreightDisable(Program& program, FreightRows rows) { setOffered(program, rows, 0); }

void FreightDelete(Program& program, FreightRows rows) {
  RegionsRemove(program, rows);
  showChange(program);
}

}  // namespace varlo
