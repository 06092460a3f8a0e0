// Whole lists, from the file to the saved project.
#include "tests/import/import_lists.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "persist/project/project_load.h"
#include "persist/project/project_save.h"
#include "tests/import/test_sheet.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;

std::string contentOf(std::string_view name) {
  std::ifstream file(std::string(VARLO_IMPORT_LISTS) + "/" + std::string(name), std::ios::binary);
  EXPECT_TRUE(file.is_open()) << name;
  return {std::istreambuf_iterator<char>(file), {}};
}

class ImportLists : public testing::TestWithParam<ImportList> {
 protected:
  TestProgram t;
  ImportSheet sheet;

  void SetUp() override {
    t.config().uid = kListUid;
    t.files.put("C:\\shop\\shop.stp", contentOf("start.stp"));
    t.project().projectFile.assign("C:\\shop\\shop.stp");
    ASSERT_EQ(ProjectLoad(t.program), 1);
    t.project().currentNode = t.project().treeNode = t.project().root->child;
    ASSERT_EQ(t.project().currentNode->fileName.view(), kListCategory);
  }

  void read() {
    t.files.put("list", contentOf(GetParam().file));
    ASSERT_GT(ReadImportFile(t.program, "list", sheet.rows, sheet.dialect.fieldDelimiter), 0);
    sheet.dialect.quote = sheet.dialect.quoteEscape = GetParam().quote;
    sheet.dialect.decimalPoint = GetParam().decimal;
  }

  void assign() {
    std::string_view names = GetParam().columns;
    for (std::size_t column = 0; !names.empty(); ++column) {
      const std::string_view name = names.substr(0, names.find(','));
      names.remove_prefix(std::min(name.size() + 1, names.size()));
      sheet.columnField.at(column) = FindImportField(name);
      EXPECT_EQ(sheet.columnField.at(column) == kNoImportField, name.empty()) << name;
    }
  }
};

TEST_P(ImportLists, BecomeTheExpectedProject) {
  read();
  assign();
  std::vector<std::size_t> rows = AllRows(sheet);
  rows.erase(rows.begin(), rows.begin() + static_cast<std::ptrdiff_t>(GetParam().first));
  EXPECT_EQ(static_cast<std::size_t>(ImportProducts(t.program, sheet, rows)), rows.size());
  ASSERT_EQ(ProjectSave(t.program), 1);
  EXPECT_EQ(t.files.content("C:\\shop\\shop.stp"), contentOf("expected/" + std::string(GetParam().project)));
}

TEST_P(ImportLists, AnUpdateWithTheSameListChangesNothing) {
  read();
  assign();
  const std::vector<std::size_t> all = AllRows(sheet);
  const auto rows = std::span(all).subspan(GetParam().first);
  ImportProducts(t.program, sheet, rows);
  EXPECT_GT(UpdateProducts(t.program, sheet, rows), 0);
  ASSERT_EQ(ProjectSave(t.program), 1);
  EXPECT_EQ(t.files.content("C:\\shop\\shop.stp"), contentOf("expected/" + std::string(GetParam().project)));
}

std::string nameOf(const testing::TestParamInfo<ImportList>& info) {
  std::string name(info.param.file.substr(0, info.param.file.find('.')));
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(All, ImportLists, testing::ValuesIn(kImportLists), nameOf);

}  // namespace
}  // namespace varlo
