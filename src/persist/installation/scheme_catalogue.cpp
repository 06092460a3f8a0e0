#include "persist/installation/scheme_catalogue.h"

#include <array>

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/store/record.h"
#include "core/store/string_item.h"
#include "core/text/line_reader.h"
#include "core/text/line_writer.h"
#include "core/text/number_text.h"
#include "core/text/open_file.h"
#include "core/text/text_edit.h"
#include "core/text/text_search.h"

namespace varlo {
namespace {

class Reader {
 public:
  explicit Reader(Program& program) : program_(program), config_(program.config) {}

  void readLine(std::string_view line);

 private:
  void openCategory();
  void closeCategory();
  void openRecord(std::string_view name);
  void linkRecord();
  void readKey(std::string_view line);

  Program& program_;
  AppConfig& config_;
  SchemeStyle* styleHolder_ = nullptr;
  SchemeRecord* record_ = nullptr;
  bool categoryPending_ = false;
};

void Reader::readLine(std::string_view line) {
  if (line.starts_with("#CAT")) {
    openCategory();
  } else if (line.starts_with("#BREAK")) {
    closeCategory();
  } else if (line.starts_with("template=")) {
    config_.schemeTemplateSet.assignLine(TextBehind(line, '='));
  } else if (line.starts_with("SCHEMA=")) {
    openRecord(TextBehind(line, '='));
  } else if (record_ != nullptr) {
    readKey(line);
  }
}

// A scheme holds no schemes, so a mark below one is ignored.
void Reader::openCategory() {
  if (!config_.insertAfterIsScheme) categoryPending_ = true;
}

// A mark that closes nothing is ignored: the next record goes behind the last one all the same.
void Reader::closeCategory() {
  if (styleHolder_ == nullptr || !config_.insertAfterIsScheme) return;
  config_.insertAfter = styleHolder_;
  config_.insertAfterIsScheme = false;
}

void Reader::openRecord(std::string_view name) {
  record_ = SchemeInit(nullptr);
  record_->name.assignLine(name);
  if (config_.schemeStyles == nullptr) {
    config_.schemeStyles = record_;
    config_.insertAfterIsScheme = false;
  } else {
    linkRecord();
  }
  config_.insertAfter = record_;
}

void Reader::linkRecord() {
  if (config_.insertAfter == nullptr) config_.insertAfter = RecordLast(config_.schemeStyles);
  if (categoryPending_) {
    styleHolder_ = config_.insertAfter;
    // A second category of one style takes the place of the first.
    SchemeListFree(program_, styleHolder_->schemes);
    styleHolder_->schemes = record_;
    categoryPending_ = false;
    config_.insertAfterIsScheme = true;
  } else {
    config_.insertAfter->next = record_;
  }
  record_->prev = config_.insertAfter;
}

void Reader::readKey(std::string_view line) {
  const std::string_view value = TextBehind(line, '=');
  if (line.starts_with("TYP=")) {
    record_->type = LeadingInt(value);
  } else if (line.starts_with("PREVIEW=")) {
    record_->preview.assignLine(value);
  } else if (line.starts_with("DEF=")) {
    record_->directory.assignLine(value);
  } else if (!line.empty() && IsDigit(line.front())) {
    ReadSchemeSlot(*record_, line);
  } else if (line.starts_with("SCF=")) {
    AppendSchemeFile(*record_, value);
  } else if (line.starts_with("CLR=")) {
    ReadCustomColours(*record_, value);
  }
}

void writeSet(LineWriter& writer, std::string_view key, const Text& value) {
  if (value.isSet()) LineWrite(writer, key, "=", value, "\n");
}

void writeColours(LineWriter& writer, const CustomColours& colours) {
  static constexpr std::string_view kDigits = "0123456789ABCDEF";
  LineWrite(writer, "CLR=");
  for (const std::uint8_t byte : colours)
    LineWrite(writer, kDigits.substr(byte >> 4, 1), kDigits.substr(byte & 15, 1));
  LineWrite(writer, "\n");
}

// Only the user's records are written.
void writeRecord(LineWriter& writer, const SchemeRecord& record) {
  if (record.type != kSchemeOwn) return;
  if (record.name.isSet()) LineWrite(writer, "\nSCHEMA=", record.name, "\n");
  writeSet(writer, "PREVIEW", record.preview);
  writeSet(writer, "DEF", record.directory);
  LineWrite(writer, "TYP=", record.type, "\n");
  for (std::size_t i = 0; i < kSchemeSlots; ++i) {
    if (record.slot[i].isSet()) LineWrite(writer, i, "=", record.slot[i], "\n");
  }
  writeColours(writer, record.customColours);
  for (const StringItem* file = record.files; file != nullptr; file = file->next) {
    LineWrite(writer, "SCF=", file->text, "\n");
  }
}

void writeStyle(LineWriter& writer, const SchemeStyle& style) {
  writeRecord(writer, style);
  if (style.schemes == nullptr || style.type != kSchemeOwn) return;
  LineWrite(writer, "#CAT\n");
  for (const Scheme* scheme = style.schemes; scheme != nullptr; scheme = scheme->next) writeRecord(writer, *scheme);
  LineWrite(writer, "#BREAK\n");
}

// By slot; slot 23, the text colour of the cart, has none.
constexpr std::array<const char*, kSchemeSlots> kDefaultSlots{
    "WHITE",
    "#900000",
    "PURPLE",
    "YELLOW",
    "WHITE",
    "BLACK",
    "#901000",
    "#800080",
    "YELLOW",
    "WHITE",
    "<IMG SRC=h1.gif ALIGN=TOP WIDTH=180 HEIGH=26></TD></TR><TR><TD VALIGN=TOP BGCOLOR=#DDDDDD>",
    "<IMG SRC=\"h2.gif\"><BR>",
    "<IMG SRC=\"h3.gif\"><BR>",
    "WHITE",
    "BLACK",
    "#900000",
    "PURPLE",
    "YELLOW",
    "#C3C3C3",
    "#606090",
    "#C3C3C3",
    "#606090",
    "WHITE",
    nullptr,
    "img\\f.gif",
    "img\\g.gif",
    "img\\o.gif",
    "img\\a.gif",
    "img\\add.gif",
    "img\\back.gif",
    "img\\remove.gif",
};

constexpr std::array<const char*, 10> kDefaultFiles{"img\\h1.gif",     "img\\h2.gif",  "img\\h3.gif", "img\\f.gif",
                                                    "img\\g.gif",      "img\\o.gif",   "img\\a.gif",  "img\\add.gif",
                                                    "img\\remove.gif", "img\\back.gif"};

}  // namespace

int SchemeCatalogueRead(Program& program, std::string_view path) {
  OpenFile file(program.files, program.files.openRead(path));
  if (!file.isOpen()) return 0;
  LineReader lines(program.files, file.handle(), program.lineBuffer);
  Reader reader(program);
  std::string_view line;
  while (LineReadTrimmed(lines, line) != 0) reader.readLine(line);
  return 1;
}

int SchemeCatalogueSave(Program& program) {
  OpenFile file(program.files, program.files.create("scheme.ini"));
  if (!file.isOpen()) {
    ErrorBox(program, message::kCatalogueError);
    return 0;
  }
  LineWriter writer(program.files, file.handle());
  LineWrite(writer, "product=", kProductName, "\n");
  LineWrite(writer, "version=", kProductVersion, "\n");
  for (const SchemeStyle* style = program.config.schemeStyles; style != nullptr; style = style->next) {
    writeStyle(writer, *style);
  }
  return 1;
}

void SchemeDefaults(Scheme& scheme) {
  for (std::size_t i = 0; i < kSchemeSlots; ++i) {
    if (kDefaultSlots[i] != nullptr) scheme.slot[i].assign(kDefaultSlots[i]);
  }
  StringItemListFree(scheme.files);
  scheme.files = nullptr;
  for (const char* path : kDefaultFiles) AppendSchemeFile(scheme, path);
}

int TemplateVersionsRead(Program& program) {
  AppConfig& config = program.config;
  config.templateVersionOrder = 0;
  config.templateVersionConfirm = 0;
  OpenFile file(program.files, program.files.openRead("version.ini"));
  if (!file.isOpen()) return 0;
  LineReader reader(program.files, file.handle(), program.lineBuffer);
  std::string_view line;
  while (LineRead(reader, line) != 0) {
    if (line.starts_with("ORDER=")) config.templateVersionOrder = LeadingInt(TextBehind(line, '='));
    if (line.starts_with("CONFIRM=")) config.templateVersionConfirm = LeadingInt(TextBehind(line, '='));
  }
  return 1;
}

void ReadSchemeSlot(Scheme& scheme, std::string_view line) {
  const std::int32_t number = LeadingInt(line);
  if (line.find('=') == std::string_view::npos || number < 0 || number >= static_cast<int>(kSchemeSlots)) return;
  scheme.slot[static_cast<std::size_t>(number)].assignLine(TextBehind(line, '='));
}

void ReadCustomColours(Scheme& scheme, std::string_view digits) {
  scheme.customColours.fill(0);
  for (std::uint8_t& byte : scheme.customColours) {
    if (digits.empty()) return;
    byte = HexPairValue(digits.substr(0, 2));
    digits.remove_prefix(std::min<std::size_t>(2, digits.size()));
  }
}

void AppendSchemeFile(Scheme& scheme, std::string_view path) {
  StringItem* item = StringItemInit(nullptr);
  item->text.assignLine(path);
  StringItem* last = RecordLast(scheme.files);
  RecordAppend(scheme.files, last, item);
}

}  // namespace varlo
