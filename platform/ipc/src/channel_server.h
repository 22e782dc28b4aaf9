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
