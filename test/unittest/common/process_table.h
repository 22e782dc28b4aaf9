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
 * The host's process table as /proc shows it, for tests that check that no process they caused is left.
 */
#ifndef PROCESS_TABLE_H
#define PROCESS_TABLE_H

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <sys/types.h>
#include <thread>
#include <vector>

namespace OHOS {
namespace Zelkon {

// The processes whose parent is `parent`, zombies included.
inline std::vector<pid_t> ChildrenOf(pid_t parent)
{
    std::vector<pid_t> children;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator("/proc", error)) {
        const std::string name = entry.path().filename().string();
        if (name.find_first_not_of("0123456789") != std::string::npos) {
            continue;
        }
        std::ifstream stat(entry.path() / "stat");
        std::string line;
        std::getline(stat, line);
        // pid (comm) state ppid ...: the command may hold spaces and parentheses.
        const size_t end = line.rfind(')');
        char state = 0;
        int ppid = 0;
        if (end != std::string::npos && sscanf(line.c_str() + end + 1, " %c %d", &state, &ppid) == 2 &&
            ppid == parent) {
            children.push_back(static_cast<pid_t>(std::stoi(name)));
        }
    }
    return children;
}

// The command line of the process, its arguments separated by spaces; empty once it has ended.
inline std::string CommandLineOf(pid_t pid)
{
    std::ifstream file("/proc/" + std::to_string(pid) + "/cmdline");
    std::string line;
    for (std::string argument; std::getline(file, argument, '\0');) {
        line += (line.empty() ? "" : " ") + argument;
    }
    return line;
}

// The process has ended: reaped, or a zombie that its parent (init, for an orphan) has yet to reap.
inline bool Gone(pid_t pid)
{
    std::ifstream stat("/proc/" + std::to_string(pid) + "/stat");
    std::string line;
    std::getline(stat, line);
    const size_t end = line.rfind(')');
    return end == std::string::npos || line.compare(end, 3, ") Z") == 0;
}

// Polls `done` for up to `limit`.
inline bool Eventually(const std::function<bool()>& done, std::chrono::milliseconds limit = std::chrono::seconds(2))
{
    constexpr std::chrono::milliseconds POLL{10};
    for (std::chrono::milliseconds waited{0}; waited < limit && !done(); waited += POLL) {
        std::this_thread::sleep_for(POLL);
    }
    return done();
}

// The process sleeps in the kernel's write to a full pipe. Asked of its wait channel, not of its system call number,
// which is the host's, not the test's, when a 32-bit build runs under an emulator.
inline bool BlockedInPipeWrite(pid_t pid)
{
    std::ifstream channel("/proc/" + std::to_string(pid) + "/wchan");
    std::string function;
    return static_cast<bool>(channel >> function) && function.find("pipe_write") != std::string::npos;
}

} // namespace Zelkon
} // namespace OHOS

#endif // PROCESS_TABLE_H
