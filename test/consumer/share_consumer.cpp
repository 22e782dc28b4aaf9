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

// Calls both clients the way an application does: first with no share service present, where every call comes
// back with its neutral result, then against the installed emulator of both services; and the records must cross a
// parcel intact through the installed library.
#include <cstdio>
#include <memory>
#include <string>

#include "message_parcel.h"
#include "share_client.h"
#include "share_device_info.h"
#include "share_emulator.h"
#include "share_manager_client.h"

namespace {

int g_failures = 0;

void Expect(bool condition, const char* what)
{
    std::printf("%s: %s\n", condition ? "ok" : "FAILED", what);
    if (!condition) {
        ++g_failures;
    }
}

class DiedCallback : public OHOS::Zelkon::ShareSaDiedCallback {
public:
    void OnShareSaDied() override {}
};

class ManagerDiedCallback : public OHOS::Zelkon::ShareManagerDiedCallback {
public:
    void OnShareManagerDied() override {}
};

void UseShareClient()
{
    OHOS::Zelkon::ShareClient& client = OHOS::Zelkon::ShareClient::GetInstance();
    client.RegisterDiedCallback(std::make_shared<DiedCallback>());
    Expect(client.Connect() == -1, "ShareClient::Connect fails without the service");
    Expect(client.GetPermanentDeviceList().empty(), "ShareClient::GetPermanentDeviceList is empty");
    OHOS::Zelkon::TransmitParam param;
    OHOS::Zelkon::BytesInfo bytes;
    Expect(client.SendBytes(param, bytes) == nullptr, "ShareClient::SendBytes gives no sender");
    std::string publishInfo = "unchanged";
    client.GetPontalPublishInfo(publishInfo);
    Expect(publishInfo == "unchanged", "ShareClient::GetPontalPublishInfo leaves its output alone");
}

void UseShareManagerClient()
{
    OHOS::Zelkon::ShareManagerClient& client = OHOS::Zelkon::ShareManagerClient::GetInstance();
    client.RegisterDiedCallback(std::make_shared<ManagerDiedCallback>());
    Expect(!client.IsEnabled(), "ShareManagerClient::IsEnabled is false");
    Expect(client.GetAllUserList().empty(), "ShareManagerClient::GetAllUserList is empty");
    Expect(client.GetPreviewData().empty(), "ShareManagerClient::GetPreviewData is empty");
    Expect(client.GetReceiverActionCallback() == nullptr, "ShareManagerClient::GetReceiverActionCallback is null");
}

void UseEmulatedServices()
{
    OHOS::Zelkon::ShareEmulator::Install();
    OHOS::Zelkon::ShareClient& client = OHOS::Zelkon::ShareClient::GetInstance();
    Expect(client.Connect() == 0, "ShareClient::Connect loads the emulated share service");
    Expect(!client.GetPermanentDeviceList().empty(), "ShareClient::GetPermanentDeviceList lists the emulated devices");
    OHOS::Zelkon::ShareManagerClient& manager = OHOS::Zelkon::ShareManagerClient::GetInstance();
    Expect(manager.SetShareEnable(0, 1, true) && manager.IsEnabled(), "ShareManagerClient switches sharing on");
    Expect(!manager.GetAllUserList().empty(), "ShareManagerClient::GetAllUserList lists the emulated users");
    OHOS::Zelkon::ShareEmulator::Uninstall();
}

void UseRecords()
{
    OHOS::Zelkon::ShareDeviceInfo written;
    written.deviceName = "consumer";
    written.deviceId = "device-1";
    written.lastSharedTime = 1234567890123;
    OHOS::MessageParcel parcel;
    Expect(written.Marshalling(parcel), "ShareDeviceInfo::Marshalling");
    OHOS::Zelkon::ShareDeviceInfo read;
    Expect(read.ReadFromParcel(parcel) && read.deviceName == written.deviceName && read.deviceId == written.deviceId &&
               read.lastSharedTime == written.lastSharedTime,
           "ShareDeviceInfo::ReadFromParcel gives the written record back");
}

} // namespace

int main()
{
    UseShareClient();
    UseShareManagerClient();
    UseEmulatedServices();
    UseRecords();
    std::printf("%d failed\n", g_failures);
    return g_failures == 0 ? 0 : 1;
}
