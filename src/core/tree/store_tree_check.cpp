#include "core/tree/store_tree_check.h"

#include <unordered_set>

#include "core/store/store_project.h"
#include "core/tree/store_tree.h"

namespace varlo {
namespace {

class Check {
 public:
  explicit Check(const StoreProject& project) : project_(project) {}

  StoreTreeReport run() {
    checkRoot();
    checkTree();
    checkReferences();
    return std::move(report_);
  }

 private:
  // A list that is still to be walked: where it hangs, the item that holds it, and whether it stands in front of the
  // root.
  struct List {
    StoreNode* head;
    StoreNode* owner;
    bool inFront = false;
  };

  void fault(const std::string& words, const StoreNode* node) {
    const std::string title = node == nullptr ? "" : " (" + std::string(node->title.orEmpty()) + ")";
    report_.faults.push_back(words + title);
  }

  bool pooled(const StoreNode* node) {
    if (node == nullptr || known_.contains(node)) return true;
    if (!project_.nodes.holds(node)) return false;
    known_.insert(node);
    return true;
  }

  void checkRoot() {
    const StoreNode* root = project_.root;
    if (root == nullptr) return;
    if (root->prev != nullptr && firstInFront() == root) fault("the root has a prev", root);
    if (root->parent != nullptr) fault("the root has a parent", root);
  }

  // The first of those that the root was moved down past; the root where it was not.
  StoreNode* firstInFront() {
    StoreNode* first = project_.root;
    std::size_t steps = project_.nodes.size();
    while (first != nullptr && pooled(first->prev) && leadsTo(first->prev, first) && steps-- > 0) first = first->prev;
    return first;
  }
  static bool leadsTo(const StoreNode* before, const StoreNode* node) {
    return before != nullptr && !before->released && before->next == node;
  }

  // The walk goes by next and child alone, so that it can judge prev and parent.
  void checkTree() {
    StoreNode* first = firstInFront();
    std::vector<List> lists{{first, nullptr, first != project_.root}};
    while (!lists.empty()) {
      List list = lists.back();
      lists.pop_back();
      StoreNode* before = list.owner;
      for (StoreNode* node = list.head; node != nullptr; node = node->next) {
        if (node == project_.root) list.inFront = false;
        if (!checkNode(*node, before, list)) return;
        if (node->child != nullptr) lists.push_back({node->child, node, list.inFront});
        before = node;
      }
    }
  }

  // False when going on would not end.
  bool checkNode(StoreNode& node, const StoreNode* before, const List& list) {
    const StoreNode* owner = list.owner;
    ++(list.inFront ? report_.inFront : report_.nodes);
    if (!reached_.insert(&node).second) {
      fault("a node is reached twice", &node);
      return false;
    }
    if (!project_.nodes.holds(&node)) fault("a node of the tree is not of the pool", &node);
    if (node.released) fault("a released node is in the tree", &node);
    checkPrev(node, before);
    checkParent(node, owner);
    if (!IsProduct(node) && owner != nullptr && owner->kind != NodeKind::Category) ++report_.misplaced;
    return true;
  }

  void checkPrev(const StoreNode& node, const StoreNode* before) {
    if (!pooled(node.prev)) fault("a prev leads out of the pool", &node);
    if (node.prev == before) return;
    ++report_.strangePrev;
    const bool made = node.id != 0 && IsProduct(node);
    if (!made && node.prev != nullptr) fault("a prev is not the node before", &node);
  }

  void checkParent(const StoreNode& node, const StoreNode* owner) {
    if (!pooled(node.parent)) fault("a parent leads out of the pool", &node);
    if (node.parent != nullptr && !node.parent->released && IsProduct(*node.parent)) {
      fault("a parent is a product", &node);
    }
    const StoreNode* holder = owner != nullptr && IsProduct(*owner) ? owner->parent : owner;
    if (node.parent != holder) ++report_.strangeParent;
  }

  void checkReferences() {
    const StoreNode* references[] = {project_.currentNode, project_.treeNode, project_.dragNode, project_.dragList};
    for (const StoreNode* node : references) {
      if (node == nullptr) continue;
      if (!project_.nodes.holds(node)) fault("a reference leads out of the pool", nullptr);
      if (node->released) fault("a reference names a released node", node);
    }
    const StoreNode* copy = project_.clipboardNode.get();
    if (copy == nullptr) return;
    if (copy->next != nullptr || copy->prev != nullptr || copy->parent != nullptr || copy->child != nullptr) {
      fault("the clipboard's node is linked", copy);
    }
    if (reached_.contains(copy)) fault("the clipboard's node is in the tree", copy);
  }

  const StoreProject& project_;
  StoreTreeReport report_;
  std::unordered_set<const StoreNode*> reached_;
  std::unordered_set<const StoreNode*> known_;
};

}  // namespace

StoreTreeReport StoreTreeCheck(const StoreProject& project) { return Check(project).run(); }

}  // namespace varlo
