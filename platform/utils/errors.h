#ifndef UTILS_ERRORS_H
#define UTILS_ERRORS_H

#include <cerrno>

namespace OHOS {

using ErrCode = int;

enum {
    ERR_OK = 0,
    ERR_PERMISSION_DENIED = EPERM,
    ERR_INVALID_VALUE = EINVAL,
    ERR_DEAD_OBJECT = EPIPE,
    ERR_INVALID_OPERATION = ENOSYS,
    ERR_TIMED_OUT = ETIMEDOUT,
};

} // namespace OHOS

#endif // UTILS_ERRORS_H
