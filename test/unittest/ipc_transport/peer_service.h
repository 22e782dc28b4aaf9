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
 * The service of the transport tests: answers the codes of PeerCode (peer_process.h). The peer process serves it to
 * other processes; the tests of the in-process world reach it through the in-process world's proxy.
 */
#ifndef PEER_SERVICE_H
#define PEER_SERVICE_H

#include "iremote_object.h"
#include "refbase.h"

namespace OHOS {

sptr<IRemoteObject> MakePeerService();

} // namespace OHOS

#endif // PEER_SERVICE_H
