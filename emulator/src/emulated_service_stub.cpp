#include "emulated_service_stub.h"

#include <utility>

#include "emulator_log.h"
#include "field_text.h"
#include "ipc_types.h"

namespace OHOS {
namespace Zelkon {
namespace {
std::vector<uint8_t> BytesOf(const MessageParcel& parcel)
{
    const auto* begin = reinterpret_cast<const uint8_t*>(parcel.GetData());
    return begin == nullptr ? std::vector<uint8_t>() : std::vector<uint8_t>(begin, begin + parcel.GetDataSize());
}

std::string Narrow(const std::u16string& text)
{
    std::string narrow;
    for (char16_t unit : text) {
        narrow.push_back(unit < 0x80 ? static_cast<char>(unit) : '?');
    }
    return narrow;
}
} // namespace

EmulatedServiceStub::EmulatedServiceStub(const std::u16string& token, std::string serviceName,
                                         std::shared_ptr<TraceChannel> trace) :
    IPCObjectStub(token),
    token_(token), serviceName_(std::move(serviceName)), trace_(std::move(trace))
{
}

int EmulatedServiceStub::OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply,
                                         MessageOption& option)
{
    (void)option;
    DecodedRequest decoded;
    decoded.service = serviceName_;
    decoded.code = code;
    decoded.result = Dispatch(code, data, reply, decoded);
    if (trace_ != nullptr && trace_->Active()) {
        decoded.requestBytes = BytesOf(data);
        decoded.replyBytes = BytesOf(reply);
        trace_->Emit(decoded);
    }
    return decoded.result;
}

int EmulatedServiceStub::Dispatch(uint32_t code, MessageParcel& data, MessageParcel& reply, DecodedRequest& decoded)
{
    auto operation = operations_.find(code);
    if (operation == operations_.end()) {
        EMULATOR_LOGE("%{public}s: unknown request code %{public}u", serviceName_.c_str(), code);
        return IPC_STUB_UNKNOW_TRANS_ERR;
    }
    decoded.operation = operation->second.name;
    const std::u16string token = data.ReadInterfaceToken();
    decoded.fields.emplace_back("token", QuotedText(Narrow(token)));
    if (token != token_) {
        EMULATOR_LOGE("%{public}s: %{public}s refused, interface token \"%{public}s\"", serviceName_.c_str(),
                      operation->second.name, Narrow(token).c_str());
        return ERR_INVALID_STATE;
    }
    RequestReader reader(data, decoded.fields);
    ReplyWriter writer(reply, decoded.replyFields);
    operation->second.handle(reader, writer);
    if (reader.Failed()) {
        EMULATOR_LOGE("%{public}s: %{public}s refused, malformed request", serviceName_.c_str(),
                      operation->second.name);
        return ERR_INVALID_DATA;
    }
    if (writer.Failed()) {
        return IPC_STUB_WRITE_PARCEL_ERR;
    }
    EMULATOR_LOGD("%{public}s: %{public}s answered", serviceName_.c_str(), operation->second.name);
    return ERR_NONE;
}

} // namespace Zelkon
} // namespace OHOS
