#include "generator/build/preview_page.h"

#include "core/program/program.h"
#include "core/text/paths.h"
#include "core/tree/store_tree.h"
#include "generator/build/scheme_files.h"
#include "generator/cart/cart_frames.h"
#include "generator/pages/page_walk.h"
#include "generator/state/generator.h"

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
