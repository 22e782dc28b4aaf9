// The host system log: formatting with the privacy decorations, the console threshold, which lines are accepted,
// the sinks and the callback, and the console line itself.
#define LOG_DOMAIN 0xD000ABC
#define LOG_TAG "MacroTag"

#include <gtest/gtest.h>

#include <sys/syscall.h>
#include <unistd.h>

#include <functional>
#include <regex>
#include <string>
#include <vector>

#include "hilog/log.h"
#include "hilog/log_capture.h"

namespace OHOS {
namespace HiviewDFX {
namespace {

constexpr unsigned int TEST_DOMAIN = 0xD001234;
const LogLevel INITIAL_THRESHOLD = HiLogGetThreshold();

template <typename... Args>
int LogInfo(const char* fmt, Args... args)
{
    return HiLogPrint(LOG_CORE, LOG_INFO, TEST_DOMAIN, "Fmt", fmt, args...);
}

class RecordingSink : public LogSink {
public:
    void OnLog(const LogEntry& entry) override { texts.push_back(entry.text); }
    std::vector<std::string> texts;
};

class HiLogTest : public testing::Test {
protected:
    void SetUp() override { saved_ = HiLogGetThreshold(); }
    void TearDown() override { HiLogSetThreshold(saved_); }

private:
    LogLevel saved_ = LOG_INFO;
};

TEST_F(HiLogTest, ThresholdIsWarnUntilChanged)
{
    EXPECT_EQ(INITIAL_THRESHOLD, LOG_WARN);
    for (LogLevel level : {LOG_DEBUG, LOG_FATAL, LOG_INFO}) {
        HiLogSetThreshold(level);
        EXPECT_EQ(HiLogGetThreshold(), level);
    }
}

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

TEST_F(HiLogTest, ALineBelowTheThresholdWithNoListenerIsDropped)
{
    HiLogSetThreshold(LOG_WARN);
    testing::internal::CaptureStderr();
    EXPECT_LT(HiLogPrint(LOG_CORE, LOG_INFO, TEST_DOMAIN, "Quiet", "dropped"), 0);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    {
        ScopedLogCapture capture;
        EXPECT_EQ(HiLogPrint(LOG_CORE, LOG_INFO, TEST_DOMAIN, "Quiet", "kept"), 4);
    }
    EXPECT_LT(HiLogPrint(LOG_CORE, LOG_INFO, TEST_DOMAIN, "Quiet", "dropped again"), 0);
}

TEST_F(HiLogTest, OnlyApplicationLinesOrCoreDomainsWithATagAreAccepted)
{
    const struct {
        LogType type;
        unsigned int domain;
        const char* tag;
        bool accepted;
    } cases[] = {
        {LOG_CORE, 0xD000000, "T", true},  {LOG_CORE, 0xCFFFFFF, "T", false}, {LOG_CORE, 0xD0FFFFE, "T", true},
        {LOG_CORE, 0xD0FFFFF, "T", false}, {LOG_CORE, 0, "T", false},         {LOG_INIT, TEST_DOMAIN, "T", true},
        {LOG_APP, 0, "T", true},           {LOG_APP, 0xFFFFFFFF, "T", true},  {LOG_CORE, TEST_DOMAIN, nullptr, false},
        {LOG_APP, 0, nullptr, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.type) + " " + std::to_string(c.domain) + (c.tag == nullptr ? " null" : ""));
        ScopedLogCapture capture;
        testing::internal::CaptureStderr();
        const int result = HiLogPrint(c.type, LOG_ERROR, c.domain, c.tag, "accepted?");
        const std::string console = testing::internal::GetCapturedStderr();
        EXPECT_EQ(result >= 0, c.accepted);
        EXPECT_EQ(capture.Lines().size(), c.accepted ? 1u : 0u);
        EXPECT_EQ(console.empty(), !c.accepted);
    }
}

TEST_F(HiLogTest, EverySinkGetsTheLineUntilRemoved)
{
    HiLogSetThreshold(LOG_FATAL);
    RecordingSink first;
    RecordingSink second;
    HiLogAddSink(&first);
    HiLogAddSink(&second);
    {
        ScopedLogCapture capture;
        LogInfo("one");
        HiLogRemoveSink(&first);
        HiLogRemoveSink(&first);
        LogInfo("two");
        EXPECT_EQ(capture.Lines().size(), 2u);
    }
    LogInfo("three");
    HiLogRemoveSink(&second);
    LogInfo("four");
    EXPECT_EQ(first.texts, std::vector<std::string>({"one"}));
    EXPECT_EQ(second.texts, std::vector<std::string>({"one", "two", "three"}));
    EXPECT_LT(LogInfo("no listener left"), 0);
}

std::string ConsoleLine(LogType type, LogLevel level, unsigned int domain)
{
    testing::internal::CaptureStderr();
    HiLogPrint(type, level, domain, "Console", "hello %{public}d", 7);
    return testing::internal::GetCapturedStderr();
}

TEST_F(HiLogTest, TheConsoleLineHasTimePidTidLevelDomainTagAndText)
{
    const std::string ids = " +" + std::to_string(getpid()) + " +" + std::to_string(syscall(SYS_gettid)) + " ";
    const std::regex line(
        "(0[1-9]|1[0-2])-(0[1-9]|[12][0-9]|3[01]) ([01][0-9]|2[0-3]):[0-5][0-9]:[0-5][0-9]\\.[0-9]{3}" + ids +
        "E C04612/Console: hello 7\n");
    EXPECT_TRUE(std::regex_match(ConsoleLine(LOG_CORE, LOG_ERROR, 0xD004612), line))
        << ConsoleLine(LOG_CORE, LOG_ERROR, 0xD004612);
}

} // namespace
} // namespace HiviewDFX
} // namespace OHOS
