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
 * The emulator's world file: what it writes reads back the same, a file may change one section alone, and every
 * invalid file is refused with the path of the field at fault.
 */
#include <gtest/gtest.h>

#include "emulated_world.h"

namespace OHOS {
namespace Zelkon {
namespace {

TEST(EmulatedWorldTest, ReadsBackWhatItWrites)
{
    EmulatedWorld changed = EmulatedWorld::BuiltIn();
    changed.users[1].contactInfo.contactName = "Kim";
    changed.users[1].deviceFounder = UINT32_MAX;
    changed.permanentDevices.pop_back();
    changed.sharingSwitch = {false, -7};
    std::string error;

    const std::optional<EmulatedWorld> read = EmulatedWorld::FromJson(changed.ToJson(), error);

    ASSERT_TRUE(read.has_value()) << error;
    EXPECT_EQ(read->ToJson(), changed.ToJson());
}

TEST(EmulatedWorldTest, SectionsLeftOutKeepTheBuiltInWorlds)
{
    std::string error;
    const std::optional<EmulatedWorld> world = EmulatedWorld::FromJson(R"({"users": [{"deviceId": "d"}]})", error);

    ASSERT_TRUE(world.has_value()) << error;
    ASSERT_EQ(world->users.size(), 1u);
    EXPECT_EQ(world->users[0].deviceId, "d");
    EXPECT_EQ(world->users[0].deviceName, "");
    EXPECT_EQ(world->permanentDevices.size(), EmulatedWorld::BuiltIn().permanentDevices.size());
    EXPECT_EQ(world->account.nickName, EmulatedWorld::BuiltIn().account.nickName);
}

struct Invalid {
    const char* json;
    const char* error;
};

class InvalidWorldTest : public testing::TestWithParam<Invalid> {};

TEST_P(InvalidWorldTest, IsRefusedNamingTheField)
{
    std::string error;
    EXPECT_FALSE(EmulatedWorld::FromJson(GetParam().json, error).has_value());
    EXPECT_EQ(error.rfind(GetParam().error, 0), 0u) << error;
}

INSTANTIATE_TEST_SUITE_P(
    Worlds, InvalidWorldTest,
    testing::Values(
        Invalid{R"({"users": [{"deviceType": "phone"}]})", "users[0].deviceType: expected an int32"},
        Invalid{R"({"users": [{}, {"colour": 1}]})", "users[1].colour: unknown field"},
        Invalid{R"({"weather": 1})", "weather: unknown field"},
        Invalid{R"({"permanentDevices": [{"id": 2147483648}]})", "permanentDevices[0].id: out of the range of int32"},
        Invalid{R"({"permanentDevices": [{"id": -2147483649}]})", "permanentDevices[0].id: out of the range of int32"},
        Invalid{R"({"users": [{"deviceFounder": -1}]})", "users[0].deviceFounder: out of the range"},
        Invalid{R"({"users": [{"lastSharedTime": 1.5}]})", "users[0].lastSharedTime: expected an int64"},
        Invalid{R"({"users": [{"contactInfo": {"contactName": 1}}]})",
                "users[0].contactInfo.contactName: expected a string"},
        Invalid{R"({"sharingSwitch": {"enabled": 1}})", "sharingSwitch.enabled: expected true or false"},
        Invalid{R"({"account": []})", "account: expected an object"},
        Invalid{R"({"users": {}})", "users: expected an array"}, Invalid{R"([])", "the document: expected an object"},
        Invalid{R"({"users": [)", "invalid JSON"}));

} // namespace
} // namespace Zelkon
} // namespace OHOS
