#include "generator/preview_page.h"

#include "core/paths.h"
#include "core/program.h"
#include "core/store_tree.h"
#include "generator/cart_frames.h"
#include "generator/generator.h"
#include "generator/page_walk.h"
#include "generator/scheme_files.h"

namespace varlo {
namespace {

constexpr std::string_view kLoaderName = "ftmp.htm";

}  // namespace

std::string PreviewPage(Generator& generator) {
  const StoreProject& project = generator.program.project;
  CopySchemeFiles(generator, project.webDir.view());
  BuildPage(generator, project.currentNode);
  WriteTrolley(generator);
  WriteRegister(generator);
  const std::string_view page = project.currentNode == nullptr ? "" : project.currentNode->fileName.view();
  WriteFrameLoader(generator, page, kLoaderName);
  return SingleBackSlashes(std::string(project.webDir.view()).append("\\").append(kLoaderName));
}

StoreNode* PageOf(StoreNode& node) { return IsShownByParent(node) ? LiveParent(node) : &node; }

}  // namespace varlo
