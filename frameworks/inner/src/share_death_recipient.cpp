#include "share_death_recipient.h"

#include "share_common_constants.h"

#include "share_client.h"
#include "share_log.h"

namespace OHOS {
namespace Zelkon {

void ShareDeathRecipient::OnRemoteDied(const wptr<IRemoteObject>& remote)
{
    if (remote.GetRefPtr() == nullptr) {
        SHARE_CLIENT_LOGE("OnRemoteDied failed, remote is nullptr");
        return;
    }
    ShareClient::GetInstance().ResetProxy(remote);
    std::shared_ptr<ShareSaDiedCallback> callback;
    {
        std::lock_guard<std::mutex> lock(callbackMutex_);
        callback = saDiedCallback_.lock();
    }
    if (callback != nullptr) {
        callback->OnShareSaDied();
    }
    SHARE_CLIENT_LOGD("Recv death notice");
}

void ShareDeathRecipient::SetSaDiedCallback(const std::weak_ptr<ShareSaDiedCallback>& callback)
{
    std::lock_guard<std::mutex> lock(callbackMutex_);
    saDiedCallback_ = callback;
}

} // namespace Zelkon
} // namespace OHOS
