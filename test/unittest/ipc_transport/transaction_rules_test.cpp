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

// What a caller of SendRequest sees, as the binder driver makes it, in both worlds of the host: the service behind
// the in-process world's proxy, and the same service in a peer process.
#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "binder_results.h"
#include "ipc_host_transport.h"
#include "ipc_object_proxy.h"
#include "ipc_threads.h"
#include "peer_process.h"
#include "peer_service.h"
#include "transport_test_helpers.h"

namespace OHOS {
namespace {
using namespace std::chrono_literals;

constexpr size_t BINDER_BUFFER = 1024 * 1024 - 2 * 4096;

// Where the service lives, and how its process ends.
class World {
public:
    virtual ~World() = default;
    // The service's remote object; the caller's reference is the only one the world does not count on.
    virtual sptr<IRemoteObject> Service() = 0;
    // Its process ends; returns once every death notice that causes in this process has run.
    virtual void KillService() = 0;
};

class InProcessWorld : public World {
public:
    sptr<IRemoteObject> Service() override
    {
        sptr<IPCObjectProxy> proxy = proxy_.promote();
        if (proxy == nullptr) {
            proxy = new IPCObjectProxy(MakePeerService());
            proxy_ = proxy;
        }
        return proxy;
    }
    void KillService() override
    {
        if (sptr<IPCObjectProxy> proxy = proxy_.promote()) {
            proxy->Kill();
        }
    }

private:
    wptr<IPCObjectProxy> proxy_;
};

class ProcessWorld : public World {
public:
    sptr<IRemoteObject> Service() override { return IpcHostTransport::ConnectToContextObject(peer_.Path()); }
    void KillService() override
    {
        const pid_t pid = peer_.Pid();
        peer_.Kill();
        IpcHostTransport::WaitForPeerGone(pid, 5s);
    }

private:
    PeerProcess peer_;
};

int Call(const sptr<IRemoteObject>& service, PeerCode code, int32_t argument = 0, size_t padding = 0,
         MessageOption option = MessageOption())
{
    MessageParcel data;
    MessageParcel reply;
    data.WriteInt32(argument);
    if (padding > 0) {
        const std::vector<uint8_t> bytes(padding, 0xa5);
        data.SetMaxCapacity(data.GetMaxCapacity() + padding);
        data.WriteBuffer(bytes.data(), bytes.size());
    }
    return service->SendRequest(code, data, reply, option);
}

int32_t AskInt(const sptr<IRemoteObject>& service, PeerCode code, int32_t argument)
{
    MessageParcel data;
    MessageParcel reply;
    MessageOption option;
    data.WriteInt32(argument);
    EXPECT_EQ(service->SendRequest(code, data, reply, option), ERR_NONE);
    return reply.ReadInt32();
}

// A call of its own thread that sleeps in the service for a while, once it is under way.
std::future<int> SleepingCall(const sptr<IRemoteObject>& service, int32_t milliseconds, size_t padding = 0)
{
    std::future<int> call = std::async(
        std::launch::async, [service, milliseconds, padding] { return Call(service, SLEEP, milliseconds, padding); });
    EXPECT_EQ(AskInt(service, SLEEPERS, 5000), 1);
    return call;
}

struct Rule {
    const char* name;
    std::function<void(World&)> holds;
};

const std::vector<Rule>& Rules()
{
    static const std::vector<Rule> rules = {
        {"ADeadProcessWithoutRecipientsAnswersDeadReplyForGood",
         [](World& world) {
             const sptr<IRemoteObject> service = world.Service();
             world.KillService();
             EXPECT_EQ(Call(service, ECHO), BR_DEAD_REPLY);
             EXPECT_EQ(Call(service, ECHO), BR_DEAD_REPLY);
             EXPECT_FALSE(service->IsObjectDead());
         }},
        {"TheNoticeReachesEachRecipientOnceAndThenCallsAnswerDeadObject",
         [](World& world) {
             const sptr<IRemoteObject> service = world.Service();
             const std::vector<sptr<CountingRecipient>> recipients = {new CountingRecipient(), new CountingRecipient()};
             for (const sptr<CountingRecipient>& recipient : recipients) {
                 ASSERT_TRUE(service->AddDeathRecipient(recipient));
             }
             world.KillService();
             world.KillService();
             for (const sptr<CountingRecipient>& recipient : recipients) {
                 EXPECT_EQ(recipient->Calls(), 1);
                 EXPECT_TRUE(recipient->OnIpcThreadWithTheObject());
             }
             EXPECT_TRUE(service->IsObjectDead());
             EXPECT_EQ(Call(service, ECHO), ERR_DEAD_OBJECT);
             EXPECT_FALSE(service->AddDeathRecipient(recipients[0]));
         }},
        {"ADeathDuringACallAnswersDeadReply",
         [](World& world) {
             const sptr<IRemoteObject> service = world.Service();
             ASSERT_TRUE(service->AddDeathRecipient(new CountingRecipient()));
             std::future<int> call = SleepingCall(service, 200);
             world.KillService();
             EXPECT_EQ(call.get(), BR_DEAD_REPLY);
         }},
        {"ACallWaitsForItsAnswerPastItsWaitTime",
         [](World& world) {
             const auto start = std::chrono::steady_clock::now();
             EXPECT_EQ(Call(world.Service(), SLEEP, 1100, 0, MessageOption(MessageOption::TF_SYNC, 1)), ERR_NONE);
             EXPECT_GE(std::chrono::steady_clock::now() - start, 1100ms);
         }},
        {"AStatusTravelsOnlyWithAnEmptyReply",
         [](World& world) {
             const sptr<IRemoteObject> service = world.Service();
             for (bool written : {true, false}) {
                 MessageParcel data;
                 MessageParcel reply;
                 MessageOption option;
                 data.WriteInt32(ERR_INVALID_DATA);
                 data.WriteBool(written);
                 EXPECT_EQ(service->SendRequest(FAIL_WITH, data, reply, option), written ? ERR_NONE : ERR_INVALID_DATA);
                 EXPECT_EQ(reply.GetDataSize(), written ? sizeof(int32_t) : 0u);
             }
         }},
        {"ATransactionOrReplyBeyondTheBinderBufferFails",
         [](World& world) {
             const sptr<IRemoteObject> service = world.Service();
             EXPECT_EQ(Call(service, SLEEP, 0, BINDER_BUFFER), BR_FAILED_REPLY);
             EXPECT_EQ(Call(service, BIG_REPLY, BINDER_BUFFER + 1), BR_FAILED_REPLY);
             EXPECT_EQ(Call(service, SLEEP, 0, BINDER_BUFFER - sizeof(int32_t)), ERR_NONE);
             // Raw data above 32 KiB travels in shared memory.
             const std::vector<uint8_t> block(4 * BINDER_BUFFER, 0x3c);
             MessageParcel data;
             MessageParcel reply;
             MessageOption option;
             data.WriteInt32(static_cast<int32_t>(block.size()));
             ASSERT_TRUE(data.WriteRawData(block.data(), block.size()));
             EXPECT_EQ(service->SendRequest(RAW_DATA, data, reply, option), ERR_NONE);
         }},
        {"TransactionsInFlightShareTheReceiversBuffer",
         [](World& world) {
             const sptr<IRemoteObject> service = world.Service();
             const size_t half = BINDER_BUFFER / 2 + 4096;
             std::future<int> held = SleepingCall(service, 200, half);
             EXPECT_EQ(Call(service, SLEEP, 0, half), BR_FAILED_REPLY);
             EXPECT_EQ(held.get(), ERR_NONE);
             EXPECT_EQ(Call(service, SLEEP, 0, half), ERR_NONE);
         }},
        {"ARecipientKeepsItsProxyAlive",
         [](World& world) {
             const sptr<CountingRecipient> recipient = new CountingRecipient();
             ASSERT_TRUE(world.Service()->AddDeathRecipient(recipient));
             world.KillService();
             EXPECT_EQ(recipient->Calls(), 1);
         }},
        {"ARecipientAddedAfterTheDeathBringsTheNoticeAtOnce",
         [](World& world) {
             const sptr<IRemoteObject> service = world.Service();
             world.KillService();
             const sptr<CountingRecipient> recipient = new CountingRecipient();
             EXPECT_TRUE(service->AddDeathRecipient(recipient));
             IpcThreads::Drain();
             EXPECT_EQ(recipient->Calls(), 1);
             EXPECT_TRUE(service->IsObjectDead());
             EXPECT_EQ(Call(service, ECHO), ERR_DEAD_OBJECT);
         }},
    };
    return rules;
}

enum class WorldKind { IN_PROCESS, ACROSS_PROCESSES };

class TransactionRulesTest : public testing::TestWithParam<std::tuple<WorldKind, size_t>> {};

TEST_P(TransactionRulesTest, Holds)
{
    const auto [kind, rule] = GetParam();
    std::unique_ptr<World> world;
    if (kind == WorldKind::IN_PROCESS) {
        world = std::make_unique<InProcessWorld>();
    } else {
        world = std::make_unique<ProcessWorld>();
    }
    Rules()[rule].holds(*world);
    IpcThreads::Drain();
}

INSTANTIATE_TEST_SUITE_P(Table, TransactionRulesTest,
                         testing::Combine(testing::Values(WorldKind::IN_PROCESS, WorldKind::ACROSS_PROCESSES),
                                          testing::Range<size_t>(0, Rules().size())),
                         [](const testing::TestParamInfo<TransactionRulesTest::ParamType>& info) {
                             const bool inProcess = std::get<0>(info.param) == WorldKind::IN_PROCESS;
                             return std::string(inProcess ? "InProcess_" : "AcrossProcesses_") +
                                    Rules()[std::get<1>(info.param)].name;
                         });

} // namespace
} // namespace OHOS
