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
 * What the load callback's stub makes of each request the manager may send, and the platform's values that a caller
 * of the manager sees.
 */
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "if_system_ability_manager.h"
#include "ipc_object_stub.h"
#include "message_option.h"
#include "message_parcel.h"
#include "recording_load_callback.h"
#include "samgr_err_code.h"
#include "samgr_test_abilities.h"

namespace OHOS {
namespace {

constexpr uint32_t SUCCESS = ISystemAbilityLoadCallback::ON_LOAD_SYSTEM_ABILITY_SUCCESS;
constexpr uint32_t FAIL = ISystemAbilityLoadCallback::ON_LOAD_SYSTEM_ABILITY_FAIL;
constexpr uint32_t REMOTE = ISystemAbilityLoadCallback::ON_LOAD_SYSTEM_ABILITY_COMPLETE_FOR_REMOTE;
constexpr uint32_t FAIL_WITH_CODE = ISystemAbilityLoadCallback::ON_LOAD_SYSTEM_ABILITY_FAIL_WITH_CODE;
constexpr int32_t ABOVE_LAST_ID = 0x01000000;

struct StubRow {
    const char* name;
    uint32_t code;
    // Writes what follows the interface token.
    std::function<void(MessageParcel&)> write;
    int32_t result;
    // What the callback hears, if anything.
    std::vector<HeardOutcome> heard;
};

void PrintTo(const StubRow& row, std::ostream* out)
{
    *out << row.name;
}

HeardOutcome Heard(uint32_t code, int32_t systemAbilityId, int32_t errCode, bool withObject,
                   const std::string& deviceId = "")
{
    return {code, false, systemAbilityId, errCode, withObject, deviceId};
}

void WriteObject(MessageParcel& data)
{
    data.WriteRemoteObject(new IPCObjectStub(TEST_ABILITY_DESCRIPTOR));
}

// A remote load's outcome as the manager sends it: the device, the id, whether it loaded, then an object either way.
std::function<void(MessageParcel&)> RemoteOutcome(bool loaded)
{
    return [loaded](MessageParcel& data) {
        data.WriteString("dev-1"), data.WriteInt32(LOADABLE_ID), data.WriteBool(loaded), WriteObject(data);
    };
}

const int32_t NONE = HeardOutcome::NO_ERR_CODE;

const StubRow STUB_ROWS[] = {
    {"Success",
     SUCCESS,
     [](MessageParcel& data) { data.WriteInt32(LOADABLE_ID), WriteObject(data); },
     ERR_NONE,
     {Heard(SUCCESS, LOADABLE_ID, NONE, true)}},
    {"SuccessWithoutId", SUCCESS, [](MessageParcel&) {}, ERR_INVALID_VALUE, {}},
    {"SuccessAboveTheLastId",
     SUCCESS,
     [](MessageParcel& data) { data.WriteInt32(ABOVE_LAST_ID), WriteObject(data); },
     ERR_INVALID_VALUE,
     {}},
    {"Failure",
     FAIL,
     [](MessageParcel& data) { data.WriteInt32(LOADABLE_ID); },
     ERR_NONE,
     {Heard(FAIL, LOADABLE_ID, NONE, false)}},
    {"FailureWithoutId", FAIL, [](MessageParcel&) {}, ERR_INVALID_VALUE, {}},
    {"FailureWithCode",
     FAIL_WITH_CODE,
     [](MessageParcel& data) { data.WriteInt32(LOADABLE_ID), data.WriteInt32(7); },
     ERR_NONE,
     {Heard(FAIL_WITH_CODE, LOADABLE_ID, 7, false)}},
    {"FailureWithCodeWithoutCode",
     FAIL_WITH_CODE,
     [](MessageParcel& data) { data.WriteInt32(LOADABLE_ID); },
     ERR_INVALID_VALUE,
     {}},
    {"FailureWithCodeWithoutId", FAIL_WITH_CODE, [](MessageParcel&) {}, ERR_INVALID_VALUE, {}},
    {"RemoteLoaded", REMOTE, RemoteOutcome(true), ERR_NONE, {Heard(REMOTE, LOADABLE_ID, NONE, true, "dev-1")}},
    // The object that follows a remote failure is not the callback's.
    {"RemoteFailed", REMOTE, RemoteOutcome(false), ERR_NONE, {Heard(REMOTE, LOADABLE_ID, NONE, false, "dev-1")}},
    {"RemoteWithoutId", REMOTE, [](MessageParcel& data) { data.WriteString("dev-1"); }, ERR_INVALID_VALUE, {}},
};

class LoadCallbackStubTest : public testing::TestWithParam<StubRow> {};

TEST_P(LoadCallbackStubTest, DecodesWhatTheManagerSendsAndRefusesWhatIsMissing)
{
    const StubRow& row = GetParam();
    sptr<RecordingLoadCallback> callback = new RecordingLoadCallback();
    MessageParcel data;
    MessageParcel reply;
    MessageOption option;
    data.WriteInterfaceToken(ISystemAbilityLoadCallback::GetDescriptor());
    row.write(data);
    EXPECT_EQ(callback->OnRemoteRequest(row.code, data, reply, option), row.result);
    EXPECT_EQ(callback->Heard(), row.heard);
}

INSTANTIATE_TEST_SUITE_P(Requests, LoadCallbackStubTest, testing::ValuesIn(STUB_ROWS),
                         [](const testing::TestParamInfo<StubRow>& info) { return std::string(info.param.name); });

TEST(LoadCallbackStubTest, ARequestWithAnotherTokenIsRefusedUnheard)
{
    sptr<RecordingLoadCallback> callback = new RecordingLoadCallback();
    MessageParcel data;
    MessageParcel reply;
    MessageOption option;
    data.WriteInterfaceToken(u"test.samgr.Other");
    data.WriteInt32(LOADABLE_ID);
    EXPECT_EQ(callback->OnRemoteRequest(FAIL, data, reply, option), ERR_PERMISSION_DENIED);
    EXPECT_TRUE(callback->Heard().empty());
}

struct PlatformValue {
    const char* name;
    long long value;
    long long platform;
};

const PlatformValue PLATFORM_VALUES[] = {
    {"DUMP_FLAG_PRIORITY_DEFAULT", ISystemAbilityManager::DUMP_FLAG_PRIORITY_DEFAULT, 8},
    {"DUMP_FLAG_PRIORITY_ALL", ISystemAbilityManager::DUMP_FLAG_PRIORITY_ALL, 15},
    {"SAExtraProp().dumpFlags", ISystemAbilityManager::SAExtraProp().dumpFlags, 8},
    {"ON_LOAD_SYSTEM_ABILITY_FAIL_WITH_CODE", FAIL_WITH_CODE, 4},
    {"LOAD_SA_TIMEOUT", LOAD_SA_TIMEOUT, 999},
    {"PROFILE_NOT_EXIST", PROFILE_NOT_EXIST, 1002},
};

TEST(SamgrPlatformValuesTest, AreThePlatforms)
{
    for (const PlatformValue& value : PLATFORM_VALUES) {
        EXPECT_EQ(value.value, value.platform) << value.name;
    }
}

} // namespace
} // namespace OHOS
