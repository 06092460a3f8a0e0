// The popup menus of the import window: of a heading, and of the rows.
#pragma once

#include "import/import_columns.h"
#include "platform/popup_menu.h"

namespace varlo {

// What a column can carry. A field that some column carries can't be chosen, nor can any for a column behind the last
// that can carry something.
[[nodiscard]] PopupMenu ColumnMenu(const ImportColumns& columns, std::size_t column);

// The field that an entry of it stands for; kNoImportField for any other command.
[[nodiscard]] ImportFieldNumber FieldOfCommand(Command command);

// What can be done with rows; most of it only where a row was hit.
[[nodiscard]] PopupMenu RowMenu(bool hitRow);

}  // namespace varlo
