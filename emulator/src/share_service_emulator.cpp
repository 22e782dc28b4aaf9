#include "share_service_emulator.h"

#include <algorithm>

#include "emulator_log.h"
#include "ipc_types.h"

namespace OHOS {
namespace Zelkon {
namespace {
constexpr uint32_t MAX_SHARE_ITEMS = 1000;
const std::u16string SENDER_DESCRIPTOR = u"ohos.zelkon.ZelkonSender";
} // namespace

ShareServiceEmulator::ShareServiceEmulator() :
    EmulatedService(u"ohos.Zelkon.ZelkonService", "ZelkonService"),
    permanentDevices_{{1, "Desk PC", 12, "udid-desk-pc", 1763800000000LL},
                      {2, "Living room TV", 9, "udid-living-tv", 1763800100000LL},
                      {3, "Car", 11, "udid-car", 1763800200000LL}}
{
    DefineListenerRequests();
    DefineTransfers();
    DefineDiscoveryRequests();
    DefinePermanentDevices();
}

void ShareServiceEmulator::DefineListenerRequests()
{
    auto listenerRequest = [this](uint32_t code, const char* name, bool withId, int delta) {
        Define(code, name, [this, withId, delta](RequestReader& request, MessageParcel& reply) {
            if (withId) {
                request.Int32("id");
            }
            request.Object("listener");
            if (!request.Ok()) {
                return static_cast<int>(ERR_INVALID_DATA);
            }
            std::lock_guard<std::mutex> lock(mutex_);
            listeners_ += delta;
            return reply.WriteBool(true) ? ERR_NONE : ERR_INVALID_DATA;
        });
    };
    listenerRequest(1, "PublishDevice", false, 1);
    listenerRequest(2, "UnPublishDevice", true, -1);
    listenerRequest(3, "SubscribeDevice", false, 1);
    listenerRequest(4, "UnSubscribeDevice", true, -1);
    listenerRequest(5, "RegisterReceiveListener", false, 1);
    listenerRequest(6, "UnRegisterReceiveListener", false, -1);
    listenerRequest(15, "RegisterCommonReceiveListener", false, 1);
    listenerRequest(22, "SwingSubscribe", false, 1);
    listenerRequest(23, "SwingUnSubscribe", false, -1);
    DefineAcknowledged(16, "UnRegisterCommonReceiveListener", [](RequestReader&) {});
}

int ShareServiceEmulator::AnswerSender(RequestReader& request, MessageParcel& reply)
{
    if (!request.Ok()) {
        return ERR_INVALID_DATA;
    }
    sptr<IRemoteObject> sender = new EmulatedRemote(SENDER_DESCRIPTOR);
    return reply.WriteRemoteObject(sender) ? ERR_NONE : ERR_INVALID_DATA;
}

void ShareServiceEmulator::DefineTransfers()
{
    Define(7, "SendFile(SendBean)", [this](RequestReader& request, MessageParcel& reply) {
        request.TransmitParam(true);
        request.SendBean("sendBean");
        return AnswerSender(request, reply);
    });
    Define(8, "SendFile(DataBean)", [this](RequestReader& request, MessageParcel& reply) {
        request.TransmitParam(true);
        request.DataBean("dataBean");
        return AnswerSender(request, reply);
    });
    Define(10, "SendBytes", [this](RequestReader& request, MessageParcel& reply) {
        request.String("param.deviceId");
        request.Int32("param.timeout");
        request.BytesInfo("bytesInfo");
        request.Object("param.transCallback");
        request.Int8("param.transmitEventType");
        return AnswerSender(request, reply);
    });
    Define(14, "CommonShareSend", [this](RequestReader& request, MessageParcel& reply) {
        request.String("networkId");
        request.Int32("timeout");
        request.Int32("type");
        request.Bool("resumable");
        request.BigString("content");
        uint32_t items = request.Count("items", MAX_SHARE_ITEMS);
        for (uint32_t i = 0; i < items && request.Ok(); ++i) {
            std::string item = "items[" + std::to_string(i) + "]";
            request.String((item + ".uri").c_str());
            request.FileDescriptor((item + ".fd").c_str());
        }
        request.Object("callback");
        return AnswerSender(request, reply);
    });
    Define(13, "Cancel", [](RequestReader& request, MessageParcel&) {
        request.String("networkId");
        return request.Ok() ? ERR_NONE : ERR_INVALID_DATA;
    });
}

void ShareServiceEmulator::DefineDiscoveryRequests()
{
    DefineAcknowledged(11, "EnableDiscoveryPolicy", [](RequestReader& request) { request.Int32("policy"); });
    DefineAcknowledged(12, "SetAccountPermission", [](RequestReader& request) { request.Int32("permission"); });
    DefineAcknowledged(17, "SuspendWifiScanning", [](RequestReader& request) { request.String("ifName"); });
    DefineAcknowledged(18, "ResumeWifiScanning", [](RequestReader& request) { request.String("ifName"); });
    DefineAcknowledged(19, "OnCollabDeviceFound", [](RequestReader& request) {
        if (request.Int32("device.present") != 0) {
            request.ShareDevice("device");
        }
        request.Object("listener");
        request.Int32("updateFlag");
    });
    DefineAcknowledged(20, "ClearDiscovererFlag", [](RequestReader& request) {
        request.String("deviceId");
        request.Uint32("flag");
    });
    Define(21, "GetPontalPublishInfo", [](RequestReader&, MessageParcel& reply) {
        return reply.WriteString("pontal:emulated-publisher") && reply.WriteBool(true) ? ERR_NONE : ERR_INVALID_DATA;
    });
    DefineAcknowledged(24, "ReportSwingEvent", [](RequestReader& request) {
        request.Int32("gesture");
        request.Int32("x");
        request.Int32("y");
        request.String("concurrentId");
    });
    DefineAcknowledged(25, "ApplyUriPermission", [](RequestReader& request) { request.String("deviceId"); });
}

void ShareServiceEmulator::DefinePermanentDevices()
{
    Define(26, "GetPermanentDeviceList", [this](RequestReader&, MessageParcel& reply) {
        std::lock_guard<std::mutex> lock(mutex_);
        bool written = reply.WriteInt32(static_cast<int32_t>(permanentDevices_.size()));
        for (const PermanentDevice& device : permanentDevices_) {
            written = written && reply.WriteInt32(device.id) && reply.WriteString(device.deviceName) &&
                      reply.WriteInt32(device.deviceType) && reply.WriteString(device.deviceId) &&
                      reply.WriteInt64(device.timestamp);
        }
        return written ? ERR_NONE : ERR_INVALID_DATA;
    });
    Define(27, "RemovePermanentDeviceById", [this](RequestReader& request, MessageParcel& reply) {
        int32_t id = request.Int32("id");
        if (!request.Ok()) {
            return static_cast<int>(ERR_INVALID_DATA);
        }
        std::lock_guard<std::mutex> lock(mutex_);
        auto before = permanentDevices_.size();
        permanentDevices_.erase(std::remove_if(permanentDevices_.begin(), permanentDevices_.end(),
                                               [id](const PermanentDevice& device) { return device.id == id; }),
                                permanentDevices_.end());
        return reply.WriteBool(permanentDevices_.size() != before) ? ERR_NONE : ERR_INVALID_DATA;
    });
}

} // namespace Zelkon
} // namespace OHOS
