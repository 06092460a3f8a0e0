// Addresses and file names as the generated pages hold them.
#pragma once

#include <string>
#include <string_view>

#include "core/store/app_config.h"
#include "generator/items/replace.h"

namespace varlo {

// The part of an image name that is taken over.
inline constexpr std::size_t kImageName = 512;

// A copy with every "\" turned into "/".
[[nodiscard]] std::string ForwardSlashes(std::string_view path);
// A copy with every "/" turned into "\".
[[nodiscard]] std::string BackSlashes(std::string_view path);

// The part behind the last "\"; if there is none, behind the last "/"; otherwise the whole path.
[[nodiscard]] std::string_view BaseName(std::string_view path);
// The same for a text that may be absent.
[[nodiscard]] Value BaseName(const Text& path);

// The address that a page uses for a picture: "img/" and the file's name, in lower case where the
// configuration says so. An empty value and one with "//" in it come back as they are.
[[nodiscard]] std::string RewriteImageUrl(const AppConfig& config, std::string_view value);

// Whether the text of a link holds "//", and so leads outside.
[[nodiscard]] inline bool HoldsDoubleSlash(std::string_view value) {
  return value.find("//") != std::string_view::npos;
}

// The value of $USER: the account, cut behind the second character that follows its first "-".
[[nodiscard]] std::string_view AccountUser(const AppConfig& config);

}  // namespace varlo
