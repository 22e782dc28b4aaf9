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
 * Log lines of the host system ability manager.
 */
#ifndef OHOS_SAMGR_SAMGR_LOG_H
#define OHOS_SAMGR_SAMGR_LOG_H

#include "hilog/log.h"

#define SAMGR_HOST_LOG(level, fmt, ...)                                                                                \
    HiLogPrint(LOG_CORE, level, 0xD001800, "SA_CLIENT", "%{public}s: " fmt, __FUNCTION__, ##__VA_ARGS__)
#define SAMGR_HOST_LOGE(fmt, ...) SAMGR_HOST_LOG(LOG_ERROR, fmt, ##__VA_ARGS__)
#define SAMGR_HOST_LOGW(fmt, ...) SAMGR_HOST_LOG(LOG_WARN, fmt, ##__VA_ARGS__)
#define SAMGR_HOST_LOGI(fmt, ...) SAMGR_HOST_LOG(LOG_INFO, fmt, ##__VA_ARGS__)

#endif // OHOS_SAMGR_SAMGR_LOG_H
