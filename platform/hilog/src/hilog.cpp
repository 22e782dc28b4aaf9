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

#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <string>

#include "hilog/log.h"
#include "hilog/log_threshold.h"

namespace OHOS {
namespace HiviewDFX {
namespace {

constexpr size_t MAX_MESSAGE = 4096;
constexpr unsigned int CORE_DOMAIN_MIN = 0xD000000;
constexpr unsigned int CORE_DOMAIN_MAX = 0xD0FFFFF;

std::atomic<int> g_threshold{LOG_WARN};
// Without a callback, a line below the threshold costs two atomic loads.
std::atomic<LogCallback> g_callback{nullptr};

// Removes "{public}" and "{private}" right after an unescaped '%': the rest is a printf format.
std::string StripDecorations(const char* fmt)
{
    static const std::string PUBLIC = "{public}";
    static const std::string PRIVATE = "{private}";
    std::string out;
    for (const char* p = fmt; *p != '\0'; ++p) {
        out.push_back(*p);
        if (*p != '%') {
            continue;
        }
        if (p[1] == '%') {
            out.push_back(*++p);
        } else if (PUBLIC.compare(0, PUBLIC.size(), p + 1, std::min(PUBLIC.size(), std::strlen(p + 1))) == 0) {
            p += PUBLIC.size();
        } else if (PRIVATE.compare(0, PRIVATE.size(), p + 1, std::min(PRIVATE.size(), std::strlen(p + 1))) == 0) {
            p += PRIVATE.size();
        }
    }
    return out;
}

char LevelLetter(LogLevel level)
{
    switch (level) {
    case LOG_DEBUG:
        return 'D';
    case LOG_INFO:
        return 'I';
    case LOG_WARN:
        return 'W';
    case LOG_ERROR:
        return 'E';
    case LOG_FATAL:
        return 'F';
    default:
        return '?';
    }
}

char TypeLetter(LogType type)
{
    switch (type) {
    case LOG_APP:
        return 'A';
    case LOG_INIT:
        return 'I';
    case LOG_CORE:
        return 'C';
    case LOG_KMSG:
        return 'K';
    default:
        return 'P';
    }
}

// One line in the console style of the platform: "11-22 14:03:07.123  1234  1240 D C04612/Tag: text".
void PrintToConsole(LogType type, LogLevel level, unsigned int domain, const char* tag, const char* text)
{
    auto now = std::chrono::system_clock::now();
    std::time_t seconds = std::chrono::system_clock::to_time_t(now);
    auto millis = std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() % 1000;
    std::tm local{};
    localtime_r(&seconds, &local);
    std::fprintf(stderr, "%02d-%02d %02d:%02d:%02d.%03d %5d %5ld %c %c%05X/%s: %s\n", local.tm_mon + 1, local.tm_mday,
                 local.tm_hour, local.tm_min, local.tm_sec, static_cast<int>(millis), getpid(),
                 static_cast<long>(syscall(SYS_gettid)), LevelLetter(level), TypeLetter(type), domain & 0xFFFFF, tag,
                 text);
}

// Nothing prints the line and nobody listens: it costs this check and nothing else.
bool Unwanted(LogLevel level)
{
    return level < g_threshold.load(std::memory_order_relaxed) && g_callback.load(std::memory_order_relaxed) == nullptr;
}

bool Accepted(LogType type, unsigned int domain, const char* tag)
{
    if (tag == nullptr) {
        return false;
    }
    return type == LOG_APP || (domain >= CORE_DOMAIN_MIN && domain < CORE_DOMAIN_MAX);
}

} // namespace

void HiLogSetThreshold(LogLevel level)
{
    g_threshold.store(level, std::memory_order_relaxed);
}

LogLevel HiLogGetThreshold()
{
    return static_cast<LogLevel>(g_threshold.load(std::memory_order_relaxed));
}

} // namespace HiviewDFX
} // namespace OHOS

using namespace OHOS::HiviewDFX;

extern "C" void LOG_SetCallback(LogCallback callback)
{
    g_callback.store(callback);
}

extern "C" int HiLogPrintArgs(LogType type, LogLevel level, unsigned int domain, const char* tag, const char* fmt,
                              va_list ap)
{
    if (Unwanted(level) || fmt == nullptr || !Accepted(type, domain, tag)) {
        return -1;
    }
    char message[MAX_MESSAGE];
    int length = std::vsnprintf(message, sizeof(message), StripDecorations(fmt).c_str(), ap);
    if (length < 0) {
        return -1;
    }
    if (level >= g_threshold.load(std::memory_order_relaxed)) {
        PrintToConsole(type, level, domain, tag, message);
    }
    if (LogCallback callback = g_callback.load()) {
        callback(type, level, domain, tag, message);
    }
    return static_cast<int>(std::strlen(message));
}

extern "C" int HiLogPrint(LogType type, LogLevel level, unsigned int domain, const char* tag, const char* fmt, ...)
{
    if (Unwanted(level)) {
        return -1;
    }
    va_list ap;
    va_start(ap, fmt);
    int result = HiLogPrintArgs(type, level, domain, tag, fmt, ap);
    va_end(ap);
    return result;
}

namespace OHOS {
namespace HiviewDFX {

#define HILOG_CPP_LEVEL(Name, Level)                                                                                   \
    int HiLog::Name(const HiLogLabel& label, const char* fmt, ...)                                                     \
    {                                                                                                                  \
        va_list ap;                                                                                                    \
        va_start(ap, fmt);                                                                                             \
        int result = HiLogPrintArgs(label.type, Level, label.domain, label.tag, fmt, ap);                              \
        va_end(ap);                                                                                                    \
        return result;                                                                                                 \
    }

HILOG_CPP_LEVEL(Debug, LOG_DEBUG)
HILOG_CPP_LEVEL(Info, LOG_INFO)
HILOG_CPP_LEVEL(Warn, LOG_WARN)
HILOG_CPP_LEVEL(Error, LOG_ERROR)
HILOG_CPP_LEVEL(Fatal, LOG_FATAL)

#undef HILOG_CPP_LEVEL

} // namespace HiviewDFX
} // namespace OHOS
