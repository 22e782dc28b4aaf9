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
 * Host: serves one channel that a peer's thread opened to this process, on a thread of its own (an IPC thread):
 * reads a transaction, runs the target's SendRequest on this thread and writes the reply, until the channel ends.
 * A frame that is not what a channel carries closes it.
 */
#ifndef OHOS_IPC_CHANNEL_SERVER_H
#define OHOS_IPC_CHANNEL_SERVER_H

#include <memory>

#include "session.h"
#include "unique_fd.h"

namespace OHOS {

class ChannelServer {
public:
    static void Serve(const std::shared_ptr<Session>& session, UniqueFd socket);
    // From now on no request starts; waits a little for those running (at process exit, before statics go).
    static void StopServing();
};

} // namespace OHOS

#endif // OHOS_IPC_CHANNEL_SERVER_H
