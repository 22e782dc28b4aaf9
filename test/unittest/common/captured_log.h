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
 * The lines logged while a capture lives, from any thread, through the platform's own log callback: a test that
 * reads log lines this way builds on a device too. One capture at a time; a capture made while another lives takes
 * the lines until it ends.
 */
#ifndef CAPTURED_LOG_H
#define CAPTURED_LOG_H

#include <algorithm>
#include <mutex>
#include <string>
#include <vector>

#include "hilog/log.h"

namespace OHOS {
namespace Zelkon {

struct CapturedLine {
    LogLevel level;
    unsigned int domain;
    std::string tag;
    std::string text;
};

class CapturedLog {
public:
    CapturedLog() : previous_(Current())
    {
        std::lock_guard<std::mutex> lock(Mutex());
        Current() = this;
        LOG_SetCallback(Receive);
    }
    ~CapturedLog()
    {
        std::lock_guard<std::mutex> lock(Mutex());
        Current() = previous_;
        LOG_SetCallback(previous_ != nullptr ? Receive : nullptr);
    }
    CapturedLog(const CapturedLog&) = delete;
    CapturedLog& operator=(const CapturedLog&) = delete;

    std::vector<CapturedLine> Lines() const
    {
        std::lock_guard<std::mutex> lock(Mutex());
        return lines_;
    }
    // Lines of the tag whose text ends with textEnd (the text begins with the file, line and function).
    size_t Count(const std::string& tag, const std::string& textEnd) const
    {
        return CountIf([&](const CapturedLine& line) { return line.tag == tag && EndsWith(line.text, textEnd); });
    }
    size_t Count(const std::string& tag, const std::string& textEnd, LogLevel level) const
    {
        return CountIf([&](const CapturedLine& line) {
            return line.tag == tag && line.level == level && EndsWith(line.text, textEnd);
        });
    }
    bool Contains(const std::string& tag, const std::string& textEnd) const { return Count(tag, textEnd) > 0; }
    void Clear()
    {
        std::lock_guard<std::mutex> lock(Mutex());
        lines_.clear();
    }

private:
    static std::mutex& Mutex()
    {
        static std::mutex mutex;
        return mutex;
    }
    static CapturedLog*& Current()
    {
        static CapturedLog* current = nullptr;
        return current;
    }
    static void Receive(const LogType, const LogLevel level, const unsigned int domain, const char* tag,
                        const char* message)
    {
        std::lock_guard<std::mutex> lock(Mutex());
        if (Current() != nullptr) {
            Current()->lines_.push_back({level, domain, tag, message});
        }
    }
    static bool EndsWith(const std::string& text, const std::string& end)
    {
        return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
    }
    template <typename Predicate>
    size_t CountIf(Predicate predicate) const
    {
        std::lock_guard<std::mutex> lock(Mutex());
        return static_cast<size_t>(std::count_if(lines_.begin(), lines_.end(), predicate));
    }

    CapturedLog* const previous_;
    std::vector<CapturedLine> lines_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // CAPTURED_LOG_H
