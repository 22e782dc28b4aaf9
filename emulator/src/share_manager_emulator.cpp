#include "share_manager_emulator.h"

#include "ipc_types.h"

namespace OHOS {
namespace Zelkon {
namespace {

const std::u16string RECEIVER_DESCRIPTOR = u"ohos.zelkon.ZelkonReceiver";
// Above the parcel's inline raw-data threshold, so the preview travels through shared memory.
const std::string PREVIEW_DATA = "preview:" + std::string(64 * 1024, 'p');
const std::string AVATAR_PREFIX = "data:image/png;base64,";

bool WriteUser(MessageParcel& reply, const ShareManagerEmulator::User& user)
{
    return reply.WriteString(user.deviceName) && reply.WriteString(user.norvaneIdName) &&
           reply.WriteString(user.avatar) && reply.WriteInt32(0) && reply.WriteInt32(0) && reply.WriteInt32(0) &&
           reply.WriteInt32(0) && reply.WriteInt32(0) && reply.WriteBool(false) && reply.WriteInt32(user.deviceType) &&
           reply.WriteString(user.deviceId) && reply.WriteInt32(user.nearbyVersion) &&
           reply.WriteInt64(1763800000000LL) && reply.WriteBool(true) && reply.WriteInt32(1) &&
           reply.WriteString(user.contactName) && reply.WriteString("") && reply.WriteBool(user.isOHDevice) &&
           reply.WriteUint32(1) && reply.WriteString("") && reply.WriteInt32(0);
}

} // namespace

ShareManagerEmulator::ShareManagerEmulator() :
    EmulatedService(u"ohos.Zelkon.IWidgetService", "IWidgetService"),
    users_{
        {"Ada's tablet", "ada@example", AVATAR_PREFIX + std::string(2048, 'A'), 17, "udid-ada-tablet", 9, "Ada", true},
        {"Grace's phone", "grace@example", AVATAR_PREFIX + std::string(1024, 'G'), 14, "udid-grace-phone", 10, "Grace",
         true},
        {"Old laptop", "", "", 12, "udid-old-laptop", 8, "", false}}
{
    DefineSwitch();
    DefineCallbacks();
    DefineTransfers();
    DefineQueries();
}

void ShareManagerEmulator::DefineSwitch()
{
    Define(1, "SetShareEnable", [this](RequestReader& request, MessageParcel& reply) {
        request.Int32("userId");
        int32_t state = request.Int32("state");
        bool enable = request.Bool("enable");
        if (!request.Ok()) {
            return static_cast<int>(ERR_INVALID_DATA);
        }
        std::lock_guard<std::mutex> lock(mutex_);
        enabled_ = enable;
        enableState_ = state;
        return reply.WriteBool(true) ? ERR_NONE : ERR_INVALID_DATA;
    });
    DefineAcknowledged(2, "SetShareEnableWithConfirm", [](RequestReader& request) {
        request.Int32("userId");
        request.Int32("state");
        request.Bool("enable");
        request.Bool("confirm");
    });
    Define(3, "IsEnabled", [this](RequestReader&, MessageParcel& reply) {
        std::lock_guard<std::mutex> lock(mutex_);
        return reply.WriteBool(enabled_) ? ERR_NONE : ERR_INVALID_DATA;
    });
    Define(4, "GetEnableState", [this](RequestReader&, MessageParcel& reply) {
        std::lock_guard<std::mutex> lock(mutex_);
        return reply.WriteInt32(enableState_) ? ERR_NONE : ERR_INVALID_DATA;
    });
    Define(36, "IsFocusPidsRegisterSwing",
           [](RequestReader&, MessageParcel& reply) { return reply.WriteBool(false) ? ERR_NONE : ERR_INVALID_DATA; });
}

void ShareManagerEmulator::DefineCallbacks()
{
    const std::pair<uint32_t, const char*> callbackRequests[] = {
        {5, "RegisterWidgetCallback"},
        {6, "UnRegisterWidgetCallback"},
        {17, "RegisterSenderActionCallback"},
        {18, "UnRegisterSenderActionCallback"},
        {24, "RegisterVxShareApiWidgetCallback"},
        {25, "UnRegisterVxShareApiWidgetCallback"},
        {32, "RegisterShareApiCallback"},
        {33, "UnregisterShareApiCallback"},
    };
    for (const auto& [code, name] : callbackRequests) {
        DefineAcknowledged(code, name, [](RequestReader& request) { request.Object("callback"); });
    }
    for (const auto& [code, name] :
         {std::pair<uint32_t, const char*>{26, "RegisterVxShareApiEvent"}, {27, "UnRegisterVxShareApiEvent"}}) {
        DefineAcknowledged(code, name, [](RequestReader& request) { request.String("event"); });
    }
    for (const auto& [code, name] :
         {std::pair<uint32_t, const char*>{34, "RegisterShareEventCallback"}, {35, "UnregisterShareEventCallback"}}) {
        DefineAcknowledged(code, name, [](RequestReader& request) {
            request.Int32("eventType");
            request.Int32("eventId");
        });
    }
    for (const auto& [code, name] : {std::pair<uint32_t, const char*>{7, "StartDiscovery"},
                                     {8, "StopDiscovery"},
                                     {9, "StartConnect"},
                                     {10, "StopConnect"}}) {
        DefineAcknowledged(code, name, [](RequestReader&) {});
    }
    Define(19, "GetReceiverActionCallback", [](RequestReader&, MessageParcel& reply) {
        sptr<IRemoteObject> receiver = new EmulatedRemote(RECEIVER_DESCRIPTOR);
        return reply.WriteRemoteObject(receiver) ? ERR_NONE : ERR_INVALID_DATA;
    });
}

void ShareManagerEmulator::DefineTransfers()
{
    DefineAcknowledged(12, "PrepareSend", [](RequestReader& request) { request.ShareDeviceInfo("deviceInfo"); });
    DefineAcknowledged(13, "Send", [](RequestReader& request) {
        request.ShareDeviceInfo("deviceInfo");
        request.SendBean("sendBean");
        request.String("packageName");
    });
    DefineAcknowledged(14, "SendBytes", [](RequestReader& request) {
        request.ShareDeviceInfo("deviceInfo");
        request.BytesInfo("bytesInfo");
    });
    DefineAcknowledged(15, "SendFile", [](RequestReader& request) {
        request.ShareDeviceInfo("deviceInfo");
        request.DataBean("dataBean");
        request.String("packageName");
    });
    DefineAcknowledged(16, "Cancel", [](RequestReader& request) { request.ShareDeviceInfo("deviceInfo"); });
    DefineAcknowledged(23, "SetShareAccountPermission", [](RequestReader& request) { request.Int32("permission"); });
    for (const auto& [code, name] : {std::pair<uint32_t, const char*>{28, "NotifyInfo"}, {30, "SwingConfirm"}}) {
        DefineAcknowledged(code, name, [](RequestReader& request) {
            request.ShareDeviceInfo("deviceInfo");
            request.Int32("value");
        });
    }
    for (const auto& [code, name] :
         {std::pair<uint32_t, const char*>{29, "ApplyUriPermission"}, {31, "IsAppForeground"}}) {
        DefineAcknowledged(code, name, [](RequestReader& request) { request.String("packageName"); });
    }
}

int ShareManagerEmulator::AnswerUsers(MessageParcel& reply)
{
    std::lock_guard<std::mutex> lock(mutex_);
    bool written = reply.WriteInt32(static_cast<int32_t>(users_.size()));
    for (const User& user : users_) {
        written = written && WriteUser(reply, user);
    }
    return written ? ERR_NONE : ERR_INVALID_DATA;
}

void ShareManagerEmulator::DefineQueries()
{
    Define(11, "GetSendingUserList", [this](RequestReader&, MessageParcel& reply) { return AnswerUsers(reply); });
    Define(21, "GetAllUserList", [this](RequestReader&, MessageParcel& reply) { return AnswerUsers(reply); });
    Define(20, "GetPreviewData", [](RequestReader&, MessageParcel& reply) {
        bool written = reply.WriteUint32(static_cast<uint32_t>(PREVIEW_DATA.size() + 1)) &&
                       reply.WriteRawData(PREVIEW_DATA.c_str(), PREVIEW_DATA.size() + 1);
        return written ? ERR_NONE : ERR_INVALID_DATA;
    });
    Define(22, "GetAccountInfo", [](RequestReader&, MessageParcel& reply) {
        bool written = reply.WriteString("1234567890") && reply.WriteString("5FECEB66FFC86F") && reply.WriteInt32(1) &&
                       reply.WriteInt32(20010042) && reply.WriteString("Ada") &&
                       reply.WriteString(AVATAR_PREFIX + "QUJD");
        return written ? ERR_NONE : ERR_INVALID_DATA;
    });
}

} // namespace Zelkon
} // namespace OHOS
