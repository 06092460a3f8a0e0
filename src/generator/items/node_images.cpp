#include "generator/items/node_images.h"

#include <string>

#include "core/program/program.h"
#include "core/text/open_file.h"
#include "core/text/paths.h"
#include "core/text/text_edit.h"
#include "core/text/text_search.h"
#include "generator/items/links.h"
#include "generator/state/build_messages.h"
#include "generator/state/generator.h"

namespace varlo {
namespace {

// Below the web directory.
constexpr std::string_view kPictureFolder = "img\\";

std::string targetOf(const Program& program, std::string_view name) {
  return std::string(program.project.webDir.view()).append("\\").append(kPictureFolder).append(name);
}

bool staysInSite(std::string_view name) { return StaysBelow(std::string(kPictureFolder).append(name)); }

// The path as it is copied to: in lower case where links are, with single back slashes.
void settle(const Program& program, std::string& target) {
  if (program.config.lowerCaseLinks != 0) TextLower(target);
  target = SingleBackSlashes(target);
}

bool isOutside(std::string_view image) {
  return image.find(':') != std::string_view::npos && EqualsNoCase(image.substr(0, 4), "http");
}

bool isPicture(std::string_view link) {
  for (const std::string_view ending : {".gif", ".jpg", ".jpeg"}) {
    if (FindNoCase(link, ending) != std::string_view::npos) return true;
  }
  return false;
}

std::string failureOf(Program& program, const StoreNode& page, std::string_view image, std::string_view target) {
  switch (program.files.lastError()) {
    case FileError::PathNotFound:
      return std::string(message::kImagePathError);
    case FileError::AccessDenied:
      return std::string(message::kImageAccessError);
    default:
      return FillMessage(message::kImageCopyError, {page.fileName.view(), image, target});
  }
}

void copyPicture(Generator& generator, StoreNode& node, const StoreNode& page) {
  Program& program = generator.program;
  if (!node.image.isSet() || isOutside(node.image.view())) return;
  const std::string image = SingleBackSlashes(BackSlashes(node.image.view()));
  if (image != node.image.view()) node.image.assign(std::string_view(image));
  const std::string_view name = PathName(image);
  std::string target = targetOf(program, name);
  if (FileExists(program.files, image) == 0) {
    LogWarning(generator.log, FillMessage(message::kImageReadWarning, {page.fileName.view(), image}));
    return;
  }
  settle(program, target);
  if (!staysInSite(name)) {
    LogError(generator.log, FillMessage(message::kImageCopyError, {page.fileName.view(), image, target}));
  } else if (!program.files.copy(image, target, true)) {
    LogError(generator.log, failureOf(program, page, image, target));
  }
}

void copyLinkedPicture(Generator& generator, const StoreNode& node, const StoreNode& page) {
  Program& program = generator.program;
  const std::string_view link = node.imageLink.view();
  if (link.empty() || HoldsDoubleSlash(link) || !isPicture(link)) return;
  const std::string source = BackSlashes(link);
  if (FileExists(program.files, source) == 0) {
    LogWarning(generator.log, FillMessage(message::kImageLinkReadWarning, {page.fileName.view(), link}));
    return;
  }
  const std::string_view name = link.substr(link.rfind('/') + 1);
  std::string target = BackSlashes(targetOf(program, name));
  settle(program, target);
  if (staysInSite(name) && program.files.copy(source, target, true)) return;
  LogError(generator.log, FillMessage(message::kImageLinkCopyError, {page.fileName.view(), source, target}));
}

}  // namespace

int CopyNodeImages(Generator& generator, StoreNode& node, const StoreNode& page) {
  copyPicture(generator, node, page);
  copyLinkedPicture(generator, node, page);
  return 1;
}

}  // namespace varlo
