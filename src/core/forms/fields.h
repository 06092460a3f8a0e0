// The fields of a form bound to the texts of a record, as a table: one place to fill, limit, read and compare them.
#pragma once

#include <algorithm>
#include <span>
#include <string_view>

#include "core/forms/field_text.h"
#include "core/text/text.h"
#include "platform/dialog.h"

namespace varlo {

// What an empty field is read as.
enum class WhenEmpty { Absent, Empty };

enum class BackSlashes { Kept, Turned };  // Turned: read as forward slashes

template <typename Record>
struct Field {
  ControlId id = 0;
  Text& (*text)(Record&) = nullptr;
  WhenEmpty whenEmpty = WhenEmpty::Empty;
  BackSlashes backSlashes = BackSlashes::Kept;
  int limit = 0;  // bytes that can be typed; 0: any number
  std::size_t cut = kLineBuffer;
};

// The text of a record that a field shows.
template <typename Record>
[[nodiscard]] Text& TextOf(const Field<Record>& field, Record& record) {
  return field.text(record);
}
template <typename Record>
[[nodiscard]] const Text& TextOf(const Field<Record>& field, const Record& record) {
  return field.text(const_cast<Record&>(record));  // the table serves reading and writing; nothing is written here
}

// What a field holds now, as its row of the table says.
template <typename Record>
[[nodiscard]] Text ReadField(Dialog& dialog, const Field<Record>& field) {
  Text text = FieldText(dialog, field.id, field.cut);
  if (field.backSlashes == BackSlashes::Turned)
    std::replace(text.data(), text.data() + text.view().size(), '\\', '/');
  if (!text.isSet() && field.whenEmpty == WhenEmpty::Absent) text.release();
  return text;
}

template <typename Record>
void LimitFields(Dialog& dialog, std::span<const Field<Record>> fields) {
  for (const Field<Record>& field : fields) {
    if (field.limit > 0) dialog.limitText(field.id, field.limit);
  }
}

template <typename Record>
void FillFields(Dialog& dialog, std::span<const Field<Record>> fields, const Record& record) {
  for (const Field<Record>& field : fields) dialog.setText(field.id, TextOf(field, record).view());
}

template <typename Record>
void ReadFields(Dialog& dialog, std::span<const Field<Record>> fields, Record& record) {
  for (const Field<Record>& field : fields) TextOf(field, record) = ReadField(dialog, field);
}

// Whether any text differs, byte by byte; absent counts as empty.
template <typename Record>
[[nodiscard]] bool FieldsDiffer(std::span<const Field<Record>> fields, const Record& one, const Record& other) {
  return std::any_of(fields.begin(), fields.end(), [&](const Field<Record>& field) {
    return TextOf(field, one).view() != TextOf(field, other).view();
  });
}

}  // namespace varlo
