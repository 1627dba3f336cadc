/**
 * @file network.h
 * Network access: HTTP, HTTPS and FTP.
 *
 * Every function forwards to one service and returns 0 or null when the platform lacked it at
 * start-up. Success is 1, a handle or what a function says. A failure is 0, null or -1; its reason
 * is GNetGetLastError().
 *
 * Handles form a tree: GNetOpen() gives a session, GNetConnect() and GNetOpenUrl() what belongs to
 * it, and so on. A handle that is closed takes all that belongs to it along. A handle serves one
 * thread at a time.
 *
 * Certificates of HTTPS servers are always verified. Local files follow the path rules of file.h.
 *
 * A text that is handed back goes to a buffer with a size beside it, in units: room for how many on
 * the call; on success how many were written, without the NUL that follows them; with
 * #G_NET_BUFFER how many are needed, with the NUL.
 */
#ifndef QUARLO_NETWORK_H
#define QUARLO_NETWORK_H

#include <quarlo/file.h>
#include <quarlo/types.h>

QUARLO_BEGIN

/** Reasons of a failure. */
enum {
    G_NET_OK = 0,                /**< the last call succeeded */
    G_NET_ARGUMENT = 1,          /**< an argument is null or out of range */
    G_NET_HANDLE = 2,            /**< not an open handle */
    G_NET_HANDLE_KIND = 3,       /**< an open handle, but of another kind */
    G_NET_STATE = 4,             /**< not now: the request is not sent yet, or ended already */
    G_NET_URL = 5,               /**< not a URL */
    G_NET_PROTOCOL = 6,          /**< a protocol that the platform does not speak, or broken */
    G_NET_BUFFER = 7,            /**< the buffer is too small */
    G_NET_NO_MEMORY = 8,         /**< memory is short */
    G_NET_NAME = 9,              /**< the server's name has no address */
    G_NET_REFUSED = 10,          /**< no connection to the server */
    G_NET_TIMEOUT = 11,          /**< nothing happened for too long */
    G_NET_BROKEN = 12,           /**< the connection broke off */
    G_NET_CERTIFICATE = 13,      /**< the server's certificate is not good */
    G_NET_REDIRECTS = 14,        /**< more redirects than allowed */
    G_NET_LOGIN = 15,            /**< user or password refused */
    G_NET_DENIED = 16,           /**< not permitted */
    G_NET_NOT_FOUND = 17,        /**< no such file, folder, header or option */
    G_NET_EXISTS = 18,           /**< there is such a file already */
    G_NET_END = 19,              /**< the end of a list */
    G_NET_SERVER = 20,           /**< the server failed */
    G_NET_LOCAL_FILE = 21,       /**< the local file cannot be read or written */
    G_NET_READ_ONLY_OPTION = 22, /**< the option can only be read */
    G_NET_UNSUPPORTED = 23,      /**< the server cannot do that, such as sending part of a file */
    G_NET_FULL = 24,             /**< no room on the server */
    G_NET_TOO_MANY = 25          /**< too many handles */
};

/** Protocols, for GNetConnect() and GNetUrl. */
enum {
    G_NET_HTTP = 1,  /**< HTTP */
    G_NET_HTTPS = 2, /**< HTTP over TLS */
    G_NET_FTP = 3    /**< FTP */
};

/** Usual ports. */
enum {
    G_NET_PORT_DEFAULT = 0, /**< the protocol's own */
    G_NET_PORT_FTP = 21,    /**< FTP */
    G_NET_PORT_HTTP = 80,   /**< HTTP */
    G_NET_PORT_HTTPS = 443  /**< HTTPS */
};

/** Flags of calls that open or transfer something; bits. */
enum {
    G_NET_RELOAD = 1,          /**< nothing that was kept from earlier is used */
    G_NET_NO_REDIRECT = 2,     /**< a redirect is handed back as the answer */
    G_NET_KEEP_CONNECTION = 4, /**< the connection is used again for the next request */
    G_NET_ASCII = 8,           /**< FTP: line ends are translated */
    G_NET_ACTIVE = 16          /**< FTP: the server opens the data connection */
};

/** Flags of the URL functions; bits. */
enum {
    G_URL_DECODE = 1,   /**< %xx becomes the character that it stands for */
    G_URL_ENCODE = 2,   /**< characters that a URL cannot hold become %xx */
    G_URL_KEEP_DOTS = 4 /**< "." and ".." stay in the path */
};

/** What GNetHttpAddRequestHeaders() does with a header that is there already; bits. */
enum {
    G_HEADER_ADD = 1,    /**< the new one stands beside it */
    G_HEADER_REPLACE = 2 /**< the new one takes its place; an empty one removes it */
};

/** What GNetHttpQueryInfo() asks for. */
enum {
    G_HTTP_STATUS = 1,         /**< the status, an int32_t */
    G_HTTP_STATUS_TEXT = 2,    /**< the status text */
    G_HTTP_VERSION = 3,        /**< such as "HTTP/1.1" */
    G_HTTP_HEADERS = 4,        /**< all headers, a CR LF after each */
    G_HTTP_CONTENT_LENGTH = 5, /**< bytes, an int32_t; -1 when not told or more than it holds */
    G_HTTP_CONTENT_TYPE = 6,   /**< such as "text/html" */
    G_HTTP_LAST_MODIFIED = 7,  /**< as of GETime(), a uint32_t */
    G_HTTP_LOCATION = 8,       /**< where a redirect leads */
    G_HTTP_HEADER = 9          /**< one header; its name stands in the buffer on the call */
};

/** Options of handles. A handle starts with those of the handle that it belongs to. */
enum {
    G_NET_OPTION_CONNECT_TIMEOUT = 1, /**< milliseconds to connect, int32_t; 10000 */
    G_NET_OPTION_IDLE_TIMEOUT = 2,    /**< milliseconds without a byte, int32_t; 30000 */
    G_NET_OPTION_REDIRECTS = 3,       /**< redirects to follow, int32_t, 0 to 50; 10 */
    G_NET_OPTION_AGENT = 4,           /**< how the program calls itself, text */
    G_NET_OPTION_USER = 5,            /**< user name, text */
    G_NET_OPTION_PASSWORD = 6,        /**< password, text; reading it is denied */
    G_NET_OPTION_PROXY = 7,           /**< URL of a proxy, text; empty for none */
    G_NET_OPTION_AUTHORITIES = 8,     /**< local file of trusted certificate authorities, text */
    G_NET_OPTION_RATE = 9,            /**< bytes a second at most, int32_t; 0 for no limit */
    G_NET_OPTION_KIND = 10,           /**< one of the handle kinds, int32_t; read only */
    G_NET_OPTION_PARENT = 11,         /**< what it belongs to, GNetHandle*; read only */
    G_NET_OPTION_URL = 12             /**< where it leads, redirects followed, text; read only */
};

/** Kinds of handles. */
enum {
    G_NET_KIND_SESSION = 1,    /**< of GNetOpen() */
    G_NET_KIND_CONNECTION = 2, /**< of GNetConnect() */
    G_NET_KIND_REQUEST = 3,    /**< of GNetHttpOpenRequest() or GNetOpenUrl() */
    G_NET_KIND_FTP_FILE = 4,   /**< of GNetFtpOpenFile() or GNetOpenUrl() */
    G_NET_KIND_FIND = 5        /**< of GNetFtpFindFirstFile() */
};

/** Flags of GNetSetOption(); bits. */
enum { G_NET_OPTION_ALL = 1 /**< handles that belong to this one already get it too */ };

/** Units of the parts of a URL, their NUL included. */
enum {
    G_URL_PART_SIZE = 256,  /**< of a host, a user and so on */
    G_URL_PATH_SIZE = 2048, /**< of a path */
    G_URL_SIZE = 3072       /**< of a whole URL */
};

/** A session, a connection, a request, an open file or a list. */
typedef struct GNetHandle GNetHandle;

/** What GNetLockRequestFile() keeps. */
typedef struct GNetLock GNetLock;

/** The parts of a URL; a part that it lacks is empty. */
typedef struct GNetUrl {
    int32_t protocol;                   /**< #G_NET_HTTP, #G_NET_HTTPS or #G_NET_FTP */
    int32_t port;                       /**< 1 to 65535; 0 for the protocol's own */
    char16_t user[G_URL_PART_SIZE];     /**< user name */
    char16_t password[G_URL_PART_SIZE]; /**< password */
    char16_t host[G_URL_PART_SIZE];     /**< server */
    char16_t path[G_URL_PATH_SIZE];     /**< from its first slash */
    char16_t extra[G_URL_PART_SIZE];    /**< query and fragment, from '?' or '#' */
} GNetUrl;

/** One entry of a folder on an FTP server. */
typedef struct GNetFileInfo {
    char16_t name[G_NAME_SIZE]; /**< without its folder, NUL-terminated */
    uint32_t sizeLow;           /**< low 32 bits of its bytes */
    uint32_t sizeHigh;          /**< high 32 bits of its bytes */
    uint32_t attributes;        /**< #G_FILE_READABLE and so on */
    uint32_t time;              /**< of the last change, as of GETime(); 0 when not told */
} GNetFileInfo;

/**
 * Forwards to service 83: takes a URL apart.
 *
 * @param flags #G_URL_DECODE or 0
 * @param parts receives its parts
 */
QUARLO_API int32_t GNetCrackUrl(const char16_t* url, uint32_t flags, GNetUrl* parts);

/**
 * Forwards to service 84: puts a URL together.
 *
 * @param parts the parts
 * @param flags #G_URL_ENCODE or 0
 * @param url receives the URL
 * @param size its room
 */
QUARLO_API int32_t GNetCreateUrl(const GNetUrl* parts, uint32_t flags, char16_t* url,
                                 int32_t* size);

/**
 * Forwards to service 85: brings a URL into its usual form.
 *
 * @param url the URL
 * @param out receives the URL
 * @param size its room
 * @param flags #G_URL_DECODE, #G_URL_ENCODE, #G_URL_KEEP_DOTS
 */
QUARLO_API int32_t GNetCanonicalizeUrl(const char16_t* url, char16_t* out, int32_t* size,
                                       uint32_t flags);

/**
 * Forwards to service 86: where a relative URL leads.
 *
 * @param base the URL that it stands in
 * @param relative the relative URL
 * @param out receives the URL
 * @param size its room
 * @param flags as for GNetCanonicalizeUrl()
 */
QUARLO_API int32_t GNetCombineUrl(const char16_t* base, const char16_t* relative, char16_t* out,
                                  int32_t* size, uint32_t flags);

/**
 * Forwards to service 87: begins a session.
 *
 * @param agent how the program calls itself to servers; null for the platform's own name
 * @return the session, to be closed
 */
QUARLO_API GNetHandle* GNetOpen(const char16_t* agent);

/** Forwards to service 88: closes a handle and all that belongs to it. */
QUARLO_API int32_t GNetCloseHandle(GNetHandle* handle);

/**
 * Forwards to service 89: names a server. HTTP connects with the first request, FTP at once.
 *
 * @param session a session
 * @param server name or address
 * @param port 1 to 65535, or #G_NET_PORT_DEFAULT
 * @param user user name, or null
 * @param password password, or null
 * @param protocol #G_NET_HTTP, #G_NET_HTTPS or #G_NET_FTP
 * @param flags #G_NET_ACTIVE or 0
 * @return a connection
 */
QUARLO_API GNetHandle* GNetConnect(GNetHandle* session, const char16_t* server, int32_t port,
                                   const char16_t* user, const char16_t* password, int32_t protocol,
                                   uint32_t flags);

/**
 * Forwards to service 90: asks for a URL; its contents are then read.
 *
 * @param session a session
 * @param url the URL
 * @param headers of the HTTP request, a CR LF after each; may be null
 * @param flags #G_NET_RELOAD and so on
 * @return a request that has been sent, or an open file
 */
QUARLO_API GNetHandle* GNetOpenUrl(GNetHandle* session, const char16_t* url,
                                   const char16_t* headers, uint32_t flags);

/**
 * Forwards to service 91: reads what a request or a file holds.
 *
 * @param buffer room for `size` bytes
 * @return bytes read, fewer than `size` at the end only, 0 there (and when the platform lacks it);
 *     -1 when it failed
 */
QUARLO_API int32_t GNetReadFile(GNetHandle* file, void* buffer, int32_t size);

/**
 * Forwards to service 92: sets the position of the next read. The server must be able to send parts
 * of a file.
 *
 * @param offset bytes, also negative
 * @param origin #G_SEEK_START, #G_SEEK_CURRENT or #G_SEEK_END
 * @return the new position; -1 when it failed
 */
QUARLO_API int32_t GNetSetFilePointer(GNetHandle* file, int32_t offset, int32_t origin);

/**
 * Forwards to service 93: writes to a file opened for it, or to a request whose body is still open.
 *
 * @param buffer `size` bytes
 * @param written receives the bytes written, also when it failed; may be null
 */
QUARLO_API int32_t GNetWriteFile(GNetHandle* file, const void* buffer, int32_t size,
                                 int32_t* written);

/** Forwards to service 94: how many bytes GNetReadFile() gives without waiting. */
QUARLO_API int32_t GNetQueryDataAvailable(GNetHandle* file, int32_t* bytes);

/** Forwards to service 95: the next entry of a list. Fails with #G_NET_END behind the last. */
QUARLO_API int32_t GNetFindNextFile(GNetHandle* find, GNetFileInfo* info);

/**
 * Forwards to service 96: reads an option.
 *
 * @param option #G_NET_OPTION_CONNECT_TIMEOUT and so on
 * @param value receives it
 * @param size its room and, on success, its length: bytes, or units for a text
 */
QUARLO_API int32_t GNetQueryOption(GNetHandle* handle, int32_t option, void* value, int32_t* size);

/**
 * Forwards to service 97: sets an option.
 *
 * @param option #G_NET_OPTION_CONNECT_TIMEOUT and so on
 * @param value the value
 * @param size its length: bytes, or units without a NUL for a text
 * @param flags #G_NET_OPTION_ALL or 0
 */
QUARLO_API int32_t GNetSetOption(GNetHandle* handle, int32_t option, const void* value,
                                 int32_t size, uint32_t flags);

/**
 * Forwards to service 98: keeps what has been read of a request or file, so that it can be read
 * again from the platform's memory when its handle is long closed: GNetOpenUrl() of the same URL
 * finds it.
 *
 * @param lock receives what GNetUnlockRequestFile() wants
 */
QUARLO_API int32_t GNetLockRequestFile(GNetHandle* file, GNetLock** lock);

/** Forwards to service 99: gives up what GNetLockRequestFile() keeps. */
QUARLO_API int32_t GNetUnlockRequestFile(GNetLock* lock);

/**
 * Forwards to service 100: prepares an HTTP request.
 *
 * @param connection a connection to an HTTP or HTTPS server
 * @param verb such as "GET"; null for that
 * @param path what is asked for; null for "/"
 * @param version such as "HTTP/1.1"; null for the best that both sides speak
 * @param referrer URL that led there, or null
 * @param accept kinds of contents that are welcome, null after the last; null for all
 * @param flags #G_NET_RELOAD and so on
 * @return a request
 */
QUARLO_API GNetHandle* GNetHttpOpenRequest(GNetHandle* connection, const char16_t* verb,
                                           const char16_t* path, const char16_t* version,
                                           const char16_t* referrer, const char16_t* const* accept,
                                           uint32_t flags);

/**
 * Forwards to service 101: adds headers to a request that is not sent yet.
 *
 * @param headers a CR LF after each but the last
 * @param flags #G_HEADER_ADD or #G_HEADER_REPLACE; 0 fails with #G_NET_EXISTS where there is one
 */
QUARLO_API int32_t GNetHttpAddRequestHeaders(GNetHandle* request, const char16_t* headers,
                                             uint32_t flags);

/**
 * Forwards to service 102: sends a request and waits for the head of the answer.
 *
 * @param headers more headers, or null
 * @param body `size` bytes, or null
 * @param size bytes; -1 leaves the body open for GNetWriteFile() until GNetHttpEndRequest()
 */
QUARLO_API int32_t GNetHttpSendRequest(GNetHandle* request, const char16_t* headers,
                                       const void* body, int32_t size);

/**
 * Forwards to service 103: ends the body of a request and waits for the head of the answer.
 *
 * @param flags 0
 */
QUARLO_API int32_t GNetHttpEndRequest(GNetHandle* request, uint32_t flags);

/**
 * Forwards to service 104: asks about the answer to a request.
 *
 * @param info #G_HTTP_STATUS and so on
 * @param buffer receives it
 * @param size its room and, on success, its length: bytes, or units for a text
 * @param index which of several headers of that name, from 0, and then the next; may be null for
 *     the first
 */
QUARLO_API int32_t GNetHttpQueryInfo(GNetHandle* request, int32_t info, void* buffer, int32_t* size,
                                     int32_t* index);

/**
 * Forwards to service 105: lists a folder.
 *
 * @param connection a connection to an FTP server
 * @param pattern folder and name, '*' and '?' in the name standing for any; null for all of the
 *     current folder
 * @param info receives the first entry
 * @param flags #G_NET_RELOAD or 0
 * @return the list; null, with #G_NET_NOT_FOUND, when it is empty
 */
QUARLO_API GNetHandle* GNetFtpFindFirstFile(GNetHandle* connection, const char16_t* pattern,
                                            GNetFileInfo* info, uint32_t flags);

/**
 * Forwards to service 106: fetches a file.
 *
 * @param connection a connection to an FTP server
 * @param remote file on the server
 * @param local file to write; a transfer that fails leaves it as it was
 * @param failIfExists non-zero: a local file that there is stays, and the call fails
 * @param attributes 0, or #G_FILE_READABLE alone for a local file that cannot be written
 * @param flags #G_NET_ASCII, #G_NET_RELOAD
 */
QUARLO_API int32_t GNetFtpGetFile(GNetHandle* connection, const char16_t* remote,
                                  const char16_t* local, int32_t failIfExists, uint32_t attributes,
                                  uint32_t flags);

/**
 * Forwards to service 107: sends a file.
 *
 * @param connection a connection to an FTP server
 * @param local file to read
 * @param remote file on the server
 * @param flags #G_NET_ASCII or 0
 */
QUARLO_API int32_t GNetFtpPutFile(GNetHandle* connection, const char16_t* local,
                                  const char16_t* remote, uint32_t flags);

/** Forwards to service 108: removes a file from the server. */
QUARLO_API int32_t GNetFtpDeleteFile(GNetHandle* connection, const char16_t* path);

/** Forwards to service 109: renames a file on the server. */
QUARLO_API int32_t GNetFtpRenameFile(GNetHandle* connection, const char16_t* from,
                                     const char16_t* to);

/**
 * Forwards to service 110: opens a file on the server. Until it is closed, the connection can do
 * nothing else.
 *
 * @param mode #G_OPEN_READ or #G_OPEN_WRITE
 * @param flags #G_NET_ASCII or 0
 * @return the open file
 */
QUARLO_API GNetHandle* GNetFtpOpenFile(GNetHandle* connection, const char16_t* path, uint32_t mode,
                                       uint32_t flags);

/** Forwards to service 111: makes a folder on the server. */
QUARLO_API int32_t GNetFtpCreateDirectory(GNetHandle* connection, const char16_t* path);

/** Forwards to service 112: removes an empty folder from the server. */
QUARLO_API int32_t GNetFtpRemoveDirectory(GNetHandle* connection, const char16_t* path);

/** Forwards to service 113: changes the current folder of a connection. */
QUARLO_API int32_t GNetFtpSetCurrentDirectory(GNetHandle* connection, const char16_t* path);

/** Forwards to service 114: the current folder of a connection. */
QUARLO_API int32_t GNetFtpGetCurrentDirectory(GNetHandle* connection, char16_t* path,
                                              int32_t* size);

/**
 * Forwards to service 115: why the last network call of this thread failed.
 *
 * @return #G_NET_OK and so on; 0 when the platform lacks it
 */
QUARLO_API int32_t GNetGetLastError(void);

QUARLO_END

#endif
