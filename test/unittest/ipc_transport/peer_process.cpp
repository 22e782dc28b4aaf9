#include "peer_process.h"

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "ipc_host_transport.h"

extern char** environ;

namespace OHOS {
namespace {
constexpr int READY_TIMEOUT_MS = 10000;
constexpr int PEER_RAW_FD = 3;
std::atomic<int> g_peers{0};
} // namespace

PeerProcess::PeerProcess(int rawFd) :
    path_("/tmp/ipc_transport_peer_" + std::to_string(getpid()) + "_" + std::to_string(g_peers++) + ".sock")
{
    int ready[2];
    int lifeline[2];
    if (pipe2(ready, O_CLOEXEC) != 0 || pipe2(lifeline, O_CLOEXEC) != 0) {
        abort();
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, lifeline[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, ready[1], STDOUT_FILENO);
    if (rawFd >= 0) {
        posix_spawn_file_actions_adddup2(&actions, rawFd, PEER_RAW_FD);
    }
    const std::string raw = std::to_string(rawFd >= 0 ? PEER_RAW_FD : -1);
    char* argv[] = {const_cast<char*>(IPC_TRANSPORT_PEER), path_.data(), const_cast<char*>(raw.c_str()), nullptr};
    const int spawned = posix_spawn(&pid_, IPC_TRANSPORT_PEER, &actions, nullptr, argv, environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ready[1]);
    close(lifeline[0]);
    lifeline_ = lifeline[1];
    char line[8] = {};
    pollfd wait{ready[0], POLLIN, 0};
    const bool started = spawned == 0 && poll(&wait, 1, READY_TIMEOUT_MS) == 1 && read(ready[0], line, 6) == 6;
    close(ready[0]);
    if (!started) {
        Kill();
        abort();
    }
}

PeerProcess::~PeerProcess()
{
    const pid_t pid = pid_;
    Kill();
    IpcHostTransport::WaitForPeerGone(pid, std::chrono::seconds(5));
    unlink(path_.c_str());
}

void PeerProcess::Kill()
{
    if (pid_ > 0) {
        kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
        pid_ = -1;
    }
    if (lifeline_ >= 0) {
        close(lifeline_);
        lifeline_ = -1;
    }
}

} // namespace OHOS
