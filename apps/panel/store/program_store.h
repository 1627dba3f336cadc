// Part programs, wherever they are.
#pragma once

#include "machine/worker.h"
#include "store/remote.h"

#include <array>
#include <vector>

namespace panel {

enum class Store : uint8_t { Panel, DataServer, WebServer };

struct StoredProgram {
    Store store;
    std::u16string name;
};

inline bool operator==(const StoredProgram& a, const StoredProgram& b) {
    return a.store == b.store && a.name == b.name;
}

/// The programs of the data server and of a web server, which tell them in a file programs.txt, a
/// name a line. They are copied to the panel before they are opened.
class ProgramStore {
  public:
    /// @param atOnce waits for the servers in the calls, as a script wants it
    /// @param webServer URL of the web server; empty for none
    ProgramStore(bool atOnce, const std::u16string& webServer);
    ~ProgramStore();
    ProgramStore(const ProgramStore&) = delete;
    ProgramStore& operator=(const ProgramStore&) = delete;

    /// Asks the servers what they have. An event of type ProgramsListed tells that one has
    /// answered.
    void list();
    /// What they had when they answered last.
    std::vector<StoredProgram> listed() const;

    /// Copies a program to the panel. An event of type ProgramFetched tells the end, `param1` being
    /// 1 when it is there.
    void fetch(const StoredProgram& program);

    /// The name that a program of a server has on the panel, beside the panel's own.
    static std::u16string copyName(const std::u16string& name) { return u"server_" + name; }

  private:
    std::vector<StoredProgram> readList(Store store) const;
    bool copy(const StoredProgram& program) const;
    const Remote* remote(Store store) const { return remotes_[static_cast<size_t>(store)].get(); }

    static constexpr size_t kStores = 3;

    std::array<std::unique_ptr<Remote>, kStores> remotes_; ///< by Store; null where there is none
    mutable std::mutex mutex_;
    std::array<std::vector<StoredProgram>, kStores> listed_; ///< by Store; guarded
    std::atomic<bool> stop_ = false;
    Worker worker_; ///< the last: its thread uses all of the above
};

} // namespace panel
