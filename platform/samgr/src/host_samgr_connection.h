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
