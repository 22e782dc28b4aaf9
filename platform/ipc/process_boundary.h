/*
 * Host: what the binder driver does to a transaction that crosses into another process.
 */
#ifndef OHOS_IPC_PROCESS_BOUNDARY_H
#define OHOS_IPC_PROCESS_BOUNDARY_H

#include "iremote_object.h"
#include "message_parcel.h"

namespace OHOS {

class ProcessBoundary {
public:
    // A local object arrives as the remote object that stands for it (the same one while it lives and its
    // process is not killed); a remote object arrives as itself.
    static sptr<IRemoteObject> Translate(const sptr<IRemoteObject>& object);
    // Copies the bytes and everything `from` carries into the fresh parcel `to`, whatever the size: objects
    // translated, descriptors dup'ed, shared-memory blocks shared. `to` is read from position 0.
    static bool Copy(const MessageParcel& from, MessageParcel& to);
};

} // namespace OHOS

#endif // OHOS_IPC_PROCESS_BOUNDARY_H
