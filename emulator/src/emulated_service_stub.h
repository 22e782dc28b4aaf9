/*
 * The part that both emulated services share: the code table, the interface token check, the refusal of malformed
 * requests and the trace of every request with its reply.
 */
#ifndef EMULATED_SERVICE_STUB_H
#define EMULATED_SERVICE_STUB_H

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "ipc_object_stub.h"
#include "message_option.h"
#include "reply_writer.h"
#include "request_reader.h"
#include "trace_channel.h"

namespace OHOS {
namespace Zelkon {

class EmulatedServiceStub : public IPCObjectStub {
public:
    EmulatedServiceStub(const std::u16string& token, std::string serviceName, std::shared_ptr<TraceChannel> trace);

    int OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) override;

protected:
    // Decodes the request's fields; changes state and writes the reply only once all of them were read.
    using Handler = std::function<void(RequestReader&, ReplyWriter&)>;

    template <typename Stub>
    void Add(uint32_t code, const char* operation, void (Stub::*handle)(RequestReader&, ReplyWriter&))
    {
        operations_[code] = {operation, [this, handle](RequestReader& reader, ReplyWriter& writer) {
                                 (static_cast<Stub*>(this)->*handle)(reader, writer);
                             }};
    }

private:
    struct Operation {
        const char* name;
        Handler handle;
    };

    int Dispatch(uint32_t code, MessageParcel& data, MessageParcel& reply, DecodedRequest& decoded);

    const std::u16string token_;
    const std::string serviceName_;
    const std::shared_ptr<TraceChannel> trace_;
    std::map<uint32_t, Operation> operations_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // EMULATED_SERVICE_STUB_H
