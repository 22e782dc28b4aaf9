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
 * Host: where the processes of one user meet, and which socket paths they trust. The user's private runtime
 * directory is $XDG_RUNTIME_DIR when that is a directory of the user's own that no one else can enter, else
 * ohos-host-<uid> in $TMPDIR (or /tmp), made with mode 0700. A directory found there that belongs to someone else,
 * that others can enter or that is not a directory at all is refused (logged) and never changed.
 *
 * A socket path is trusted when its directory belongs to the user or root and no one else can change it (or it is
 * sticky, as /tmp is, so that no one else can replace what the user put there), and the socket belongs to the user
 * or root and no one else can write it. Root is trusted as the platform trusts its system uid.
 */
#ifndef OHOS_IPC_USER_RUNTIME_DIRECTORY_H
#define OHOS_IPC_USER_RUNTIME_DIRECTORY_H

#include <string>

namespace OHOS {

class UserRuntimeDirectory {
public:
    static constexpr const char* RUNTIME_ENVIRONMENT = "XDG_RUNTIME_DIR";

    // The directory, made if it is absent; empty (logged) when there is none that only the user can enter.
    static std::string Path();
    // The path of the socket `name` in the directory; empty (logged) when there is no directory.
    static std::string SocketPath(const std::string& name);
    // A path in the directory that no one can guess, "<stem>-<random>.sock"; empty (logged) when there is no
    // directory.
    static std::string UniqueSocketPath(const std::string& stem);

    // Whether this process may connect to the socket at the path: a trusted socket in a trusted directory. False
    // (logged) if there is no socket or it is not trusted.
    static bool MayConnect(const std::string& path);
    // Whether this process may bind a socket at the path: its directory is trusted, and nothing is there or a
    // socket of the user's own, which the caller replaces if nobody answers at it. False (logged) if not.
    static bool MayBind(const std::string& path);
};

} // namespace OHOS

#endif // OHOS_IPC_USER_RUNTIME_DIRECTORY_H
