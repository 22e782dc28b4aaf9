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

#include "emulated_world.h"

namespace OHOS {
namespace Zelkon {
namespace {
constexpr int32_t PHONE_TYPE = 14;
constexpr int32_t TABLET_TYPE = 17;
constexpr int32_t PC_TYPE = 12;
// Large enough that the reply carries it in shared memory, as on a device.
constexpr size_t PREVIEW_LINES = 1200;

std::string MakePreviewData()
{
    std::string text;
    for (size_t line = 1; line <= PREVIEW_LINES; ++line) {
        text += "preview line " + std::to_string(line) + ": holiday-photos.zip\n";
    }
    return text;
}

UserEntry MakeUser(const std::string& name, const std::string& account, int32_t type, const std::string& id,
                   int32_t nearbyVersion, const std::string& contactName)
{
    UserEntry user;
    user.deviceName = name;
    user.norvaneIdName = account;
    user.avatar = "data:image/png;base64,iVBORw0KGgo" + std::string(512, 'A') + id;
    user.colorId = static_cast<int32_t>(id.size() % 7);
    user.deviceType = type;
    user.deviceId = id;
    user.nearbyVersion = nearbyVersion;
    user.lastSharedTime = 1700000000000;
    user.isSameAccount = account == "me@example.com";
    user.contactInfo = {1, contactName, "photo-of-" + contactName};
    user.isOHDevice = true;
    user.deviceFounder = 0x80000001u;
    return user;
}
} // namespace

EmulatedWorld EmulatedWorld::BuiltIn()
{
    EmulatedWorld world;
    world.users = {
        MakeUser("Alex's phone", "alex@example.com", PHONE_TYPE, "dev-1001-phone", 9, "Alex"),
        MakeUser("Sam's tablet", "sam@example.com", TABLET_TYPE, "dev-1002-tablet", 10, "Sam"),
        MakeUser("My laptop", "me@example.com", PC_TYPE, "dev-1003-laptop", 12, "Me"),
    };
    world.permanentDevices = {
        {1, "Kitchen tablet", TABLET_TYPE, "perm-0001-tablet", 1700000000000},
        {2, "Office laptop", PC_TYPE, "perm-0002-laptop", 1700000500000},
        {3, "Alex's phone", PHONE_TYPE, "perm-0003-phone", 1700001000000},
    };
    world.account = {"acc-20001", "9f2c4e1ab7d35508", 1, 20010042, "Robin", "avatar-of-robin"};
    world.previewData = MakePreviewData();
    return world;
}

} // namespace Zelkon
} // namespace OHOS
