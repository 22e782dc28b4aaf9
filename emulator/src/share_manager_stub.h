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
 * answers from its state.
 */
#ifndef SHARE_MANAGER_STUB_H
#define SHARE_MANAGER_STUB_H

#include "emulated_service_stub.h"
#include "share_manager_state.h"

namespace OHOS {
namespace Zelkon {

class ShareManagerStub : public EmulatedServiceStub {
public:
    ShareManagerStub(ServiceChannels channels, const EmulatedWorld& world);

private:
    using CallbackKind = ShareManagerState::CallbackKind;

    void OnSetShareEnable(RequestReader& reader, ReplyWriter& writer);
    void OnSetShareEnableWithConfirm(RequestReader& reader, ReplyWriter& writer);
    void OnIsEnabled(RequestReader& reader, ReplyWriter& writer);
    void OnGetEnableState(RequestReader& reader, ReplyWriter& writer);
    void OnIsFocusPidsRegisterSwing(RequestReader& reader, ReplyWriter& writer);
    template <CallbackKind KIND, bool ADD>
    void OnCallback(RequestReader& reader, ReplyWriter& writer);
    template <bool DISCOVER>
    void OnDiscovery(RequestReader& reader, ReplyWriter& writer);
    template <bool CONNECT>
    void OnConnect(RequestReader& reader, ReplyWriter& writer);
    template <bool SENDING_ONLY>
    void OnUserList(RequestReader& reader, ReplyWriter& writer);
    void OnPrepareSend(RequestReader& reader, ReplyWriter& writer);
    void OnSend(RequestReader& reader, ReplyWriter& writer);
    void OnSendFile(RequestReader& reader, ReplyWriter& writer);
    void OnSendBytes(RequestReader& reader, ReplyWriter& writer);
    void OnCancel(RequestReader& reader, ReplyWriter& writer);
    void OnGetReceiverActionCallback(RequestReader& reader, ReplyWriter& writer);
    void OnGetPreviewData(RequestReader& reader, ReplyWriter& writer);
    void OnGetAccountInfo(RequestReader& reader, ReplyWriter& writer);
    void OnSetShareAccountPermission(RequestReader& reader, ReplyWriter& writer);
    template <bool ADD>
    void OnVxShareApiEvent(RequestReader& reader, ReplyWriter& writer);
    template <bool ADD>
    void OnShareEventCallback(RequestReader& reader, ReplyWriter& writer);
    // NotifyInfo and SwingConfirm: a device and an integer, answered by whether the device is known.
    void OnDeviceWithValue(RequestReader& reader, ReplyWriter& writer);
    // ApplyUriPermission and IsAppForeground: a package name, accepted when not empty.
    void OnPackageName(RequestReader& reader, ReplyWriter& writer);
    nlohmann::ordered_json DumpState() override;

    ShareManagerState state_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_MANAGER_STUB_H
