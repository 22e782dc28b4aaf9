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
 * Request codes of the share service (ZelkonService). Code 9 is unused.
 */
#ifndef ZELKON_SERVICE_CODE_H
#define ZELKON_SERVICE_CODE_H

#include <cstdint>

namespace OHOS {
namespace Zelkon {

enum class ZelkonServiceCode : uint32_t {
    PUBLISH_DEVICE = 1,
    UNPUBLISH_DEVICE = 2,
    SUBSCRIBE_DEVICE = 3,
    UNSUBSCRIBE_DEVICE = 4,
    REGISTER_RECEIVE_LISTENER = 5,
    UNREGISTER_RECEIVE_LISTENER = 6,
    SEND_FILE_WITH_SEND_BEAN = 7,
    SEND_FILE_WITH_DATA_BEAN = 8,
    SEND_BYTES = 10,
    ENABLE_DISCOVERY_POLICY = 11,
    SET_ACCOUNT_PERMISSION = 12,
    CANCEL = 13,
    COMMON_SHARE_SEND = 14,
    REGISTER_COMMON_RECEIVE_LISTENER = 15,
    UNREGISTER_COMMON_RECEIVE_LISTENER = 16,
    SUSPEND_WIFI_SCANNING = 17,
    RESUME_WIFI_SCANNING = 18,
    ON_COLLAB_DEVICE_FOUND = 19,
    CLEAR_DISCOVERER_FLAG = 20,
    GET_PONTAL_PUBLISH_INFO = 21,
    SWING_SUBSCRIBE = 22,
    SWING_UNSUBSCRIBE = 23,
    REPORT_SWING_EVENT = 24,
    APPLY_URI_PERMISSION = 25,
    GET_PERMANENT_DEVICE_LIST = 26,
    REMOVE_PERMANENT_DEVICE_BY_ID = 27,
};

} // namespace Zelkon
} // namespace OHOS

#endif // ZELKON_SERVICE_CODE_H
