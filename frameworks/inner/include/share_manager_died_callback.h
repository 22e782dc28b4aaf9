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
 * Implemented by a caller that wants to hear that the share manager service died. The client holds it weakly.
 */
#ifndef SHARE_MANAGER_DIED_CALLBACK_H
#define SHARE_MANAGER_DIED_CALLBACK_H

namespace OHOS {
namespace Zelkon {

class ShareManagerDiedCallback {
public:
    virtual void OnShareManagerDied() = 0;
    virtual ~ShareManagerDiedCallback() = default;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_MANAGER_DIED_CALLBACK_H
