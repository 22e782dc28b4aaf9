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

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <sys/types.h>
#include <vector>

#include "captured_log.h"
#include "connection_quota.h"
#include "peer_credentials.h"

namespace OHOS {
namespace {

constexpr uid_t USER = 1000;
constexpr uid_t ROOT = 0;
constexpr char IPC_TAG[] = "IPCHost";

class ConnectionQuotaTest : public testing::Test {
protected:
    // Whether the quota gives the peer a slot; a slot given is held until the test lets it go.
    bool Take(uid_t uid, pid_t pid)
    {
        ConnectionQuota::Slot slot = quota_.Take(PeerCredentials{uid, pid});
        if (slot != nullptr) {
            slots_.push_back(slot);
        }
        return slot != nullptr;
    }

    size_t TakeUpTo(size_t count, uid_t uid, pid_t pid)
    {
        size_t taken = 0;
        while (taken < count && Take(uid, pid)) {
            ++taken;
        }
        return taken;
    }

    ConnectionQuota quota_;
    std::vector<ConnectionQuota::Slot> slots_;
};

// A process is refused past its share, the user's other processes past their uid's, and another uid keeps its own.
TEST_F(ConnectionQuotaTest, EachProcessAndEachUidGetABoundedShare)
{
    Zelkon::CapturedLog log;
    const size_t share = ConnectionQuota::PER_PROCESS;
    EXPECT_EQ(TakeUpTo(share + 1, USER, 1), share);
    EXPECT_EQ(TakeUpTo(share, USER, 2), share) << "a second process of the user has a share of its own";
    EXPECT_EQ(ConnectionQuota::PER_UID, 2 * share);
    EXPECT_FALSE(Take(USER, 3)) << "a third process of a uid that holds its share";
    EXPECT_TRUE(Take(ROOT, 4)) << "another uid is not held to the user's share";
    EXPECT_EQ(log.Count(IPC_TAG, "its process already holds 128, the most this process serves (further refusals of "
                                 "this burst are not logged)"),
              1u);
    EXPECT_EQ(log.Count(IPC_TAG, "its uid already holds 256, the most this process serves (further refusals of this "
                                 "burst are not logged)"),
              1u);
}

// A slot goes back to the quota with its last copy: the peer's next connection takes its place.
TEST_F(ConnectionQuotaTest, ASlotGivenBackMakesRoomForTheNextConnection)
{
    ASSERT_EQ(TakeUpTo(ConnectionQuota::PER_PROCESS, USER, 1), ConnectionQuota::PER_PROCESS);
    EXPECT_FALSE(Take(USER, 1));
    ConnectionQuota::Slot copy = slots_.front();
    slots_.erase(slots_.begin());
    EXPECT_FALSE(Take(USER, 1)) << "a copy of the slot still holds its place";
    copy.reset();
    EXPECT_TRUE(Take(USER, 1));
    EXPECT_FALSE(Take(USER, 1));
}

} // namespace
} // namespace OHOS
