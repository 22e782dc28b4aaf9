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
 * The log lines an operation is expected to write, as a table: each listed line must be logged exactly as often as
 * it is listed (a text that appears twice under one tag is listed twice).
 */
#ifndef LOG_LINE_H
#define LOG_LINE_H

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "captured_log.h"

namespace OHOS {
namespace Zelkon {

struct LogLine {
    std::string tag;
    LogLevel level;
    // Empty: the operation has no such line.
    std::string text;
};

inline bool operator==(const LogLine& left, const LogLine& right)
{
    return left.tag == right.tag && left.level == right.level && left.text == right.text;
}

// How often the line was logged: its text follows the "[file:line] function# " prefix.
inline size_t Logged(const CapturedLog& log, const LogLine& line)
{
    return line.text.empty() ? 0 : log.Count(line.tag, "# " + line.text, line.level);
}

inline void ExpectLines(const CapturedLog& log, const std::vector<LogLine>& lines)
{
    for (const LogLine& line : lines) {
        if (!line.text.empty()) {
            const auto listed = static_cast<size_t>(std::count(lines.begin(), lines.end(), line));
            EXPECT_EQ(Logged(log, line), listed) << line.tag << ": " << line.text;
        }
    }
}

inline size_t ErrorLines(const CapturedLog& log, const std::string& tag)
{
    return log.Count(tag, "", LOG_ERROR);
}

} // namespace Zelkon
} // namespace OHOS

#endif // LOG_LINE_H
