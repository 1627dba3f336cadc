// What stands behind a handle of network.h.
#pragma once

#include "net/options.h"

#include <quarlo/network.h>

#include <memory>
#include <mutex>
#include <string>

namespace gpi {

/// A session, a connection, a request, a file or a list. One call at a time works on it.
class Node {
  public:
    /// @param kind G_NET_KIND_SESSION and so on
    /// @param parent null for a session
    Node(int32_t kind, std::shared_ptr<Node> parent, Options options)
        : kind_(kind), parent_(std::move(parent)), options_(std::move(options)) {}
    virtual ~Node() = default;
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;

    int32_t kind() const { return kind_; }
    const std::shared_ptr<Node>& parent() const { return parent_; }

    /// Where it leads; empty for nowhere.
    virtual std::string url() const { return {}; }

    /// Brings what was begun to its end before the handle is gone. @throws NetError
    virtual void finish() {}

    Options options() const {
        const std::lock_guard lock(optionsMutex_);
        return options_;
    }

    /// @param change takes Options&; when it throws, the options stay
    template <typename Change>
    void changeOptions(Change&& change) {
        const std::lock_guard lock(optionsMutex_);
        Options changed = options_;
        change(changed);
        options_ = std::move(changed);
    }

    /// Held by the call that works on it.
    std::mutex& mutex() { return mutex_; }

    GNetHandle* handle = nullptr; ///< set once by the tree

  private:
    const int32_t kind_;
    const std::shared_ptr<Node> parent_;
    std::mutex mutex_;
    mutable std::mutex optionsMutex_; // a call may wait long, a look at the options may not
    Options options_;
};

} // namespace gpi
