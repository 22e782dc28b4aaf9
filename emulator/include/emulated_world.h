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
 * What the emulated services start from: the users nearby, the permanent devices, the account, the sharing switch
 * and the preview data. A world is written to and read from JSON, so that a test or `sharectl --world FILE` seeds
 * its own; the keys are the field names of the records as the services' interfaces name them.
 */
#ifndef EMULATED_WORLD_H
#define EMULATED_WORLD_H

#include <optional>
#include <string>
#include <vector>

#include "emulated_records.h"

namespace OHOS {
namespace Zelkon {

struct EmulatedWorld {
    std::vector<UserEntry> users;
    std::vector<PermanentEntry> permanentDevices;
    AccountEntry account;
    SharingSwitch sharingSwitch;
    std::string previewData;

    // Three users, three permanent devices, an account, sharing on with state 1, and 43 KiB of preview data:
    // above the inline limit of a parcel, so that it travels in shared memory.
    static EmulatedWorld BuiltIn();
    // Strict: an unknown key, a wrong type or a number out of its field's range is refused, with the path of the
    // field in `error` ("users[1].deviceType: ..."). Sections left out keep the built-in world's; fields left out
    // of a record are 0, false or empty.
    static std::optional<EmulatedWorld> FromJson(const std::string& text, std::string& error);
    // FromJson of what the descriptor reads until its end, at most 64 MiB; what cannot be read is refused with the
    // reason in `error`.
    static std::optional<EmulatedWorld> FromStream(int fd, std::string& error);
    // FromStream of a regular file, opened without waiting: anything else (a FIFO, a device, a directory) is refused.
    static std::optional<EmulatedWorld> FromFile(const std::string& path, std::string& error);
    // Every section and every field, indented.
    std::string ToJson() const;
};

} // namespace Zelkon
} // namespace OHOS

#endif // EMULATED_WORLD_H
