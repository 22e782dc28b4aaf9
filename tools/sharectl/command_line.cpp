#include "command_line.h"

#include <iostream>
#include <map>
#include <sstream>

#include "commands.h"

namespace OHOS {
namespace Zelkon {
namespace {
const std::map<std::string, LogLevel> LOG_LEVELS{
    {"debug", LOG_DEBUG}, {"info", LOG_INFO}, {"warn", LOG_WARN}, {"error", LOG_ERROR}};

bool Refuse(const std::string& reason)
{
    std::cerr << "sharectl: " << reason << "\nTry 'sharectl --help'." << std::endl;
    return false;
}

bool ParseLogLevel(const std::string& name, CommandLine& line)
{
    auto level = LOG_LEVELS.find(name);
    if (level == LOG_LEVELS.end()) {
        return Refuse("unknown log level '" + name + "'");
    }
    line.logLevel = level->second;
    return true;
}
} // namespace

std::optional<CommandLine> ParseCommandLine(int argc, char* argv[])
{
    CommandLine line;
    bool commandGiven = false;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        const std::string levelPrefix = "--log-level=";
        if (argument == "--help" || argument == "-h") {
            line.help = true;
        } else if (argument == "--trace") {
            line.trace = true;
        } else if (argument == "--log-level") {
            if (i + 1 == argc) {
                Refuse("--log-level needs a level");
                return std::nullopt;
            }
            if (!ParseLogLevel(argv[++i], line)) {
                return std::nullopt;
            }
        } else if (argument.rfind(levelPrefix, 0) == 0) {
            if (!ParseLogLevel(argument.substr(levelPrefix.size()), line)) {
                return std::nullopt;
            }
        } else if (argument.rfind("--", 0) == 0) {
            Refuse("unknown option '" + argument + "'");
            return std::nullopt;
        } else if (!commandGiven) {
            line.command = argument;
            commandGiven = true;
        } else {
            line.arguments.push_back(argument);
        }
    }
    if (line.help) {
        return line;
    }
    const Command* command = FindCommand(line.command);
    if (command == nullptr) {
        Refuse("unknown command '" + line.command + "'");
        return std::nullopt;
    }
    if (line.arguments.size() > command->maxArguments) {
        Refuse("too many arguments for '" + line.command + "'");
        return std::nullopt;
    }
    return line;
}

std::string UsageText()
{
    std::ostringstream text;
    text << "Usage: sharectl [OPTIONS] [COMMAND [ARGUMENTS]]\n\n"
         << "Drives the share client library against emulated share services, one line per step with its result.\n"
         << "The share service is loaded on demand, as on a device; the share manager service is running.\n"
         << "The exit status is 0 when every step gave the expected result, 1 otherwise, 2 for a usage error.\n\n"
         << "Commands:\n";
    for (const Command& command : Commands()) {
        const std::string name = std::string(command.name) +
                                 (command.argumentUsage[0] != '\0' ? std::string(" ") + command.argumentUsage : "");
        text << "  " << name << std::string(name.size() < 22 ? 22 - name.size() : 1, ' ') << command.description
             << '\n';
    }
    text << "\nOptions:\n"
         << "  --trace               print every request and reply as decoded fields beside their bytes\n"
         << "  --log-level LEVEL     system log lines shown on stderr: debug, info, warn (default) or error\n"
         << "  --help                show this text\n";
    return text.str();
}

} // namespace Zelkon
} // namespace OHOS
