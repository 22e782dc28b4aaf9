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
 * The receiver callback handed out by the share manager service. The library registers no proxy for it: a caller that
 * wants it typed registers its own.
 */
#ifndef ZELKON_RECEIVER_H
#define ZELKON_RECEIVER_H

#include "iremote_broker.h"

namespace OHOS {
namespace Zelkon {

class ZelkonReceiver : public IRemoteBroker {
public:
    DECLARE_INTERFACE_DESCRIPTOR(u"ohos.zelkon.ZelkonReceiver");
};

} // namespace Zelkon
} // namespace OHOS

#endif // ZELKON_RECEIVER_H
