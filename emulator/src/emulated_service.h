/*
 * Base of the emulated services: checks the interface token, finds the operation of the code, lets it decode the
 * request and write the reply, and hands the exchange to the tracer.
 */
#ifndef EMULATED_SERVICE_H
#define EMULATED_SERVICE_H

#include <functional>
#include <map>
#include <mutex>
#include <string>

#include "decoded_request.h"
#include "ipc_object_stub.h"
#include "request_reader.h"

namespace OHOS {
namespace Zelkon {

class EmulatedService : public IPCObjectStub {
public:
    // Decodes the payload with the reader and writes the reply; returns the result of the request.
    using Handler = std::function<int(RequestReader& request, MessageParcel& reply)>;
    struct Operation {
        std::string name;
        Handler handle;
    };

    EmulatedService(const std::u16string& descriptor, std::string serviceName);

    int OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) override;

protected:
    void Define(uint32_t code, std::string name, Handler handle);
    // A request answered by true once its payload was decoded.
    void DefineAcknowledged(uint32_t code, std::string name, std::function<void(RequestReader&)> decode);

    std::mutex mutex_;

private:
    const std::u16string descriptor_;
    const std::string serviceName_;
    std::map<uint32_t, Operation> operations_;
};

// A local object standing for what a service hands back (a transfer's sender, a receiver callback).
class EmulatedRemote : public IPCObjectStub {
public:
    explicit EmulatedRemote(const std::u16string& descriptor) : IPCObjectStub(descriptor) {}
};

void TraceExchange(const DecodedRequest& exchange);

} // namespace Zelkon
} // namespace OHOS

#endif // EMULATED_SERVICE_H
