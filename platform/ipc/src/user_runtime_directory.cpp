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

#include "user_runtime_directory.h"

#include <cerrno>
#include <cstdlib>
#include <iomanip>
#include <random>
#include <sstream>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include "ipc_log.h"

namespace OHOS {
namespace {
constexpr uid_t ROOT_UID = 0;
constexpr mode_t PRIVATE_DIRECTORY_MODE = S_IRWXU;
constexpr mode_t OTHERS_WRITE = S_IWGRP | S_IWOTH;

unsigned int Uid(uid_t uid)
{
    return static_cast<unsigned int>(uid);
}

unsigned int Permissions(mode_t mode)
{
    return static_cast<unsigned int>(mode & (S_IRWXU | S_IRWXG | S_IRWXO | S_ISVTX));
}

enum class Owners { USER, USER_OR_ROOT };

// Refuses `path` unless `owners` admit its owner; `kind` ("" or "the socket ") says what it is in the log.
bool OwnedBy(Owners owners, const char* kind, const std::string& path, uid_t owner)
{
    if (owner == getuid() || (owners == Owners::USER_OR_ROOT && owner == ROOT_UID)) {
        return true;
    }
    IPC_HOST_LOGE(
        "%{public}s%{public}s belongs to uid %{public}u, not to this user (uid %{public}u)%{public}s: refused", kind,
        path.c_str(), Uid(owner), Uid(getuid()), owners == Owners::USER_OR_ROOT ? " or root" : "");
    return false;
}

std::string DirectoryOf(const std::string& path)
{
    const size_t slash = path.rfind('/');
    if (slash == std::string::npos) {
        return ".";
    }
    return slash == 0 ? "/" : path.substr(0, slash);
}

// The user's own directory that no one else can enter; a symbolic link there is refused, not followed.
bool PrivateDirectory(const std::string& directory)
{
    struct stat status {};
    if (lstat(directory.c_str(), &status) != 0) {
        IPC_HOST_LOGE("cannot look at %{public}s, errno %{public}d", directory.c_str(), errno);
        return false;
    }
    if (!S_ISDIR(status.st_mode)) {
        IPC_HOST_LOGE("%{public}s is not a directory: refused", directory.c_str());
        return false;
    }
    if (!OwnedBy(Owners::USER, "", directory, status.st_uid)) {
        return false;
    }
    if ((status.st_mode & (S_IRWXG | S_IRWXO)) != 0) {
        IPC_HOST_LOGE("others can enter %{public}s (mode %{public}04o): refused", directory.c_str(),
                      Permissions(status.st_mode));
        return false;
    }
    return true;
}

// A directory in which no one but the user or root can add, remove or rename an entry of the user's.
bool TrustedDirectory(const std::string& directory)
{
    struct stat status {};
    if (stat(directory.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) {
        IPC_HOST_LOGE("%{public}s is not a directory: refused", directory.c_str());
        return false;
    }
    if (!OwnedBy(Owners::USER_OR_ROOT, "", directory, status.st_uid)) {
        return false;
    }
    if ((status.st_mode & OTHERS_WRITE) != 0 && (status.st_mode & S_ISVTX) == 0) {
        IPC_HOST_LOGE("others can change %{public}s (mode %{public}04o): refused", directory.c_str(),
                      Permissions(status.st_mode));
        return false;
    }
    return true;
}

std::string FallbackDirectory()
{
    const char* temporary = std::getenv("TMPDIR");
    const std::string parent = temporary != nullptr && temporary[0] != '\0' ? temporary : "/tmp";
    return parent + "/ohos-host-" + std::to_string(getuid());
}
} // namespace

std::string UserRuntimeDirectory::Path()
{
    const char* runtime = std::getenv(RUNTIME_ENVIRONMENT);
    if (runtime != nullptr && runtime[0] != '\0') {
        if (PrivateDirectory(runtime)) {
            return runtime;
        }
        IPC_HOST_LOGW("%{public}s is not this user's private directory: using %{public}s", RUNTIME_ENVIRONMENT,
                      FallbackDirectory().c_str());
    }
    const std::string directory = FallbackDirectory();
    // Made private from the start; one found there is checked, never changed: it may be someone else's.
    if (mkdir(directory.c_str(), PRIVATE_DIRECTORY_MODE) != 0 && errno != EEXIST) {
        IPC_HOST_LOGE("cannot make %{public}s, errno %{public}d", directory.c_str(), errno);
        return "";
    }
    return PrivateDirectory(directory) ? directory : "";
}

std::string UserRuntimeDirectory::SocketPath(const std::string& name)
{
    const std::string directory = Path();
    return directory.empty() ? "" : directory + "/" + name;
}

std::string UserRuntimeDirectory::UniqueSocketPath(const std::string& stem)
{
    std::random_device random;
    std::ostringstream name;
    name << stem << "-" << std::hex << std::setfill('0') << std::setw(8) << random() << std::setw(8) << random()
         << ".sock";
    return SocketPath(name.str());
}

bool UserRuntimeDirectory::MayConnect(const std::string& path)
{
    if (!TrustedDirectory(DirectoryOf(path))) {
        return false;
    }
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0) {
        IPC_HOST_LOGE("nobody serves at %{public}s, errno %{public}d", path.c_str(), errno);
        return false;
    }
    if (!S_ISSOCK(status.st_mode)) {
        IPC_HOST_LOGE("%{public}s is not a socket: refused", path.c_str());
        return false;
    }
    if (!OwnedBy(Owners::USER_OR_ROOT, "the socket ", path, status.st_uid)) {
        return false;
    }
    if ((status.st_mode & OTHERS_WRITE) != 0) {
        IPC_HOST_LOGE("others can connect to the socket %{public}s (mode %{public}04o): refused", path.c_str(),
                      Permissions(status.st_mode));
        return false;
    }
    return true;
}

bool UserRuntimeDirectory::MayBind(const std::string& path)
{
    if (!TrustedDirectory(DirectoryOf(path))) {
        return false;
    }
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0) {
        if (errno == ENOENT) {
            return true;
        }
        IPC_HOST_LOGE("cannot look at %{public}s, errno %{public}d", path.c_str(), errno);
        return false;
    }
    if (!S_ISSOCK(status.st_mode)) {
        IPC_HOST_LOGE("%{public}s exists and is not a socket: refused", path.c_str());
        return false;
    }
    return OwnedBy(Owners::USER, "the socket ", path, status.st_uid);
}

} // namespace OHOS
