#include "generator/items/links.h"

#include <algorithm>

#include "core/text/text_edit.h"

namespace varlo {
namespace {

std::string replaced(std::string_view path, char from, char to) {
  std::string copy(path);
  std::replace(copy.begin(), copy.end(), from, to);
  return copy;
}

}  // namespace

std::string ForwardSlashes(std::string_view path) { return replaced(path, '\\', '/'); }
std::string BackSlashes(std::string_view path) { return replaced(path, '/', '\\'); }

std::string_view BaseName(std::string_view path) {
  std::size_t slash = path.rfind('\\');
  if (slash == std::string_view::npos) slash = path.rfind('/');
  return path.substr(slash + 1);  // npos + 1 is 0
}

Value BaseName(const Text& path) { return path.isNull() ? Value() : Value(BaseName(path.view())); }

std::string RewriteImageUrl(const AppConfig& config, std::string_view value) {
  if (value.empty() || HoldsDoubleSlash(value)) return std::string(value);
  const std::string_view name = value.substr(0, kImageName);
  std::string address = "img/";
  address += name.substr(name.find_last_of("\\/") + 1);
  if (config.lowerCaseLinks != 0) TextLower(address);
  return address;
}

std::string_view AccountUser(const AppConfig& config) {
  const std::string_view account = config.accountId.view();
  const std::size_t hyphen = account.find('-');
  return hyphen == std::string_view::npos ? account : account.substr(0, hyphen + 3);
}

}  // namespace varlo
