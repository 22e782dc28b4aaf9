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
 * Logging of the library: one macro per tag, each filling the common prefix
 * "[file:line] function# " so that every line names the function that logged it.
 */
#ifndef SHARE_LOG_H
#define SHARE_LOG_H

#include "hilog/log.h"

namespace OHOS {
namespace Zelkon {

struct LogLabel {
    const char* tag;
    unsigned int domain;
};

// Where a line is logged from. Shared code that logs on an operation's behalf is handed the operation's own
// site, so the line still names the operation.
struct LogSite {
    const char* file;
    int line;
    const char* function;
};

// An argument check that an operation makes before it goes on: a refused one logs its text, if it has one, and the
// operation ends with its neutral result.
struct Refusal {
    bool refused = false;
    const char* text = nullptr;
};

inline constexpr LogLabel SHARE_NAPI_LABEL{"ShareNapi", 0xD004610};
inline constexpr LogLabel SHARE_CLIENT_LABEL{"ShareClient", 0xD004611};
inline constexpr LogLabel SHARE_MANAGER_CLIENT_LABEL{"ShareManagerClient", 0xD004611};
inline constexpr LogLabel SHARE_PROXY_LABEL{"ShareProxy", 0xD004612};
inline constexpr LogLabel SHARE_MANAGER_PROXY_LABEL{"ShareManagerProxy", 0xD004612};
inline constexpr LogLabel SHARE_STUB_LABEL{"ShareStub", 0xD004613};
inline constexpr LogLabel SHARE_SERVICE_LABEL{"ShareService", 0xD004614};
inline constexpr LogLabel SHARE_MANAGER_SERVICE_LABEL{"ShareManagerService", 0xD004614};

} // namespace Zelkon
} // namespace OHOS

#define SHARE_LOG_SITE (::OHOS::Zelkon::LogSite{__FILE_NAME__, __LINE__, __FUNCTION__})

#define SHARE_LOG_AT(label, level, site, fmt, ...)                                                                     \
    ((void)HiLogPrint(LOG_CORE, level, (label).domain, (label).tag, "[%{public}s:%{public}d] %{public}s# " fmt,        \
                      (site).file, (site).line, (site).function, ##__VA_ARGS__))

#define SHARE_LOG(label, level, fmt, ...) SHARE_LOG_AT(label, level, SHARE_LOG_SITE, fmt, ##__VA_ARGS__)

#define SHARE_NAPI_LOGE(fmt, ...) SHARE_LOG(::OHOS::Zelkon::SHARE_NAPI_LABEL, LOG_ERROR, fmt, ##__VA_ARGS__)

#define SHARE_CLIENT_LOGD(fmt, ...) SHARE_LOG(::OHOS::Zelkon::SHARE_CLIENT_LABEL, LOG_DEBUG, fmt, ##__VA_ARGS__)
#define SHARE_CLIENT_LOGI(fmt, ...) SHARE_LOG(::OHOS::Zelkon::SHARE_CLIENT_LABEL, LOG_INFO, fmt, ##__VA_ARGS__)
#define SHARE_CLIENT_LOGE(fmt, ...) SHARE_LOG(::OHOS::Zelkon::SHARE_CLIENT_LABEL, LOG_ERROR, fmt, ##__VA_ARGS__)

#define SHARE_MANAGER_CLIENT_LOGD(fmt, ...)                                                                            \
    SHARE_LOG(::OHOS::Zelkon::SHARE_MANAGER_CLIENT_LABEL, LOG_DEBUG, fmt, ##__VA_ARGS__)
#define SHARE_MANAGER_CLIENT_LOGI(fmt, ...)                                                                            \
    SHARE_LOG(::OHOS::Zelkon::SHARE_MANAGER_CLIENT_LABEL, LOG_INFO, fmt, ##__VA_ARGS__)
#define SHARE_MANAGER_CLIENT_LOGE(fmt, ...)                                                                            \
    SHARE_LOG(::OHOS::Zelkon::SHARE_MANAGER_CLIENT_LABEL, LOG_ERROR, fmt, ##__VA_ARGS__)

#define SHARE_PROXY_LOGD(fmt, ...) SHARE_LOG(::OHOS::Zelkon::SHARE_PROXY_LABEL, LOG_DEBUG, fmt, ##__VA_ARGS__)
#define SHARE_PROXY_LOGI(fmt, ...) SHARE_LOG(::OHOS::Zelkon::SHARE_PROXY_LABEL, LOG_INFO, fmt, ##__VA_ARGS__)
#define SHARE_PROXY_LOGE(fmt, ...) SHARE_LOG(::OHOS::Zelkon::SHARE_PROXY_LABEL, LOG_ERROR, fmt, ##__VA_ARGS__)

#define SHARE_MANAGER_PROXY_LOGE(fmt, ...)                                                                             \
    SHARE_LOG(::OHOS::Zelkon::SHARE_MANAGER_PROXY_LABEL, LOG_ERROR, fmt, ##__VA_ARGS__)

#define SHARE_STUB_LOGE(fmt, ...) SHARE_LOG(::OHOS::Zelkon::SHARE_STUB_LABEL, LOG_ERROR, fmt, ##__VA_ARGS__)

#define SHARE_SERVICE_LOGE(fmt, ...) SHARE_LOG(::OHOS::Zelkon::SHARE_SERVICE_LABEL, LOG_ERROR, fmt, ##__VA_ARGS__)
#define SHARE_MANAGER_SERVICE_LOGE(fmt, ...)                                                                           \
    SHARE_LOG(::OHOS::Zelkon::SHARE_MANAGER_SERVICE_LABEL, LOG_ERROR, fmt, ##__VA_ARGS__)

#define SHARE_MANAGER_PROXY_LOGD(fmt, ...)                                                                             \
    SHARE_LOG(::OHOS::Zelkon::SHARE_MANAGER_PROXY_LABEL, LOG_DEBUG, fmt, ##__VA_ARGS__)
#define SHARE_MANAGER_PROXY_LOGI(fmt, ...)                                                                             \
    SHARE_LOG(::OHOS::Zelkon::SHARE_MANAGER_PROXY_LABEL, LOG_INFO, fmt, ##__VA_ARGS__)

#define SHARE_SERVICE_LOGI(fmt, ...) SHARE_LOG(::OHOS::Zelkon::SHARE_SERVICE_LABEL, LOG_INFO, fmt, ##__VA_ARGS__)
#define SHARE_MANAGER_SERVICE_LOGI(fmt, ...)                                                                           \
    SHARE_LOG(::OHOS::Zelkon::SHARE_MANAGER_SERVICE_LABEL, LOG_INFO, fmt, ##__VA_ARGS__)

// A checked step of a record's writer or reader: logs text at the caller's site when ok is false, returns ok.
#define SHARE_CHECKED(label, ok, text) ::OHOS::Zelkon::LoggedCheck((ok), ::OHOS::Zelkon::label, SHARE_LOG_SITE, (text))

namespace OHOS {
namespace Zelkon {

// Logs a fixed text of an operation, if it has one (null: none).
inline void LogText(const LogLabel& label, LogLevel level, const LogSite& site, const char* text)
{
    if (text != nullptr) {
        SHARE_LOG_AT(label, level, site, "%{public}s", text);
    }
}

inline bool LoggedCheck(bool ok, const LogLabel& label, const LogSite& site, const char* text)
{
    if (!ok) {
        SHARE_LOG_AT(label, LOG_ERROR, site, "%{public}s", text);
    }
    return ok;
}

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_LOG_H
