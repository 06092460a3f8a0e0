#include "core/tree/store_tree.h"

namespace varlo {

bool TreeWalk::descends() const { return node_->child != nullptr && (withChains_ || !IsProduct(*node_)); }

TreeWalk::Step TreeWalk::advance() {
  if (state_ == State::AtStart) {
    state_ = State::AtNode;
    return node_ == nullptr ? Step::Done : Step::Node;
  }
  if (node_ == nullptr) return Step::Done;
  if (state_ == State::AtNode && descends()) {
    open_.push_back(node_);
    node_ = node_->child;
    return Step::Node;
  }
  state_ = State::AtNode;
  if (node_->next != nullptr) {
    node_ = node_->next;
    return Step::Node;
  }
  if (open_.empty()) {
    node_ = nullptr;
    return Step::Done;
  }
  node_ = open_.back();
  open_.pop_back();
  state_ = State::AfterBranch;
  return Step::EndOfBranch;
}

}  // namespace varlo
