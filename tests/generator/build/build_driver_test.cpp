#include "generator/build/build_driver.h"

#include <string>

#include <gtest/gtest.h>

#include "core/program/project_close.h"
#include "core/store/string_item.h"
#include "core/store/user_variable.h"
#include "generator/cart/cart_frames.h"
#include "tests/support/failing_files.h"
#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kReadyText = "Varlo PRO v1.07.001 - Ready";

class Build : public testing::Test {
 protected:
  TestShop t;
  StoreProject& project = t.project();
  BuildLog& log = t.generator.log;

  void SetUp() override {
    putTemplate("category.htm", "category $TITLE");
    putTemplate("product.htm", "product $TITLE");
    t.files.put("C:\\Varlo\\template\\trolley.dat", "trolley");
    t.files.put("C:\\Varlo\\template\\register.dat", "register");
  }
  void putTemplate(const std::string& name, std::string_view text) {
    t.files.put("C:\\Varlo\\Projects\\Shop\\template\\" + name, text);
  }
  int build(const char* directory = "C:\\Site", const char* title = "Toys") {
    return RunBuild(t.generator, directory, title);
  }
  std::string page(std::string_view name) {
    return t.files.content(std::string("C:\\Site\\").append(name)).value_or("(no file)");
  }
  // The lines of the log between its head and its end.
  std::vector<std::string> told() {
    EXPECT_GE(t.window.lines.size(), 4U);
    EXPECT_EQ(t.window.lines[0], kReadyText);
    EXPECT_EQ(t.window.lines[1], "");
    EXPECT_EQ(t.window.lines[t.window.lines.size() - 2], "");
    return {t.window.lines.begin() + 2, t.window.lines.end() - 2};
  }
  std::string lastLine() { return t.window.lines.back(); }
  void failAt(const std::string& operation) {
    t.files.shallFail = [operation](const std::string& line) { return line.starts_with(operation); };
  }
  void addSchemeFile(const char* file) {
    StringItem* item = StringItemInit(nullptr);
    item->text.assign(file);
    StringItem*& head = t.scheme().files;
    StringItem* last = RecordLast(head);
    RecordAppend(head, last, item);
  }
};

// The whole.

TEST_F(Build, MakesEveryFileOfTheSite) {
  EXPECT_EQ(build(), 1);
  EXPECT_EQ(page("1.htm"), "category Home");
  EXPECT_EQ(page("2.htm"), "product Ball");
  EXPECT_EQ(page("trolley.html"), "trolley");
  EXPECT_EQ(page("register.html"), "register");
  EXPECT_THAT(page("index.html"), HasSubstr("<FRAME SRC=\"1.htm\" NAME=\"shopmain\""));
  EXPECT_THAT(page("ftmp.htm"), HasSubstr("<FRAME SRC=\"1.htm\" NAME=\"shopmain\""));
  EXPECT_EQ(page("varlo.idx"),
            "; Varlo Index File\n; v1.07\n#PBall|(null)|2.htm|(null)|(null)|(null)|(null)\n"
            "#CHome|(null)|1.htm|(null)|(null)|(null)|(null)\n");
  EXPECT_EQ(t.files.openHandles(), 0U);
}

TEST_F(Build, WithoutErrorsAndWarningsStillEndsWithItsLine) {
  build();
  EXPECT_THAT(t.window.lines, ElementsAre(kReadyText, "", "", "Store Build Complete. (0 errors, 0 warnings)"));
}

TEST_F(Build, EmptiesTheLogFirst) {
  t.window.lines = {"old"};
  build();
  EXPECT_EQ(t.window.lines[0], kReadyText);
}

TEST_F(Build, CountsAfreshEachTimeAndTheLinesBehindTheHead) {
  log.errorCount = 7;
  log.warningCount = 8;
  log.logLines = 99;
  build();
  EXPECT_EQ(lastLine(), "Store Build Complete. (0 errors, 0 warnings)");
  EXPECT_EQ(log.logLines, 2) << "the head was logged before the counters were set back";
}

TEST_F(Build, ShowsEachFileAndStepsThroughThePagesAndEndsWithAnEmptyBar) {
  build();
  EXPECT_THAT(t.window.labels,
              ElementsAre("trolley.html", "register.html", "ftmp.htm", "index.html", "2.htm", "1.htm", ""));
  EXPECT_EQ(t.window.progress, 0);
  EXPECT_EQ(t.window.resets, 1);
}

TEST_F(Build, RunsWithoutAWindow) {
  log.buildWindow = nullptr;
  EXPECT_EQ(build(), 1);
  EXPECT_EQ(page("1.htm"), "category Home");
  EXPECT_THAT(t.window.lines, IsEmpty());
}

TEST_F(Build, ShowsTheFrontDoorInTheBrowser) {
  build("C:\\Site\\\\");
  EXPECT_THAT(t.view.calls, testing::Contains("openInBrowser C:\\Site\\index.html"));
}

TEST_F(Build, FramesTheCurrentNodeForThePreviewAndTheRootForTheFrontDoor) {
  project.currentNode = t.ball;
  build();
  EXPECT_THAT(page("ftmp.htm"), HasSubstr("SRC=\"2.htm\""));
  EXPECT_THAT(page("index.html"), HasSubstr("SRC=\"1.htm\""));
}

TEST_F(Build, ACurrentNodeWithoutAFileNameFramesAnEmptySource) {
  project.currentNode = t.ball;
  t.ball->fileName.release();
  build();
  EXPECT_THAT(page("ftmp.htm"), HasSubstr("SRC=\"\""));
}

TEST_F(Build, AnEmptyTreeStillMakesTheFrames) {
  project.root = project.currentNode = nullptr;
  EXPECT_EQ(build(), 1);
  EXPECT_THAT(page("index.html"), HasSubstr("SRC=\"\""));
  EXPECT_THAT(page("ftmp.htm"), HasSubstr("SRC=\"\""));
  EXPECT_EQ(page("varlo.idx"), "; Varlo Index File\n; v1.07\n");
}

TEST_F(Build, OverAnOlderStoreOverwritesItsPagesAndLeavesThoseOfDeletedNodes) {
  t.files.put("C:\\Site\\1.htm", "an old page that is much longer than the new one");
  t.files.put("C:\\Site\\9.htm", "deleted");
  t.files.put("C:\\Site\\varlo.idx", "an old index");
  build();
  EXPECT_EQ(page("1.htm"), "category Home");
  EXPECT_EQ(page("9.htm"), "deleted");
  EXPECT_TRUE(page("varlo.idx").starts_with("; Varlo Index File\n"));
}

TEST_F(Build, TwiceGivesTheSameFiles) {
  build();
  std::vector<std::string> first;
  for (const std::string& name : t.files.names()) first.push_back(*t.files.content(name));
  build();
  std::vector<std::string> second;
  for (const std::string& name : t.files.names()) second.push_back(*t.files.content(name));
  EXPECT_EQ(first, second);
}

TEST_F(Build, AStopFromBeforeIsForgottenWhenTheWalkBegins) {
  log.stopRequested = true;
  build();
  EXPECT_EQ(page("1.htm"), "category Home");
  EXPECT_FALSE(log.stopRequested);
}

// Stops the build when the first page is shown.
struct StoppingWindow : RecordingBuildWindow {
  explicit StoppingWindow(BuildLog& theLog) : log(theLog) {}
  void stepProgress() override { log.stopRequested = true; }
  BuildLog& log;
};

TEST_F(Build, AStoppedBuildEndsWithTheSameLine) {
  StoppingWindow window(log);
  log.buildWindow = &window;
  EXPECT_EQ(build(), 1);
  EXPECT_EQ(page("2.htm"), "product Ball");
  EXPECT_EQ(page("1.htm"), "(no file)");
  EXPECT_EQ(window.lines.back(), "Store Build Complete. (0 errors, 0 warnings)");
  EXPECT_TRUE(log.stopRequested);
}

// Directory and title.

TEST_F(Build, TheTitleStaysAndTheDirectoryDoesNot) {
  build("C:\\Site", "New title");
  EXPECT_STREQ(project.storeTitle.get(), "New title");
  EXPECT_STREQ(project.webDir.get(), "C:\\Web");
  EXPECT_THAT(page("index.html"), HasSubstr("<TITLE>New title</TITLE>"));
  EXPECT_EQ(project.dirty, 0);
}

// The user opens another project while the browser is spoken to.
struct ReplacingView : RecordingView {
  Program* program = nullptr;
  void openInBrowser(std::string_view address) override {
    RecordingView::openInBrowser(address);
    ProjectClose(*program);
    program->project.webDir.assign("C:\\Other");
  }
};

TEST_F(Build, TheDirectoryOfAnotherProjectIsNotTouched) {
  ReplacingView view;
  Program program(t.files, t.clock, t.screen, t.clipboard, view);
  view.program = &program;
  program.project.projectScheme = project.projectScheme;
  program.project.webDir.assign("C:\\Web");
  Generator generator(program);
  EXPECT_EQ(RunBuild(generator, "C:\\Site", "Toys"), 1);
  EXPECT_THAT(view.calls, testing::Contains("openInBrowser C:\\Site\\index.html"));
  EXPECT_STREQ(program.project.webDir.get(), "C:\\Other");
}

TEST_F(Build, AnAbsentWebDirectoryIsAbsentAgain) {
  project.webDir.release();
  build();
  EXPECT_TRUE(project.webDir.isNull());
}

TEST_F(Build, AnEmptyTitleIsStoredEmptyAndIsNotNamed) {
  project.storeTitle.release();
  build("C:\\Site", "");
  EXPECT_FALSE(project.storeTitle.isNull());
  EXPECT_THAT(page("index.html"), HasSubstr("<TITLE></TITLE>"));
}

TEST_F(Build, OneTrailingBackSlashIsCut) {
  build("C:\\Site\\");
  EXPECT_EQ(t.files.log[1], "makeFolder C:\\Site");
  EXPECT_EQ(page("1.htm"), "category Home");
}

TEST_F(Build, OfTwoTrailingBackSlashesOneStays) {
  failAt("makeFolder C:\\Site\\img");
  build("C:\\Site\\\\");
  EXPECT_EQ(t.window.lines[2], "critical error: unable to create directory 'C:\\Site\\\\img'");
}

TEST_F(Build, EveryLevelOfTheDirectoryIsMade) {
  EXPECT_EQ(build("C:\\a\\b\\c"), 1);
  EXPECT_TRUE(t.files.content("C:\\a\\b\\c\\index.html").has_value());
  EXPECT_EQ(t.files.makeFolder("C:\\a\\b\\c\\img"), MakeFolderResult::Exists);
}

TEST_F(Build, ADirectoryWithASlashOrACommaIsRefusedBeforeAnythingIsTouched) {
  for (const char* directory : {"C:/Site", "C:\\Site,2"}) {
    t.files.log.clear();
    t.screen.boxes.clear();
    EXPECT_EQ(build(directory), 0);
    EXPECT_THAT(t.screen.boxes,
                ElementsAre(ShownBox{"Invalid Directory Name.  Must not include forward slash characters or commas.",
                                     "Error", Buttons::Ok, Icon::Stop}));
    EXPECT_THAT(t.files.log, IsEmpty());
    EXPECT_THAT(t.window.lines, ElementsAre(kReadyText, ""));
    EXPECT_STREQ(project.webDir.get(), "C:\\Web");
  }
}

TEST_F(Build, ADirectoryThatCannotBeMadeStopsTheBuild) {
  failAt("makeFolder C:\\Site");
  EXPECT_EQ(build(), 0);
  EXPECT_THAT(t.window.lines,
              ElementsAre(kReadyText, "", "critical error: unable to create directory 'C:\\Site'", "Build Stopped"));
  EXPECT_EQ(log.errorCount, 1);
  EXPECT_STREQ(project.webDir.get(), "C:\\Web");
  EXPECT_THAT(t.view.calls, IsEmpty());
}

TEST_F(Build, APictureDirectoryThatCannotBeMadeStopsTheBuild) {
  failAt("makeFolder C:\\Site\\img");
  EXPECT_EQ(build(), 0);
  EXPECT_THAT(
      t.window.lines,
      ElementsAre(kReadyText, "", "critical error: unable to create directory 'C:\\Site\\img'", "Build Stopped"));
  EXPECT_EQ(log.errorCount, 1);
  EXPECT_STREQ(project.webDir.get(), "C:\\Web");
}

TEST_F(Build, TheErrorOfADirectoryAddsToTheCountOfTheBuildBefore) {
  log.errorCount = 3;
  failAt("makeFolder C:\\Site");
  build();
  EXPECT_EQ(log.errorCount, 4);
}

// The scheme.

TEST_F(Build, WithoutASchemeOfItsOwnTheFirstOfTheFirstStyleIsTaken) {
  SchemeRecord* first = t.config().schemeStyles;
  first->schemes = SchemeInit(nullptr);
  t.addStyle("Second");
  project.projectScheme = nullptr;
  EXPECT_EQ(build(), 1);
  EXPECT_EQ(project.projectScheme, first->schemes);
}

TEST_F(Build, WithoutASchemeOfItsOwnAFirstStyleWithoutSchemesServesAsOne) {
  t.addStyle("Second");
  project.projectScheme = nullptr;
  EXPECT_EQ(build(), 1);
  EXPECT_EQ(project.projectScheme, t.config().schemeStyles);
}

TEST_F(Build, WithoutAnySchemeItStopsUncountedAndTheDirectoryStays) {
  SchemeListFree(t.program, t.config().schemeStyles);
  project.projectScheme = nullptr;
  log.errorCount = 3;
  EXPECT_EQ(build(), 0);
  EXPECT_THAT(t.window.lines,
              ElementsAre(kReadyText, "", "critical error: no scheme defined for current store", "Build Stopped"));
  EXPECT_EQ(log.errorCount, 3);
  EXPECT_STREQ(project.webDir.get(), "C:\\Site");
  EXPECT_EQ(page("trolley.html"), "(no file)");
}

TEST_F(Build, TheFilesOfTheSchemeGoToTheTopOfTheSite) {
  t.files.put("C:\\Varlo\\img\\H1.gif", "picture");
  addSchemeFile("img\\H1.gif");
  build();
  EXPECT_EQ(page("h1.gif"), "picture");
}

// The index.

TEST_F(Build, GoesOnWithoutAnIndexThatCannotBeCreated) {
  failAt("create C:\\Site\\varlo.idx");
  EXPECT_EQ(build(), 1);
  EXPECT_THAT(t.screen.boxes,
              ElementsAre(ShownBox{"S108: Unable to write index file 'C:\\Site\\varlo.idx'", "Error"}));
  EXPECT_EQ(page("1.htm"), "category Home");
  EXPECT_EQ(lastLine(), "Store Build Complete. (0 errors, 0 warnings)");
}

TEST_F(Build, TheIndexIsOpenDuringTheWalkOnly) {
  build();
  EXPECT_FALSE(log.index.has_value());
}

TEST_F(Build, AnItemOfAShelfHasNoLineInTheIndex) {
  putTemplate("shelf.htm", "<SHELF>$TITLE</SHELF>");
  t.home->kind = NodeKind::Shelf;
  build();
  EXPECT_EQ(page("varlo.idx"), "; Varlo Index File\n; v1.07\n#CHome|(null)|1.htm|(null)|(null)|(null)|(null)\n");
}

// Every message that a build can log, with its counter.

struct Counted {
  std::vector<std::string> lines;
  int errors;
  int warnings;
};

class BuildMessages : public Build {
 protected:
  void expect(const Counted& expected) {
    EXPECT_EQ(build(), 1);
    EXPECT_EQ(told(), expected.lines);
    EXPECT_EQ(log.errorCount, expected.errors);
    EXPECT_EQ(log.warningCount, expected.warnings);
    EXPECT_EQ(lastLine(), "Store Build Complete. (" + std::to_string(expected.errors) + " errors, " +
                              std::to_string(expected.warnings) + " warnings)");
  }
  void addPicture() {
    t.files.put("C:\\Varlo\\pictures\\Ball.gif", "picture");
    t.ball->image.assign("pictures\\Ball.gif");
  }
};

TEST_F(BuildMessages, AShelfWithoutItsMarks) {
  putTemplate("shelf.htm", "no marks");
  t.home->kind = NodeKind::Shelf;
  expect({{"error: 1.htm: Invalid or Missing <SHELF>..</SHELF> block."}, 1, 0});
  EXPECT_EQ(page("1.htm"), "no marks");
}

TEST_F(BuildMessages, NoServerInEachPageThatAsksForIt) {
  putTemplate("category.htm", "[$VARLO_SERVER $VARLO_SERVER]");
  putTemplate("product.htm", "[$VARLO_SERVER]");
  t.config().orderServer.release();
  const std::string line = "error: Varlo Server must be defined in preferences!";
  expect({{line, line}, 2, 0});
  EXPECT_EQ(page("1.htm"), "[ ]");
}

TEST_F(BuildMessages, NoServerInTheRegister) {
  t.files.put("C:\\Varlo\\template\\register.dat", "[$VARLO_SERVER]");
  t.config().orderServer.assign("");
  expect({{"error: register.html: Varlo Server not defined in preferences!"}, 1, 0});
  EXPECT_EQ(page("register.html"), "[]");
}

TEST_F(BuildMessages, APictureThatCannotBeCopied) {
  addPicture();
  failAt("copy ");
  expect({{"error: 2.htm: unable to copy image file: 'pictures\\Ball.gif' to 'c:\\site\\img\\ball.gif'"}, 1, 0});
}

TEST_F(BuildMessages, APictureWhoseTargetIsDenied) {
  addPicture();
  failAt("copy ");
  t.files.failure = FileError::AccessDenied;
  expect({{"unable to copy image file (Access Denied)"}, 1, 0});
}

TEST_F(BuildMessages, APictureWhosePathIsNotThere) {
  addPicture();
  failAt("copy ");
  t.files.failure = FileError::PathNotFound;
  expect({{"unable to copy image file (Path not found)"}, 1, 0});
}

TEST_F(BuildMessages, ALinkedPictureThatCannotBeCopied) {
  t.files.put("C:\\Varlo\\big.gif", "picture");
  t.ball->imageLink.assign("big.gif");
  failAt("copy ");
  expect({{"error: 2.htm: unable to copy image link file: 'big.gif' to 'c:\\site\\img\\big.gif'"}, 1, 0});
}

TEST_F(BuildMessages, AFrameLoaderThatCannotBeCreated) {
  failAt("create C:\\Site\\index.html");
  expect({{"error: index.html: unable to create frame loader page 'C:\\Site\\index.html'"}, 1, 0});
  EXPECT_THAT(t.screen.boxes, ElementsAre(ShownBox{"ERROR S102: Unable to open HTML output file", "Error"}));
}

TEST_F(BuildMessages, AnIllegalVariableIsAppliedAllTheSame) {
  UserVariable* variable = UserVariableInit(nullptr);
  variable->name.assign("$TITLE");
  variable->value.assign("taken");
  UserVariableAppend(project, variable);
  expect({{"error: $TITLE: illegal variable name"}, 1, 0});
  EXPECT_EQ(page("1.htm"), "category taken");
}

TEST_F(BuildMessages, AProductWithoutACode) {
  putTemplate("product.htm", "$BUY");
  t.ball->productCode.release();
  expect({{"error: 2.htm: no product code"}, 1, 0});
}

TEST_F(BuildMessages, ADuplicateFileNameAmongNeighbours) {
  AddProduct(project, "Car", t.home)->fileName.assign("2.htm");
  expect({{"error: 2.htm: duplicate file name in project"}, 1, 0});
  EXPECT_EQ(page("2.htm"), "product Car") << "the later page is built over the earlier";
}

TEST_F(BuildMessages, ASchemeFileThatCannotBeCopied) {
  addSchemeFile("img\\gone.gif");
  t.files.put("C:\\Varlo\\img\\here.gif", "picture");
  addSchemeFile("img\\here.gif");
  expect({{"error: scheme: copying schema file 'img\\gone.gif'"}, 1, 0});
  EXPECT_EQ(page("here.gif"), "picture");
}

TEST_F(BuildMessages, AMissingPicture) {
  t.ball->image.assign("gone.gif");
  expect({{"warning: 2.htm: unable to read image file: 'gone.gif'"}, 0, 1});
}

TEST_F(BuildMessages, AMissingLinkedPicture) {
  t.ball->imageLink.assign("gone.gif");
  expect({{"warning: 2.htm: unable to read image link file: 'gone.gif'"}, 0, 1});
}

TEST_F(BuildMessages, NoAcceptedCards) {
  t.files.put("C:\\Varlo\\template\\register.dat", "$FORM");
  project.orderTemplate.assign("$ACCEPTED_CARDS");
  expect({{"warning: accepted credit cards list not defined"}, 0, 1});
}

TEST_F(BuildMessages, ALineForEachInTheOrderOfTheSteps) {
  t.files.put("C:\\Varlo\\template\\register.dat", "$FORM $VARLO_SERVER");
  project.orderTemplate.assign("$ACCEPTED_CARDS");
  t.config().orderServer.release();
  t.ball->image.assign("gone.gif");
  addSchemeFile("gone.gif");
  expect({{"error: register.html: Varlo Server not defined in preferences!",
           "warning: accepted credit cards list not defined", "warning: 2.htm: unable to read image file: 'gone.gif'",
           "error: scheme: copying schema file 'gone.gif'"},
          2,
          2});
}

// Boxes hold a build up and do not stop it.

TEST_F(Build, FilesThatCannotBeCreatedAreToldAndLost) {
  failAt("create ");
  EXPECT_EQ(build(), 1);
  std::vector<std::string> texts;
  for (const ShownBox& box : t.screen.boxes) texts.push_back(box.text.substr(0, 10));
  EXPECT_THAT(texts, ElementsAre("ERROR R106", "ERROR R106", "ERROR S102", "ERROR S102", "S108: Unab", "ERROR R107",
                                 "ERROR R107"));
  EXPECT_EQ(lastLine(), "Store Build Complete. (2 errors, 0 warnings)");
}

// A disk that fails anywhere: the build goes to an end, leaves nothing open, and gives the directory back.
TEST_F(Build, SurvivesADiskThatFailsAtAnyOperation) {
  addSchemeFile("img\\h1.gif");
  t.files.put("C:\\Varlo\\img\\h1.gif", "picture");
  FailingFiles counting(t.files, 0, Failure::Denied);
  const auto buildOn = [this](Files& files) {
    Program program(files, t.clock, t.screen, t.clipboard, t.view);
    Generator generator(program);
    program.project.root = program.project.currentNode = t.home;
    program.project.projectDir = project.projectDir;
    program.project.webDir.assign("C:\\Web");
    program.project.projectScheme = project.projectScheme;
    RunBuild(generator, "C:\\Site", "Toys");
    EXPECT_STREQ(program.project.webDir.get(), "C:\\Web");
    EXPECT_EQ(t.files.openHandles(), 0U);
    program.project.root = nullptr;
  };
  buildOn(counting);
  EXPECT_GT(counting.operations(), 20);
  for (int at = 1; at <= counting.operations(); ++at) {
    for (const Failure failure : {Failure::Denied, Failure::NoSpace}) {
      FailingFiles failing(t.files, at, failure);
      buildOn(failing);
      EXPECT_NE(failing.failedOperation(), "") << at;
    }
  }
}

}  // namespace
}  // namespace varlo
