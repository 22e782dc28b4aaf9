/*
 * Host controls of the system log: the threshold of the console output and capture sinks that let a test
 * assert what was logged (tag, domain, level and the formatted text).
 */
#ifndef HIVIEWDFX_HILOG_CAPTURE_H
#define HIVIEWDFX_HILOG_CAPTURE_H

#include <cstddef>
#include <mutex>
#include <string>
#include <vector>

#include "hilog/log_c.h"

namespace OHOS {
namespace HiviewDFX {

// Lines below the threshold are not printed on stderr (sinks still receive them). WARN by default.
void HiLogSetThreshold(LogLevel level);
LogLevel HiLogGetThreshold();

struct LogEntry {
    LogType type;
    LogLevel level;
    unsigned int domain;
    std::string tag;
    std::string text;
};

// Receives every line, whatever the threshold, while it is registered.
class LogSink {
public:
    virtual ~LogSink() = default;
    virtual void OnLog(const LogEntry& entry) = 0;
};

void HiLogAddSink(LogSink* sink);
void HiLogRemoveSink(LogSink* sink);

// Collects the lines logged while it lives, from any thread.
class ScopedLogCapture final : public LogSink {
public:
    ScopedLogCapture();
    ~ScopedLogCapture() override;
    ScopedLogCapture(const ScopedLogCapture&) = delete;
    ScopedLogCapture& operator=(const ScopedLogCapture&) = delete;

    void OnLog(const LogEntry& entry) override;

    std::vector<LogEntry> Lines() const;
    // Lines of the tag whose text ends with the given text (the text begins with the file, line and function).
    size_t Count(const std::string& tag, const std::string& textEnd) const;
    size_t Count(const std::string& tag, const std::string& textEnd, LogLevel level) const;
    bool Contains(const std::string& tag, const std::string& textEnd) const { return Count(tag, textEnd) > 0; }
    void Clear();

private:
    mutable std::mutex mutex_;
    std::vector<LogEntry> lines_;
};

} // namespace HiviewDFX
} // namespace OHOS

#endif // HIVIEWDFX_HILOG_CAPTURE_H
