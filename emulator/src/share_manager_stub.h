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
 * The emulated share manager service (IWidgetService): decodes request codes 1 to 36 from the request layouts and
 * answers from its state. Requests that need the state alone are handled by free functions given the state; those that
 * need the service's faults or list replies are the service's own.
 */
#ifndef SHARE_MANAGER_STUB_H
#define SHARE_MANAGER_STUB_H

#include "share_manager_state.h"
#include "stateful_service_stub.h"

namespace OHOS {
namespace Zelkon {

class ShareManagerStub : public StatefulServiceStub<ShareManagerState> {
public:
    ShareManagerStub(ServiceChannels channels, const EmulatedWorld& world);

private:
    template <bool SENDING_ONLY>
    void OnUserList(RequestReader& reader, ReplyWriter& writer);
    void OnGetPreviewData(RequestReader& reader, ReplyWriter& writer);
    void OnGetAccountInfo(RequestReader& reader, ReplyWriter& writer);
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_MANAGER_STUB_H
