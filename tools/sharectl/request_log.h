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
 * Every request that the emulated services answered during the run, so that a step can check what the service
 * really received; with tracing on, each one is printed as it arrives.
 */
#ifndef REQUEST_LOG_H
#define REQUEST_LOG_H

#include <cstddef>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "decoded_request.h"

namespace OHOS {
namespace Zelkon {

class RequestLog {
public:
    explicit RequestLog(bool print) : print_(print) {}

    void Record(const DecodedRequest& request);
    // The position to pass to Since.
    size_t Mark();
    std::vector<DecodedRequest> Since(size_t mark);
    // The last request of that operation since the mark.
    std::optional<DecodedRequest> LastOf(size_t mark, const std::string& operation);
    // The value of the first field of that name, among the request's, the reply's, then the emulator's notes.
    static std::optional<std::string> Field(const DecodedRequest& request, const std::string& name);

private:
    const bool print_;
    std::mutex mutex_;
    std::vector<DecodedRequest> requests_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // REQUEST_LOG_H
