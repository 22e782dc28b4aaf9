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
 * Receives the outcome of a load request for the share service and hands it to the client.
 */
#ifndef ZELKON_SERVICE_LOAD_CALLBACK_H
#define ZELKON_SERVICE_LOAD_CALLBACK_H

#include "system_ability_load_callback_stub.h"

namespace OHOS {
namespace Zelkon {

class ZelkonServiceLoadCallback : public SystemAbilityLoadCallbackStub {
public:
    void OnLoadSystemAbilitySuccess(int32_t systemAbilityId, const sptr<IRemoteObject>& remoteObject) override;
    using SystemAbilityLoadCallbackStub::OnLoadSystemAbilityFail;
    void OnLoadSystemAbilityFail(int32_t systemAbilityId) override;
};

} // namespace Zelkon
} // namespace OHOS

#endif // ZELKON_SERVICE_LOAD_CALLBACK_H
