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
 * The library's writers and readers against the emulator's independent decoders and encoders: a layout mistake on
 * either side shows up as a field that differs.
 */
#include <algorithm>
#include <memory>
#include <mutex>
#include <vector>

#include "emulator_test_fixture.h"
#include "ipc_host_transport.h"
#include "sample_records.h"
#include "services_in_processes.h"
#include "share_manager_client.h"
#include "world.h"

namespace OHOS {
namespace Zelkon {
namespace {

using Fields = DecodedRequest::Fields;

// Every case runs in both worlds.
class EmulatorConformanceTest : public EmulatorTest, public testing::WithParamInterface<World> {
protected:
    static void TearDownTestSuite() { processes_.reset(); }

    void SetUp() override
    {
        if (GetParam() == World::IN_PROCESS) {
            EmulatorTest::SetUp();
        } else {
            // Started once for the suite, at its first case across processes.
            if (processes_ == nullptr) {
                processes_ = std::make_unique<ServicesInProcesses>();
            }
            ASSERT_TRUE(processes_->Started());
            processes_->Enter();
            ASSERT_TRUE(SamgrHostControl::IsAcrossProcesses());
            ReachServices(PROCESS_LOAD_TIMEOUT_SECONDS);
            ASSERT_GT(IpcHostTransport::PeerPid(shareService_), 0);
            ASSERT_NE(IpcHostTransport::PeerPid(shareService_), IpcHostTransport::PeerPid(shareManager_));
        }
        ShareEmulator::SetTraceSink([this](const DecodedRequest& request) {
            std::lock_guard<std::mutex> lock(mutex_);
            traced_.push_back(request);
        });
    }

    void TearDown() override
    {
        if (GetParam() == World::IN_PROCESS) {
            EmulatorTest::TearDown();
        } else if (processes_ != nullptr) {
            ShareEmulator::SetTraceSink(nullptr);
            shareService_ = nullptr;
            shareManager_ = nullptr;
            processes_->Leave();
        }
    }

    std::vector<DecodedRequest> Traced()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return traced_;
    }

    static ShareManagerClient& Manager() { return ShareManagerClient::GetInstance(); }

private:
    static constexpr int32_t PROCESS_LOAD_TIMEOUT_SECONDS = 10;
    static inline std::unique_ptr<ServicesInProcesses> processes_;

    std::mutex mutex_;
    std::vector<DecodedRequest> traced_;
};

// A device the emulator knows, every other field as the sample has it.
ShareDeviceInfo KnownDevice()
{
    ShareDeviceInfo device = FilledDevice();
    device.deviceId = "dev-1002-tablet";
    return device;
}

TEST_P(EmulatorConformanceTest, DeviceRecordWrittenByTheLibraryDecodesFieldByField)
{
    ASSERT_TRUE(Manager().PrepareSend(KnownDevice()));

    const std::vector<DecodedRequest> traced = Traced();
    ASSERT_EQ(traced.size(), 1u);
    EXPECT_EQ(traced[0].operation, "PrepareSend");
    const Fields expected = {
        {"token", "\"ohos.Zelkon.IWidgetService\""},
        {"deviceName", "\"Living room tablet\""},
        {"norvaneIdName", "\"ada@example\""},
        {"avatar", "\"data:image/png;base64,iVBORw0KGgo=\""},
        {"colorId", "3"},
        {"eventCode", "101"},
        {"stateCode", "2"},
        {"percent", "57"},
        {"speed", "1200"},
        {"isDisappeared", "true"},
        {"deviceType", "17"},
        {"deviceId", "\"dev-1002-tablet\""},
        {"nearbyVersion", "9"},
        {"lastSharedTime", "1763800000123"},
        {"isSameAccount", "true"},
        {"contact.kind", "1"},
        {"contact.name", "\"Ada\""},
        {"contact.photo", "\"photo\""},
        {"isOHDevice", "true"},
        {"deviceFounder", "2147483649"},
        {"concurentId", "\"c-42\""},
        {"extraValue", "-7"},
    };
    EXPECT_EQ(traced[0].fields, expected);
}

TEST_P(EmulatorConformanceTest, UserListWrittenByTheEmulatorReadsCompletely)
{
    const std::vector<ShareDeviceInfo> users = Manager().GetAllUserList();

    ASSERT_EQ(users.size(), 3u);
    EXPECT_EQ(users[0].deviceName, "Alex's phone");
    EXPECT_EQ(users[0].deviceId, "dev-1001-phone");
    EXPECT_EQ(users[0].contactInfo.contactName, "Alex");
    EXPECT_EQ(users[0].contactInfo.contactPhoto, "photo-of-Alex");
    EXPECT_EQ(users[0].deviceFounder, 0x80000001u);
    EXPECT_GT(users[0].avatar.size(), 512u);
    EXPECT_TRUE(users[2].isSameAccount);
    EXPECT_EQ(users[2].nearbyVersion, 12);
}

TEST_P(EmulatorConformanceTest, AccountAndPreviewReadAsTheEmulatorWroteThem)
{
    ASSERT_TRUE(Manager().SetShareAccountPermission(3));
    const ShareAccountInfo account = Manager().GetAccountInfo();
    EXPECT_EQ(account.norvaneAccountID, "acc-20001");
    EXPECT_EQ(account.status, 3);
    EXPECT_EQ(account.nickName, "Robin");
    EXPECT_EQ(account.avatar, "avatar-of-robin");

    const std::string preview = Manager().GetPreviewData();
    EXPECT_GT(preview.size(), MessageParcel::MAX_INLINE_RAW_DATA_SIZE);
    EXPECT_EQ(preview.back(), '\n');
}

TEST_P(EmulatorConformanceTest, SendFileRequestDecodesWithItsRecordsAndPackageName)
{
    ASSERT_TRUE(Manager().PrepareSend(KnownDevice()));
    SendBean sendBean;
    sendBean.previewText = "2 photos";
    sendBean.files = {{"file:///a.jpg", "a.jpg", 10}, {"file:///b.jpg", "b.jpg", 20}};
    ASSERT_TRUE(Manager().Send(KnownDevice(), sendBean, "com.example.test"));

    const std::vector<DecodedRequest> traced = Traced();
    ASSERT_EQ(traced.size(), 2u);
    const Fields& fields = traced[1].fields;
    const Fields tail(fields.end() - 9, fields.end());
    const Fields expected = {
        {"sendBean.previewText", "\"2 photos\""},
        {"sendBean.files", "2"},
        {"sendBean.files[0].uri", "\"file:///a.jpg\""},
        {"sendBean.files[0].name", "\"a.jpg\""},
        {"sendBean.files[0].size", "10"},
        {"sendBean.files[1].uri", "\"file:///b.jpg\""},
        {"sendBean.files[1].name", "\"b.jpg\""},
        {"sendBean.files[1].size", "20"},
        {"packageName", "\"com.example.test\""},
    };
    EXPECT_EQ(tail, expected);
}

INSTANTIATE_TEST_SUITE_P(Worlds, EmulatorConformanceTest, BOTH_WORLDS, WorldName);

} // namespace
} // namespace Zelkon
} // namespace OHOS
