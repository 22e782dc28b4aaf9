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
 * Host: a process this one starts, bound to its life. The child's standard input is a socket that only this object
 * writes: a child ends when it reads the end of it, so it cannot outlive its starter, whatever ends the starter
 * (SIGKILL included). A child says it is ready by writing one line on its standard output.
 *
 * A child may also be started held: the executable is loaded and waits, and Release later gives it its command
 * line through the same pipe. Starting a process is slow on some hosts (a 32-bit build under an emulator takes
 * longer than a client waits for a load), and a held process turns a start into a message.
 */
#ifndef OHOS_SAMGR_CHILD_PROCESS_H
#define OHOS_SAMGR_CHILD_PROCESS_H

#include <chrono>
#include <functional>
#include <map>
#include <string>
#include <sys/types.h>
#include <vector>

namespace OHOS {

class ChildProcess {
public:
    struct Options {
        // Set in the child's environment, beside what this process has.
        std::map<std::string, std::string> environment;
        // Descriptors of this process that the child gets as 3, 4, ...
        std::vector<int> inheritedFds;
        // Waits this long for the child's ready line; zero waits for nothing.
        std::chrono::milliseconds readyTimeout{0};
    };

    // Starts argv[0] (a path) with argv. Started() is false, and the reason logged, if it cannot be started or
    // does not say it is ready in time (it is killed then).
    ChildProcess(const std::vector<std::string>& argv, const Options& options);
    // Started held: the executable waits in Arguments() until Release.
    ChildProcess(const std::string& executable, const Options& options);
    // Stopped.
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    bool Started() const { return pid_ > 0; }
    pid_t Pid() const { return pid_; }
    // Gives a held child its command line (argv[0] included); false if it cannot be told.
    bool Release(const std::vector<std::string>& argv);
    // SIGKILL, then reaped; nothing if it is gone already.
    void Kill();
    // SIGTERM, so that it can stop what it started; SIGKILL if it has not ended within the grace time. Reaped.
    void Stop(std::chrono::milliseconds grace = std::chrono::seconds(5));
    // True once it has ended (and is reaped).
    bool Ended();

    // The path of this process's executable.
    static std::string OwnExecutable();
    // What a child's main calls first: its command line, as given, or from Release when it was started held. A held
    // child runs `prepare` before it says it is ready, so that what it does there is off the path of its release; it
    // exits if its starter ends before releasing it.
    static std::vector<std::string> Arguments(int argc, char* argv[], const std::function<void()>& prepare = {});
    // What a child calls: blocks until its starter lets it go (its standard input ends), then returns.
    static void WaitForStarterGone();
    // What a child calls once it serves: the ready line.
    static bool SayReady();

private:
    void Spawn(const std::vector<std::string>& argv, const Options& options);
    void Reap(int options);

    pid_t pid_ = -1;
    int lifeline_ = -1;
};

} // namespace OHOS

#endif // OHOS_SAMGR_CHILD_PROCESS_H
