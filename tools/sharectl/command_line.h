/*
 * What sharectl was asked to do: a command (the whole session when none is given), its arguments and the options.
 */
#ifndef COMMAND_LINE_H
#define COMMAND_LINE_H

#include <optional>
#include <string>
#include <vector>

#include "hilog/log_c.h"

namespace OHOS {
namespace Zelkon {

struct CommandLine {
    std::string command = "session";
    std::vector<std::string> arguments;
    bool trace = false;
    bool help = false;
    LogLevel logLevel = LOG_WARN;
};

// Empty after printing the reason to stderr when the arguments make no sense.
std::optional<CommandLine> ParseCommandLine(int argc, char* argv[]);
std::string UsageText();

} // namespace Zelkon
} // namespace OHOS

#endif // COMMAND_LINE_H
