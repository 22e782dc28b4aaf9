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

#ifndef TRANSMIT_PARAM_H
#define TRANSMIT_PARAM_H

#include <string>

#include "i_transmit_callback.h"

namespace OHOS {
namespace Zelkon {

// The kind of a transfer event; its values are the share service's. It travels as one sign-extended word.
enum TransmitEventType : int8_t {
    TRANSMIT_EVENT_DEFAULT = 0,
};

// The parameters of a transfer, written field by field by the share service proxy.
struct TransmitParam {
    std::string deviceId;
    int32_t timeout = 0;
    sptr<ITransmitCallback> transCallback;
    TransmitEventType transmitEventType = TRANSMIT_EVENT_DEFAULT;
};

} // namespace Zelkon
} // namespace OHOS

#endif // TRANSMIT_PARAM_H
