#include "temp_file.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <limits.h>
#include <unistd.h>

namespace OHOS {
namespace Zelkon {
namespace {
// What the signal handler may touch: a path copied before the flag is raised, and the flag.
char g_pendingPath[PATH_MAX];
std::atomic<bool> g_pending{false};

void RemoveAndDie(int signal)
{
    if (g_pending.exchange(false)) {
        unlink(g_pendingPath);
    }
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void RemoveOnSignals(const std::string& path)
{
    static const bool installed = [] {
        struct sigaction action {};
        action.sa_handler = RemoveAndDie;
        sigemptyset(&action.sa_mask);
        return sigaction(SIGINT, &action, nullptr) == 0 && sigaction(SIGTERM, &action, nullptr) == 0;
    }();
    (void)installed;
    std::strncpy(g_pendingPath, path.c_str(), sizeof(g_pendingPath) - 1);
    g_pending = true;
}

std::string TempDirectory()
{
    const char* directory = std::getenv("TMPDIR");
    return directory != nullptr && directory[0] != '\0' ? directory : "/tmp";
}
} // namespace

TempFile::TempFile(const std::string& stem)
{
    std::string pattern = TempDirectory() + "/" + stem + "-XXXXXX";
    if (pattern.size() >= PATH_MAX) {
        error_ = "the TMPDIR path is too long";
        return;
    }
    fd_ = mkostemp(pattern.data(), O_CLOEXEC);
    if (fd_ < 0) {
        error_ = "cannot create " + pattern + ": " + std::strerror(errno);
        return;
    }
    path_ = pattern;
    RemoveOnSignals(path_);
}

TempFile::~TempFile()
{
    if (fd_ < 0) {
        return;
    }
    g_pending = false;
    unlink(path_.c_str());
    close(fd_);
}

} // namespace Zelkon
} // namespace OHOS
