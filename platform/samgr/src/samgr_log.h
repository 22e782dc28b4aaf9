/*
 * Log lines of the host system ability manager.
 */
#ifndef OHOS_SAMGR_SAMGR_LOG_H
#define OHOS_SAMGR_SAMGR_LOG_H

#include "hilog/log.h"

#define SAMGR_HOST_LOG(level, fmt, ...)                                                                                \
    HiLogPrint(LOG_CORE, level, 0xD001800, "SA_CLIENT", "%{public}s: " fmt, __FUNCTION__, ##__VA_ARGS__)
#define SAMGR_HOST_LOGE(fmt, ...) SAMGR_HOST_LOG(LOG_ERROR, fmt, ##__VA_ARGS__)
#define SAMGR_HOST_LOGW(fmt, ...) SAMGR_HOST_LOG(LOG_WARN, fmt, ##__VA_ARGS__)

#endif // OHOS_SAMGR_SAMGR_LOG_H
