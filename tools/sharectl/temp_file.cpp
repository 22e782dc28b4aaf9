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

#include "temp_file.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <limits.h>
#include <random>
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

// Random enough that another file of the name is not there: it is named to the signal handler before it exists.
std::string RandomSuffix()
{
    constexpr char LETTERS[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    constexpr size_t LENGTH = 12;
    std::random_device random;
    std::uniform_int_distribution<size_t> pick(0, sizeof(LETTERS) - 2);
    std::string suffix;
    for (size_t i = 0; i < LENGTH; ++i) {
        suffix.push_back(LETTERS[pick(random)]);
    }
    return suffix;
}

std::string TempDirectory()
{
    const char* directory = std::getenv("TMPDIR");
    return directory != nullptr && directory[0] != '\0' ? directory : "/tmp";
}
} // namespace

TempFile::TempFile(const std::string& stem)
{
    constexpr int ATTEMPTS = 16;
    constexpr mode_t OWNER_ONLY = 0600;
    for (int attempt = 0; attempt < ATTEMPTS && fd_ < 0; ++attempt) {
        const std::string path = TempDirectory() + "/" + stem + "-" + RandomSuffix();
        if (path.size() >= PATH_MAX) {
            error_ = "the TMPDIR path is too long";
            return;
        }
        // Named to the handler first: a signal that comes while the file is made removes it too.
        RemoveOnSignals(path);
        fd_ = UniqueFd(open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, OWNER_ONLY));
        if (fd_ >= 0) {
            path_ = path;
            return;
        }
        g_pending = false;
        error_ = "cannot create " + path + ": " + std::strerror(errno);
        if (errno != EEXIST) {
            return;
        }
    }
}

TempFile::~TempFile()
{
    if (fd_ < 0) {
        return;
    }
    g_pending = false;
    unlink(path_.c_str());
}

} // namespace Zelkon
} // namespace OHOS
