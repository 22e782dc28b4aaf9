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
#include "share_manager_srv_proxy.h"

// Every request of the share manager whose reply is one flag (or, for GetEnableState, one integer: any value is a
// possible state, so it is only read).
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace OHOS::Zelkon;
    using P = ShareManagerSrvProxy;
    static const auto widget = FuzzListener<ZelkonWidgetServiceCallback>();
    static const auto sender = FuzzListener<ISenderActionCallback>();
    static const auto api = FuzzListener<ZelkonApiCallback>();
    static const ShareDeviceInfo device;
    static SendBean sendBean;
    static const std::vector<std::function<bool(P&)>> operations = {
        [](P& p) { return p.SetShareEnable(1, 2, true); },
        [](P& p) { return p.SetShareEnableWithConfirm(1, 2, true, false); },
        [](P& p) { return p.IsEnabled(); },
        [](P& p) { return p.GetEnableState() != 0; },
        [](P& p) { return p.IsFocusPidsRegisterSwing(); },
        [](P& p) { return p.RegisterWidgetCallback(widget); },
        [](P& p) { return p.UnRegisterWidgetCallback(widget); },
        [](P& p) { return p.StartDiscovery(); },
        [](P& p) { return p.StopDiscovery(); },
        [](P& p) { return p.StartConnect(); },
        [](P& p) { return p.StopConnect(); },
        [](P& p) { return p.PrepareSend(device); },
        [](P& p) { return p.Send(device, sendBean, "com.example.share"); },
        [](P& p) { return p.SendFile(device, DataBean(), "com.example.share"); },
        [](P& p) { return p.SendBytes(device, BytesInfo()); },
        [](P& p) { return p.Cancel(device); },
        [](P& p) { return p.RegisterSenderActionCallback(sender); },
        [](P& p) { return p.UnRegisterSenderActionCallback(sender); },
        [](P& p) { return p.SetShareAccountPermission(1); },
        [](P& p) { return p.RegisterVxShareApiWidgetCallback(widget); },
        [](P& p) { return p.UnRegisterVxShareApiWidgetCallback(widget); },
        [](P& p) { return p.RegisterVxShareApiEvent("event"); },
        [](P& p) { return p.UnRegisterVxShareApiEvent("event"); },
        [](P& p) { return p.NotifyInfo(device, 1); },
        [](P& p) { return p.ApplyUriPermission("com.example.share"); },
        [](P& p) { return p.SwingConfirm(device, 1); },
        [](P& p) { return p.IsAppForeground("com.example.share"); },
        [](P& p) { return p.RegisterShareApiCallback(api); },
        [](P& p) { return p.UnregisterShareApiCallback(api); },
        [](P& p) { return p.RegisterShareEventCallback(1, 2); },
        [](P& p) { return p.UnregisterShareEventCallback(1, 2); },
    };
    const auto reply = AnswerWith<P>(data, size, operations.size());
    operations[reply.operation](reply.proxy);
    return 0;
}
