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
 * Loads through the host system ability manager, as an application meets them on a device, in both worlds: the
 * manager of this process, and the manager of another process that starts abilities as processes of their own.
 */
#include <chrono>
#include <cstdlib>
#include <memory>
#include <ostream>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "child_process.h"
#include "ipc_host_transport.h"
#include "ipc_object_stub.h"
#include "ipc_threads.h"
#include "iservice_registry.h"
#include "recording_load_callback.h"
#include "samgr_err_code.h"
#include "samgr_host_control.h"
#include "samgr_test_abilities.h"

namespace OHOS {
namespace {

enum class World { IN_PROCESS, ACROSS_PROCESSES };

// The manager of a world: this process's own, with loaders for the test abilities, or a peer process's, which
// starts them as processes of their own. The application side always starts without a manager kept.
class SamgrWorld {
public:
    explicit SamgrWorld(World world) : world_(world)
    {
        SamgrHostControl::Reset();
        if (world == World::IN_PROCESS) {
            SamgrHostControl::RegisterLoader(
                LOADABLE_ID, [] { return sptr<IRemoteObject>(new IPCObjectStub(TEST_ABILITY_DESCRIPTOR)); });
            SamgrHostControl::RegisterLoader(BROKEN_ID, [] { return sptr<IRemoteObject>(); });
        } else {
            ChildProcess::Options options;
            options.readyTimeout = std::chrono::seconds(10);
            peer_ =
                std::make_unique<ChildProcess>(std::vector<std::string>{SAMGR_TEST_PEER, "serve", socket_}, options);
            setenv(SamgrHostControl::SOCKET_ENVIRONMENT, socket_.c_str(), 1);
        }
        SystemAbilityManagerClient::GetInstance().DestroySystemAbilityManagerObject();
    }

    ~SamgrWorld()
    {
        unsetenv(SamgrHostControl::SOCKET_ENVIRONMENT);
        SystemAbilityManagerClient::GetInstance().DestroySystemAbilityManagerObject();
        if (peer_ != nullptr) {
            EndPeer();
            unlink(socket_.c_str());
        }
        SamgrHostControl::Reset();
    }

    bool Started() const { return peer_ == nullptr || peer_->Started(); }

    // The manager can no longer be reached: its process died, or this process's own is made unreachable.
    void LoseManager()
    {
        if (peer_ != nullptr) {
            EndPeer();
        } else {
            SamgrHostControl::SetManagerUnavailable(true);
        }
    }

    // Until whatever a request may still cause has reached this process.
    void Settle() const
    {
        constexpr auto ACROSS_PROCESSES_SETTLE = std::chrono::milliseconds(200);
        if (world_ == World::IN_PROCESS) {
            IpcThreads::Drain();
        } else {
            std::this_thread::sleep_for(ACROSS_PROCESSES_SETTLE);
        }
    }

private:
    // Killed, and its end seen here: its sessions are gone.
    void EndPeer()
    {
        const pid_t pid = peer_->Pid();
        if (pid <= 0) {
            return;
        }
        peer_->Kill();
        IpcHostTransport::WaitForPeerGone(pid, std::chrono::seconds(5));
    }

    const World world_;
    const std::string socket_ = "/tmp/samgr-test-" + std::to_string(getpid()) + ".sock";
    std::unique_ptr<ChildProcess> peer_;
};

std::string WorldName(World world)
{
    return world == World::IN_PROCESS ? "InProcess" : "AcrossProcesses";
}

HeardOutcome Loaded(int32_t systemAbilityId)
{
    return {ISystemAbilityLoadCallback::ON_LOAD_SYSTEM_ABILITY_SUCCESS,
            true,
            systemAbilityId,
            HeardOutcome::NO_ERR_CODE,
            true,
            ""};
}

HeardOutcome Failed(int32_t systemAbilityId, int32_t errCode)
{
    return {
        ISystemAbilityLoadCallback::ON_LOAD_SYSTEM_ABILITY_FAIL_WITH_CODE, true, systemAbilityId, errCode, false, ""};
}

LoadScript Delayed(std::chrono::milliseconds delay)
{
    return {LoadScript::Outcome::SUCCEED, delay};
}

LoadScript Failing(int32_t failCode)
{
    LoadScript script{LoadScript::Outcome::FAIL};
    script.failCode = failCode;
    return script;
}

struct LoadRow {
    const char* name;
    int32_t systemAbilityId;
    LoadScript script;
    // The ability runs before the requests.
    bool running;
    // Requests of the same callback, one right after the other.
    int requests;
    // What each request returns.
    int32_t result;
    std::vector<HeardOutcome> heard;
};

void PrintTo(const LoadRow& row, std::ostream* out)
{
    *out << row.name;
}

const LoadRow LOAD_ROWS[] = {
    {"ALoadBringsTheAbilityOneWay", LOADABLE_ID, {}, false, 1, ERR_OK, {Loaded(LOADABLE_ID)}},
    {"TheSameCallbackIsToldOnceWhileTheAbilityStarts",
     LOADABLE_ID,
     Delayed(std::chrono::milliseconds(300)),
     false,
     2,
     ERR_OK,
     {Loaded(LOADABLE_ID)}},
    {"ARunningAbilityAnswersEveryRequest",
     LOADABLE_ID,
     {},
     true,
     2,
     ERR_OK,
     {Loaded(LOADABLE_ID), Loaded(LOADABLE_ID)}},
    {"AFailedStartReachesTheCallbackWithItsCode",
     LOADABLE_ID,
     Failing(4711),
     false,
     1,
     ERR_OK,
     {Failed(LOADABLE_ID, 4711)}},
    {"AnAbilityThatDoesNotComeUpFailsAsTimedOut",
     BROKEN_ID,
     {},
     false,
     1,
     ERR_OK,
     {Failed(BROKEN_ID, LOAD_SA_TIMEOUT)}},
    {"AnIdWithoutAProfileIsRefusedAtOnceAndNeverAnswered", UNKNOWN_ID, {}, false, 1, PROFILE_NOT_EXIST, {}},
};

class SystemAbilityLoadTest : public testing::TestWithParam<std::tuple<World, LoadRow>> {};

TEST_P(SystemAbilityLoadTest, TheCallbackHearsWhatTheManagerDoes)
{
    const auto& [world, row] = GetParam();
    SamgrWorld samgr(world);
    ASSERT_TRUE(samgr.Started());
    sptr<ISystemAbilityManager> manager = SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
    ASSERT_NE(manager, nullptr);
    if (row.running) {
        ASSERT_NE(manager->GetSystemAbility(row.systemAbilityId), nullptr);
    }
    SamgrHostControl::ScriptLoads(row.script);
    sptr<RecordingLoadCallback> callback = new RecordingLoadCallback();
    for (int request = 0; request < row.requests; ++request) {
        EXPECT_EQ(manager->LoadSystemAbility(row.systemAbilityId, callback), row.result);
    }
    EXPECT_TRUE(callback->WaitFor(row.heard.size()));
    samgr.Settle();
    EXPECT_EQ(callback->Heard(), row.heard);
}

INSTANTIATE_TEST_SUITE_P(Worlds, SystemAbilityLoadTest,
                         testing::Combine(testing::Values(World::IN_PROCESS, World::ACROSS_PROCESSES),
                                          testing::ValuesIn(LOAD_ROWS)),
                         [](const testing::TestParamInfo<std::tuple<World, LoadRow>>& info) {
                             return WorldName(std::get<0>(info.param)) + "_" + std::get<1>(info.param).name;
                         });

class ManagerClientTest : public testing::TestWithParam<World> {};

// The manager is kept from the first request on, whatever becomes of it; a dead one answers with the IPC error.
TEST_P(ManagerClientTest, TheFirstManagerIsKeptUntilDestroyed)
{
    SamgrWorld samgr(GetParam());
    ASSERT_TRUE(samgr.Started());
    SystemAbilityManagerClient& client = SystemAbilityManagerClient::GetInstance();
    sptr<ISystemAbilityManager> first = client.GetSystemAbilityManager();
    ASSERT_NE(first, nullptr);
    samgr.LoseManager();
    EXPECT_EQ(client.GetSystemAbilityManager(), first);
    if (GetParam() == World::ACROSS_PROCESSES) {
        MessageParcel data;
        MessageParcel reply;
        MessageOption option;
        const int ipcError = first->AsObject()->SendRequest(1, data, reply, option);
        EXPECT_NE(ipcError, ERR_NONE);
        sptr<ISystemAbilityLoadCallback> callback = new RecordingLoadCallback();
        EXPECT_EQ(first->LoadSystemAbility(LOADABLE_ID, callback), ipcError);
    }
    client.DestroySystemAbilityManagerObject();
    EXPECT_EQ(client.GetSystemAbilityManager(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Worlds, ManagerClientTest, testing::Values(World::IN_PROCESS, World::ACROSS_PROCESSES),
                         [](const testing::TestParamInfo<World>& info) { return WorldName(info.param); });

} // namespace
} // namespace OHOS
