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

#include <string>

#include "fuzz_harness.h"
#include "share_srv_proxy.h"

// The result is a bool, and the text comes out of the reply, so it cannot be longer than the reply.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace OHOS::Zelkon;
    const auto reply = AnswerWith<ShareSrvProxy>(data, size, 1);
    std::string info = "replaced once the service answered";
    const int32_t result = reply.proxy.GetPontalPublishInfo(info);
    if ((result != 0 && result != 1) || info.size() > reply.size) {
        abort();
    }
    return 0;
}
