/*
 * Copyright (c) 2026 The libshare_client Authors.
 * Licensed under the Apache License, Version 2.0 (the "License");
 * you may not use this file except in compliance with the License.
 * You may obtain a copy of the License at
 *
 *     http://www.apache.org/licenses/LICENSE-2.0
 *
 * Unless required by applicable law or agreed to in writing, software
 * distributed under the License is distributed on an "AS IS" BASIS,
 * WITHOUT WARRANTIES OR CONDITIONS OF ANY KIND, either express or implied.
 * See the License for the specific language governing permissions and
 * limitations under the License.
 */

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
