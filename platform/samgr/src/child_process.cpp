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

#include "child_process.h"

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "samgr_log.h"
#include "write_all.h"

extern char** environ;

namespace OHOS {
namespace {
constexpr char READY_LINE[] = "ready\n";
constexpr size_t READY_LENGTH = sizeof(READY_LINE) - 1;
constexpr int FIRST_INHERITED_FD = 3;
// The one argument of a held child; its command line follows on standard input as NUL-terminated arguments, then an
// empty line's NUL.
constexpr char HELD_ARGUMENT[] = "--held-by-starter";
// More than any command line of an ability; a held child reads no further.
constexpr size_t MAX_HELD_COMMAND_LINE = 64 * 1024;

std::vector<std::string> EnvironmentWith(const std::map<std::string, std::string>& additions)
{
    std::vector<std::string> entries;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const char* equals = std::strchr(*entry, '=');
        const std::string name(*entry, equals != nullptr ? equals - *entry : std::strlen(*entry));
        if (additions.count(name) == 0) {
            entries.emplace_back(*entry);
        }
    }
    for (const auto& [name, value] : additions) {
        entries.push_back(name + "=" + value);
    }
    return entries;
}

std::vector<char*> Pointers(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

bool ReadReadyLine(int fd, std::chrono::milliseconds timeout)
{
    char line[READY_LENGTH] = {};
    size_t got = 0;
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (got < READY_LENGTH) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        pollfd wait{fd, POLLIN, 0};
        if (left.count() <= 0 || poll(&wait, 1, static_cast<int>(left.count())) != 1) {
            return false;
        }
        const ssize_t count = read(fd, line + got, READY_LENGTH - got);
        if (count <= 0) {
            return false;
        }
        got += static_cast<size_t>(count);
    }
    return std::memcmp(line, READY_LINE, READY_LENGTH) == 0;
}
} // namespace

ChildProcess::ChildProcess(const std::vector<std::string>& argv, const Options& options)
{
    Spawn(argv, options);
}

ChildProcess::ChildProcess(const std::string& executable, const Options& options)
{
    // Held only once it is loaded: a start released earlier would take as long as one not started ahead.
    constexpr auto LOADED_TIMEOUT = std::chrono::seconds(10);
    Options held = options;
    held.readyTimeout = LOADED_TIMEOUT;
    Spawn({executable, HELD_ARGUMENT}, held);
}

void ChildProcess::Spawn(const std::vector<std::string>& argv, const Options& options)
{
    int lifeline[2];
    int ready[2] = {-1, -1};
    const bool waitsForReady = options.readyTimeout.count() > 0;
    // A socket rather than a pipe, so that telling a child that has just ended raises no SIGPIPE here.
    if (argv.empty() || socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, lifeline) != 0 ||
        (waitsForReady && pipe2(ready, O_CLOEXEC) != 0)) {
        SAMGR_HOST_LOGE("cannot start a child process, errno %{public}d", errno);
        return;
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, lifeline[0], STDIN_FILENO);
    if (waitsForReady) {
        posix_spawn_file_actions_adddup2(&actions, ready[1], STDOUT_FILENO);
    }
    for (size_t i = 0; i < options.inheritedFds.size(); ++i) {
        posix_spawn_file_actions_adddup2(&actions, options.inheritedFds[i], FIRST_INHERITED_FD + static_cast<int>(i));
    }
    std::vector<std::string> arguments = argv;
    std::vector<std::string> environment = EnvironmentWith(options.environment);
    const int spawned = posix_spawn(&pid_, arguments[0].c_str(), &actions, nullptr, Pointers(arguments).data(),
                                    Pointers(environment).data());
    posix_spawn_file_actions_destroy(&actions);
    close(lifeline[0]);
    lifeline_ = lifeline[1];
    if (spawned != 0) {
        SAMGR_HOST_LOGE("cannot start %{public}s: %{public}s", argv[0].c_str(), std::strerror(spawned));
        pid_ = -1;
    }
    if (waitsForReady) {
        close(ready[1]);
        if (pid_ > 0 && !ReadReadyLine(ready[0], options.readyTimeout)) {
            SAMGR_HOST_LOGE("%{public}s did not say it is ready", argv[0].c_str());
            Kill();
        }
        close(ready[0]);
    }
}

ChildProcess::~ChildProcess()
{
    Stop();
    if (lifeline_ >= 0) {
        close(lifeline_);
    }
}

bool ChildProcess::Release(const std::vector<std::string>& argv)
{
    std::string message;
    for (const std::string& argument : argv) {
        if (argument.empty() || argument.find('\0') != std::string::npos) {
            return false;
        }
        message += argument;
        message.push_back('\0');
    }
    message.push_back('\0');
    if (Ended() || message.size() > MAX_HELD_COMMAND_LINE) {
        return false;
    }
    return WriteAll(message.size(), [this, &message](size_t written) {
        return send(lifeline_, message.data() + written, message.size() - written, MSG_NOSIGNAL);
    });
}

void ChildProcess::Kill()
{
    if (pid_ > 0) {
        kill(pid_, SIGKILL);
        Reap(0);
    }
}

void ChildProcess::Stop(std::chrono::milliseconds grace)
{
    constexpr auto POLL_INTERVAL = std::chrono::milliseconds(5);
    if (pid_ <= 0) {
        return;
    }
    kill(pid_, SIGTERM);
    const auto deadline = std::chrono::steady_clock::now() + grace;
    while (!Ended() && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(POLL_INTERVAL);
    }
    Kill();
}

bool ChildProcess::Ended()
{
    if (pid_ > 0) {
        Reap(WNOHANG);
    }
    return pid_ <= 0;
}

void ChildProcess::Reap(int options)
{
    pid_t reaped;
    do {
        reaped = waitpid(pid_, nullptr, options);
    } while (reaped < 0 && errno == EINTR);
    // A child that is gone needs no lifeline.
    if (reaped == pid_ || (reaped < 0 && errno == ECHILD)) {
        pid_ = -1;
        close(lifeline_);
        lifeline_ = -1;
    }
}

std::string ChildProcess::OwnExecutable()
{
    std::string path(PATH_MAX, '\0');
    const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
    path.resize(length > 0 ? static_cast<size_t>(length) : 0);
    return path;
}

std::vector<std::string> ChildProcess::Arguments(int argc, char* argv[], const std::function<void()>& prepare)
{
    if (argc != 2 || std::strcmp(argv[1], HELD_ARGUMENT) != 0) {
        return std::vector<std::string>(argv, argv + argc);
    }
    if (prepare) {
        prepare();
    }
    // Loaded: the starter may hold it now. Its standard output was only for saying so.
    SayReady();
    const int nothing = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(nothing, STDOUT_FILENO);
    close(nothing);
    std::vector<std::string> arguments(1);
    // Byte by byte: what follows the command line on standard input is the lifeline's, not ours.
    for (size_t total = 0; total < MAX_HELD_COMMAND_LINE; ++total) {
        char byte = 0;
        const ssize_t count = read(STDIN_FILENO, &byte, 1);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            break;
        }
        if (byte != '\0') {
            arguments.back().push_back(byte);
        } else if (arguments.back().empty()) {
            arguments.pop_back();
            return arguments;
        } else {
            arguments.emplace_back();
        }
    }
    // The starter ended, or said nothing that makes sense: the process is not needed.
    std::_Exit(EXIT_SUCCESS);
}

void ChildProcess::WaitForStarterGone()
{
    char byte;
    ssize_t count;
    do {
        count = read(STDIN_FILENO, &byte, 1);
    } while (count > 0 || (count < 0 && errno == EINTR));
}

bool ChildProcess::SayReady()
{
    return write(STDOUT_FILENO, READY_LINE, READY_LENGTH) == static_cast<ssize_t>(READY_LENGTH);
}

} // namespace OHOS
