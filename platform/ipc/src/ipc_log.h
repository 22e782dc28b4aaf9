/*
 * Log lines of the host IPC layer.
 */
#ifndef OHOS_IPC_IPC_LOG_H
#define OHOS_IPC_IPC_LOG_H

#include "hilog/log.h"

#define IPC_HOST_LOG(level, fmt, ...)                                                                                  \
    HiLogPrint(LOG_CORE, level, 0xD0057C0, "IPCHost", "%{public}s: " fmt, __FUNCTION__, ##__VA_ARGS__)
#define IPC_HOST_LOGE(fmt, ...) IPC_HOST_LOG(LOG_ERROR, fmt, ##__VA_ARGS__)
#define IPC_HOST_LOGW(fmt, ...) IPC_HOST_LOG(LOG_WARN, fmt, ##__VA_ARGS__)

#endif // OHOS_IPC_IPC_LOG_H
