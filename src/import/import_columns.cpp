#include "import/import_columns.h"

#include <algorithm>

#include "core/text/text_edit.h"
#include "core/text/text_search.h"
#include "import/import_dialect.h"

namespace varlo {
namespace {

constexpr std::array<ImportField, kImportFields> kFields{{
    {NodeText::Title, "Title", "title"},
    {NodeText::PageTitle, "Page Title", "page-title"},
    {NodeText::FileName, "Filename", "filename"},
    {NodeText::ProductCode, "Product Code", "code"},
    {NodeText::MetaKeywords, "Meta Keywords", "meta-keywords"},
    {NodeText::MetaDescription, "Meta Description", "meta-description"},
    {NodeText::Image, "Image URL", "image"},
    {NodeText::ImageLink, "Image Link", "image-link"},
    {NodeText::TemplateName, "Template", "template"},
    {NodeText::Freight, "Freight", "freight", Treatment::Decimal},
    {NodeText::Weight, "Weight", "weight", Treatment::Decimal},
    {NodeText::Cost, "Cost", "cost", Treatment::Price},
    {NodeText::Tax, "Tax", "tax", Treatment::Decimal},
    {NodeText::Body, "Description", "description"},
    {NodeText::Field1, "Field 1", "field1", Treatment::DecimalIfNumeric},
    {NodeText::Field2, "Field 2", "field2", Treatment::DecimalIfNumeric},
    {NodeText::Field3, "Field 3", "field3", Treatment::DecimalIfNumeric},
    {NodeText::Field4, "Field 4", "field4", Treatment::DecimalIfNumeric},
    {NodeText::Field5, "Field 5", "field5", Treatment::DecimalIfNumeric},
    {NodeText::Field6, "Field 6", "field6", Treatment::DecimalIfNumeric},
    {NodeText::Label1, "Label 1", "label1", Treatment::DecimalIfNumeric},
    {NodeText::Label2, "Label 2", "label2", Treatment::DecimalIfNumeric},
    {NodeText::Label3, "Label 3", "label3", Treatment::DecimalIfNumeric},
    {NodeText::Label4, "Label 4", "label4", Treatment::DecimalIfNumeric},
    {NodeText::Label5, "Label 5", "label5", Treatment::DecimalIfNumeric},
    {NodeText::Label6, "Label 6", "label6", Treatment::DecimalIfNumeric},
}};
static_assert(kFields[kProductCodeField - 1].text == NodeText::ProductCode);
static_assert(!kFields.back().label.empty());

bool looksNumeric(std::string_view value, std::string_view point) {
  return !value.empty() && (IsDigit(value[0]) || (!point.empty() && value[0] == point[0]));
}

// Each whole decimal point becomes a ".", from left to right.
void normaliseDecimal(std::string& value, const std::string& point) {
  if (point.empty() || point == ".") return;
  std::size_t at = 0;
  while (at != std::string::npos) at = TextReplace(value, point.c_str(), ".", at);
}

void cutCurrency(std::string& value) { value.erase(0, value.find_first_of(".0123456789")); }

}  // namespace

const ImportField& ImportFieldOf(ImportFieldNumber number) { return kFields[number - std::size_t{1}]; }

ImportFieldNumber FindImportField(std::string_view name) {
  const auto found = std::find_if(kFields.begin(), kFields.end(), [&](const ImportField& field) {
    return field.name == name || EqualsNoCase(field.label, name);
  });
  if (found == kFields.end()) return kNoImportField;
  return static_cast<ImportFieldNumber>(found - kFields.begin() + 1);
}

std::string_view ColumnHeading(const ImportColumns& columns, std::size_t column) {
  const bool carries = column < columns.size() && columns[column] != kNoImportField;
  return carries ? ImportFieldOf(columns[column]).label : kUnassignedHeading;
}

bool IsAssigned(const ImportColumns& columns, ImportFieldNumber number) {
  return std::find(columns.begin(), columns.end(), number) != columns.end();
}

std::string TreatValue(const ImportDialect& dialect, Treatment treatment, std::string value) {
  const std::string& point = dialect.decimalPoint;
  const bool isNumber =
      treatment == Treatment::DecimalIfNumeric ? looksNumeric(value, point) : treatment != Treatment::AsRead;
  if (isNumber) normaliseDecimal(value, point);
  if (treatment == Treatment::Price) cutCurrency(value);
  return value;
}

}  // namespace varlo
