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
 * Host: whether this process uses a host samgr of another process, and the connection to it. A process is told by
 * the environment variable SamgrHostControl::SOCKET_ENVIRONMENT, which names the samgr's socket; the process that
 * serves the samgr itself uses its own.
 */
#ifndef OHOS_SAMGR_HOST_SAMGR_CONNECTION_H
#define OHOS_SAMGR_HOST_SAMGR_CONNECTION_H

#include "system_ability_manager_proxy.h"

namespace OHOS {

class HostSamgrConnection {
public:
    static bool IsAcrossProcesses();
    // The manager, connected again if the last connection died; null (logged) if nobody serves at the socket.
    static sptr<SystemAbilityManagerProxy> Manager();
};

} // namespace OHOS

#endif // OHOS_SAMGR_HOST_SAMGR_CONNECTION_H
