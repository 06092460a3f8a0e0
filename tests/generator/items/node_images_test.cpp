#include "generator/items/node_images.h"

#include <gtest/gtest.h>

#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

class NodeImages : public testing::Test {
 protected:
  NodeImages() {
    t.files.putFolder("C:\\Web\\img");
    t.files.put("C:\\pics\\Red.gif", "red");
    t.files.put("C:\\pics\\Blue.JPG", "blue");
  }

  void copy(const char* image, const char* link = nullptr) {
    t.files.log.clear();
    t.window.lines.clear();
    t.generator.log.errorCount = t.generator.log.warningCount = 0;
    t.ball->image.assign(image);
    t.ball->imageLink.assign(link);
    EXPECT_EQ(CopyNodeImages(t.generator, *t.ball, *t.home), 1);
  }
  void expectCounts(int errors, int warnings) {
    EXPECT_EQ(t.generator.log.errorCount, errors);
    EXPECT_EQ(t.generator.log.warningCount, warnings);
  }
  void failCopies(FileError error) {
    t.files.failure = error;
    t.files.shallFail = [](const std::string& operation) { return operation.starts_with("copy"); };
  }

  TestShop t;
};

// The picture.

TEST_F(NodeImages, APictureIsCopiedUnderItsLowerCaseName) {
  copy("C:/pics/Red.gif");
  EXPECT_THAT(t.files.log, ElementsAre("copy C:\\pics\\Red.gif to c:\\web\\img\\red.gif"));
  EXPECT_EQ(t.site("img\\red.gif"), "red");
  EXPECT_THAT(t.window.lines, IsEmpty());
  expectCounts(0, 0);
}

TEST_F(NodeImages, OnlyTheTargetIsLoweredAndOnlyOnDemand) {
  t.config().lowerCaseLinks = 0;
  copy("C:\\pics\\Red.gif", "C:/pics/Blue.JPG");
  EXPECT_THAT(t.files.log, ElementsAre("copy C:\\pics\\Red.gif to C:\\Web\\img\\Red.gif",
                                       "copy C:\\pics\\Blue.JPG to C:\\Web\\img\\Blue.JPG"));
}

TEST_F(NodeImages, AnOldTargetIsReplaced) {
  t.files.put("C:\\Web\\img\\red.gif", "old");
  copy("C:\\pics\\Red.gif");
  EXPECT_EQ(t.site("img\\red.gif"), "red");
}

TEST_F(NodeImages, TheSlashesOfAPictureAreTurnedInTheNodeWhichDoesNotChangeTheProject) {
  t.project().dirty = 0;
  copy("C://pics/\\/Red.gif", "C:/pics/Blue.JPG");
  EXPECT_EQ(t.ball->image.view(), "C:\\pics\\Red.gif");
  EXPECT_EQ(t.ball->imageLink.view(), "C:/pics/Blue.JPG") << "those of the linked picture are not";
  EXPECT_EQ(t.ball->modified, 0);
  EXPECT_EQ(t.project().dirty, 0);
  copy("//x/y.gif");
  EXPECT_EQ(t.ball->image.view(), "\\x\\y.gif") << "of a missing picture as well";
}

TEST_F(NodeImages, APictureWithoutASeparatorIsAllName) {
  t.files.put("C:\\Varlo\\Plain.gif", "plain");
  copy("Plain.gif");
  EXPECT_EQ(t.site("img\\plain.gif"), "plain");
}

TEST_F(NodeImages, NothingIsCopiedForAnAbsentOrEmptyPicture) {
  copy(nullptr, nullptr);
  copy("", "");
  EXPECT_THAT(t.files.log, IsEmpty());
  expectCounts(0, 0);
}

TEST_F(NodeImages, AnOutsidePictureIsLeftAlone) {
  for (const char* address : {"http://other.example/a.gif", "HTTPS://other.example/a.gif", "http:x"}) {
    copy(address);
    EXPECT_THAT(t.files.log, IsEmpty());
    EXPECT_EQ(t.ball->image.view(), address);
    expectCounts(0, 0);
  }
}

TEST_F(NodeImages, AnOutsidePictureStillLeavesTheLinkedPictureToBeCopied) {
  copy("http://other.example/a.gif", "C:/pics/Blue.JPG");
  EXPECT_EQ(t.site("img\\blue.jpg"), "blue");
}

TEST_F(NodeImages, AnAddressOfAnotherSchemeOrWithoutAColonIsALocalPath) {
  copy("ftp://other.example/a.gif");
  EXPECT_THAT(t.window.lines, ElementsAre("warning: 1.htm: unable to read image file: 'ftp:\\other.example\\a.gif'"));
  copy("http//a.gif");
  EXPECT_THAT(t.window.lines, ElementsAre("warning: 1.htm: unable to read image file: 'http\\a.gif'"));
  copy("//other.example/a.gif");
  EXPECT_THAT(t.window.lines, ElementsAre("warning: 1.htm: unable to read image file: '\\other.example\\a.gif'"));
  expectCounts(0, 1);
}

TEST_F(NodeImages, AMissingPictureIsAWarningThatNamesThePage) {
  copy("C:/pics/none.gif", "C:/pics/Blue.JPG");
  EXPECT_THAT(t.window.lines, ElementsAre("warning: 1.htm: unable to read image file: 'C:\\pics\\none.gif'"));
  expectCounts(0, 1);
  EXPECT_EQ(t.site("img\\blue.jpg"), "blue") << "the linked picture follows";
}

TEST_F(NodeImages, AFolderCannotBeReadAsAPicture) {
  copy("C:\\pics");
  expectCounts(0, 1);
}

TEST_F(NodeImages, APictureThatCannotBeWrittenIsAnErrorByItsCause) {
  failCopies(FileError::PathNotFound);
  copy("C:\\pics\\Red.gif");
  EXPECT_THAT(t.window.lines, ElementsAre("unable to copy image file (Path not found)"));
  expectCounts(1, 0);
  failCopies(FileError::AccessDenied);
  copy("C:\\pics\\Red.gif");
  EXPECT_THAT(t.window.lines, ElementsAre("unable to copy image file (Access Denied)"));
  failCopies(FileError::Other);
  copy("C:\\pics\\Red.gif");
  EXPECT_THAT(t.window.lines, ElementsAre("error: 1.htm: unable to copy image file: 'C:\\pics\\Red.gif' to "
                                          "'c:\\web\\img\\red.gif'"));
  expectCounts(1, 0);
}

TEST_F(NodeImages, WithoutTheImgFolderTheCopyFindsNoPath) {
  t.project().webDir.assign("C:\\Nowhere");
  copy("C:\\pics\\Red.gif");
  EXPECT_THAT(t.window.lines, ElementsAre("unable to copy image file (Path not found)"));
  expectCounts(1, 0);
}

TEST_F(NodeImages, DoubledBackSlashesOfTheTargetBecomeSingle) {
  t.project().webDir.assign("C:\\Web\\\\");
  copy("C:\\pics\\Red.gif");
  EXPECT_EQ(t.site("img\\red.gif"), "red");
  failCopies(FileError::Other);
  copy("C:\\pics\\Red.gif", "C:/pics/Blue.JPG");
  EXPECT_THAT(t.window.lines, ElementsAre("error: 1.htm: unable to copy image file: 'C:\\pics\\Red.gif' to "
                                          "'c:\\web\\img\\red.gif'",
                                          "error: 1.htm: unable to copy image link file: 'C:\\pics\\Blue.JPG' to "
                                          "'c:\\web\\img\\blue.jpg'"));
}

TEST_F(NodeImages, WithoutABuildWindowTheCountersStillMove) {
  t.generator.log.buildWindow = nullptr;
  copy("C:\\none.gif", "C:/none.gif");
  EXPECT_THAT(t.window.lines, IsEmpty());
  expectCounts(0, 2);
  failCopies(FileError::Other);
  copy("C:\\pics\\Red.gif", "C:/pics/Blue.JPG");
  expectCounts(2, 0);
}

TEST_F(NodeImages, AnAbsentNameOfThePageIsEmptyInAMessage) {
  t.home->fileName.release();
  copy("C:\\none.gif");
  EXPECT_THAT(t.window.lines, ElementsAre("warning: : unable to read image file: 'C:\\none.gif'"));
}

// The linked picture.

TEST_F(NodeImages, ALinkToAPictureIsCopied) {
  copy(nullptr, "C:/pics/Blue.JPG");
  EXPECT_THAT(t.files.log, ElementsAre("copy C:\\pics\\Blue.JPG to c:\\web\\img\\blue.jpg"));
}

TEST_F(NodeImages, ALinkToAnythingElseIsNotCopied) {
  for (const char* link : {"C:/pics/page.htm", "C:/pics/Red.png", "C:/pics/gif", "mailto:me"}) {
    copy(nullptr, link);
    EXPECT_THAT(t.files.log, IsEmpty());
    expectCounts(0, 0);
  }
}

TEST_F(NodeImages, TheEndingOfALinkedPictureMayStandAnywhereInAnyCase) {
  for (const char* name : {"a.GIF", "a.Jpeg", "a.gif.htm", "x.jpg_old"}) {
    t.files.put(std::string("C:\\pics\\") + name, "x");
    copy(nullptr, (std::string("C:/pics/") + name).c_str());
    EXPECT_EQ(t.files.log.size(), 1U) << name;
  }
}

TEST_F(NodeImages, ALinkWithADoubleSlashIsOutside) {
  copy(nullptr, "C:/pics//Blue.JPG");
  EXPECT_THAT(t.files.log, IsEmpty());
  expectCounts(0, 0);
  copy(nullptr, "http:/x.gif");
  expectCounts(0, 1);
}

TEST_F(NodeImages, AMissingLinkedPictureIsAWarningWithTheLinkAsItStands) {
  copy(nullptr, "C:/pics/None.gif");
  EXPECT_THAT(t.window.lines, ElementsAre("warning: 1.htm: unable to read image link file: 'C:/pics/None.gif'"));
  expectCounts(0, 1);
}

TEST_F(NodeImages, ALinkWithBackSlashesOnlyTakesItsWholePathAlong) {
  copy(nullptr, "C:\\pics\\Blue.JPG");
  EXPECT_THAT(t.window.lines, ElementsAre("error: 1.htm: unable to copy image link file: 'C:\\pics\\Blue.JPG' to "
                                          "'c:\\web\\img\\c:\\pics\\blue.jpg'"));
  expectCounts(1, 0);
}

// Where copies may go.

TEST_F(NodeImages, APictureMayComeFromAnywhere) {
  t.files.put("C:\\Varlo\\..\\elsewhere\\Up.gif", "up");
  copy("..\\elsewhere\\Up.gif", "../elsewhere/Up.gif");
  EXPECT_EQ(t.site("img\\up.gif"), "up");
  expectCounts(0, 0);
}

TEST_F(NodeImages, ALinkThatLeadsOutOfTheWebDirectoryCannotBeCopied) {
  t.files.put("C:\\Up.gif", "up");
  t.files.put("C:\\Out.gif", "out");
  for (const char* link : {"..\\..\\Up.gif", "..\\..\\..\\Up.gif", "..\\Varlo\\..\\..\\..\\Up.gif"}) {
    t.files.put(link, "up");
    copy(nullptr, link);
    expectCounts(1, 0);
    ASSERT_EQ(t.window.lines.size(), 1U) << link;
    EXPECT_TRUE(t.window.lines[0].starts_with("error: 1.htm: unable to copy image link file: '")) << link;
    EXPECT_THAT(t.files.log, IsEmpty()) << link;
  }
  EXPECT_EQ(*t.files.content("C:\\Up.gif"), "up");
}

TEST_F(NodeImages, ALinkThatStaysBelowTheWebDirectoryIsCopied) {
  t.files.put("C:\\Up.gif", "up");
  copy(nullptr, "..\\Up.gif");
  EXPECT_EQ(t.site("up.gif"), "up") << "beside the folder of the pictures";
  expectCounts(0, 0);
}

TEST_F(NodeImages, APictureWhoseNameIsThatOfAStreamCannotBeCopied) {
  t.files.put("C:\\Varlo\\a.htm:b.gif", "x");
  copy("a.htm:b.gif");
  EXPECT_THAT(t.window.lines, ElementsAre("error: 1.htm: unable to copy image file: 'a.htm:b.gif' to "
                                          "'c:\\web\\img\\a.htm:b.gif'"));
  EXPECT_THAT(t.files.log, IsEmpty());
  expectCounts(1, 0);
}

TEST_F(NodeImages, ALinkedPictureThatCannotBeWrittenIsOneErrorWhateverTheCause) {
  for (const FileError error : {FileError::PathNotFound, FileError::AccessDenied, FileError::Other}) {
    failCopies(error);
    copy(nullptr, "C:/pics/Blue.JPG");
    EXPECT_THAT(t.window.lines, ElementsAre("error: 1.htm: unable to copy image link file: 'C:\\pics\\Blue.JPG' to "
                                            "'c:\\web\\img\\blue.jpg'"));
    expectCounts(1, 0);
  }
}

}  // namespace
}  // namespace varlo
