#include "generator/pages/page_walk.h"

#include <vector>

#include "core/tree/store_tree.h"
#include "generator/pages/page_builder.h"
#include "generator/state/build_messages.h"
#include "persist/project/file_name_set.h"

namespace varlo {
namespace {

// The walk with a stack of its own: a project may nest as deep as it likes.
class PageWalk {
 public:
  explicit PageWalk(Generator& generator) : generator_(generator), builder_(generator) {}

  int run(StoreNode* first) {
    StoreNode* node = first;
    while (node != nullptr) {
      node = deepestFirst(node);
      for (;;) {
        if (generator_.log.stopRequested) return 0;
        take(*node);
        if (node->next != nullptr || open_.empty()) break;
        node = open_.back();
        open_.pop_back();
      }
      node = node->next;
    }
    return 1;
  }

 private:
  // The node that is built first of `node` and all below it. Deliberate: the names seen so far are forgotten
  // at each descent, so that duplicates are found among neighbours only.
  StoreNode* deepestFirst(StoreNode* node) {
    while (node->child != nullptr && !IsProduct(*node) && node->status >= 0) {
      open_.push_back(node);
      node = node->child;
      FileNameSetFree(names_);
    }
    return node;
  }

  void take(StoreNode& node) {
    if (node.status < 0) return;
    if (node.fileName.isSet()) checkName(node);
    builder_.build(&node);
  }

  void checkName(const StoreNode& node) {
    if (FileNameSetFind(names_, node.fileName.get()) != 0) {
      LogError(generator_.log, FillMessage(message::kDuplicateFileName, node.fileName.view()));
      return;
    }
    if (!IsShownByParent(node)) FileNameSetAdd(names_, node.fileName.get(), 1);
  }

  Generator& generator_;
  PageBuilder builder_;
  FileNameSet names_;
  std::vector<StoreNode*> open_;
};

}  // namespace

int BuildSiblings(Generator& generator, StoreNode* first) { return PageWalk(generator).run(first); }

int BuildPage(Generator& generator, StoreNode* node) { return PageBuilder(generator).build(node); }

}  // namespace varlo
