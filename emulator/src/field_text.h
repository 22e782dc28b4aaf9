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
 * How traced values look: strings quoted and shortened, remote objects by their interface.
 */
#ifndef FIELD_TEXT_H
#define FIELD_TEXT_H

#include <string>

#include "iremote_object.h"

namespace OHOS {
namespace Zelkon {

// Long texts keep their head and show their length.
std::string QuotedText(const std::string& text);
std::string ObjectText(const sptr<IRemoteObject>& object);

} // namespace Zelkon
} // namespace OHOS

#endif // FIELD_TEXT_H
