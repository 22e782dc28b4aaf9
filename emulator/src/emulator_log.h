/*
 * Copyright (c) 2026 The libshare_client Authors.
 * Licensed under the Apache License, Version 2.0 (the "License");
 * you may not use this file except in compliance with the License.
 * You may obtain a copy of the License at
 *
 *     http://www.apache.org/licenses/LICENSE-2.0
 *
 * Unless required by applicable law or agreed to in writing, software
 * distributed under the License is distributed on an "AS IS" BASIS,
 * WITHOUT WARRANTIES OR CONDITIONS OF ANY KIND, either express or implied.
 * See the License for the specific language governing permissions and
 * limitations under the License.
 */

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
