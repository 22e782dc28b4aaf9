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
 * How the client starts: the first use loads the service, a failed first load is asked again, and ConnectWithRetry
 * pauses a second between five attempts at most. The first test must meet a client that was never used.
 */
#include <chrono>
#include <cstdlib>

#include "iservice_registry.h"
#include "share_service_harness.h"

namespace OHOS {
namespace Zelkon {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::seconds;

// Connect asks for a load; once the load's answer is delivered, whatever Connect's own wait gave, the client is
// connected.
bool ConnectsOnceLoaded()
{
    ShareClient::GetInstance().Connect();
    IpcThreads::Drain();
    return ShareClient::GetInstance().Connect() == 0;
}

TEST(ShareClientStartTest, TheFirstUseLoadsTheServiceAndAFailedFirstLoadIsAskedAgain)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    SamgrHostControl::Reset();
    RegisterShareService(new ScriptedStub(ZelkonService::GetDescriptor()));
    // A refused first load, in a process of its own: the client's state is the process's.
    EXPECT_EXIT(
        {
            RefuseShareLoads(1);
            CapturedLog log;
            ShareClient::GetInstance();
            const bool logged = Logged(log, {CLIENT_TAG, LOG_ERROR, "LoadSystemAbility failed."}) == 1 &&
                                Logged(log, {CLIENT_TAG, LOG_ERROR, "Failed to load zelkon SA."}) == 1;
            std::exit(logged && ConnectsOnceLoaded() ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");

    LoadScript fail;
    fail.outcome = LoadScript::Outcome::FAIL;
    SamgrHostControl::ScriptLoads(fail);
    CapturedLog log;
    ShareClient& client = ShareClient::GetInstance();
    IpcThreads::Drain();
    ExpectLines(log,
                {{CLIENT_TAG, LOG_INFO, "ShareClient() invoked."}, {CLIENT_TAG, LOG_INFO, "LoadShareSa invoked."}});
    EXPECT_EQ(ErrorLines(log, CLIENT_TAG), 0u);
    EXPECT_TRUE(ConnectsOnceLoaded());
    EXPECT_EQ(SamgrHostControl::LoadCount(SHARE_SERVICE_SA_ID), 2);

    client.ResetProxy(RunningShareService());
    SamgrHostControl::SetManagerUnavailable(true);
    SystemAbilityManagerClient::GetInstance().DestroySystemAbilityManagerObject();
    log.Clear();
    EXPECT_EQ(client.Connect(), -1);
    ExpectLines(log, {{CLIENT_TAG, LOG_ERROR, "GetSystemAbilityManager failed."},
                      {CLIENT_TAG, LOG_ERROR, "Failed to load zelkon SA."}});
    SamgrHostControl::SetManagerUnavailable(false);
    SamgrHostControl::Reset();
}

class ConnectWithRetryTest : public ShareServiceTest {
protected:
    // ConnectWithRetry with the first `refused` loads refused: its result, and the load requests it made.
    bool RetryAfterRefusals(int refused, Clock::duration& took)
    {
        RefuseShareLoads(refused);
        const int loads = Loads();
        const auto start = Clock::now();
        const bool connected = Client().ConnectWithRetry();
        took = Clock::now() - start;
        attempts_ = Loads() - loads;
        return connected;
    }

    int attempts_ = 0;
};

TEST_F(ConnectWithRetryTest, AFirstSuccessReturnsWithoutAPause)
{
    Clock::duration took;
    EXPECT_TRUE(RetryAfterRefusals(0, took));
    EXPECT_EQ(attempts_, 1);
    EXPECT_LT(took, seconds(1));
}

TEST_F(ConnectWithRetryTest, ALaterSuccessComesAfterOnePauseOfASecond)
{
    Clock::duration took;
    EXPECT_TRUE(RetryAfterRefusals(1, took));
    EXPECT_EQ(attempts_, 2);
    EXPECT_GE(took, seconds(1));
    EXPECT_LT(took, seconds(2));
}

TEST_F(ConnectWithRetryTest, GivesUpAfterFiveAttempts)
{
    Clock::duration took;
    EXPECT_FALSE(RetryAfterRefusals(ShareClient::CONNECT_RETRIES + 1, took));
    EXPECT_EQ(attempts_, ShareClient::CONNECT_RETRIES + 1);
    EXPECT_EQ(Client().Connect(), 0) << "the next load succeeds";
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
