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

#ifndef SHARE_PATH_CONSTANTS_H
#define SHARE_PATH_CONSTANTS_H

#include <string>

namespace OHOS {
namespace Zelkon {

const std::string SETTINGS_DEVICE_NAME_CONNECT = "device_name_connect";
const std::string TEXT_PLACEHOLDER_1 = "%1$s";
const std::string TEXT_PLACEHOLDER_2 = "%2$s";
const std::string LOCAL_DOCS_DIR = "/account/device_view/local/files/Docs/";
const std::string LOCAL_DOCS_URI_PREFIX = "file://docs/storage/Users/currentUser/";

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_PATH_CONSTANTS_H
