/*
 * The canned commands of sharectl, short forms of a few calls with checks: each one is a list of steps; "session"
 * runs them all.
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
    const char* description;
    std::vector<Step> steps;
    // The name of the command's one optional argument; null when it takes none.
    const char* argumentName = nullptr;
    // Puts the argument into the session before anything runs; throws UsageError when it makes no sense.
    void (*prepare)(const std::string& argument, Session& session) = nullptr;
};

const std::vector<Command>& Commands();
// Null for a name that is no canned command.
const Command* FindCommand(const std::string& name);

} // namespace Zelkon
} // namespace OHOS

#endif // COMMANDS_H
