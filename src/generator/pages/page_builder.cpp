#include "generator/pages/page_builder.h"

#include "core/program/program.h"
#include "core/text/open_file.h"
#include "core/text/paths.h"
#include "core/tree/store_tree.h"
#include "generator/items/index_file.h"
#include "generator/items/node_images.h"
#include "generator/items/reported_replace.h"
#include "generator/state/build_messages.h"
#include "generator/template/page_marks.h"
#include "generator/template/plain_page.h"
#include "generator/template/substitute_item.h"

namespace varlo {

int PageBuilder::build(StoreNode* node) {
  if (node == nullptr || IsShownByParent(*node)) return 0;
  tellProgress(*node);
  IndexFileAddNode(generator_.log, *node);
  ++generator_.pageCounter;
  const PageTemplate* source = templates_.read(*node);
  if (source == nullptr) return 1;
  const std::string* shelf = takeShelf(*source, *node);
  const TextSigns::Found found = fill(*source, *node, shelf) ? quick_.signs().found : TextSigns::kAll;
  if (found.plusComment) OpenPlusComment(page_);
  return write(*node, found);
}

void PageBuilder::tellProgress(const StoreNode& node) {
  BuildWindow* window = generator_.log.buildWindow;
  if (window == nullptr) return;
  window->stepProgress();
  window->showLabel(node.fileName.view());
}

// The shelf block once for each child; null when the page has no block, and, with an error, when the items are
// longer than a page can be. Deliberate: disabled children are
// shown as well.
const std::string* PageBuilder::takeShelf(const PageTemplate& source, StoreNode& node) {
  if (source.shelf == ShelfState::Missing) {
    LogError(generator_.log, FillMessage(message::kNoShelfBlock, node.fileName.view()));
  }
  if (source.shelf == ShelfState::Taken) {
    block_ = generator_.scratch = source.block;
  } else if (source.shelf == ShelfState::TooLong) {
    block_ = generator_.scratch;
  } else {
    return nullptr;
  }
  shelf_.clear();
  bool fits = true;
  for (StoreNode* child = node.child; child != nullptr; child = child->next) {
    fits = fits && appendItem(source, *child, node);
    CopyNodeImages(generator_, *child, node);
  }
  if (fits) return &shelf_;
  ReportEndless(generator_, Replaced::Endless, node.fileName.view(), kShelfKey);
  return nullptr;
}

// False when the items become longer than a page can be.
bool PageBuilder::appendItem(const PageTemplate& source, const StoreNode& item, const StoreNode& page) {
  const PreparedText* block = source.preparedBlock.get();
  if (block == nullptr || !quick_.appendItem(templates_.plan(), *block, item, page, shelf_)) {
    std::string text = block_;
    SubstituteItem(values_, text, item, page);
    if (shelf_.size() + text.size() > kLongestText) return false;
    shelf_ += text;
  }
  return shelf_.size() <= kLongestText;
}

// Fills the page; gives whether it went the quick way.
bool PageBuilder::fill(const PageTemplate& source, StoreNode& node, const std::string* shelf) {
  const PreparedText* text = source.preparedPage.get();
  if (text != nullptr && quick_.fillPage(templates_.plan(), *text, node, shelf, page_)) return true;
  page_ = source.page;
  FillPlainPage(values_, page_, node, shelf);
  return false;
}

FileHandle PageBuilder::createFile(const StoreNode& node) {
  if (!StaysBelow(node.fileName.view())) return kNoFile;
  path_.assign(generator_.program.project.webDir.view()).append("\\").append(node.fileName.view());
  return generator_.program.files.createOver(path_);
}

int PageBuilder::write(StoreNode& node, const TextSigns::Found& found) {
  Files& files = generator_.program.files;
  OpenFile file(files, createFile(node));
  if (!file.isOpen()) {
    ErrorBox(generator_.program, message::kPageCreateError);
    return 0;
  }
  // What stood around a mark may have joined to a comment.
  const bool joined = RemoveShelfMarks(page_) || found.plusComment;
  if ((found.comment || joined) && !RemoveComments(page_)) {
    LogError(generator_.log, FillMessage(message::kEndlessComment, node.fileName.view()));
  }
  if (!page_.empty()) files.write(file.handle(), page_.data(), page_.size());
  node.modified = 0;
  return 1;
}

}  // namespace varlo
