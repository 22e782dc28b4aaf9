#include "emulated_service.h"

#include "emulator_log.h"
#include "ipc_types.h"
#include "string_ex.h"

namespace OHOS {
namespace Zelkon {
namespace {

std::vector<uint8_t> BytesOf(const Parcel& parcel)
{
    const auto* data = reinterpret_cast<const uint8_t*>(parcel.GetData());
    return data == nullptr ? std::vector<uint8_t>() : std::vector<uint8_t>(data, data + parcel.GetDataSize());
}

} // namespace

EmulatedService::EmulatedService(const std::u16string& descriptor, std::string serviceName) :
    IPCObjectStub(descriptor), descriptor_(descriptor), serviceName_(std::move(serviceName))
{
}

void EmulatedService::Define(uint32_t code, std::string name, Handler handle)
{
    operations_[code] = Operation{std::move(name), std::move(handle)};
}

void EmulatedService::DefineAcknowledged(uint32_t code, std::string name, std::function<void(RequestReader&)> decode)
{
    Define(code, std::move(name), [decode](RequestReader& request, MessageParcel& reply) {
        decode(request);
        return request.Ok() && reply.WriteBool(true) ? ERR_NONE : ERR_INVALID_DATA;
    });
}

int EmulatedService::OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option)
{
    (void)option;
    DecodedRequest exchange;
    exchange.service = serviceName_;
    exchange.code = code;
    exchange.requestBytes = BytesOf(data);
    auto operation = operations_.find(code);
    if (data.ReadInterfaceToken() != descriptor_) {
        EMULATOR_LOGE("%{public}s: request %{public}u refused: wrong interface token", serviceName_.c_str(), code);
        exchange.operation = "(wrong interface token)";
        exchange.result = ERR_INVALID_STATE;
    } else if (operation == operations_.end()) {
        EMULATOR_LOGE("%{public}s: unknown request code %{public}u", serviceName_.c_str(), code);
        exchange.operation = "(unknown code)";
        exchange.result = IPC_STUB_UNKNOW_TRANS_ERR;
    } else {
        exchange.operation = operation->second.name;
        RequestReader request(data);
        exchange.result = operation->second.handle(request, reply);
        exchange.fields = request.DecodedFields();
        exchange.replyBytes = BytesOf(reply);
    }
    TraceExchange(exchange);
    return exchange.result;
}

} // namespace Zelkon
} // namespace OHOS
