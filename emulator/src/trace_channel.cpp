#include "trace_channel.h"

#include <utility>

namespace OHOS {
namespace Zelkon {

void TraceChannel::SetSink(TraceSink sink)
{
    std::lock_guard<std::mutex> lock(mutex_);
    sink_ = std::move(sink);
}

bool TraceChannel::Active() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    return static_cast<bool>(sink_);
}

void TraceChannel::Emit(const DecodedRequest& request) const
{
    TraceSink sink;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        sink = sink_;
    }
    if (sink) {
        sink(request);
    }
}

} // namespace Zelkon
} // namespace OHOS
