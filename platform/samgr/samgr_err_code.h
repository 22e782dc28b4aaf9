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
 * The system ability manager's own error codes, as LoadSystemAbility returns them and load callbacks receive them.
 * On the platform this header is the manager's and not exposed to its dependents; here the host controls and the
 * tests use it.
 */
#ifndef OHOS_SAMGR_SAMGR_ERR_CODE_H
#define OHOS_SAMGR_SAMGR_ERR_CODE_H

namespace OHOS {

enum SamgrErrCode {
    // The ability did not come up: its process did not add it in time.
    LOAD_SA_TIMEOUT = 999,
    // The id has no profile: the manager does not know how to start it.
    PROFILE_NOT_EXIST = 1002,
};

} // namespace OHOS

#endif // OHOS_SAMGR_SAMGR_ERR_CODE_H
