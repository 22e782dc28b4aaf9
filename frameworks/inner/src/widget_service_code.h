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
 * Request codes of the share manager service (IWidgetService). They are part of the protocol with the service:
 * they do not follow the order of the operations in three places.
 */
#ifndef WIDGET_SERVICE_CODE_H
#define WIDGET_SERVICE_CODE_H

#include <cstdint>

namespace OHOS {
namespace Zelkon {

enum class WidgetServiceCode : uint32_t {
    SET_SHARE_ENABLE = 1,
    SET_SHARE_ENABLE_WITH_CONFIRM = 2,
    IS_ENABLED = 3,
    GET_ENABLE_STATE = 4,
    REGISTER_WIDGET_CALLBACK = 5,
    UNREGISTER_WIDGET_CALLBACK = 6,
    START_DISCOVERY = 7,
    STOP_DISCOVERY = 8,
    START_CONNECT = 9,
    STOP_CONNECT = 10,
    GET_SENDING_USER_LIST = 11,
    PREPARE_SEND = 12,
    SEND = 13,
    SEND_BYTES = 14,
    SEND_FILE = 15,
    CANCEL = 16,
    REGISTER_SENDER_ACTION_CALLBACK = 17,
    UNREGISTER_SENDER_ACTION_CALLBACK = 18,
    GET_RECEIVER_ACTION_CALLBACK = 19,
    GET_PREVIEW_DATA = 20,
    GET_ALL_USER_LIST = 21,
    GET_ACCOUNT_INFO = 22,
    SET_SHARE_ACCOUNT_PERMISSION = 23,
    REGISTER_VX_SHARE_API_WIDGET_CALLBACK = 24,
    UNREGISTER_VX_SHARE_API_WIDGET_CALLBACK = 25,
    REGISTER_VX_SHARE_API_EVENT = 26,
    UNREGISTER_VX_SHARE_API_EVENT = 27,
    NOTIFY_INFO = 28,
    APPLY_URI_PERMISSION = 29,
    SWING_CONFIRM = 30,
    IS_APP_FOREGROUND = 31,
    REGISTER_SHARE_API_CALLBACK = 32,
    UNREGISTER_SHARE_API_CALLBACK = 33,
    REGISTER_SHARE_EVENT_CALLBACK = 34,
    UNREGISTER_SHARE_EVENT_CALLBACK = 35,
    IS_FOCUS_PIDS_REGISTER_SWING = 36,
};

} // namespace Zelkon
} // namespace OHOS

#endif // WIDGET_SERVICE_CODE_H
