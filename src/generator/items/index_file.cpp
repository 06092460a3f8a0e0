#include "generator/items/index_file.h"

#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/store/store_node.h"
#include "generator/state/generator.h"

namespace varlo {
namespace {

FileHandle replaceFile(Files& files, std::string_view path) {
  files.remove(path);
  return files.create(path);
}

std::string indexPath(const Program& program) {
  return std::string(program.project.webDir.view()).append(kIndexFileName);
}

// Deliberate: an absent text is told apart from an empty one.
std::string_view fieldOf(const Text& text) { return text.isNull() ? "(null)" : text.view(); }

}  // namespace

IndexFile::IndexFile(Generator& generator)
    : log_(generator.log),
      file_(generator.program.files, replaceFile(generator.program.files, indexPath(generator.program))) {
  Program& program = generator.program;
  if (!file_.isOpen()) {
    ErrorBox(program, FillMessage(message::kIndexFileError, indexPath(program)));
    return;
  }
  LineWriter& index = log_.index.emplace(program.files, file_.handle());
  LineWrite(index, "; Varlo Index File\n");
  LineWrite(index, "; v", kProductVersion, "\n");
}

IndexFile::~IndexFile() { log_.index.reset(); }

void IndexFileAddNode(BuildLog& log, const StoreNode& node) {
  if (!log.index) return;
  const std::string_view mark = IsProduct(node) ? "#P" : "#C";
  LineWrite(*log.index, mark, fieldOf(node.title), "|", fieldOf(node.cost), "|", fieldOf(node.fileName), "|",
            fieldOf(node.image), "|", fieldOf(node.imageLink), "|", fieldOf(node.metaDescription), "|",
            fieldOf(node.metaKeywords), "\n");
}

}  // namespace varlo
