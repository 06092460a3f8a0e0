#include "generator/template/template_source.h"

#include <algorithm>

#include "core/program/program.h"
#include "core/text/limits.h"
#include "core/text/open_file.h"
#include "generator/items/item_values.h"
#include "generator/state/build_messages.h"
#include "generator/state/generator.h"
#include "generator/template/page_marks.h"
#include "generator/template/store_values.h"
#include "persist/life/template_set.h"
#include "persist/project/project_paths.h"

namespace varlo {
namespace {

// What is kept: at most so many templates, and no more bytes than that beside the two in use.
constexpr std::size_t kKeptTemplates = 12;
constexpr std::size_t kKeptBytes = 64 * 1024 * 1024;
constexpr std::size_t kInUse = 2;
constexpr std::size_t kReadSize = 64 * 1024;

// The last line of what a file holds, with its line end.
std::string_view lastLine(std::string_view raw) {
  const std::size_t before = raw.size() < 2 ? std::string_view::npos : raw.rfind('\n', raw.size() - 2);
  return raw.substr(before == std::string_view::npos ? 0 : before + 1);
}

}  // namespace

TemplateSource::TemplateSource(ItemValues& values)
    : values_(values), generator_(values.generator()), plan_(generator_.program.project.variables) {}

// Empty, as no file's path is, for a name that leads out of the folder of templates.
std::string TemplateSource::pathOf(const StoreNode& node) const {
  const StoreProject& project = generator_.program.project;
  return (generator_.useSetTemplates ? SetTemplatePath(project, node) : NodeTemplatePath(project, node)).value_or("");
}

// A file that was not opened leaves the slot's text, as one does that can't be.
void TemplateSource::readIntoSlot(std::string_view path, bool opened) {
  TextSlot& slot = generator_.program.slots[kSlotTemplate];
  if (opened) {
    FileReadToSlot(generator_.program, kSlotTemplate, path, true);
  } else if (slot.prepare()) {
    slot.rewind();
  }
}

// Reads the bytes of a file at once, into the buffer. False when it can't be opened, and, with an error, when it is
// longer than a page can be.
bool TemplateSource::readRaw(const StoreNode& node, std::string_view path, std::string_view& raw) {
  Files& files = generator_.program.files;
  OpenFile file(files, files.openRead(path));
  if (!file.isOpen()) return false;
  std::size_t size = 0;
  for (;;) {
    if (buffer_.size() < size + kReadSize) buffer_.resize(size + kReadSize);
    const std::size_t got = files.read(file.handle(), buffer_.data() + size, buffer_.size() - size);
    size += got;
    if (size < buffer_.size() || size > kLongestText) break;
  }
  if (size > kLongestText) {
    LogError(generator_.log, FillMessage(message::kTemplateTooLong, {node.fileName.view(), path}));
    return false;
  }
  raw = std::string_view(buffer_).substr(0, size);
  return true;
}

const PageTemplate* TemplateSource::read(const StoreNode& node) {
  const std::string path = pathOf(node);
  const bool isShelf = IsShelfOrList(node);
  TextSlot& slot = generator_.program.slots[kSlotTemplate];
  std::string_view raw;
  const bool opened = readRaw(node, path, raw);
  if (!generator_.useSetTemplates) RememberTemplate(generator_.program.project, path);
  const auto same = std::find_if(kept_.begin(), kept_.end(), [&](const Kept& kept) {
    return kept.isShelf == isShelf && kept.path == path && !kept.raw.empty() && kept.raw == raw;
  });
  if (opened && same != kept_.end() && slot.hold(same->text)) {
    kept_.splice(kept_.begin(), kept_, same);
    generator_.program.lineBuffer.hold(lastLine(raw));  // as reading by lines leaves it
    return &same->page;
  }
  readIntoSlot(path, opened);
  if (!slot.hasMemory()) return nullptr;
  Kept& kept = keep(path, isShelf, slot.text());
  // A file without a line leaves the slot as it was, so its bytes do not tell what the slot holds.
  if (opened && slot.length() > 0) kept.raw = raw;
  dropOldest();
  return &kept.page;
}

// The prepared template of a text, made now unless the same text was met before.
TemplateSource::Kept& TemplateSource::keep(std::string_view path, bool isShelf, std::string_view text) {
  const auto same = std::find_if(kept_.begin(), kept_.end(), [&](const Kept& kept) {
    return kept.isShelf == isShelf && kept.path == path && kept.text == text;
  });
  if (same != kept_.end()) {
    kept_.splice(kept_.begin(), kept_, same);
    return kept_.front();
  }
  Kept& kept = kept_.emplace_front();
  kept.path = path;
  kept.isShelf = isShelf;
  kept.text = text;
  prepare(kept);
  return kept;
}

// Forgets the templates that were used longest ago, as far as there are too many or too long ones.
void TemplateSource::dropOldest() {
  std::size_t bytes = 0;
  for (const Kept& kept : kept_) bytes += kept.size();
  while (kept_.size() > kKeptTemplates || (kept_.size() > kInUse && bytes > kKeptBytes)) {
    bytes -= kept_.back().size();
    kept_.pop_back();
  }
}

std::size_t TemplateSource::Kept::size() const {
  std::size_t bytes = raw.size() + text.size() + page.page.size() + page.block.size();
  for (const PreparedText* prepared : {page.preparedPage.get(), page.preparedBlock.get()}) {
    if (prepared != nullptr) bytes += prepared->text.size();
  }
  return bytes;
}

void TemplateSource::prepare(Kept& kept) {
  PageTemplate& page = kept.page;
  page.page = kept.text;
  if (kept.isShelf) {
    const ShelfBlock found = FindShelfBlock(kept.text);
    if (!found.found) {
      page.shelf = ShelfState::Missing;
    } else {
      page.shelf = found.block.size() < kShelfBlock ? ShelfState::Taken : ShelfState::TooLong;
      if (page.shelf == ShelfState::Taken) page.block = found.block;
      page.page.replace(found.begin, found.end - found.begin, kShelfKey);
    }
  }
  if (!plan_.isQuick()) return;
  page.preparedPage = PrepareForStore(plan_, values_, page.page);
  if (page.shelf == ShelfState::Taken) page.preparedBlock = PrepareForStore(plan_, values_, page.block, true);
}

}  // namespace varlo
