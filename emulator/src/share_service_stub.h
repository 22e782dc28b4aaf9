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
 * from its state. Transfers answer with a sender object.
 */
#ifndef SHARE_SERVICE_STUB_H
#define SHARE_SERVICE_STUB_H

#include <vector>

#include "emulated_service_stub.h"
#include "share_service_state.h"

namespace OHOS {
namespace Zelkon {

class ShareServiceStub : public EmulatedServiceStub {
public:
    ShareServiceStub(ServiceChannels channels, std::vector<PermanentEntry> permanentDevices);

private:
    using ListenerKind = ShareServiceState::ListenerKind;

    template <ListenerKind KIND>
    void OnAddListener(RequestReader& reader, ReplyWriter& writer);
    template <ListenerKind KIND>
    void OnRemoveListener(RequestReader& reader, ReplyWriter& writer);
    template <ListenerKind KIND>
    void OnRemoveListenerById(RequestReader& reader, ReplyWriter& writer);
    void OnSendFileWithSendBean(RequestReader& reader, ReplyWriter& writer);
    void OnSendFileWithDataBean(RequestReader& reader, ReplyWriter& writer);
    void OnSendBytes(RequestReader& reader, ReplyWriter& writer);
    void OnCommonShareSend(RequestReader& reader, ReplyWriter& writer);
    void OnCancel(RequestReader& reader, ReplyWriter& writer);
    void OnEnableDiscoveryPolicy(RequestReader& reader, ReplyWriter& writer);
    void OnSetAccountPermission(RequestReader& reader, ReplyWriter& writer);
    void OnUnRegisterCommonReceiveListener(RequestReader& reader, ReplyWriter& writer);
    template <bool SUSPEND>
    void OnWifiScanning(RequestReader& reader, ReplyWriter& writer);
    void OnCollabDeviceFound(RequestReader& reader, ReplyWriter& writer);
    void OnClearDiscovererFlag(RequestReader& reader, ReplyWriter& writer);
    void OnGetPontalPublishInfo(RequestReader& reader, ReplyWriter& writer);
    void OnReportSwingEvent(RequestReader& reader, ReplyWriter& writer);
    void OnApplyUriPermission(RequestReader& reader, ReplyWriter& writer);
    void OnGetPermanentDeviceList(RequestReader& reader, ReplyWriter& writer);
    void OnRemovePermanentDeviceById(RequestReader& reader, ReplyWriter& writer);

    // deviceId, timeout, callback, package name and event type, as the two file transfers carry them.
    bool ReadSendParams(RequestReader& reader, std::string& deviceId);
    void AnswerSender(ReplyWriter& writer, const std::string& deviceId, const TransferPayload& payload);
    nlohmann::ordered_json DumpState() override;

    ShareServiceState state_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_SERVICE_STUB_H
