// What the window saves, builds and previews, beside what the engine makes without a window.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <functional>

#include "core/program/fixed_clock.h"
#include "core/program/process_clipboard.h"
#include "core/program/program.h"
#include "core/tree/store_tree.h"
#include "generator/build/build_driver.h"
#include "generator/build/first_build_dialog.h"
#include "generator/build/store_build_dialog.h"
#include "generator/state/generator.h"
#include "persist/life/start_up.h"
#include "persist/project/project_load.h"
#include "persist/project/project_save.h"
#include "platform/main_window.h"
#include "shell/tabs/inventory_page.h"
#include "tests/desktop/dde_server.h"
#include "tests/desktop/desktop_program.h"
#include "tests/desktop/window_driving.h"
#include "tests/desktop/window_reading.h"
#include "tests/support/fake_screen.h"
#include "tests/support/test_program.h"

namespace varlo::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

// Does `work` with the demo project of an installation, without a window.
void WithEngine(const Installation& installation, const std::function<void(Program&)>& work) {
  const Machine machine = MakeMachine(installation.folder().string());
  FixedClock clock(kTestTime);
  FakeScreen screen;
  View view;
  Program program(*machine.files, clock, screen, *machine.clipboard, view);
  StartUp(program);
  ASSERT_EQ(ProjectLoad(program), 1);
  work(program);
}

StoreNode* nodeTitled(Program& program, std::string_view title) {
  TreeWalk walk(program.project.root);
  for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
    if (step == TreeWalk::Step::Node && walk.node()->title.view() == title) return walk.node();
  }
  return nullptr;
}

class DesktopStore : public ::testing::Test {
 protected:
  // The installation has a browser that writes down what it is shown.
  DesktopStore() {
    const fs::path recorder = installation_.folder() / "recorder.exe";
    fs::copy_file(VARLO_RECORD_BROWSER, recorder);
    installation_.configure("browser=" + fs::path(recorder).make_preferred().string() + "\r\nnewwin=1\r\n");
  }

  void start() { program_ = std::make_unique<DesktopProgram>(installation_.folder()); }
  DesktopProgram& program() { return *program_; }
  void pick(const TreePath& path) {
    const HWND tree = program().control(main_window::kTree);
    const HTREEITEM item = FindItem(tree, path);
    ASSERT_NE(item, nullptr) << path.back();
    Click(program(), CentreOfItem(tree, item));
  }
  // The address that the browser was started with last.
  std::string shownPage() {
    const fs::path file = installation_.folder() / "recorded.txt";
    WaitFor([&] { return fs::exists(file) && fs::file_size(file) > 0; });
    return BytesOf(file);
  }
  // Fills in the Store Build window and builds.
  void build(const std::string& folder) {
    program().post(Command::BuildStore);
    const HWND window = WaitForBox("Store Build");
    ASSERT_NE(window, nullptr);
    ::SetDlgItemTextA(window, store_build::kDirectory, folder.c_str());
    program().settle();
    TakePicture(window, "store_build_before");
    PressButton(program(), window, store_build::kBuild);
    TakePicture(window, "store_build");
    const HWND log = ::GetDlgItem(window, store_build::kLog);
    const auto rows = ::SendMessageA(log, LB_GETCOUNT, 0, 0);
    std::array<char, 1024> last{};
    ::SendMessageA(log, LB_GETTEXT, static_cast<WPARAM>(rows - 1), reinterpret_cast<LPARAM>(last.data()));
    EXPECT_STREQ(last.data(), "Store Build Complete. (0 errors, 0 warnings)");
    ::PostMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_TRUE(WaitFor([] { return !BoxIsOpen("Store Build"); }));
  }

  Installation installation_;
  std::unique_ptr<DesktopProgram> program_;
};

TEST_F(DesktopStore, SavesWhatTheEngineSaves) {
  const fs::path project = installation_.demo() / "Demo.stp";
  const std::string original = BytesOf(project);
  WithEngine(installation_, [](Program& program) {
    nodeTitled(program, "Black tea")->title.assign("Black tea, loose");
    EXPECT_TRUE(ProjectSave(program));
  });
  const std::string expected = BytesOf(project);
  ASSERT_NE(expected, original);
  std::ofstream(project, std::ios::binary) << original;

  start();
  pick({"Home", "Tea", "Black tea"});
  Click(program(), CentreOf(program().field(inventory::kTitle)));
  PressKey(program(), VK_END);
  TypeText(program(), ", loose");
  program().command(Command::Save);
  EXPECT_FALSE(EntryEnabled(program().window(), static_cast<UINT>(Command::Save)));
  EXPECT_EQ(BytesOf(project), expected);
}

TEST_F(DesktopStore, BuildsTheSiteThatTheEngineBuilds) {
  const fs::path plain = installation_.folder() / "plain";
  const fs::path windowed = installation_.folder() / "windowed";
  fs::create_directories(plain);
  fs::create_directories(windowed);
  WithEngine(installation_, [&](Program& program) {
    Generator generator(program);
    const std::string title(program.project.storeTitle.view());
    ASSERT_EQ(RunBuild(generator, fs::path(plain).make_preferred().string(), title), 1);
  });
  start();
  build(fs::path(windowed).make_preferred().string());
  const std::vector<std::string> files = FilesBelow(plain);
  EXPECT_GT(files.size(), 90U);
  EXPECT_EQ(FilesBelow(windowed), files);
  for (const std::string& file : files) EXPECT_EQ(BytesOf(windowed / file), BytesOf(plain / file)) << file;
  EXPECT_THAT(shownPage(), HasSubstr("windowed\\index.html"));
}

TEST_F(DesktopStore, PreviewsThePageOfTheNodeAfterItWasToldWhere) {
  start();
  pick({"Home", "Tea", "Black tea"});
  program().post(Command::PreviewPage);
  const HWND question = WaitForBox("Build");
  ASSERT_NE(question, nullptr);
  const fs::path folder = installation_.folder() / "look";
  ::SetDlgItemTextA(question, first_build::kDirectory, fs::path(folder).make_preferred().string().c_str());
  program().settle();
  TakePicture(question, "first_build");
  AnswerBox(program(), question, IDOK);
  EXPECT_THAT(shownPage(), HasSubstr("look\\ftmp.htm"));
  EXPECT_THAT(BytesOf(folder / "ftmp.htm"), HasSubstr("black.htm"));
  EXPECT_TRUE(fs::exists(folder / "black.htm"));
  EXPECT_FALSE(EntryEnabled(program().window(), static_cast<UINT>(Command::Save)));
}

TEST_F(DesktopStore, SpeaksToABrowserThatRuns) {
  installation_.configure("browser=c:\\nowhere\\recorder.exe\r\nnewwin=0\r\n");
  DdeServer browser("recorder");
  start();
  program().command(Command::Faq);
  EXPECT_THAT(browser.requests(),
              ElementsAre("WWW_Activate: 0xFFFFFFFF,0x0",
                          "WWW_OpenURL: \"https://www.varlo.example/faq/varlo.faq\",,0xFFFFFFFF"));
}

}  // namespace
}  // namespace varlo::test
