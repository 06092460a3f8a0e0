// What a column of an import can carry: the table of the node texts with their labels, and how a value is treated on
// its way into one.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/store/node_text.h"

namespace varlo {

struct ImportDialect;

enum class Treatment {
  AsRead,
  Decimal,           // the decimal point becomes "."
  DecimalIfNumeric,  // the same where the value begins like a number
  Price,             // the decimal point becomes ".", and what stands before the number goes
};

struct ImportField {
  NodeText text;
  std::string_view label;  // menu entry, and heading of the column
  std::string_view name;   // on a command line
  Treatment treatment = Treatment::AsRead;
};

// The number of a field, from 1; 0 stands for none.
using ImportFieldNumber = std::uint8_t;
inline constexpr ImportFieldNumber kNoImportField = 0;
inline constexpr ImportFieldNumber kImportFields = 26;
inline constexpr ImportFieldNumber kProductCodeField = 4;

// What each column carries. Columns behind these can be looked at and no more.
inline constexpr std::size_t kImportColumns = 26;
using ImportColumns = std::array<ImportFieldNumber, kImportColumns>;

// The heading of a column that carries nothing.
inline constexpr std::string_view kUnassignedHeading = "???";

// The field of a number from 1 to kImportFields.
[[nodiscard]] const ImportField& ImportFieldOf(ImportFieldNumber number);

// The field with this name or, without regard to case, this label; kNoImportField when there is none.
[[nodiscard]] ImportFieldNumber FindImportField(std::string_view name);

// The label of what a column carries, kUnassignedHeading for nothing or a column behind the last.
[[nodiscard]] std::string_view ColumnHeading(const ImportColumns& columns, std::size_t column);

// Whether some column carries the field.
[[nodiscard]] bool IsAssigned(const ImportColumns& columns, ImportFieldNumber number);

// A value as it goes into the store.
[[nodiscard]] std::string TreatValue(const ImportDialect& dialect, Treatment treatment, std::string value);

}  // namespace varlo
