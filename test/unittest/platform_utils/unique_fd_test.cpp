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

// A UniqueFd closes its descriptor when it goes, unless it handed it over by a move or Release, and compares as the
// int it holds from either side.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <functional>
#include <unistd.h>
#include <utility>

#include "unique_fd.h"

namespace OHOS {
namespace {

bool IsOpen(int fd)
{
    return fcntl(fd, F_GETFD) != -1;
}

TEST(UniqueFdTest, ClosesItsDescriptorOnceUnlessItHandedItOver)
{
    const struct {
        const char* name;
        // What receives the descriptor; it lives until the end of the row.
        std::function<UniqueFd(UniqueFd&)> act;
        bool stillHeld;
        bool openAfterAct;
        bool openAfterRow;
    } cases[] = {
        {"kept", [](UniqueFd&) { return UniqueFd(); }, true, true, false},
        {"moved out", [](UniqueFd& fd) { return UniqueFd(std::move(fd)); }, false, true, false},
        {"move-assigned over a held one",
         [](UniqueFd& fd) {
             UniqueFd other(open("/dev/null", O_RDONLY | O_CLOEXEC));
             other = std::move(fd);
             return other;
         },
         false, true, false},
        {"replaced by an empty one",
         [](UniqueFd& fd) {
             fd = UniqueFd();
             return UniqueFd();
         },
         false, false, false},
        {"released",
         [](UniqueFd& fd) {
             (void)fd.Release();
             return UniqueFd();
         },
         false, true, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const int raw = open("/dev/null", O_RDONLY | O_CLOEXEC);
        ASSERT_GE(raw, 0);
        {
            UniqueFd held(raw);
            const UniqueFd receiver = c.act(held);
            EXPECT_EQ(held.Get(), c.stillHeld ? raw : -1);
            EXPECT_EQ(IsOpen(raw), c.openAfterAct);
        }
        EXPECT_EQ(IsOpen(raw), c.openAfterRow);
        if (c.openAfterRow) {
            close(raw);
        }
    }
}

TEST(UniqueFdTest, ComparesAsTheIntItHoldsFromEitherSide)
{
    const UniqueFd empty;
    EXPECT_TRUE(empty == -1 && -1 == empty && empty < 0 && 0 > empty && empty <= -1 && -1 >= empty);
    EXPECT_FALSE(empty != -1 || -1 != empty || empty >= 0 || 0 <= empty || empty > -1 || -1 < empty);
    const UniqueFd held(open("/dev/null", O_RDONLY | O_CLOEXEC));
    const int raw = held;
    ASSERT_GE(raw, 0);
    EXPECT_TRUE(held == raw && raw == held && held != raw + 1 && raw + 1 != held);
    EXPECT_TRUE(held >= 0 && held > -1 && held <= raw && held < raw + 1);
    EXPECT_TRUE(0 <= held && -1 < held && raw >= held && raw + 1 > held);
}

} // namespace
} // namespace OHOS
