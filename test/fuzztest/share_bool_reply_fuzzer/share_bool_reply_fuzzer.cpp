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
#include <vector>

#include "fuzz_harness.h"
#include "share_srv_proxy.h"

// Every request of the share service whose reply is one bool: it travels back as 0 or 1, whatever the reply held.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace OHOS::Zelkon;
    using P = ShareSrvProxy;
    static const auto publish = FuzzListener<IPublishListener>();
    static const auto subscribe = FuzzListener<ISubscribeListener>();
    static const auto receive = FuzzListener<ZelkonReceiveListener>();
    static const auto common = FuzzListener<ICommonReceiveListener>();
    static const std::vector<std::function<int32_t(P&)>> operations = {
        [](P& p) { return p.PublishDevice(publish); },
        [](P& p) { return p.UnPublishDevice(1, publish); },
        [](P& p) { return p.SubscribeDevice(subscribe); },
        [](P& p) { return p.UnSubscribeDevice(2, subscribe); },
        [](P& p) { return p.RegisterReceiveListener(receive); },
        [](P& p) { return p.UnRegisterReceiveListener(receive); },
        [](P& p) { return p.EnableDiscoveryPolicy(1); },
        [](P& p) { return p.SetAccountPermission(1); },
        [](P& p) { return p.RegisterCommonReceiveListener(common); },
        [](P& p) { return p.UnRegisterCommonReceiveListener(); },
        [](P& p) { return p.SuspendWifiScanning("wlan0"); },
        [](P& p) { return p.ResumeWifiScanning("wlan0"); },
        [](P& p) { return p.OnCollabDeviceFound(nullptr, subscribe, 1); },
        [](P& p) { return p.ClearDiscovererFlag("device", 1); },
        [](P& p) { return p.ReportSwingEvent(1, 2, 3, "swing"); },
        [](P& p) { return p.SwingSubscribe(subscribe); },
        [](P& p) { return p.SwingUnSubscribe(subscribe); },
        [](P& p) { return p.ApplyUriPermission("device"); },
        [](P& p) { return p.RemovePermanentDeviceById(7); },
    };
    const auto reply = AnswerWith<P>(data, size, operations.size());
    const int32_t result = operations[reply.operation](reply.proxy);
    if (result != 0 && result != 1) {
        abort();
    }
    return 0;
}
