#include "generator/cart/cart_frames.h"

#include <algorithm>
#include <string>

#include "commerce/freight/freight_expression.h"
#include "core/program/program.h"
#include "core/text/line_writer.h"
#include "core/text/open_file.h"
#include "core/text/working_text.h"
#include "generator/cart/order_pages.h"
#include "generator/items/links.h"
#include "generator/items/reported_replace.h"
#include "generator/items/scheme_colours.h"
#include "generator/state/build_messages.h"
#include "generator/state/generator.h"
#include "generator/state/output_file.h"

namespace varlo {
namespace {

constexpr std::string_view kTrolleyName = "trolley.html";
constexpr std::string_view kRegisterName = "register.html";
constexpr std::string_view kServerKey = "$VARLO_SERVER";

void showLabel(const Generator& generator, std::string_view name) {
  if (generator.log.buildWindow != nullptr) generator.log.buildWindow->showLabel(name);
}

// A cart template; reads it when its slot holds no text. None when there is no memory for it.
const TextSlot* cartTemplate(Program& program, int slot, std::string_view path) {
  const TextSlot& held = program.slots[static_cast<std::size_t>(slot)];
  if (*held.text() == '\0') FileReadToSlot(program, slot, path, false);
  return held.hasMemory() ? &held : nullptr;
}

// Paints the cart, which has the last word on colours, and writes the file.
int finishCartFile(Generator& generator, std::string& text, std::string_view name) {
  ApplyCartColours(generator, text, name);
  return WriteGeneratedFile(generator.program, OutputPath(generator.program.project, name), text);
}

// The values of the scheme that only the cart shows. A heading stands in a quoted string of the script, so
// its single quotes become double ones; those of the other heading stay.
void replaceHeadings(Generator& generator, std::string& text) {
  const auto slotOrEmpty = [&generator](std::size_t number) {
    return SchemeSlot(generator.program.project, number).value_or("");
  };
  std::string heading(slotOrEmpty(slot::kHeading2));
  std::replace(heading.begin(), heading.end(), '\'', '"');
  ReplaceEvery(generator, text, "$HEADING2", heading, kRegisterName);
  ReplaceEvery(generator, text, "$HEADING3", slotOrEmpty(slot::kHeading3), kRegisterName);
  ReplaceEvery(generator, text, "$LISTCOLOR", slotOrEmpty(slot::kListColour), kRegisterName);
  ReplaceEvery(generator, text, "$FRAMECOLOR", slotOrEmpty(slot::kFrameColour), kRegisterName);
}

void replaceServer(Generator& generator, std::string& text) {
  if (text.find(kServerKey) == std::string::npos) return;
  const Text& server = generator.program.config.orderServer;
  if (!server.isSet()) LogError(generator.log, message::kNoRegisterServer);
  ReplaceEvery(generator, text, kServerKey, server.view(), kRegisterName);
}

// The three long texts go into the first place for each. Deliberate: one working text serves them all, and
// the capacity that the first ones gained is where the templates of the later ones are cut.
void replaceLongTexts(Generator& generator, std::string& text) {
  WorkingText working;
  BuildFreightExpression(generator.program.project, working);
  ReplaceSome(generator, 1, text, "$FREIGHT", working.text, kRegisterName);
  BuildOrderText(generator, working);
  ReplaceSome(generator, 1, text, "$FORM", working.text, kRegisterName);
  BuildConfirmText(generator, working);
  ReplaceSome(generator, 1, text, "$CONFIRM", working.text, kRegisterName);
}

}  // namespace

int WriteFrameLoader(Generator& generator, std::string_view pageFile, std::string_view targetName) {
  Program& program = generator.program;
  const StoreProject& project = program.project;
  showLabel(generator, targetName);
  const std::string path = std::string(project.webDir.view()).append("\\").append(targetName);
  OpenFile file(program.files, program.files.create(path));
  if (!file.isOpen()) {
    LogError(generator.log, FillMessage(message::kFrameLoaderLine, {targetName, path}));
    ErrorBox(program, message::kFrameLoaderError);
    return 0;
  }
  LineWriter writer(program.files, file.handle());
  // One piece, so a long title takes the end of the frameset with it.
  LineWrite(writer, "<HEAD>\n<TITLE>", project.storeTitle.isNull() ? "No Title" : project.storeTitle.view(),
            "</TITLE>\n<FRAMESET COLS=\"*,208\" BORDER=0 FRAMEBORDER=NO FRAMESPACING=0><FRAME SRC=\"", pageFile,
            "\" NAME=\"shopmain\" MARGINWIDTH=2><FRAMESET ROWS=\"*,110\"><FRAME SRC=\"trolley.html\" "
            "NAME=\"shoptrolley\" MARGINWIDTH=13 MARGINHEIGHT=5><FRAME SRC=\"register.html\" NAME=\"shopregister\" "
            "MARGINWIDTH=13 MARGINHEIGHT=5></FRAMESET></FRAMESET>");
  return 1;
}

int WriteTrolley(Generator& generator) {
  const TextSlot* source = cartTemplate(generator.program, kSlotTrolley, kTrolleyTemplate);
  if (source == nullptr) return 0;
  showLabel(generator, kTrolleyName);
  std::string text(source->text());
  return finishCartFile(generator, text, kTrolleyName);
}

int WriteRegister(Generator& generator) {
  const TextSlot* source = cartTemplate(generator.program, kSlotRegister, kRegisterTemplate);
  if (source == nullptr) return 0;
  showLabel(generator, kRegisterName);
  std::string text(source->text());
  replaceHeadings(generator, text);
  replaceServer(generator, text);
  replaceLongTexts(generator, text);
  ReplaceSome(generator, 4, text, "$USER", AccountUser(generator.program.config), kRegisterName);
  ReplaceSome(generator, 4, text, "$VERSION", kProductVersion, kRegisterName);
  ReplaceEvery(generator, text, "$CURRENCY", generator.program.project.currency.view(), kRegisterName);
  return finishCartFile(generator, text, kRegisterName);
}

}  // namespace varlo
