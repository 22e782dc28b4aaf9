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

#include "argument_types.h"

namespace OHOS {
namespace Zelkon {

const char* ArgumentTypeName(const Argument& argument)
{
    switch (argument.type) {
    case ArgumentType::INT32:
        return "int32";
    case ArgumentType::UINT32:
        return "uint32";
    case ArgumentType::BOOL:
        return "bool";
    case ArgumentType::STRING:
        return "string";
    case ArgumentType::SHARE_DEVICE_INFO:
        return "ShareDeviceInfo";
    case ArgumentType::SEND_BEAN:
        return "SendBean";
    case ArgumentType::DATA_BEAN:
        return "DataBean";
    case ArgumentType::BYTES_INFO:
        return "BytesInfo";
    case ArgumentType::COMMON_SHARE_OBJECT:
        return "CommonShareObject";
    case ArgumentType::SHARE_DEVICE:
        return "ShareDevice";
    case ArgumentType::TRANSMIT_PARAM:
        return "TransmitParam";
    case ArgumentType::LOCAL_STUB:
        return argument.interfaceName;
    }
    return "?";
}

} // namespace Zelkon
} // namespace OHOS
