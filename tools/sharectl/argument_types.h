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
 * What each argument type of the operation table is: its name as describe shows it, and for a record, the
 * library's record that it is read into.
 */
#ifndef ARGUMENT_TYPES_H
#define ARGUMENT_TYPES_H

#include "library_record_fields.h"
#include "operation.h"

namespace OHOS {
namespace Zelkon {

// "int32", "ShareDeviceInfo", or the interface of a local stub.
const char* ArgumentTypeName(const Argument& argument);

// Calls action with a default record of the type; false, without calling it, for a type that is no record.
template <typename Action>
bool ForRecordType(ArgumentType type, Action&& action)
{
    switch (type) {
    case ArgumentType::SHARE_DEVICE_INFO:
        action(ShareDeviceInfo());
        return true;
    case ArgumentType::SEND_BEAN:
        action(SendBean());
        return true;
    case ArgumentType::DATA_BEAN:
        action(DataBean());
        return true;
    case ArgumentType::BYTES_INFO:
        action(BytesInfo());
        return true;
    case ArgumentType::COMMON_SHARE_OBJECT:
        action(CommonShareObject());
        return true;
    case ArgumentType::SHARE_DEVICE:
        action(ShareDevice());
        return true;
    case ArgumentType::TRANSMIT_PARAM:
        action(TransmitParam());
        return true;
    default:
        return false;
    }
}

} // namespace Zelkon
} // namespace OHOS

#endif // ARGUMENT_TYPES_H
