// Where a platform cannot start programs.
#include "app/program_store.h"

#include "file/error.h"

namespace gpi {

pid_t ProgramStore::start(const Start& /*start*/) {
    throw IoError(G_IO_UNSUPPORTED);
}

int32_t ProgramStore::run(const Start& /*start*/) {
    throw IoError(G_IO_UNSUPPORTED);
}

bool ProgramStore::end(pid_t /*number*/) {
    return false;
}

} // namespace gpi
