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

#ifndef FILE_ITEM_H
#define FILE_ITEM_H

#include <cstdint>
#include <string>

namespace OHOS {
namespace Zelkon {

// A file as the share services describe it to each other; the library carries it only inside a SendBean.
struct FileItem {
    std::string uri;
    std::string name;
    int64_t size = 0;
};

} // namespace Zelkon
} // namespace OHOS

#endif // FILE_ITEM_H
