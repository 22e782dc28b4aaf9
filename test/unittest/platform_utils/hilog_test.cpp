// The host system log as the library's lines depend on it: the privacy decorations removed and the rest formatted,
// each entry with its type, level, domain and tag, and the console threshold that leaves the capture every line.
#define LOG_DOMAIN 0xD000ABC
#define LOG_TAG "MacroTag"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "hilog/log.h"
#include "hilog/log_capture.h"

namespace OHOS {
namespace HiviewDFX {
namespace {

constexpr unsigned int TEST_DOMAIN = 0xD001234;

template <typename... Args>
int LogInfo(const char* fmt, Args... args)
{
    return HiLogPrint(LOG_CORE, LOG_INFO, TEST_DOMAIN, "Fmt", fmt, args...);
}

class HiLogTest : public testing::Test {
protected:
    void SetUp() override { saved_ = HiLogGetThreshold(); }
    void TearDown() override { HiLogSetThreshold(saved_); }

private:
    LogLevel saved_ = LOG_INFO;
};

TEST_F(HiLogTest, DecorationsAreRemovedAndTheRestIsPrintfFormatted)
{
    const struct {
        std::string name;
        std::function<int()> log;
        std::string text;
    } cases[] = {
        {"public string", [] { return LogInfo("%{public}s", "x"); }, "x"},
        {"private number shown on the host", [] { return LogInfo("%{private}d", 5); }, "5"},
        {"undecorated", [] { return LogInfo("%d", 5); }, "5"},
        {"public size", [] { return LogInfo("%{public}zu", static_cast<size_t>(12)); }, "12"},
        {"flags and width after the decoration", [] { return LogInfo("%{public}-4d|%{private}5.1f", 7, 2.5); },
         "7   |  2.5"},
        {"several conversions", [] { return LogInfo("%{public}s and %{private}s", "a", "b"); }, "a and b"},
        {"escaped percent", [] { return LogInfo("100%%"); }, "100%"},
        {"decoration after an escaped percent is text", [] { return LogInfo("%%{public}s"); }, "%{public}s"},
        {"decoration not after a percent is text", [] { return LogInfo("{public}%s", "x"); }, "{public}x"},
        {"escaped percent after a conversion", [] { return LogInfo("%{public}d%%", 50); }, "50%"},
    };
    HiLogSetThreshold(LOG_LEVEL_MAX);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        ScopedLogCapture capture;
        EXPECT_EQ(c.log(), static_cast<int>(c.text.size()));
        const std::vector<LogEntry> lines = capture.Lines();
        ASSERT_EQ(lines.size(), 1u);
        EXPECT_EQ(lines[0].text, c.text);
    }
}

TEST_F(HiLogTest, AnEntryCarriesTypeLevelDomainAndTag)
{
    ScopedLogCapture capture;
    HiLogPrint(LOG_CORE, LOG_WARN, TEST_DOMAIN, "Entry", "text");
    HILOG_ERROR(LOG_APP, "macro %{public}d", 3);
    const std::vector<LogEntry> lines = capture.Lines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].type, LOG_CORE);
    EXPECT_EQ(lines[0].level, LOG_WARN);
    EXPECT_EQ(lines[0].domain, TEST_DOMAIN);
    EXPECT_EQ(lines[0].tag, "Entry");
    EXPECT_EQ(lines[1].type, LOG_APP);
    EXPECT_EQ(lines[1].level, LOG_ERROR);
    EXPECT_EQ(lines[1].domain, 0xD000ABCu);
    EXPECT_EQ(lines[1].tag, "MacroTag");
    EXPECT_EQ(lines[1].text, "macro 3");
}

TEST_F(HiLogTest, TheThresholdDecidesTheConsoleWhileSinksGetEveryLine)
{
    const struct {
        LogLevel threshold;
        LogLevel level;
        bool printed;
    } cases[] = {
        {LOG_INFO, LOG_DEBUG, false}, {LOG_INFO, LOG_INFO, true},       {LOG_WARN, LOG_INFO, false},
        {LOG_WARN, LOG_WARN, true},   {LOG_WARN, LOG_ERROR, true},      {LOG_FATAL, LOG_ERROR, false},
        {LOG_DEBUG, LOG_DEBUG, true}, {LOG_LEVEL_MIN, LOG_DEBUG, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.threshold) + "/" + std::to_string(c.level));
        HiLogSetThreshold(c.threshold);
        ScopedLogCapture capture;
        testing::internal::CaptureStderr();
        HiLogPrint(LOG_CORE, c.level, TEST_DOMAIN, "Threshold", "the line");
        const std::string console = testing::internal::GetCapturedStderr();
        EXPECT_EQ(console.find("/Threshold: the line\n") != std::string::npos, c.printed);
        EXPECT_EQ(capture.Count("Threshold", "the line", c.level), 1u);
    }
}

} // namespace
} // namespace HiviewDFX
} // namespace OHOS
