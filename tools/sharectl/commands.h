/*
 * The commands of sharectl: each one is a list of steps; "session" runs them all.
 */
#ifndef COMMANDS_H
#define COMMANDS_H

#include <string>
#include <vector>

#include "session.h"

namespace OHOS {
namespace Zelkon {

struct Command {
    const char* name;
    const char* argumentUsage;
    size_t maxArguments;
    const char* description;
    std::vector<Step> steps;
};

const std::vector<Command>& Commands();
// Null for a name that is no command.
const Command* FindCommand(const std::string& name);

} // namespace Zelkon
} // namespace OHOS

#endif // COMMANDS_H
