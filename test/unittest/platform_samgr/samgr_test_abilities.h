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
 * The abilities of the samgr tests, as the host manager of either world knows them.
 */
#ifndef SAMGR_TEST_ABILITIES_H
#define SAMGR_TEST_ABILITIES_H

#include <cstdint>

namespace OHOS {

// Starts at once: a stub in this process, or a process that adds one.
inline constexpr int32_t LOADABLE_ID = 4901;
// Its start brings nothing up: a loader that creates nothing, or a process that ends at once.
inline constexpr int32_t BROKEN_ID = 4902;
// Has no profile: nothing can load it.
inline constexpr int32_t UNKNOWN_ID = 4903;

inline constexpr char16_t TEST_ABILITY_DESCRIPTOR[] = u"test.samgr.Ability";

} // namespace OHOS

#endif // SAMGR_TEST_ABILITIES_H
