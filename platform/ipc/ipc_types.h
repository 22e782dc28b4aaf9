/*
 * Result codes and transaction constants of the IPC part.
 */
#ifndef OHOS_IPC_IPC_TYPES_H
#define OHOS_IPC_IPC_TYPES_H

#include <cerrno>
#include <cstdint>

#include "errors.h"

namespace OHOS {

enum {
    FIRST_CALL_TRANSACTION = 0x00000001,
    LAST_CALL_TRANSACTION = 0x00ffffff,
};

enum {
    ERR_NONE = 0,
    ERR_TRANSACTION_FAILED = 1,
    ERR_UNKNOWN_OBJECT = 2,
    ERR_FLATTEN_OBJECT = 3,
    ERR_UNKNOWN_TRANSACTION = 4,
    ERR_INVALID_DATA = 5,
    ERR_NULL_OBJECT = 7,
    ERR_UNKNOWN_REASON = 8,
    ERR_INVALID_REPLY = 9,
    ERR_INVALID_STATE = 10,
    IPC_PROXY_ERR = 200,
    IPC_PROXY_DEAD_OBJECT_ERR = 201,
    IPC_PROXY_NULL_INVOKER_ERR = 202,
    IPC_PROXY_TRANSACTION_ERR = 203,
    IPC_PROXY_INVALID_CODE_ERR = 204,
    IPC_STUB_ERR = 300,
    IPC_STUB_WRITE_PARCEL_ERR = 301,
    IPC_STUB_INVOKE_THREAD_ERR = 302,
    IPC_STUB_INVALID_DATA_ERR = 303,
    IPC_STUB_CURRENT_NULL_ERR = 304,
    IPC_STUB_UNKNOW_TRANS_ERR = 305,
};

// Legacy negative code some callers still compare against.
enum {
    DEAD_OBJECT = -EPIPE,
};

constexpr int INVALID_FD = -1;

} // namespace OHOS

#endif // OHOS_IPC_IPC_TYPES_H
