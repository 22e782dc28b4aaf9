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
 * Host: the channels of the calling thread, one per session it called through, opened on first use and closed when
 * the thread ends. Each thread writes its own transactions and reads its own replies, so that threads never wait
 * for each other's replies.
 */
#ifndef OHOS_IPC_THREAD_CHANNELS_H
#define OHOS_IPC_THREAD_CHANNELS_H

#include <memory>

#include "channel.h"
#include "session.h"

namespace OHOS {

class ThreadChannels {
public:
    // The calling thread's open channel to the session's peer; null (logged) if the peer cannot be reached.
    static std::shared_ptr<Channel> To(const std::shared_ptr<Session>& session);
};

} // namespace OHOS

#endif // OHOS_IPC_THREAD_CHANNELS_H
