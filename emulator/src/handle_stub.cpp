#include "handle_stub.h"

#include "emulator_log.h"
#include "ipc_types.h"
#include "message_parcel.h"

namespace OHOS {
namespace Zelkon {

int HandleStub::OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option)
{
    (void)option;
    if (data.ReadInterfaceToken() != token_) {
        EMULATOR_LOGE("handle %{public}d: request %{public}u refused, wrong interface token", handle_, code);
        return ERR_INVALID_STATE;
    }
    return reply.WriteInt32(handle_) ? ERR_NONE : IPC_STUB_WRITE_PARCEL_ERR;
}

} // namespace Zelkon
} // namespace OHOS
