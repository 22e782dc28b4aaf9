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
 * The emulated share service (ZelkonService): decodes request codes 1 to 27 from the request layouts and answers
 * from its state. Transfers answer with a sender object. Requests that need the state alone are handled by free
 * functions given the state; the list reply, with its faults, is the service's own.
 */
#ifndef SHARE_SERVICE_STUB_H
#define SHARE_SERVICE_STUB_H

#include <vector>

#include "share_service_state.h"
#include "stateful_service_stub.h"

namespace OHOS {
namespace Zelkon {

class ShareServiceStub : public StatefulServiceStub<ShareServiceState> {
public:
    ShareServiceStub(ServiceChannels channels, std::vector<PermanentEntry> permanentDevices);

private:
    void OnGetPermanentDeviceList(RequestReader& reader, ReplyWriter& writer);
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_SERVICE_STUB_H
