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

#ifndef SHARE_MESSAGE_CONSTANTS_H
#define SHARE_MESSAGE_CONSTANTS_H

#include <string>

namespace OHOS {
namespace Zelkon {

const std::string MESSAGE_NAME_PREFIX = "Zelkon_";
const std::string MESSAGE_SENDER_SUFFIX = "_SENDER";
const std::string MESSAGE_MESSAGE_SUFFIX = "_MESSAGE";
const std::string MESSAGE_FILE_SUFFIX = "_FILE";
const std::string FILE_MARKER = "*%ZELKON_FILE%*";
// Command names followed directly by the file marker.
const std::string CONFIRM_WITH_MARKER = "confirm" + FILE_MARKER;
const std::string REJECT_WITH_MARKER = "reject" + FILE_MARKER;
const std::string RECV_FILE_PERCENT_WITH_MARKER = "recvFilePercent" + FILE_MARKER;
const std::string THERMAL_LEVEL_CHANGED_WITH_MARKER = "thermalLevelChanged" + FILE_MARKER;
const std::string THERMAL_INTERRUPT_WITH_MARKER = "thermalInterrupt" + FILE_MARKER;
const std::string RECV_FILE_PERCENT = "recvFilePercent";
const std::string THERMAL_LEVEL_CHANGED = "thermalLevelChanged";
const std::string THERMAL_INTERRUPT = "thermalInterrupt";
const std::string MESSAGE_SEPARATOR = "#";
const std::string FAIL_COMMAND = "fail cmd";

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_MESSAGE_CONSTANTS_H
