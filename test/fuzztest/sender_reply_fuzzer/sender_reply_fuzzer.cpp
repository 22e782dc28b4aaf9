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

#include <functional>

#include "fuzz_harness.h"
#include "share_srv_proxy.h"

// The four transfer requests, whose reply is the sender of the transfer. No creator is registered for the sender's
// descriptor, so the result is null whatever the reply holds: the fuzzer watches what the sanitizers see.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace OHOS::Zelkon;
    using P = ShareSrvProxy;
    static const TransmitParam param{"device", 30, FuzzListener<ITransmitCallback>(), TransmitEventType{}};
    static SendBean sendBean;
    static CommonShareObject shareObject;
    static const std::function<void(P&)> operations[] = {
        [](P& p) { p.SendFile(param, sendBean, "com.example.share"); },
        [](P& p) { p.SendFile(param, DataBean(), "com.example.share"); },
        [](P& p) { p.SendBytes(param, BytesInfo()); },
        [](P& p) { p.CommonShareSend(shareObject, param.transCallback); },
    };
    const auto reply = AnswerWith<P>(data, size, 4);
    operations[reply.operation](reply.proxy);
    return 0;
}
