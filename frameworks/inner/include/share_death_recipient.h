/*
 * Told by the platform when the share service's remote object dies: drops the client's proxy, then tells the
 * caller's died callback.
 */
#ifndef SHARE_DEATH_RECIPIENT_H
#define SHARE_DEATH_RECIPIENT_H

#include <memory>
#include <mutex>

#include "iremote_object.h"
#include "share_sa_died_callback.h"

namespace OHOS {
namespace Zelkon {

class ShareDeathRecipient : public IRemoteObject::DeathRecipient {
public:
    void OnRemoteDied(const wptr<IRemoteObject>& remote) override;
    void SetSaDiedCallback(const std::weak_ptr<ShareSaDiedCallback>& callback);

private:
    // Registration may race with a death notice; the lock is never held while the callback runs.
    std::mutex callbackMutex_;
    std::weak_ptr<ShareSaDiedCallback> saDiedCallback_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_DEATH_RECIPIENT_H
