#include "posix/posix_files.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "core/text/open_file.h"

namespace varlo {
namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

std::string makeTemporaryFolder() {
  std::string path = (fs::temp_directory_path() / "files_test_XXXXXX").string();
  if (::mkdtemp(path.data()) == nullptr) throw std::runtime_error("no temporary folder");
  return path;
}

// A folder of the test's own, which is gone in the end.
struct TemporaryFolder {
  TemporaryFolder() = default;
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() { fs::remove_all(path); }
  std::string path = makeTemporaryFolder();
};

class PosixFilesTest : public testing::Test {
 protected:
  // What is there as others see it, by host names below the folder.
  [[nodiscard]] std::string host(const std::string& name) const { return folder_.path + "/" + name; }
  void putOnHost(const std::string& name, std::string_view content) const {
    fs::create_directories(fs::path(host(name)).parent_path());
    std::ofstream(host(name), std::ios::binary) << content;
  }
  [[nodiscard]] std::string onHost(const std::string& name) const {
    std::ifstream in(host(name), std::ios::binary);
    if (!in) return "(no file)";
    return {std::istreambuf_iterator<char>(in), {}};
  }
  [[nodiscard]] Names hostNames(const std::string& name = {}) const {
    Names names;
    for (const auto& entry : fs::directory_iterator(host(name))) names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }
  // Things that have names as files have, and whose bytes come from elsewhere, if ever.
  void putPipe(const std::string& name) const { ASSERT_EQ(::mkfifo(host(name).c_str(), 0600), 0); }
  void putSocket(const std::string& name) const {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(host(name).copy(address.sun_path, sizeof address.sun_path - 1), sizeof address.sun_path - 1);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ::close(socket);
  }
  // Makes the time of the folder's last change an old one, so that the next change shows whatever the
  // resolution of the disk's clock is.
  void age(const std::string& name = {}) const {
    fs::last_write_time(host(name), fs::file_time_type::clock::now() - std::chrono::hours(1));
  }

  std::string content(std::string_view path) {
    const OpenFile file(files_, files_.openRead(path));
    if (!file.isOpen()) return "(no file)";
    std::string bytes(100000, '\0');
    bytes.resize(files_.read(file.handle(), bytes.data(), bytes.size()));
    return bytes;
  }
  bool put(std::string_view path, std::string_view bytes) {
    const OpenFile file(files_, files_.create(path));
    return file.isOpen() && files_.write(file.handle(), bytes.data(), bytes.size()) == bytes.size();
  }
  Names found(std::string_view pattern) {
    Names names;
    for (const FoundFile& file : files_.search(pattern)) names.push_back(file.name);
    return names;
  }
  // The program's full name of something below the folder.
  std::string full(const std::string& name) { return files_.workingFolder() + "\\" + name; }

  TemporaryFolder folder_;
  PosixFiles files_{folder_.path};
};

using PosixFilesOpenRead = PosixFilesTest;
using PosixFilesCreate = PosixFilesTest;
using PosixFilesHandle = PosixFilesTest;
using PosixFilesCopy = PosixFilesTest;
using PosixFilesMove = PosixFilesTest;
using PosixFilesRemove = PosixFilesTest;
using PosixFilesMakeFolder = PosixFilesTest;
using PosixFilesSearch = PosixFilesTest;
using PosixFilesErrorText = PosixFilesTest;
using PosixFilesOthers = PosixFilesTest;
using PosixFilesNames = PosixFilesTest;

TEST_F(PosixFilesOpenRead, OpensAFileByItsNameOnDisk) {
  putOnHost("Shop.stp", "text");
  EXPECT_EQ(content("Shop.stp"), "text");
}

TEST_F(PosixFilesOpenRead, FindsANameInAnyCase) {
  putOnHost("Shop.stp", "text");
  EXPECT_EQ(content("SHOP.STP"), "text");
  EXPECT_EQ(content("shop.stp"), "text");
}

TEST_F(PosixFilesOpenRead, FindsEachPartOfAPathInAnyCase) {
  putOnHost("Projects/Demo/Web/Index.HTML", "page");
  EXPECT_EQ(content("projects\\DEMO\\web\\index.html"), "page");
  EXPECT_EQ(content("Projects\\Demo\\WEB\\Index.HTML"), "page");
  EXPECT_EQ(content("PROJECTS\\Demo\\Web\\Index.html"), "page");
}

TEST_F(PosixFilesOpenRead, PrefersTheExactSpelling) {
  putOnHost("a.txt", "small");
  putOnHost("A.txt", "great");
  EXPECT_EQ(content("a.txt"), "small");
  EXPECT_EQ(content("A.txt"), "great");
}

TEST_F(PosixFilesOpenRead, TakesSlashesOfBothKinds) {
  putOnHost("web/img/a.gif", "gif");
  EXPECT_EQ(content("web\\img\\a.gif"), "gif");
  EXPECT_EQ(content("web/img/a.gif"), "gif");
  EXPECT_EQ(content("web\\IMG/a.gif"), "gif");
  EXPECT_EQ(content("web\\\\IMG\\\\a.gif"), "gif");
}

TEST_F(PosixFilesOpenRead, TakesTheFolderAboveAndTheSameFolder) {
  putOnHost("web/a.htm", "page");
  putOnHost("Shop.stp", "text");
  EXPECT_EQ(content("web\\..\\shop.stp"), "text");
  EXPECT_EQ(content(".\\WEB\\.\\A.HTM"), "page");
}

TEST_F(PosixFilesOpenRead, ZColonIsTheRoot) {
  putOnHost("a.txt", "text");
  EXPECT_EQ(content("Z:" + full("a.txt")), "text");
  EXPECT_EQ(content("z:" + full("A.TXT")), "text");
}

TEST_F(PosixFilesOpenRead, NoOtherDriveExists) {
  putOnHost("a.txt", "text");
  EXPECT_EQ(files_.openRead("C:" + full("a.txt")), kNoFile);
  EXPECT_EQ(files_.openRead("C:a.txt"), kNoFile);
}

TEST_F(PosixFilesOpenRead, TakesAFullNameWithoutDrive) {
  putOnHost("a.txt", "text");
  EXPECT_EQ(content(full("a.txt")), "text");
  EXPECT_EQ(content(full("A.TXT")), "text");
}

TEST_F(PosixFilesOpenRead, FailsForWhatIsNotThere) {
  EXPECT_EQ(files_.openRead("missing.txt"), kNoFile);
  EXPECT_EQ(files_.openRead("missing\\a.txt"), kNoFile);
  EXPECT_EQ(files_.openRead(""), kNoFile);
}

TEST_F(PosixFilesOpenRead, FailsForAFolder) {
  fs::create_directory(host("Web"));
  EXPECT_EQ(files_.openRead("Web"), kNoFile);
  EXPECT_EQ(files_.openRead("WEB"), kNoFile);
  EXPECT_EQ(files_.openRead("."), kNoFile);
}

TEST_F(PosixFilesOpenRead, FailsForAPipeWithoutWaitingForItsWriter) {
  putPipe("Pipe.gif");
  EXPECT_EQ(files_.openRead("Pipe.gif"), kNoFile);
  EXPECT_EQ(files_.openRead("PIPE.GIF"), kNoFile) << "in any case";
  EXPECT_FALSE(files_.errorText().empty());
}

TEST_F(PosixFilesOpenRead, FailsForAPipeThatHasAWriter) {
  putPipe("pipe");
  const int reader = ::open(host("pipe").c_str(), O_RDONLY | O_NONBLOCK);
  const int writer = ::open(host("pipe").c_str(), O_WRONLY);
  EXPECT_EQ(files_.openRead("pipe"), kNoFile);
  ::close(writer);
  ::close(reader);
}

TEST_F(PosixFilesOpenRead, FailsForADevice) {
  for (const char* device : {"Z:\\dev\\zero", "Z:\\dev\\null", "Z:\\dev\\full", "Z:\\dev\\random", "Z:\\dev\\tty"}) {
    EXPECT_EQ(files_.openRead(device), kNoFile) << device;
  }
  fs::create_symlink("/dev/zero", host("endless.gif"));
  EXPECT_EQ(files_.openRead("endless.gif"), kNoFile) << "through a link as well";
}

TEST_F(PosixFilesOpenRead, FailsForASocket) {
  putSocket("socket");
  EXPECT_EQ(files_.openRead("socket"), kNoFile);
}

TEST_F(PosixFilesOpenRead, OpensAFileThroughALink) {
  putOnHost("a.txt", "text");
  fs::create_symlink("a.txt", host("link.txt"));
  EXPECT_EQ(content("link.txt"), "text");
}

TEST_F(PosixFilesOpenRead, FailsForAFileUsedAsAFolder) {
  putOnHost("a.txt", "text");
  EXPECT_EQ(files_.openRead("a.txt\\b.txt"), kNoFile);
  EXPECT_EQ(files_.openRead("A.TXT\\b.txt"), kNoFile);
}

TEST_F(PosixFilesCreate, MakesAFileUnderTheNameItIsGiven) {
  EXPECT_TRUE(put("New.Txt", "text"));
  EXPECT_EQ(hostNames(), Names{"New.Txt"});
  EXPECT_EQ(onHost("New.Txt"), "text");
}

TEST_F(PosixFilesCreate, EmptiesTheFileThatIsThere) {
  putOnHost("a.txt", "a longer text");
  EXPECT_TRUE(put("a.txt", "new"));
  EXPECT_EQ(onHost("a.txt"), "new");
}

TEST_F(PosixFilesCreate, WritesOverTheFileOfAnotherSpelling) {
  putOnHost("Index.HTML", "a longer text");
  EXPECT_TRUE(put("index.html", "new"));
  EXPECT_EQ(hostNames(), Names{"Index.HTML"});
  EXPECT_EQ(onHost("Index.HTML"), "new");
}

TEST_F(PosixFilesCreate, MakesAFileInAFolderOfAnotherSpelling) {
  fs::create_directories(host("Projects/Demo"));
  EXPECT_TRUE(put("PROJECTS\\demo\\New.stp", "text"));
  EXPECT_EQ(hostNames(), Names{"Projects"});
  EXPECT_EQ(onHost("Projects/Demo/New.stp"), "text");
}

TEST_F(PosixFilesCreate, AFileJustMadeIsFoundInAnyCase) {
  EXPECT_EQ(content("NEW.TXT"), "(no file)");
  EXPECT_TRUE(put("New.Txt", "one"));
  EXPECT_EQ(content("NEW.TXT"), "one");
  EXPECT_TRUE(put("new.txt", "two"));
  EXPECT_EQ(hostNames(), Names{"New.Txt"});
  EXPECT_EQ(onHost("New.Txt"), "two");
}

TEST_F(PosixFilesCreate, ManyFilesAreMadeAndFoundAgain) {
  for (int i = 0; i < 300; ++i) {
    ASSERT_TRUE(put("Page" + std::to_string(i) + ".Htm", std::to_string(i)));
    ASSERT_EQ(content("PAGE" + std::to_string(i) + ".HTM"), std::to_string(i));
    ASSERT_EQ(content("page" + std::to_string(i + 1) + ".htm"), "(no file)");
  }
  EXPECT_EQ(hostNames().size(), 300U);
}

TEST_F(PosixFilesCreate, OverAnOldFileItEndsWhereItWasWrittenLast) {
  putOnHost("Page.htm", "an old and long page");
  for (const std::string_view text : {"a new page", "a page", "a page that is longer than all", ""}) {
    {
      const OpenFile file(files_, files_.createOver("page.HTM"));
      ASSERT_TRUE(file.isOpen());
      files_.write(file.handle(), text.data(), text.size());
    }
    EXPECT_EQ(onHost("Page.htm"), text);
  }
  EXPECT_EQ(hostNames(), Names{"Page.htm"});
}

TEST_F(PosixFilesCreate, FailsWithoutItsFolder) {
  EXPECT_EQ(files_.create("missing\\a.txt"), kNoFile);
  EXPECT_TRUE(hostNames().empty());
}

TEST_F(PosixFilesCreate, FailsOnAFolderOfTheName) {
  fs::create_directory(host("Web"));
  EXPECT_EQ(files_.create("Web"), kNoFile);
  EXPECT_EQ(files_.create("web"), kNoFile);
  EXPECT_EQ(hostNames(), Names{"Web"});
}

TEST_F(PosixFilesCreate, FailsOnAPipeWithoutWaitingForItsReader) {
  putPipe("pipe");
  EXPECT_EQ(files_.create("pipe"), kNoFile);
  EXPECT_EQ(files_.createOver("pipe"), kNoFile);
  EXPECT_EQ(files_.create("PIPE"), kNoFile);
}

TEST_F(PosixFilesCreate, FailsOnAPipeThatHasAReader) {
  putPipe("pipe");
  const int reader = ::open(host("pipe").c_str(), O_RDONLY | O_NONBLOCK);
  EXPECT_EQ(files_.create("pipe"), kNoFile);
  EXPECT_EQ(files_.createOver("pipe"), kNoFile);
  char byte = 0;
  EXPECT_EQ(::read(reader, &byte, 1), 0) << "nothing was written to it";
  ::close(reader);
}

TEST_F(PosixFilesCreate, FailsOnASocket) {
  putSocket("socket");
  EXPECT_EQ(files_.create("socket"), kNoFile);
}

TEST_F(PosixFilesCreate, AFailureOverAnOldFileLeavesTheNextOneWhole) {
  putPipe("pipe");
  putOnHost("a.txt", "a longer text");
  EXPECT_EQ(files_.createOver("pipe"), kNoFile);
  {
    const OpenFile file(files_, files_.createOver("a.txt"));
    files_.write(file.handle(), "new", 3);
  }
  EXPECT_EQ(onHost("a.txt"), "new");
}

TEST_F(PosixFilesCreate, NamesAboveSevenBitsAreUtf8OnDisk) {
  EXPECT_TRUE(put("caf\xE9 \x80.htm", "page"));
  EXPECT_EQ(hostNames(), Names{"caf\xC3\xA9 \xE2\x82\xAC.htm"});
}

TEST_F(PosixFilesCreate, NamesAboveSevenBitsAreFoundInAnyCase) {
  putOnHost("Caf\xC3\xA9/\xC5\xA0koda.htm", "page");
  EXPECT_EQ(content("caf\xE9\\\x8Akoda.htm"), "page");
  EXPECT_EQ(content("CAF\xC9\\\x9AKODA.HTM"), "page");
  EXPECT_TRUE(put("CAF\xC9\\\x9AKODA.HTM", "new"));
  EXPECT_EQ(hostNames("Caf\xC3\xA9"), Names{"\xC5\xA0koda.htm"});
}

TEST_F(PosixFilesHandle, ReadsAndSeeksBackAndForth) {
  putOnHost("a.txt", "0123456789");
  const OpenFile file(files_, files_.openRead("a.txt"));
  char bytes[16] = {};
  EXPECT_EQ(files_.read(file.handle(), bytes, 4), 4U);
  EXPECT_STREQ(bytes, "0123");
  EXPECT_EQ(files_.seek(file.handle(), -2, SeekFrom::Current), 2);
  EXPECT_EQ(files_.read(file.handle(), bytes, 1), 1U);
  EXPECT_EQ(bytes[0], '2');
  EXPECT_EQ(files_.seek(file.handle(), -3, SeekFrom::End), 7);
  EXPECT_EQ(files_.read(file.handle(), bytes, sizeof bytes), 3U);
  EXPECT_EQ(files_.read(file.handle(), bytes, sizeof bytes), 0U);
  EXPECT_EQ(files_.seek(file.handle(), 1, SeekFrom::Start), 1);
  EXPECT_EQ(files_.read(file.handle(), bytes, 1), 1U);
  EXPECT_EQ(bytes[0], '1');
}

TEST_F(PosixFilesHandle, FailsToSeekInFrontOfTheFile) {
  putOnHost("a.txt", "0123456789");
  const OpenFile file(files_, files_.openRead("a.txt"));
  EXPECT_EQ(files_.seek(file.handle(), -1, SeekFrom::Start), -1);
  EXPECT_FALSE(files_.errorText().empty());
}

TEST_F(PosixFilesHandle, WritesOneBlockBehindTheOther) {
  {
    const OpenFile file(files_, files_.create("a.txt"));
    EXPECT_EQ(files_.write(file.handle(), "one", 3), 3U);
    EXPECT_EQ(files_.write(file.handle(), "", 0), 0U);
    EXPECT_EQ(files_.write(file.handle(), "two", 3), 3U);
    EXPECT_EQ(files_.seek(file.handle(), 0, SeekFrom::Start), 0);
    EXPECT_EQ(files_.write(file.handle(), "O", 1), 1U);
  }
  EXPECT_EQ(onHost("a.txt"), "Onetwo");
}

TEST_F(PosixFilesHandle, FailsToWriteToAFileOpenForReading) {
  putOnHost("a.txt", "text");
  const OpenFile file(files_, files_.openRead("a.txt"));
  EXPECT_EQ(files_.write(file.handle(), "new", 3), 0U);
  EXPECT_EQ(onHost("a.txt"), "text");
}

TEST_F(PosixFilesHandle, FailsToReadFromAFileOpenForWriting) {
  const OpenFile file(files_, files_.create("a.txt"));
  char byte = 0;
  EXPECT_EQ(files_.read(file.handle(), &byte, 1), 0U);
}

TEST_F(PosixFilesHandle, ClosingNoFileDoesNothing) {
  files_.close(kNoFile);
  EXPECT_TRUE(put("a.txt", "text"));
}

TEST_F(PosixFilesCopy, CopiesAFile) {
  const std::string bytes(200001, 'x');
  putOnHost("a.txt", bytes);
  EXPECT_TRUE(files_.copy("a.txt", "b.txt", false));
  EXPECT_TRUE(onHost("b.txt") == bytes);
  EXPECT_TRUE(onHost("a.txt") == bytes);
}

TEST_F(PosixFilesCopy, CopiesOverAnExistingFile) {
  putOnHost("a.txt", "new");
  putOnHost("B.TXT", "a longer old text");
  EXPECT_TRUE(files_.copy("a.txt", "b.txt", true));
  EXPECT_EQ(hostNames(), (Names{"B.TXT", "a.txt"}));
  EXPECT_EQ(onHost("B.TXT"), "new");
}

TEST_F(PosixFilesCopy, FailsOnAnExistingFileWithOverwriteOff) {
  putOnHost("a.txt", "new");
  putOnHost("B.TXT", "old");
  EXPECT_FALSE(files_.copy("a.txt", "B.TXT", false));
  EXPECT_FALSE(files_.copy("a.txt", "b.txt", false));
  EXPECT_EQ(onHost("B.TXT"), "old");
}

TEST_F(PosixFilesCopy, FailsOntoItselfAndLeavesTheFileWhole) {
  putOnHost("web/A.txt", "whole");
  EXPECT_FALSE(files_.copy("web\\A.txt", "web\\A.txt", true));
  EXPECT_FALSE(files_.copy("web\\A.txt", "WEB\\a.TXT", true));
  EXPECT_FALSE(files_.copy("web\\a.txt", full("web\\.\\A.txt"), true));
  EXPECT_EQ(onHost("web/A.txt"), "whole");
  EXPECT_EQ(hostNames("web"), Names{"A.txt"});
}

TEST_F(PosixFilesCopy, FailsThroughALinkToItself) {
  putOnHost("a.txt", "whole");
  fs::create_symlink("a.txt", host("link.txt"));
  EXPECT_FALSE(files_.copy("a.txt", "link.txt", true));
  EXPECT_EQ(onHost("a.txt"), "whole");
}

TEST_F(PosixFilesCopy, FailsWithoutSourceAndMakesNothing) {
  EXPECT_FALSE(files_.copy("missing.txt", "b.txt", true));
  putOnHost("b.txt", "old");
  EXPECT_FALSE(files_.copy("missing.txt", "b.txt", true));
  EXPECT_EQ(onHost("b.txt"), "old");
  EXPECT_EQ(hostNames(), Names{"b.txt"});
}

TEST_F(PosixFilesCopy, FailsForFolders) {
  putOnHost("a.txt", "text");
  fs::create_directory(host("Web"));
  EXPECT_FALSE(files_.copy("Web", "b", true));
  EXPECT_FALSE(files_.copy("a.txt", "web", true));
  EXPECT_FALSE(files_.copy("a.txt", "missing\\a.txt", true));
  EXPECT_EQ(hostNames(), (Names{"Web", "a.txt"}));
}

TEST_F(PosixFilesCopy, FailsForWhatIsNoPlainFile) {
  putOnHost("a.txt", "text");
  putPipe("pipe");
  EXPECT_FALSE(files_.copy("pipe", "b.txt", true));
  EXPECT_FALSE(files_.copy("Z:\\dev\\zero", "b.txt", true));
  EXPECT_FALSE(files_.copy("a.txt", "pipe", true));
  EXPECT_EQ(hostNames(), (Names{"a.txt", "pipe"})) << "nothing is made";
}

TEST_F(PosixFilesCopy, FailsWhenTheDiskIsFull) {
  putOnHost("a.txt", "text");
  EXPECT_FALSE(files_.copy("a.txt", "Z:\\dev\\full", true));
  EXPECT_FALSE(files_.errorText().empty());
}

TEST_F(PosixFilesCopy, FindsSourceAndFoldersInAnyCase) {
  putOnHost("Template/Order.dat", "order");
  fs::create_directory(host("Demo"));
  EXPECT_TRUE(files_.copy("template\\order.DAT", "DEMO\\Order.htm", false));
  EXPECT_EQ(onHost("Demo/Order.htm"), "order");
}

TEST_F(PosixFilesMove, RenamesAFile) {
  putOnHost("a.txt", "text");
  EXPECT_TRUE(files_.move("A.TXT", "B.txt"));
  EXPECT_EQ(hostNames(), Names{"B.txt"});
  EXPECT_EQ(onHost("B.txt"), "text");
}

TEST_F(PosixFilesMove, MovesIntoAnotherFolder) {
  putOnHost("a.txt", "text");
  fs::create_directory(host("Old"));
  EXPECT_TRUE(files_.move("a.txt", "OLD\\a.txt"));
  EXPECT_EQ(onHost("Old/a.txt"), "text");
  EXPECT_EQ(hostNames(), Names{"Old"});
}

TEST_F(PosixFilesMove, FailsOntoAnExistingTarget) {
  putOnHost("a.txt", "new");
  putOnHost("B.txt", "old");
  EXPECT_FALSE(files_.move("a.txt", "B.txt"));
  EXPECT_FALSE(files_.move("a.txt", "b.TXT"));
  EXPECT_EQ(onHost("a.txt"), "new");
  EXPECT_EQ(onHost("B.txt"), "old");
}

TEST_F(PosixFilesMove, FailsWithoutSourceOrTargetFolder) {
  EXPECT_FALSE(files_.move("missing.txt", "b.txt"));
  putOnHost("a.txt", "text");
  EXPECT_FALSE(files_.move("a.txt", "missing\\a.txt"));
  EXPECT_EQ(hostNames(), Names{"a.txt"});
}

TEST_F(PosixFilesMove, TheOldNameIsFreeAndTheNewOneFound) {
  putOnHost("Shop.stp", "text");
  EXPECT_EQ(content("SHOP.stp"), "text");
  EXPECT_TRUE(files_.move("SHOP.stp", "Shop.ba1"));
  EXPECT_EQ(content("SHOP.STP"), "(no file)");
  EXPECT_EQ(content("SHOP.BA1"), "text");
  EXPECT_TRUE(put("shop.stp", "next"));
  EXPECT_EQ(hostNames(), (Names{"Shop.ba1", "shop.stp"}));
}

TEST_F(PosixFilesRemove, DeletesAFileInAnyCase) {
  putOnHost("Web/A.txt", "text");
  EXPECT_TRUE(files_.remove("WEB\\a.TXT"));
  EXPECT_TRUE(hostNames("Web").empty());
  EXPECT_FALSE(files_.remove("WEB\\a.TXT"));
}

TEST_F(PosixFilesRemove, FailsForWhatIsNotThere) {
  EXPECT_FALSE(files_.remove("missing.txt"));
  EXPECT_FALSE(files_.remove("missing\\a.txt"));
}

TEST_F(PosixFilesRemove, FailsForAFolder) {
  fs::create_directory(host("Web"));
  EXPECT_FALSE(files_.remove("Web"));
  EXPECT_EQ(hostNames(), Names{"Web"});
}

TEST_F(PosixFilesRemove, TheNameIsFreeForAnotherSpelling) {
  putOnHost("A.txt", "old");
  EXPECT_EQ(content("a.txt"), "old");
  EXPECT_TRUE(files_.remove("a.txt"));
  EXPECT_TRUE(put("a.TXT", "new"));
  EXPECT_EQ(hostNames(), Names{"a.TXT"});
}

TEST_F(PosixFilesMakeFolder, MakesOneFolder) {
  EXPECT_EQ(files_.makeFolder("Web"), MakeFolderResult::Made);
  EXPECT_TRUE(fs::is_directory(host("Web")));
  EXPECT_TRUE(put("WEB\\a.txt", "text"));
  EXPECT_EQ(onHost("Web/a.txt"), "text");
}

TEST_F(PosixFilesMakeFolder, TellsAFolderThatExists) {
  fs::create_directory(host("Web"));
  EXPECT_EQ(files_.makeFolder("Web"), MakeFolderResult::Exists);
  EXPECT_EQ(files_.makeFolder("WEB"), MakeFolderResult::Exists);
  EXPECT_EQ(files_.makeFolder("web\\"), MakeFolderResult::Exists);
  EXPECT_EQ(hostNames(), Names{"Web"});
}

TEST_F(PosixFilesMakeFolder, AFileOfTheNameIsInTheWayToo) {
  putOnHost("Web", "a file");
  EXPECT_EQ(files_.makeFolder("web"), MakeFolderResult::Exists);
  EXPECT_EQ(onHost("Web"), "a file");
}

TEST_F(PosixFilesMakeFolder, FailsWithoutTheFolderAbove) {
  EXPECT_EQ(files_.makeFolder("missing\\Web"), MakeFolderResult::Failed);
  EXPECT_TRUE(hostNames().empty());
}

TEST_F(PosixFilesMakeFolder, TheFolderAboveIsFoundInAnyCase) {
  fs::create_directory(host("Projects"));
  EXPECT_EQ(files_.makeFolder("PROJECTS\\Demo"), MakeFolderResult::Made);
  EXPECT_EQ(files_.makeFolder("projects\\demo\\Web\\"), MakeFolderResult::Made);
  EXPECT_TRUE(fs::is_directory(host("Projects/Demo/Web")));
}

TEST_F(PosixFilesMakeFolder, TheRootExists) { EXPECT_EQ(files_.makeFolder("Z:\\"), MakeFolderResult::Exists); }

TEST_F(PosixFilesSearch, SortsWithoutRegardToCase) {
  for (const char* name : {"b.htm", "C.htm", "a.htm", "D.htm", "a10.htm"}) putOnHost(name, "");
  EXPECT_EQ(found("*.htm"), (Names{"a.htm", "a10.htm", "b.htm", "C.htm", "D.htm"}));
}

TEST_F(PosixFilesSearch, TakesTheNamesThatMatchTheMask) {
  for (const char* name : {"Shop.stp", "shop.ba1", "shop.ba2", "index.html", "readme", ".hidden"})
    putOnHost(name, "");
  EXPECT_EQ(found("SHOP.*"), (Names{"shop.ba1", "shop.ba2", "Shop.stp"}));
  EXPECT_EQ(found("*.ba?"), (Names{"shop.ba1", "shop.ba2"}));
  EXPECT_EQ(found("*.*"), (Names{".hidden", "index.html", "readme", "shop.ba1", "shop.ba2", "Shop.stp"}));
  EXPECT_EQ(found("*"), found("*.*"));
  EXPECT_EQ(found("INDEX.html"), Names{"index.html"});
  EXPECT_EQ(found("*.jpg"), Names{});
}

TEST_F(PosixFilesSearch, TellsFoldersAndSizes) {
  putOnHost("a.txt", "12345");
  fs::create_directory(host("b"));
  const std::vector<FoundFile> all = files_.search("*");
  ASSERT_EQ(all.size(), 2U);
  EXPECT_EQ(all[0].name, "a.txt");
  EXPECT_FALSE(all[0].isFolder);
  EXPECT_EQ(all[0].size, 5U);
  EXPECT_EQ(all[1].name, "b");
  EXPECT_TRUE(all[1].isFolder);
}

TEST_F(PosixFilesSearch, GivesTheLow32BitsOfAGreatSize) {
  putOnHost("great.dat", "");
  fs::resize_file(host("great.dat"), (std::uintmax_t{1} << 32) + 7);
  const std::vector<FoundFile> all = files_.search("great.dat");
  ASSERT_EQ(all.size(), 1U);
  EXPECT_EQ(all[0].size, 7U);
}

TEST_F(PosixFilesSearch, FindsTheFolderInAnyCase) {
  putOnHost("Projects/Demo/Shop.stp", "");
  EXPECT_EQ(found("PROJECTS\\demo\\*.stp"), Names{"Shop.stp"});
  EXPECT_EQ(found(full("projects\\*")), Names{"Demo"});
  EXPECT_EQ(found("Z:" + full("projects\\*")), Names{"Demo"});
}

TEST_F(PosixFilesSearch, AMissingFolderHasNoFiles) {
  EXPECT_EQ(found("missing\\*.*"), Names{});
  EXPECT_FALSE(files_.errorText().empty());
  putOnHost("a.txt", "");
  EXPECT_EQ(found("a.txt\\*"), Names{});
}

TEST_F(PosixFilesSearch, GivesNamesInTheProgramsBytes) {
  putOnHost("caf\xC3\xA9.htm", "");
  EXPECT_EQ(found("CAF\xC9.*"), Names{"caf\xE9.htm"});
  EXPECT_EQ(found("caf?.htm"), Names{"caf\xE9.htm"});
}

TEST_F(PosixFilesSearch, ANameOutsideTheSetCanStillBeOpened) {
  putOnHost("\xE6\x97\xA5.htm", "page");
  const Names names = found("*.htm");
  ASSERT_EQ(names.size(), 1U);
  EXPECT_EQ(content(names[0]), "page");
  EXPECT_TRUE(files_.remove(names[0]));
  EXPECT_TRUE(hostNames().empty());
}

TEST_F(PosixFilesErrorText, SpeaksAfterEveryFailure) {
  putOnHost("a.txt", "text");
  const std::string missing = (files_.openRead("missing.txt"), files_.errorText());
  EXPECT_FALSE(missing.empty());
  EXPECT_EQ(files_.create("missing\\a.txt"), kNoFile);
  EXPECT_EQ(files_.errorText(), missing);
  EXPECT_FALSE(files_.remove("missing.txt"));
  EXPECT_EQ(files_.errorText(), missing);
  EXPECT_FALSE(files_.move("missing.txt", "b.txt"));
  EXPECT_EQ(files_.errorText(), missing);
  EXPECT_FALSE(files_.copy("missing.txt", "b.txt", true));
  EXPECT_EQ(files_.errorText(), missing);
  EXPECT_FALSE(files_.copy("a.txt", "A.TXT", false));
  EXPECT_NE(files_.errorText(), missing);
  const std::string exists = files_.errorText();
  EXPECT_FALSE(exists.empty());
  EXPECT_EQ(files_.makeFolder("missing\\Web"), MakeFolderResult::Failed);
  EXPECT_EQ(files_.errorText(), missing);
  EXPECT_EQ(files_.makeFolder("a.TXT"), MakeFolderResult::Exists);
  EXPECT_EQ(files_.errorText(), exists);
}

TEST_F(PosixFilesErrorText, TellsAFolderFromAMissingFile) {
  fs::create_directory(host("Web"));
  EXPECT_EQ(files_.openRead("missing"), kNoFile);
  const std::string missing = files_.errorText();
  EXPECT_EQ(files_.openRead("Web"), kNoFile);
  EXPECT_NE(files_.errorText(), missing);
}

TEST_F(PosixFilesOthers, AFileMadeBetweenTwoCallsIsSeen) {
  age();
  EXPECT_EQ(content("NEW.TXT"), "(no file)");
  putOnHost("New.txt", "text");
  EXPECT_EQ(content("NEW.TXT"), "text");
}

TEST_F(PosixFilesOthers, AFileDeletedBetweenTwoCallsIsGone) {
  putOnHost("Old.txt", "text");
  age();
  EXPECT_EQ(content("OLD.TXT"), "text");
  fs::remove(host("Old.txt"));
  EXPECT_EQ(content("OLD.TXT"), "(no file)");
  putOnHost("a.txt", "next");
  EXPECT_TRUE(files_.copy("a.txt", "OLD.TXT", false));
  EXPECT_EQ(hostNames(), (Names{"OLD.TXT", "a.txt"}));
}

TEST_F(PosixFilesOthers, AFileRenamedBetweenTwoCallsIsFoundUnderItsNewSpelling) {
  putOnHost("Shop.stp", "text");
  age();
  EXPECT_EQ(content("SHOP.STP"), "text");
  fs::rename(host("Shop.stp"), host("shoP.stp"));
  EXPECT_TRUE(put("SHOP.STP", "new"));
  EXPECT_EQ(hostNames(), Names{"shoP.stp"});
}

TEST_F(PosixFilesOthers, AFolderReplacedBetweenTwoCallsIsReadAgain) {
  putOnHost("Web/Old.txt", "old");
  age("Web");
  EXPECT_EQ(content("WEB\\OLD.TXT"), "old");
  fs::remove_all(host("Web"));
  putOnHost("Web/New.txt", "new");
  EXPECT_EQ(content("WEB\\OLD.TXT"), "(no file)");
  EXPECT_EQ(content("WEB\\NEW.TXT"), "new");
}

TEST_F(PosixFilesNames, TheWorkingFolderIsAFullNameWithBackSlashes) {
  std::string expected = folder_.path;
  std::replace(expected.begin(), expected.end(), '/', '\\');
  EXPECT_EQ(files_.workingFolder(), expected);
  EXPECT_EQ(PosixFiles(folder_.path + "//").workingFolder(), expected);
}

TEST_F(PosixFilesNames, ARelativeFolderIsTakenAgainstTheCurrentOne) {
  const std::string current = PosixFiles().workingFolder();
  EXPECT_TRUE(current.starts_with("\\"));
  EXPECT_EQ(PosixFiles("sub/folder").workingFolder(), current + "\\sub\\folder");
}

TEST_F(PosixFilesNames, TheRootHasAnEmptyNameSoThatABackSlashCanFollow) {
  PosixFiles root("/");
  EXPECT_EQ(root.workingFolder(), "");
  putOnHost("a.txt", "text");
  EXPECT_TRUE(OpenFile(root, root.openRead(full("A.TXT").substr(1))).isOpen());
}

TEST_F(PosixFilesNames, NameOfTurnsAHostPath) {
  EXPECT_EQ(files_.nameOf("/srv/shop/caf\xC3\xA9.stp"), "\\srv\\shop\\caf\xE9.stp");
  EXPECT_EQ(files_.nameOf("web/a.htm"), full("web\\a.htm"));
  putOnHost("web/caf\xC3\xA9.htm", "page");
  EXPECT_EQ(content(files_.nameOf("web/caf\xC3\xA9.htm")), "page");
  EXPECT_EQ(content(files_.nameOf(host("web/caf\xC3\xA9.htm"))), "page");
}

TEST_F(PosixFilesNames, TheWorkingFolderMayHaveLettersAboveSevenBits) {
  fs::create_directory(host("Caf\xC3\xA9"));
  PosixFiles files(host("Caf\xC3\xA9"));
  EXPECT_EQ(files.workingFolder(), full("Caf\xE9"));
  files.close(files.create("a.txt"));
  EXPECT_EQ(hostNames("Caf\xC3\xA9"), Names{"a.txt"});
  EXPECT_TRUE(OpenFile(files, files.openRead(files.workingFolder() + "\\A.TXT")).isOpen());
}

}  // namespace
}  // namespace varlo
