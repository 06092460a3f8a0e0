#include "generator/build/build_driver.h"

#include "core/program/program.h"
#include "core/program/scheme.h"
#include "core/store/store_node.h"
#include "core/text/number_text.h"
#include "core/text/paths.h"
#include "generator/build/scheme_files.h"
#include "generator/build/user_variables.h"
#include "generator/cart/cart_frames.h"
#include "generator/items/index_file.h"
#include "generator/pages/page_walk.h"
#include "generator/state/build_messages.h"
#include "generator/state/build_target.h"
#include "generator/state/generator.h"
#include "persist/life/project_life.h"

namespace varlo {
namespace {

constexpr std::string_view kPreviewLoader = "ftmp.htm";
constexpr std::string_view kFrontDoor = "index.html";

std::string_view fileNameOf(const StoreNode* node) {
  return node == nullptr ? std::string_view() : node->fileName.view();
}

void startLog(BuildLog& log) {
  if (log.buildWindow != nullptr) log.buildWindow->clearLog();
  LogBuild(log, ReadyLine());
  LogBuild(log, "");
}

int stopWithoutDirectory(BuildLog& log, std::string_view directory) {
  LogError(log, FillMessage(message::kNoDirectory, directory));
  LogBuild(log, message::kBuildStopped);
  return 0;
}

int makeDirectories(Generator& generator, std::string_view directory) {
  Program& program = generator.program;
  if (DirectoryCreatePath(program, directory) == 0) return stopWithoutDirectory(generator.log, directory);
  const std::string pictures = std::string(directory).append("\\img");
  if (program.files.makeFolder(pictures) == MakeFolderResult::Failed) {
    return stopWithoutDirectory(generator.log, pictures);
  }
  return 1;
}

// A store without a scheme gets the first one of the first style, as everywhere; a style without schemes
// serves as one itself.
int chooseScheme(Generator& generator) {
  Program& program = generator.program;
  SchemeStyle* style = program.config.schemeStyles;
  if (program.project.projectScheme == nullptr && style != nullptr) {
    program.project.projectScheme = style->schemes != nullptr ? style->schemes : style;
  }
  if (program.project.projectScheme != nullptr) return 1;
  LogBuild(generator.log, message::kNoBuildScheme);
  LogBuild(generator.log, message::kBuildStopped);
  return 0;
}

void writePages(Generator& generator) {
  const IndexFile index(generator);
  generator.log.stopRequested = false;
  BuildSiblings(generator, generator.program.project.root);
}

void writeSite(Generator& generator, std::string_view directory) {
  const StoreProject& project = generator.program.project;
  generator.log.warningCount = generator.log.errorCount = generator.log.logLines = 0;
  CheckUserVariables(generator);
  WriteTrolley(generator);
  WriteRegister(generator);
  WriteFrameLoader(generator, fileNameOf(project.currentNode), kPreviewLoader);
  WriteFrameLoader(generator, fileNameOf(project.root), kFrontDoor);
  writePages(generator);
  CopySchemeFiles(generator, directory);
}

void endLog(BuildLog& log) {
  LogBuild(log, "");
  LogBuild(log, FillMessage(message::kBuildComplete, {IntToText(log.errorCount), IntToText(log.warningCount)}));
  if (log.buildWindow == nullptr) return;
  log.buildWindow->showLabel("");
  log.buildWindow->resetProgress();
}

void showSite(Program& program) {
  const std::string path = std::string(program.project.webDir.view()).append("\\").append(kFrontDoor);
  program.view.openInBrowser(SingleBackSlashes(path));
}

}  // namespace

std::string ReadyLine() { return FillMessage(message::kReady, {kProductName, kProductVersion, kProductRelease}); }

int RunBuild(Generator& generator, std::string directory, std::string_view title) {
  StoreProject& project = generator.program.project;
  startLog(generator.log);
  project.storeTitle.assign(title);
  if (!CheckDirectoryName(generator.program, directory)) return 0;
  if (directory.ends_with('\\')) directory.pop_back();
  const Text former = project.webDir;
  const std::uint32_t serial = project.serial;
  project.webDir.assign(std::string_view(directory));
  if (makeDirectories(generator, directory) == 0) {
    project.webDir = former;
    return 0;
  }
  if (chooseScheme(generator) == 0) return 0;
  writeSite(generator, directory);
  endLog(generator.log);
  showSite(generator.program);
  if (project.serial == serial) project.webDir = former;  // the browser may have let the user open another
  return 1;
}

}  // namespace varlo
