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

#include "fuzz_harness.h"
#include "share_srv_proxy.h"

// A partial list is allowed, but never more records than the count announced, 1000, or the reply could hold: a
// record is at least its id, two empty strings, its type and its time stamp.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace OHOS::Zelkon;
    constexpr size_t smallestRecord = 4 + 8 + 4 + 8 + 8;
    const auto reply = AnswerWith<ShareSrvProxy>(data, size, 1);
    const size_t devices = reply.proxy.GetPermanentDeviceList().size();
    if (devices == 0) {
        return 0;
    }
    int32_t count = 0;
    memcpy(&count, reply.data, sizeof(count));
    // The reply holds the input padded to whole words.
    const size_t replySize = (reply.size + 3) & ~static_cast<size_t>(3);
    if (devices > 1000 || devices > static_cast<size_t>(count) || devices * smallestRecord > replySize - 4) {
        abort();
    }
    return 0;
}
