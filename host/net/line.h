// What a transfer of libcurl's needs, lent out and taken back with its connections.
#pragma once

#include <curl/curl.h>

#include <cstddef>
#include <memory>
#include <mutex>
#include <vector>

namespace gpi {

/// Room for one transfer, and the connections that earlier ones left open.
class Line {
  public:
    Line();

    CURLM* multi() const { return multi_.get(); }

  private:
    struct Free {
        void operator()(CURLM* multi) const { curl_multi_cleanup(multi); }
    };

    std::unique_ptr<CURLM, Free> multi_;
};

/// Lends lines out, from any thread.
class LinePool : public std::enable_shared_from_this<LinePool> {
  public:
    /// @param most lines that are out at a time
    explicit LinePool(size_t most) : most_(most) {}

    struct GiveBack {
        std::shared_ptr<LinePool> pool;
        void operator()(Line* line) const { pool->put(std::unique_ptr<Line>(line)); }
    };
    using Lease = std::unique_ptr<Line, GiveBack>;

    /// @throws NetError G_NET_STATE when all are out
    Lease take();

  private:
    void put(std::unique_ptr<Line> line);

    std::mutex mutex_;
    std::vector<std::unique_ptr<Line>> idle_;
    size_t most_;
    size_t out_ = 0;
};

} // namespace gpi
