#include "zelkon_service_load_callback.h"

#include "share_common_constants.h"

#include "share_client.h"
#include "share_log.h"

namespace OHOS {
namespace Zelkon {

void ZelkonServiceLoadCallback::OnLoadSystemAbilitySuccess(int32_t systemAbilityId,
                                                           const sptr<IRemoteObject>& remoteObject)
{
    SHARE_CLIENT_LOGI("OnLoadSystemAbilitySuccess invoked: %{public}d", systemAbilityId);
    if (systemAbilityId == SHARE_SERVICE_SA_ID && remoteObject != nullptr) {
        ShareClient::GetInstance().SetShareSa(remoteObject);
    }
}

void ZelkonServiceLoadCallback::OnLoadSystemAbilityFail(int32_t systemAbilityId)
{
    // Any failure marks the load failed, whatever the id: the next Connect asks again.
    SHARE_CLIENT_LOGI("OnLoadSystemAbilityFail invoked: %{public}d", systemAbilityId);
    ShareClient::GetInstance().SetLoadShareSaFailed();
}

} // namespace Zelkon
} // namespace OHOS
