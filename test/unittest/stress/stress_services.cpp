#include "stress_services.h"

#include "iservice_registry.h"
#include "parcel_util.h"
#include "samgr_host_control.h"
#include "scripted_stub.h"
#include "share_account_info.h"
#include "share_client.h"
#include "share_device_info.h"
#include "share_manager_client.h"

namespace OHOS {
namespace Zelkon {
namespace {

constexpr int32_t SHARE_SA_ID = 65569;
constexpr int32_t MANAGER_SA_ID = 65570;
const std::u16string SHARE_DESCRIPTOR = u"ohos.Zelkon.ZelkonService";
const std::u16string MANAGER_DESCRIPTOR = u"ohos.Zelkon.IWidgetService";

// Request codes of the operations that the calls use and whose replies are more than true.
constexpr uint32_t GET_PONTAL_PUBLISH_INFO = 21;
constexpr uint32_t GET_PERMANENT_DEVICE_LIST = 26;
constexpr uint32_t GET_ENABLE_STATE = 4;
constexpr uint32_t GET_SENDING_USER_LIST = 11;
constexpr uint32_t GET_PREVIEW_DATA = 20;
constexpr uint32_t GET_ALL_USER_LIST = 21;
constexpr uint32_t GET_ACCOUNT_INFO = 22;

const std::string PONTAL_INFO = "pontal-info";
const std::string PREVIEW = "preview text";
const std::vector<std::string> PERMANENT_NAMES = {"Desk PC", "Laptop"};
const std::vector<std::string> USER_NAMES = {"tablet", "phone", "watch"};
constexpr int32_t ENABLE_STATE = 3;
constexpr int32_t ACCOUNT_UID = 20010042;

ShareDeviceInfo Device(const std::string& name)
{
    ShareDeviceInfo device;
    device.deviceName = name;
    device.avatar = std::string(256, 'a');
    device.deviceId = "udid-" + name;
    return device;
}

ShareAccountInfo Account()
{
    ShareAccountInfo account;
    account.norvaneAccountID = "1234567890";
    account.callingUid = ACCOUNT_UID;
    account.nickName = "Ada";
    return account;
}

bool WriteUsers(MessageParcel& reply)
{
    bool ok = reply.WriteInt32(static_cast<int32_t>(USER_NAMES.size()));
    for (const std::string& name : USER_NAMES) {
        ok = ok && Device(name).Marshalling(reply);
    }
    return ok;
}

bool WritePermanentDevices(MessageParcel& reply)
{
    bool ok = reply.WriteInt32(static_cast<int32_t>(PERMANENT_NAMES.size()));
    int32_t id = 0;
    for (const std::string& name : PERMANENT_NAMES) {
        ok = ok && reply.WriteInt32(++id) && reply.WriteString(name) && reply.WriteInt32(12) &&
             reply.WriteString("udid") && reply.WriteInt64(1760000000000LL);
    }
    return ok;
}

int Answer(bool written)
{
    return written ? ERR_NONE : ERR_INVALID_DATA;
}

sptr<IRemoteObject> ShareService()
{
    sptr<ScriptedStub> stub(new ScriptedStub(SHARE_DESCRIPTOR));
    stub->SetHandler([](uint32_t code, MessageParcel& data, MessageParcel& reply) {
        if (data.ReadInterfaceToken() != SHARE_DESCRIPTOR) {
            return static_cast<int>(ERR_INVALID_STATE);
        }
        switch (code) {
        case GET_PONTAL_PUBLISH_INFO:
            return Answer(reply.WriteString(PONTAL_INFO) && reply.WriteBool(true));
        case GET_PERMANENT_DEVICE_LIST:
            return Answer(WritePermanentDevices(reply));
        default:
            return Answer(reply.WriteBool(true));
        }
    });
    return stub;
}

sptr<IRemoteObject> ManagerService()
{
    sptr<ScriptedStub> stub(new ScriptedStub(MANAGER_DESCRIPTOR));
    stub->SetHandler([](uint32_t code, MessageParcel& data, MessageParcel& reply) {
        if (data.ReadInterfaceToken() != MANAGER_DESCRIPTOR) {
            return static_cast<int>(ERR_INVALID_STATE);
        }
        switch (code) {
        case GET_ENABLE_STATE:
            return Answer(reply.WriteInt32(ENABLE_STATE));
        case GET_SENDING_USER_LIST:
        case GET_ALL_USER_LIST:
            return Answer(WriteUsers(reply));
        case GET_PREVIEW_DATA:
            return Answer(ParcelUtil::WriteBigString(reply, PREVIEW));
        case GET_ACCOUNT_INFO:
            return Answer(Account().Marshalling(reply));
        default:
            return Answer(reply.WriteBool(true));
        }
    });
    return stub;
}

template <typename Record>
bool NamesAre(const std::vector<Record>& records, const std::vector<std::string>& names)
{
    if (records.size() != names.size()) {
        return false;
    }
    for (size_t i = 0; i < names.size(); ++i) {
        if (records[i].deviceName != names[i]) {
            return false;
        }
    }
    return true;
}

std::string Expect(bool right, const std::string& what)
{
    return right ? std::string() : what;
}

std::vector<StressCall> MakeCalls()
{
    return {
        {"EnableDiscoveryPolicy",
         [] {
             const int32_t result = ShareClient::GetInstance().EnableDiscoveryPolicy(1);
             return Expect(result == 1 || result == 0, "result " + std::to_string(result));
         }},
        {"GetPontalPublishInfo",
         [] {
             std::string info = "untouched";
             const int32_t result = ShareClient::GetInstance().GetPontalPublishInfo(info);
             return Expect((result == 1 && info == PONTAL_INFO) || (result == 0 && info == "untouched"),
                           "result " + std::to_string(result) + " info '" + info + "'");
         }},
        {"GetPermanentDeviceList",
         [] {
             const auto devices = ShareClient::GetInstance().GetPermanentDeviceList();
             return Expect(devices.empty() || NamesAre(devices, PERMANENT_NAMES),
                           std::to_string(devices.size()) + " devices");
         }},
        {"GetEnableState",
         [] {
             const int32_t state = ShareManagerClient::GetInstance().GetEnableState();
             return Expect(state == ENABLE_STATE || state == 0, "state " + std::to_string(state));
         }},
        {"GetAllUserList",
         [] {
             const auto users = ShareManagerClient::GetInstance().GetAllUserList();
             return Expect(users.empty() || NamesAre(users, USER_NAMES), std::to_string(users.size()) + " users");
         }},
        {"GetSendingUserList",
         [] {
             const auto users = ShareManagerClient::GetInstance().GetSendingUserList();
             return Expect(users.empty() || NamesAre(users, USER_NAMES), std::to_string(users.size()) + " users");
         }},
        {"GetAccountInfo",
         [] {
             const ShareAccountInfo account = ShareManagerClient::GetInstance().GetAccountInfo();
             const bool full = account.callingUid == ACCOUNT_UID && account.nickName == "Ada";
             const bool neutral = account.callingUid == -1 && account.nickName.empty();
             return Expect(full || neutral, "uid " + std::to_string(account.callingUid));
         }},
        {"GetPreviewData",
         [] {
             const std::string preview = ShareManagerClient::GetInstance().GetPreviewData();
             return Expect(preview == PREVIEW || preview.empty(), "preview '" + preview + "'");
         }},
    };
}

} // namespace

void StressServices::Start()
{
    SamgrHostControl::RegisterLoader(SHARE_SA_ID, ShareService);
    RestartManager();
}

void StressServices::KillBoth()
{
    SamgrHostControl::KillSystemAbility(SHARE_SA_ID);
    SamgrHostControl::KillSystemAbility(MANAGER_SA_ID);
}

void StressServices::RestartManager()
{
    SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager()->AddSystemAbility(MANAGER_SA_ID,
                                                                                          ManagerService());
}

const std::vector<StressCall>& StressServices::Calls() const
{
    static const std::vector<StressCall> calls = MakeCalls();
    return calls;
}

} // namespace Zelkon
} // namespace OHOS
