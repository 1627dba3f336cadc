// Modules that are loaded.
#pragma once

#include "file/root.h"
#include "handle_table.h"

#include <quarlo/module.h>

#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace gpi {

/// Shared objects below a root, each loaded once and counted.
class ModuleStore {
  public:
    explicit ModuleStore(const std::string& folder) : root_(folder) {}

    /// Loads a module, or counts one that is loaded once more. The system's extension may be left
    /// out.
    ///
    /// @param shared modules loaded later may use its functions by name
    /// @return null when it cannot be loaded
    GModule* load(const char16_t* path, bool shared);

    /// False for what is no loaded module.
    bool free(GModule* module);

    /// A function of a module, or null.
    GModuleFunction function(GModule* module, const char* name) const;

  private:
    struct Unload {
        void operator()(void* object) const;
    };
    using Object = std::unique_ptr<void, Unload>;

    struct Loaded {
        Object object;
        std::string path;
        int32_t count = 1;
    };

    std::filesystem::path locate(const char16_t* path) const;

    Root root_;
    std::mutex mutex_;
    HandleTable<GModule, Loaded> loaded_;
    std::map<std::string, GModule*> byPath_;
};

} // namespace gpi
