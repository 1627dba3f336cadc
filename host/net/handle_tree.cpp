#include "net/handle_tree.h"

#include "net/error.h"

namespace gpi {

GNetHandle* HandleTree::add(const std::shared_ptr<Node>& node) {
    const std::lock_guard lock(mutex_);
    const Node* const parent = node->parent().get();
    require(parent == nullptr || table_.find(parent->handle) != nullptr, G_NET_HANDLE);
    GNetHandle* const handle = table_.add(node);
    require(handle != nullptr, G_NET_TOO_MANY);
    node->handle = handle;
    if (parent != nullptr) {
        children_[parent->handle].push_back(handle);
    }
    return handle;
}

std::shared_ptr<Node> HandleTree::find(const GNetHandle* handle) const {
    auto node = table_.find(handle);
    require(node != nullptr, G_NET_HANDLE);
    return node;
}

void HandleTree::collect(const GNetHandle* handle, Family& family) const {
    if (const auto children = children_.find(handle); children != children_.end()) {
        for (const GNetHandle* const child : children->second) {
            collect(child, family);
        }
    }
    family.push_back(find(handle));
}

HandleTree::Family HandleTree::familyOf(const GNetHandle* handle) const {
    const std::lock_guard lock(mutex_);
    Family family;
    collect(handle, family);
    return family;
}

HandleTree::Family HandleTree::remove(const GNetHandle* handle) {
    const std::lock_guard lock(mutex_);
    Family family;
    collect(handle, family);
    if (const auto& parent = family.back()->parent(); parent != nullptr) {
        std::erase(children_[parent->handle], handle);
    }
    for (const auto& node : family) {
        children_.erase(node->handle);
        table_.remove(node->handle);
    }
    return family;
}

} // namespace gpi
