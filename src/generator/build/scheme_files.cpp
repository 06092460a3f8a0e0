#include "generator/build/scheme_files.h"

#include <string>

#include "core/program/program.h"
#include "core/program/scheme.h"
#include "core/store/string_item.h"
#include "core/text/paths.h"
#include "core/text/text_edit.h"
#include "generator/state/build_messages.h"
#include "generator/state/generator.h"

namespace varlo {
namespace {

// Deliberate: the whole path is turned to lower case, the directory as well.
std::string targetOf(std::string_view directory, std::string_view entry) {
  std::string target = SingleBackSlashes(std::string(directory).append("\\").append(PathName(entry)));
  TextLower(target);
  return target;
}

}  // namespace

void CopySchemeFiles(Generator& generator, std::string_view directory) {
  Program& program = generator.program;
  const Scheme* scheme = program.project.projectScheme;
  if (scheme == nullptr) return;
  for (const StringItem* file = scheme->files; file != nullptr; file = file->next) {
    const std::string_view entry = file->text.view();
    if (StaysBelow(PathName(entry)) && program.files.copy(entry, targetOf(directory, entry), true)) continue;
    LogError(generator.log, FillMessage(message::kSchemeCopyError, entry));
  }
}

}  // namespace varlo
