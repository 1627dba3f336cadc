// All that the network services keep.
#pragma once

#include "config/settings.h"
#include "file/root.h"
#include "net/error.h"
#include "net/handle_tree.h"
#include "net/kept.h"
#include "net/remote_file.h"
#include "net/session.h"

#include <memory>
#include <mutex>
#include <string>
#include <utility>

namespace gpi {

class Network {
  public:
    /// @throws NetError when libcurl cannot be used
    explicit Network(const Settings& settings);

    /// What a new session starts with.
    const Options& defaults() const { return defaults_; }

    /// Local files that are fetched, sent and trusted.
    const Root& files() const { return files_; }

    HandleTree handles;
    Keeper keeper;

    /// A node of a kind. @throws NetError
    template <typename Kind>
    std::shared_ptr<Kind> find(const GNetHandle* handle) const {
        auto node = std::dynamic_pointer_cast<Kind>(handles.find(handle));
        require(node != nullptr, G_NET_HANDLE_KIND);
        return node;
    }

    /// Has a node of a kind do something, while no other call works on it. @throws NetError
    template <typename Kind, typename Action>
    auto with(const GNetHandle* handle, Action&& action) {
        const auto node = find<Kind>(handle);
        const std::lock_guard lock(node->mutex());
        return std::forward<Action>(action)(node);
    }

    /// Brings to its end what belongs to a handle, and closes it. @throws the first error
    void close(const GNetHandle* handle);

    /// Asks for a URL on behalf of a session; it may have been kept. @param flags as for
    /// GNetOpenUrl()
    GNetHandle* openUrl(const GNetHandle* handle, const std::string& text,
                        const std::string& headers, uint32_t flags);

    // As GNetQueryOption() and GNetSetOption().
    void queryOption(const GNetHandle* handle, int32_t option, void* value, int32_t* size);
    void setOption(const GNetHandle* handle, int32_t option, const void* value, int32_t size,
                   bool all);

  private:
    GNetHandle* openHttpUrl(const std::shared_ptr<Session>& session, const Url& url,
                            const Options& options, const std::string& headers, uint32_t flags);
    GNetHandle* openFtpUrl(const std::shared_ptr<Session>& session, Url url, const Options& options,
                           uint32_t flags);

    /// What was kept of a file, or null.
    std::shared_ptr<const Kept> findKept(const RemoteFile& file, uint32_t flags);

    /// The certificates in a local file. @throws NetError, IoError
    std::shared_ptr<const std::string> certificatesOf(const std::string& path) const;

    Options defaults_;
    Root files_;
};

/// The network of a platform that runs. @throws NetError G_NET_STATE
Network& network();

} // namespace gpi
