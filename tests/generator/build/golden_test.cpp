// Small stores whose sites were written by hand. Each folder of golden/ holds a project, its templates, what
// the project's pictures are, the expected site, and, where there are messages, the expected log.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

#include <gmock/gmock.h>

#include "core/text/text_edit.h"
#include "generator/pages/page_walk.h"
#include "persist/project/project_load.h"
#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;
namespace fs = std::filesystem;

using Folder = std::map<std::string, std::string>;  // contents by path

const std::string kProject = "C:\\Varlo\\Projects\\Golden\\";

Folder readFolder(const fs::path& folder) {
  Folder files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    std::ifstream in(entry.path(), std::ios::binary);
    files[fs::relative(entry.path(), folder).generic_string()] = {std::istreambuf_iterator<char>(in), {}};
  }
  return files;
}

// The store in memory, with the scheme that all projects share.
struct GoldenStore : TestProgram {
  Generator generator{program};
  RecordingBuildWindow window;

  explicit GoldenStore(const Folder& folder) {
    generator.log.buildWindow = &window;
    config().orderServer.assign("http://orders.example");
    config().accountId.assign("shop-1234");
    addScheme();
    files.putFolder("C:\\Web\\img");
    for (const auto& [path, content] : folder) files.put(kProject + path, content);
    project().projectFile.assign(std::string_view(kProject + "Shop.stp"));
    EXPECT_EQ(ProjectLoad(program), 1);
    EXPECT_NE(project().projectScheme, nullptr);
  }

  void addScheme() {
    SchemeRecord* style = SchemeInit(nullptr);
    SchemeRecord* scheme = SchemeInit(nullptr);
    style->name.assign("Style");
    scheme->name.assign("Scheme");
    scheme->prev = style;
    style->schemes = scheme;
    config().schemeStyles = style;
    const std::pair<std::size_t, const char*> slots[] = {
        {4, "WHITE"},       {5, "BLACK"},       {6, "BLUE"},        {10, "<img src=h.gif>"}, {19, "GRAY"},
        {24, "img\\f.gif"}, {25, "img\\g.gif"}, {26, "img\\o.gif"}, {27, "img\\a.gif"},      {28, "img\\add.gif"}};
    for (const auto& [slot, value] : slots) scheme->slot[slot].assign(value);
  }

  // The site, by the lower-case names that servers know.
  Folder site() {
    Folder site;
    for (const std::string& name : files.names()) {
      std::string lower = name;
      TextLower(lower);
      if (!lower.starts_with("c:\\web\\")) continue;
      std::string path = lower.substr(7);
      std::replace(path.begin(), path.end(), '\\', '/');
      site[path] = *files.content(name);
    }
    return site;
  }
};

std::set<std::string> names(const Folder& folder) {
  std::set<std::string> names;
  for (const auto& [path, content] : folder) names.insert(path);
  return names;
}

class Golden : public testing::TestWithParam<std::string> {};

TEST_P(Golden, TheSiteIsTheExpectedOneByteForByte) {
  const fs::path folder = fs::path(VARLO_GOLDEN) / GetParam();
  Folder project;
  Folder expected;
  std::string log;
  for (const auto& [path, content] : readFolder(folder)) {
    if (path == "log") {
      log = content;
    } else if (path.starts_with("expected/")) {
      expected[path.substr(9)] = content;
    } else {
      project[path] = content;
    }
  }
  ASSERT_FALSE(expected.empty());
  GoldenStore store(project);
  EXPECT_EQ(BuildSiblings(store.generator, store.project().root), 1);
  const Folder site = store.site();
  EXPECT_EQ(names(site), names(expected)) << "missing or extra files";
  for (const auto& [path, content] : expected) {
    if (!site.contains(path)) continue;
    EXPECT_EQ(site.at(path), content) << path;
  }
  std::string lines;
  for (const std::string& line : store.window.lines) lines.append(line).append("\n");
  EXPECT_EQ(lines, log);
  EXPECT_TRUE(store.screen.boxes.empty());
}

INSTANTIATE_TEST_SUITE_P(Stores, Golden,
                         testing::Values("kinds", "disabled", "listings", "comments", "letters", "variables",
                                         "nested", "pictures"),
                         [](const auto& store) { return store.param; });

// Every folder is in the list above.
TEST(GoldenFolders, AreAllBuilt) {
  std::set<std::string> folders;
  for (const auto& entry : fs::directory_iterator(VARLO_GOLDEN)) folders.insert(entry.path().filename().string());
  EXPECT_EQ(folders, (std::set<std::string>{"kinds", "disabled", "listings", "comments", "letters", "variables",
                                            "nested", "pictures"}));
}

}  // namespace
}  // namespace varlo
