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

#include "operation_binding.h"

namespace OHOS {
namespace Zelkon {

std::string RequestText(const std::vector<Argument>& arguments)
{
    std::string text;
    for (const Argument& argument : arguments) {
        text += (text.empty() ? "" : ", ") + argument.name + ": " + argument.wire;
    }
    return text.empty() ? "nothing" : text;
}

} // namespace Zelkon
} // namespace OHOS
