#include "persist/project/template_files.h"

#include <array>
#include <string>

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/text/open_file.h"
#include "core/text/paths.h"
#include "persist/project/project_paths.h"

namespace varlo {
namespace {

// The forms have names of the program's own, which stay in the folder.
std::string formPath(const StoreProject& project, std::string_view fileName) {
  return ProjectTemplatePath(project, fileName).value_or("");
}

void readTemplate(Program& program, int slot, std::string_view fileName, Text& text) {
  FileReadToSlot(program, slot, formPath(program.project, fileName), false);
  const TextSlot& read = program.slots[static_cast<std::size_t>(slot)];
  if (read.hasMemory()) text.assign(read.text());
}

// Whether the file holds exactly this text.
bool holdsText(Files& files, std::string_view path, std::string_view text) {
  OpenFile file(files, files.openRead(path));
  if (!file.isOpen()) return false;
  std::array<char, 4096> block;
  for (;;) {
    const std::size_t got = files.read(file.handle(), block.data(), block.size());
    if (got == 0) return text.empty();
    if (text.substr(0, got) != std::string_view(block.data(), got)) return false;
    text.remove_prefix(got);
  }
}

// Deletes the file and writes it anew, in one write.
PageSave writeTemplate(Program& program, std::string_view path, std::string_view text) {
  const std::string single = SingleBackSlashes(path);
  program.files.remove(single);
  OpenFile file(program.files, program.files.create(single));
  if (!file.isOpen()) return PageSave::NotCreated;
  const std::size_t written = program.files.write(file.handle(), text.data(), text.size());
  if (written == text.size()) return PageSave::Done;
  ErrorBox(program, FillMessage(message::kFileIncomplete, single));
  return PageSave::Incomplete;
}

// "Set" is not null here: an empty form template is written too. One that stands on the disk as it is stays
// untouched, so that a save that dies can't lose it.
PageSave saveFormTemplate(Program& program, const Text& text, std::string_view fileName) {
  const Text& folder = program.project.projectDir;
  if (text.isNull() || folder.isNull()) return PageSave::Done;
  const std::string path = formPath(program.project, fileName);
  return holdsText(program.files, path, text.view()) ? PageSave::Done : TemplateSaveFile(program, path, text.view());
}

}  // namespace

void ProjectReadTemplates(Program& program) {
  readTemplate(program, kSlotOrderForm, kOrderTemplateName, program.project.orderTemplate);
  readTemplate(program, kSlotConfirmation, kConfirmTemplateName, program.project.confirmTemplate);
}

// Deliberate: a form template that can't be created is told, and the project counts as saved all the same.
bool FormTemplatesSave(Program& program) {
  const PageSave order = saveFormTemplate(program, program.project.orderTemplate, kOrderTemplateName);
  const PageSave confirm = saveFormTemplate(program, program.project.confirmTemplate, kConfirmTemplateName);
  return order != PageSave::Incomplete && confirm != PageSave::Incomplete;
}

bool TemplateSave(Program& program, const StoreNode& node, std::string_view text) {
  const std::optional<std::string> path = NodeTemplatePath(program.project, node);
  const PageSave result = path ? writeTemplate(program, *path, text) : PageSave::NotCreated;
  if (result == PageSave::NotCreated) ErrorBox(program, message::kTemplateWriteError);
  return result == PageSave::Done;
}

PageSave TemplateSaveFile(Program& program, std::string_view path, std::string_view text) {
  const PageSave result = writeTemplate(program, path, text);
  if (result == PageSave::NotCreated) ErrorBox(program, message::kPageWriteError);
  return result;
}

}  // namespace varlo
