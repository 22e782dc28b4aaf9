/*
 * Where the emulated services send their decoded requests. Shared by every service instance, so that a trace set
 * before a load also sees the loaded service.
 */
#ifndef TRACE_CHANNEL_H
#define TRACE_CHANNEL_H

#include <mutex>

#include "decoded_request.h"

namespace OHOS {
namespace Zelkon {

class TraceChannel {
public:
    void SetSink(TraceSink sink);
    bool Active() const;
    // The sink runs outside the lock: it may take its time or set another sink.
    void Emit(const DecodedRequest& request) const;

private:
    mutable std::mutex mutex_;
    TraceSink sink_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // TRACE_CHANNEL_H
