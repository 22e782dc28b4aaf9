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

#include "client_death_recipient.h"

#include "share_common_constants.h"

#include "share_client.h"
#include "share_log.h"
#include "share_manager_client.h"

namespace OHOS {
namespace Zelkon {
namespace {
// Each client's recipient logs under the client's tag.
template <typename Client>
const LogLabel& ClientLabel();
template <>
const LogLabel& ClientLabel<ShareClient>()
{
    return SHARE_CLIENT_LABEL;
}
template <>
const LogLabel& ClientLabel<ShareManagerClient>()
{
    return SHARE_MANAGER_CLIENT_LABEL;
}
} // namespace

template <typename Client, typename DiedCallback, void (DiedCallback::*NOTIFY)()>
void ClientDeathRecipient<Client, DiedCallback, NOTIFY>::OnRemoteDied(const wptr<IRemoteObject>& remote)
{
    if (remote.GetRefPtr() == nullptr) {
        SHARE_LOG(ClientLabel<Client>(), LOG_ERROR, "OnRemoteDied failed, remote is nullptr");
        return;
    }
    Client::GetInstance().ResetProxy(remote);
    std::shared_ptr<DiedCallback> callback;
    {
        std::lock_guard<std::mutex> lock(callbackMutex_);
        callback = callback_.lock();
    }
    if (callback != nullptr) {
        ((*callback).*NOTIFY)();
    }
    SHARE_LOG(ClientLabel<Client>(), LOG_DEBUG, "Recv death notice");
}

template class ClientDeathRecipient<ShareClient, ShareSaDiedCallback, &ShareSaDiedCallback::OnShareSaDied>;
template class ClientDeathRecipient<ShareManagerClient, ShareManagerDiedCallback,
                                    &ShareManagerDiedCallback::OnShareManagerDied>;

} // namespace Zelkon
} // namespace OHOS
