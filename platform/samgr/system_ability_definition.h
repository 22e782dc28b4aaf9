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
 * Ids of the system abilities this project talks to.
 */
#ifndef OHOS_SAMGR_SYSTEM_ABILITY_DEFINITION_H
#define OHOS_SAMGR_SYSTEM_ABILITY_DEFINITION_H

namespace OHOS {

enum {
    SAMGR_SA_ID = 0,
    FIRST_SYS_ABILITY_ID = 0x00000001,
    LAST_SYS_ABILITY_ID = 0x00ffffff,
};

} // namespace OHOS

#endif // OHOS_SAMGR_SYSTEM_ABILITY_DEFINITION_H
