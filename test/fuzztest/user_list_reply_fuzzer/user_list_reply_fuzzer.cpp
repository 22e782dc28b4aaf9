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

#include <cstring>
#include <vector>

#include "fuzz_harness.h"
#include "share_manager_srv_proxy.h"

// A list is all or nothing: exactly the count that the reply announced, at most 1000, each record stable.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace OHOS::Zelkon;
    const auto reply = AnswerWith<ShareManagerSrvProxy>(data, size, 2);
    const std::vector<ShareDeviceInfo> devices =
        reply.operation == 0 ? reply.proxy.GetAllUserList() : reply.proxy.GetSendingUserList();
    if (devices.empty()) {
        return 0;
    }
    int32_t count = 0;
    memcpy(&count, reply.data, sizeof(count));
    if (count > 1000 || devices.size() != static_cast<size_t>(count)) {
        abort();
    }
    for (const ShareDeviceInfo& device : devices) {
        CheckRewriteStable(device);
    }
    return 0;
}
