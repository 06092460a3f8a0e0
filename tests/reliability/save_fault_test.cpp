// Each operation of a save fails in turn: no crash, the messages told, nothing but the file in hand
// touched.

#include <algorithm>
#include <iostream>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "core/program/fixed_clock.h"
#include "core/program/process_clipboard.h"
#include "core/text/text_search.h"
#include "persist/project/project_load.h"
#include "tests/reliability/saved_shop.h"
#include "tests/support/failing_files.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;

constexpr const char* kShop = "C:\\Varlo\\Projects\\Shop\\Shop.stp";
const std::string kBackup = "C:\\Varlo\\Projects\\Shop\\Backup\\Shop.stp.";

// A shop with all its files, saved on a disk that fails at one operation.
class FaultySave {
 public:
  FaultySave(int at, Failure failure) : faulty_(files, at, failure) {
    files.put(kShop, ShopText("0"));
    for (int i = 1; i <= 10; ++i) files.put(kBackup + std::to_string(i), ShopText(std::to_string(i)));
    files.put("Projects\\Shop\\Template\\order.htm", "order");
    files.put("Projects\\Shop\\Template\\confirm.htm", "confirm");
    files.put("config.ini", "old config");
    files.put("scheme.ini", "old schemes");
    program.project.projectFile.assign(kShop);
    ProjectLoad(program);
    program.project.dirty = 1;
    ChangeShop(program);
    program.project.confirmTemplate.assign("confirm changed");
    before_ = contents();
    result = ProjectSaveNow(program);
  }

  [[nodiscard]] std::map<std::string, std::string> contents() const {
    std::map<std::string, std::string> all;
    for (const std::string& name : files.names()) all[name] = *files.content(name);
    return all;
  }
  [[nodiscard]] const std::map<std::string, std::string>& before() const { return before_; }
  [[nodiscard]] const FailingFiles& disk() const { return faulty_; }

  FakeFiles files;
  FakeScreen screen;
  bool result = false;

 private:
  FixedClock clock_{kTestTime};
  ProcessClipboard clipboard_;
  View view_;
  FailingFiles faulty_;

 public:
  Program program{faulty_, clock_, screen, clipboard_, view_};

 private:
  std::map<std::string, std::string> before_;
};

// Whether `name` is the file in hand; paths do not tell letter case.
bool isInHand(const std::string& name, const std::string& inHand) {
  return name.size() >= inHand.size() &&
         EqualsNoCase(std::string_view(name).substr(name.size() - inHand.size()), inHand);
}

// The one message that belongs to a failure at this file, empty for none.
std::string messageFor(const std::string& operation, const std::string& path) {
  const bool isConfig = path == "config.ini" || path == "scheme.ini";
  if (operation == "write" && !isConfig) {
    const std::string backup = path != kShop ? "" : "\r\n\r\nThe version saved before lies in '" + kBackup + "1'.";
    return "The file '" + path +
           "' could not be written completely.  The disk may be full: please make room and save " + "again." + backup;
  }
  if (operation != "create") return "";
  if (path == kShop) return "S101: File Write Error";
  if (path == "config.ini") return "ERROR W114: Unable to open file 'drelk.ini'";
  if (path == "scheme.ini") return "ERROR W124: Unable to open file 'scheme.ini'";
  return "ERROR R106: Unable to open HTML output file";
}

// Whether the project does not count as saved: its file was not made, or a file of it was cut.
bool isUnsaved(const std::string& message) {
  return message.starts_with("S101") || message.starts_with("The file '");
}

void checkFault(int at, Failure failure, const std::set<std::string>& wholeContents) {
  FaultySave save(at, failure);
  const FailingFiles& disk = save.disk();
  ASSERT_FALSE(disk.failedOperation().empty());
  SCOPED_TRACE(disk.failedOperation() + " " + disk.failedPath());

  std::vector<std::string> told;
  for (const ShownBox& box : save.screen.boxes) told.push_back(box.text);
  const std::string expected = messageFor(disk.failedOperation(), disk.failedPath());
  EXPECT_EQ(told, expected.empty() ? std::vector<std::string>{} : std::vector{expected});
  EXPECT_EQ(save.files.openHandles(), 0U);
  EXPECT_EQ(save.result, !isUnsaved(expected));
  EXPECT_EQ(save.program.project.dirty, isUnsaved(expected) ? 1 : 0);

  // Every other file is whole: as it was, or as an undisturbed save leaves it.
  for (const auto& [name, content] : save.contents()) {
    const bool inHand = isInHand(name, disk.failedPath());
    EXPECT_TRUE(inHand || wholeContents.contains(content)) << name;
  }
  // And none but the oldest backup, and a form template that was changed, may go.
  for (const auto& [name, content] : save.before()) {
    const bool mayGo = name == kBackup + "10" || name == kBackup + "1" || isInHand(name, disk.failedPath());
    EXPECT_TRUE(mayGo || save.files.content(name).has_value()) << name;
  }
}

class SaveFault : public testing::TestWithParam<Failure> {};

TEST_P(SaveFault, EveryOperationInTurn) {
  FaultySave undisturbed(0, GetParam());
  const int points = undisturbed.disk().operations();
  ASSERT_GT(points, 20);
  EXPECT_TRUE(undisturbed.screen.boxes.empty());
  std::set<std::string> whole;
  for (const auto& [name, content] : undisturbed.before()) whole.insert(content);
  for (const auto& [name, content] : undisturbed.contents()) whole.insert(content);
  for (int at = 1; at <= points; ++at) checkFault(at, GetParam(), whole);
  std::cout << points << " points of failure in a save\n";
}

INSTANTIATE_TEST_SUITE_P(Disk, SaveFault, testing::Values(Failure::Denied, Failure::NoSpace),
                         [](const auto& test) { return test.param == Failure::Denied ? "Denied" : "NoSpace"; });

}  // namespace
}  // namespace varlo
