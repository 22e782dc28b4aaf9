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

#ifndef PERMANENT_DEVICE_INFO_H
#define PERMANENT_DEVICE_INFO_H

#include <string>

#include "message_parcel.h"

namespace OHOS {
namespace Zelkon {

// One entry of the share service's list of permanent (trusted) devices.
class PermanentDeviceInfo {
public:
    virtual ~PermanentDeviceInfo() = default;

    int32_t id = 0;
    std::string deviceName;
    int32_t deviceType = 0;
    std::string deviceId;
    int64_t timestamp = 0;

    // Fails at the first field that cannot be read, without a message: the list reader logs.
    bool ReadFromParcel(MessageParcel& parcel);
};

} // namespace Zelkon
} // namespace OHOS

#endif // PERMANENT_DEVICE_INFO_H
