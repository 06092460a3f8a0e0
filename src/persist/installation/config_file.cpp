#include "persist/installation/config_file.h"

#include <algorithm>
#include <array>

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/program/scheme.h"
#include "core/store/record.h"
#include "core/text/line_reader.h"
#include "core/text/line_writer.h"
#include "core/text/number_text.h"
#include "core/text/open_file.h"
#include "core/text/text_edit.h"
#include "core/text/text_search.h"
#include "persist/installation/scheme_catalogue.h"

namespace varlo {
namespace {

// A line as the tests see it.
struct Line {
  std::string_view whole;
  std::string_view value;  // behind the first "="
};

struct Test {
  std::string_view key;
  void (*apply)(Program& program, std::string_view value);
};

template <Text AppConfig::*Member>
void text(Program& program, std::string_view value) {
  (program.config.*Member).assignLine(value);
}

template <std::size_t Index>
void lastDir(Program& program, std::string_view value) {
  program.config.lastDir[Index].assignLine(value);
}

template <std::int32_t AppConfig::*Member>
void number(Program& program, std::string_view value) {
  program.config.*Member = LeadingInt(value);
}

void server(Program& program, std::string_view value) {
  if (program.config.orderServer.isNull()) program.config.orderServer.assignLine(value);
}

void projectFile(Program& program, std::string_view value) { program.project.projectFile.assignLine(value); }

void deleteFile(Program& program, std::string_view value) { program.files.remove(value); }

// Deliberate: a key is found anywhere in the line, so the order decides what a line means; "uid=" stands
// before "id=", which it holds. Files rely on it.
constexpr std::array kTests{
    Test{"browser=", text<&AppConfig::browser>},
    Test{"proxy=", text<&AppConfig::proxy>},
    Test{"varlo=", text<&AppConfig::orderServer>},
    Test{"server=", server},
    Test{"LD1=", lastDir<0>},
    Test{"LD2=", lastDir<1>},
    Test{"LD3=", lastDir<2>},
    Test{"LD4=", lastDir<3>},
    Test{"SCHEMA=", nullptr},  // at the start of the line only
    Test{"port=", number<&AppConfig::proxyPort>},
    Test{"file=", projectFile},
    Test{"uid=", number<&AppConfig::uid>},
    Test{"id=", text<&AppConfig::accountId>},
    Test{"newwin=", number<&AppConfig::newWindow>},
    Test{"case=", number<&AppConfig::lowerCaseLinks>},
    Test{"other=", number<&AppConfig::directoryLink>},
    Test{"display=", number<&AppConfig::display>},
    Test{"control=", number<&AppConfig::control>},
    Test{"view=", number<&AppConfig::viewFlags>},
    Test{"help=", number<&AppConfig::helpAtStart>},
    Test{"delete=", deleteFile},
};

// Slots that the lines of an old layout section name by a word.
struct NamedSlot {
  std::string_view key;
  std::size_t slot;
};
constexpr std::array kNamedSlots{NamedSlot{"A=", 27},   NamedSlot{"G=", 25},   NamedSlot{"F=", 24},
                                 NamedSlot{"O=", 26},   NamedSlot{"ADD=", 28}, NamedSlot{"REM=", 30},
                                 NamedSlot{"BACK=", 29}};

// Settings of version 1.02 held their schemes in the same file.
class LayoutSection {
 public:
  explicit LayoutSection(AppConfig& config) : config_(config) {}

  void openScheme(std::string_view name) {
    Scheme* scheme = SchemeInit(nullptr);
    scheme->type = kSchemeOwn;
    scheme->name.assignLine(name);
    if (scheme_ == nullptr) {
      SchemeStyle* style = makeStyle();
      style->schemes = scheme;
      scheme->prev = style;
    } else {
      scheme_->next = scheme;
      scheme->prev = scheme_;
    }
    scheme_ = scheme;
  }

  void readLine(const Line& line) {
    if (scheme_ == nullptr || line.whole.empty()) return;
    if (IsDigit(line.whole.front())) {
      ReadSchemeSlot(*scheme_, line.whole);
      return;
    }
    for (const NamedSlot& named : kNamedSlots) {
      if (!line.whole.starts_with(named.key)) continue;
      scheme_->slot[named.slot].assignLine(line.value);
      return;
    }
    if (line.whole.starts_with("CLR=")) ReadCustomColours(*scheme_, line.value);
    if (line.whole.starts_with("SCF=")) AppendSchemeFile(*scheme_, line.value);
  }

 private:
  SchemeStyle* makeStyle() {
    SchemeStyle* style = SchemeInit(nullptr);
    style->type = kSchemeOwn;
    style->name.assign("v1.02 Schema");
    SchemeStyle* last = RecordLast(config_.schemeStyles);
    RecordAppend(config_.schemeStyles, last, style);
    return style;
  }

  AppConfig& config_;
  Scheme* scheme_ = nullptr;
};

bool matches(const Test& test, std::string_view line) {
  return test.apply == nullptr ? line.starts_with(test.key) : line.find(test.key) != std::string_view::npos;
}

void readLine(Program& program, LayoutSection& section, const Line& line) {
  const auto* test =
      std::find_if(kTests.begin(), kTests.end(), [&](const Test& t) { return matches(t, line.whole); });
  if (test == kTests.end()) {
    section.readLine(line);
  } else if (test->apply == nullptr) {
    section.openScheme(line.value);
  } else {
    test->apply(program, line.value);
  }
}

void writeSet(LineWriter& writer, std::string_view key, const Text& value) {
  if (value.isSet()) LineWrite(writer, key, "=", value, "\n");
}

void writeConfig(const Program& program, LineWriter& writer) {
  const AppConfig& config = program.config;
  LineWrite(writer, "version=", kProductVersion, "\n");
  writeSet(writer, "browser", config.browser);
  writeSet(writer, "proxy", config.proxy);
  writeSet(writer, "varlo", config.orderServer);
  writeSet(writer, "file", program.project.projectFile);
  writeSet(writer, "LD1", config.lastDir[0]);
  writeSet(writer, "LD2", config.lastDir[1]);
  writeSet(writer, "LD3", config.lastDir[2]);
  writeSet(writer, "LD4", config.lastDir[3]);
  LineWrite(writer, "port=", config.proxyPort, "\n");
  LineWrite(writer, "newwin=", config.newWindow, "\n");
  LineWrite(writer, "case=", config.lowerCaseLinks, "\n");
  LineWrite(writer, "view=", config.viewFlags, "\n");
  LineWrite(writer, "other=", config.directoryLink, "\n");
  LineWrite(writer, "display=", config.display, "\n");
  LineWrite(writer, "control=", config.control, "\n");
  LineWrite(writer, "help=", config.helpAtStart, "\n");
  LineWrite(writer, "uid=", config.uid, "\n");
  writeSet(writer, "id", config.accountId);
}

}  // namespace

int ConfigRead(Program& program, std::string_view path) {
  OpenFile file(program.files, program.files.openRead(path));
  if (!file.isOpen()) return 0;
  LineReader reader(program.files, file.handle(), program.lineBuffer);
  LayoutSection section(program.config);
  std::string_view line;
  while (LineReadTrimmed(reader, line) != 0) readLine(program, section, {line, TextBehind(line, '=')});
  program.config.currentStyle = program.config.schemeStyles;
  return 1;
}

int ConfigSave(Program& program) {
  {
    OpenFile file(program.files, program.files.create("config.ini"));
    if (!file.isOpen()) {
      ErrorBox(program, message::kConfigError);
      return 0;
    }
    LineWriter writer(program.files, file.handle());
    writeConfig(program, writer);
  }
  return SchemeCatalogueSave(program);
}

}  // namespace varlo
