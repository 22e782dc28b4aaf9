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

#include "zelkon_service_load_callback.h"

#include "share_common_constants.h"

#include "share_client.h"
#include "share_log.h"

namespace OHOS {
namespace Zelkon {

void ZelkonServiceLoadCallback::OnLoadSystemAbilitySuccess(int32_t systemAbilityId,
                                                           const sptr<IRemoteObject>& remoteObject)
{
    SHARE_CLIENT_LOGI("OnLoadSystemAbilitySuccess invoked: %{public}d", systemAbilityId);
    if (systemAbilityId == SHARE_SERVICE_SA_ID && remoteObject != nullptr) {
        ShareClient::GetInstance().SetShareSa(remoteObject);
    }
}

void ZelkonServiceLoadCallback::OnLoadSystemAbilityFail(int32_t systemAbilityId)
{
    // Any failure marks the load failed, whatever the id: the next Connect asks again.
    SHARE_CLIENT_LOGI("OnLoadSystemAbilityFail invoked: %{public}d", systemAbilityId);
    ShareClient::GetInstance().SetLoadShareSaFailed();
}

} // namespace Zelkon
} // namespace OHOS
