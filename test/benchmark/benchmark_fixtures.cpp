#include "benchmark_fixtures.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <thread>

#include "ipc_object_stub.h"
#include "iservice_registry.h"
#include "parcel.h"
#include "reply_stub.h"
#include "share_client.h"

namespace OHOS {
namespace Zelkon {

size_t WrittenSize(const ShareDeviceInfo& device)
{
    Parcel parcel;
    device.Marshalling(parcel);
    return parcel.GetDataSize();
}

namespace {
constexpr int32_t SHARE_SA_ID = 65569;
constexpr int32_t MANAGER_SA_ID = 65570;
constexpr uint8_t TRUE_REPLY[] = {1, 0, 0, 0};

class SlowStub : public IPCObjectStub {
public:
    SlowStub() : IPCObjectStub(u"ohos.Zelkon.IWidgetService") {}
    int OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) override
    {
        (void)code;
        (void)data;
        (void)option;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        return reply.WriteBool(true) ? ERR_NONE : ERR_INVALID_DATA;
    }
};

sptr<ISystemAbilityManager> Manager()
{
    return SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
}
} // namespace

sptr<IRemoteObject> FastShareService()
{
    static const sptr<IRemoteObject> remote = [] {
        sptr<ReplyStub> stub(new ReplyStub(u"ohos.Zelkon.ZelkonService"));
        stub->AnswerWith(TRUE_REPLY, sizeof(TRUE_REPLY), false);
        Manager()->AddSystemAbility(SHARE_SA_ID, stub);
        ShareClient::GetInstance().Connect();
        return Manager()->CheckSystemAbility(SHARE_SA_ID);
    }();
    return remote;
}

void SlowManagerService()
{
    static const bool added = Manager()->AddSystemAbility(MANAGER_SA_ID, new SlowStub()) == 0;
    (void)added;
}

} // namespace Zelkon
} // namespace OHOS
