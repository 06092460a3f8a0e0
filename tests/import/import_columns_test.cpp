#include "import/import_columns.h"

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "import/import_dialect.h"

namespace varlo {
namespace {

// The table once more, as an owner sees it.
struct Row {
  int number;
  std::string_view label;
  NodeText text;
  Treatment treatment;
};

constexpr Row kRows[] = {
    {1, "Title", NodeText::Title, Treatment::AsRead},
    {2, "Page Title", NodeText::PageTitle, Treatment::AsRead},
    {3, "Filename", NodeText::FileName, Treatment::AsRead},
    {4, "Product Code", NodeText::ProductCode, Treatment::AsRead},
    {5, "Meta Keywords", NodeText::MetaKeywords, Treatment::AsRead},
    {6, "Meta Description", NodeText::MetaDescription, Treatment::AsRead},
    {7, "Image URL", NodeText::Image, Treatment::AsRead},
    {8, "Image Link", NodeText::ImageLink, Treatment::AsRead},
    {9, "Template", NodeText::TemplateName, Treatment::AsRead},
    {10, "Freight", NodeText::Freight, Treatment::Decimal},
    {11, "Weight", NodeText::Weight, Treatment::Decimal},
    {12, "Cost", NodeText::Cost, Treatment::Price},
    {13, "Tax", NodeText::Tax, Treatment::Decimal},
    {14, "Description", NodeText::Body, Treatment::AsRead},
};

ImportFieldNumber number(int row) { return static_cast<ImportFieldNumber>(row); }

TEST(ImportColumns, EachFieldHasItsNumberLabelTextAndTreatment) {
  for (const Row& row : kRows) {
    const ImportField& field = ImportFieldOf(number(row.number));
    EXPECT_EQ(field.label, row.label);
    EXPECT_EQ(field.text, row.text) << row.label;
    EXPECT_EQ(field.treatment, row.treatment) << row.label;
  }
}

TEST(ImportColumns, TheOptionTextsFollowAndAreTreatedAsNumbersWhereTheyLookLikeThem) {
  for (int i = 0; i < 6; ++i) {
    const ImportField& value = ImportFieldOf(number(15 + i));
    const ImportField& label = ImportFieldOf(number(21 + i));
    EXPECT_EQ(value.label, "Field " + std::to_string(i + 1));
    EXPECT_EQ(label.label, "Label " + std::to_string(i + 1));
    EXPECT_EQ(value.text, NodeField(static_cast<std::size_t>(i)));
    EXPECT_EQ(label.text, NodeLabel(static_cast<std::size_t>(i)));
    EXPECT_EQ(value.treatment, Treatment::DecimalIfNumeric);
    EXPECT_EQ(label.treatment, Treatment::DecimalIfNumeric);
  }
}

TEST(ImportColumns, AFieldIsFoundByItsNameOrItsLabel) {
  EXPECT_EQ(FindImportField("code"), kProductCodeField);
  EXPECT_EQ(FindImportField("product code"), kProductCodeField);
  EXPECT_EQ(FindImportField("Title"), 1);
  EXPECT_EQ(FindImportField("label6"), 26);
  EXPECT_EQ(FindImportField("LABEL 6"), 26);
  for (int i = 1; i <= kImportFields; ++i) EXPECT_EQ(FindImportField(ImportFieldOf(number(i)).name), i);
}

TEST(ImportColumns, OtherWordsAreNoFields) {
  for (const char* name : {"", " ", "label7", "titles", "titl", "CODE "}) {
    EXPECT_EQ(FindImportField(name), kNoImportField) << name;
  }
}

TEST(ImportColumns, TheHeadingIsTheLabelOrThreeQuestionMarks) {
  ImportColumns columns{};
  columns[2] = 12;
  columns[25] = 26;
  EXPECT_EQ(ColumnHeading(columns, 0), "???");
  EXPECT_EQ(ColumnHeading(columns, 2), "Cost");
  EXPECT_EQ(ColumnHeading(columns, 25), "Label 6");
  EXPECT_EQ(ColumnHeading(columns, 26), "???");
  EXPECT_EQ(ColumnHeading(columns, 1000), "???");
}

TEST(ImportColumns, AFieldOnSomeColumnIsAssigned) {
  ImportColumns columns{};
  columns[25] = 7;
  EXPECT_TRUE(IsAssigned(columns, 7));
  EXPECT_FALSE(IsAssigned(columns, 8));
}

std::string treated(Treatment treatment, const std::string& value, const std::string& point = ".") {
  return TreatValue({.decimalPoint = point}, treatment, value);
}

TEST(TreatValue, AsReadNothingChanges) { EXPECT_EQ(treated(Treatment::AsRead, "$1,50", ","), "$1,50"); }

TEST(TreatValue, EveryDecimalPointBecomesADot) {
  EXPECT_EQ(treated(Treatment::Decimal, "1,50", ","), "1.50");
  EXPECT_EQ(treated(Treatment::Decimal, ",1,,5,", ","), ".1..5.");
  EXPECT_EQ(treated(Treatment::Decimal, "about 1,5", ","), "about 1.5");
  EXPECT_EQ(treated(Treatment::Decimal, "", ","), "");
}

TEST(TreatValue, TheWholeTextIsTheDecimalPoint) {
  EXPECT_EQ(treated(Treatment::Decimal, "1,5 komma 2", " komma "), "1,5.2");
  EXPECT_EQ(treated(Treatment::Decimal, "1....5", ".."), "1..5");
}

TEST(TreatValue, WithADotOrNothingAsDecimalPointNothingIsReplaced) {
  EXPECT_EQ(treated(Treatment::Decimal, "1,50", "."), "1,50");
  EXPECT_EQ(treated(Treatment::Decimal, "1,50", ""), "1,50");
}

TEST(TreatValue, AnOptionIsANumberWhenItBeginsWithADigitOrTheDecimalPoint) {
  EXPECT_EQ(treated(Treatment::DecimalIfNumeric, "1,5 kg, red", ","), "1.5 kg. red");
  EXPECT_EQ(treated(Treatment::DecimalIfNumeric, ",5", ","), ".5");
  EXPECT_EQ(treated(Treatment::DecimalIfNumeric, "red, 1,5", ","), "red, 1,5");
  EXPECT_EQ(treated(Treatment::DecimalIfNumeric, "-1,5", ","), "-1,5");
  EXPECT_EQ(treated(Treatment::DecimalIfNumeric, "komma komma", "komma"), ". .");
  EXPECT_EQ(treated(Treatment::DecimalIfNumeric, "keep komma", "komma"), "keep .");
  EXPECT_EQ(treated(Treatment::DecimalIfNumeric, "", ","), "");
  EXPECT_EQ(treated(Treatment::DecimalIfNumeric, "1,5", ""), "1,5");
}

TEST(TreatValue, OfAPriceWhatStandsBeforeTheNumberGoesAndWhatFollowsStays) {
  EXPECT_EQ(treated(Treatment::Price, "$12.50"), "12.50");
  EXPECT_EQ(treated(Treatment::Price, "USD .50 each"), ".50 each");
  EXPECT_EQ(treated(Treatment::Price, "-5"), "5");
  EXPECT_EQ(treated(Treatment::Price, "12.50"), "12.50");
}

TEST(TreatValue, APriceWithoutDigitOrDotIsEmpty) {
  EXPECT_EQ(treated(Treatment::Price, "ask us"), "");
  EXPECT_EQ(treated(Treatment::Price, ""), "");
}

TEST(TreatValue, APriceWithADecimalCommaIsNormalisedFirst) {
  EXPECT_EQ(treated(Treatment::Price, "EUR 1,50", ","), "1.50");
  EXPECT_EQ(treated(Treatment::Price, "EUR ,50", ","), ".50");
  EXPECT_EQ(treated(Treatment::Price, "1,50"), "1,50");
}

}  // namespace
}  // namespace varlo
