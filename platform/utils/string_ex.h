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

#ifndef STRING_EX_H
#define STRING_EX_H

#include <string>

namespace OHOS {

// UTF-8 to UTF-16 and back, as the platform converts: the result ends at the first NUL. UTF-8 continuation bytes
// are not checked (encoded surrogates and overlong forms decode); only a sequence cut off by the end of the input
// gives an empty string. A UTF-16 surrogate without its pair is left out.
std::u16string Str8ToStr16(const std::string& str);
std::string Str16ToStr8(const std::u16string& str16);

} // namespace OHOS

#endif // STRING_EX_H
