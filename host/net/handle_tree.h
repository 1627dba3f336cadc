// Handles that belong to others.
#pragma once

#include "handle_table.h"
#include "net/node.h"

#include <map>
#include <memory>
#include <mutex>
#include <vector>

namespace gpi {

/// The open handles. May be used from any thread.
class HandleTree {
  public:
    /// Puts a node under a handle that belongs to its parent's.
    ///
    /// @throws NetError G_NET_TOO_MANY; G_NET_HANDLE when the parent was closed meanwhile
    GNetHandle* add(const std::shared_ptr<Node>& node);

    /// @throws NetError G_NET_HANDLE
    std::shared_ptr<Node> find(const GNetHandle* handle) const;

    using Family = std::vector<std::shared_ptr<Node>>;

    /// A node and all that belong to it, each before the one that it belongs to.
    ///
    /// @throws NetError G_NET_HANDLE
    Family familyOf(const GNetHandle* handle) const;

    /// The same, and takes them from under their handles.
    Family remove(const GNetHandle* handle);

  private:
    void collect(const GNetHandle* handle, Family& family) const;

    mutable std::mutex mutex_;
    HandleTable<GNetHandle, Node> table_;
    std::map<const GNetHandle*, std::vector<const GNetHandle*>> children_;
};

} // namespace gpi
