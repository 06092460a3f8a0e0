// The texts of the import. They are behaviour to the letter, like those of core/program/messages.h.
#pragma once

#include <string_view>

namespace varlo::message {

inline constexpr std::string_view kOpenDataFile = "Open Data File";
inline constexpr std::string_view kDataFilter = "File (*.*)$*.*$$";
inline constexpr std::string_view kImportComplete = "Import Complete";
inline constexpr std::string_view kImported = "%s record(s) have been imported.";
inline constexpr std::string_view kUpdateComplete = "Update Complete";
inline constexpr std::string_view kUpdated = "%s record(s) have been updated.";
inline constexpr std::string_view kNoProductCodeColumn =
    "An update operation requires a Product Code field to be defined.";

}  // namespace varlo::message
