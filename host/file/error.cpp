#include "file/error.h"

#include <cerrno>

namespace gpi {

int32_t ioErrorOf(int systemError) {
    switch (systemError) {
    case ENOENT:
    case ENOTDIR:
        return G_IO_NOT_FOUND;
    case EACCES:
    case EPERM:
    case ELOOP:
    case EISDIR:
        return G_IO_DENIED;
    case EROFS:
        return G_IO_READ_ONLY;
    case EEXIST:
        return G_IO_EXISTS;
    case EBUSY:
    case ETXTBSY:
    case ENOTEMPTY:
    case EWOULDBLOCK:
        return G_IO_IN_USE;
    case ENOSPC:
    case EDQUOT:
        return G_IO_FULL;
    case EMFILE:
    case ENFILE:
        return G_IO_TOO_MANY;
    case EFBIG:
    case EOVERFLOW:
    case ENAMETOOLONG:
        return G_IO_TOO_LARGE;
    case EINVAL:
    case EILSEQ: // a name that is no text
        return G_IO_ARGUMENT;
    case ENOMEM:
        return G_IO_NO_MEMORY;
    default:
        return G_IO_DEVICE;
    }
}

void throwSystemError() {
    throw IoError(ioErrorOf(errno));
}

} // namespace gpi
