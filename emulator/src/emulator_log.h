/*
 * Log lines of the emulated services, under their own tag so that they stand apart from the library's.
 */
#ifndef EMULATOR_LOG_H
#define EMULATOR_LOG_H

#include "hilog/log.h"

namespace OHOS {
namespace Zelkon {

inline constexpr unsigned int EMULATOR_LOG_DOMAIN = 0xD004615;
inline constexpr const char* EMULATOR_LOG_TAG = "ShareEmulator";

} // namespace Zelkon
} // namespace OHOS

#define EMULATOR_LOG(level, fmt, ...)                                                                                  \
    ((void)HiLogPrint(LOG_CORE, level, OHOS::Zelkon::EMULATOR_LOG_DOMAIN, OHOS::Zelkon::EMULATOR_LOG_TAG, fmt,         \
                      ##__VA_ARGS__))
#define EMULATOR_LOGD(fmt, ...) EMULATOR_LOG(LOG_DEBUG, fmt, ##__VA_ARGS__)
#define EMULATOR_LOGI(fmt, ...) EMULATOR_LOG(LOG_INFO, fmt, ##__VA_ARGS__)
#define EMULATOR_LOGE(fmt, ...) EMULATOR_LOG(LOG_ERROR, fmt, ##__VA_ARGS__)

#endif // EMULATOR_LOG_H
