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

#include "request_log.h"

#include <iostream>

#include "trace_printer.h"

namespace OHOS {
namespace Zelkon {

void RequestLog::Record(const DecodedRequest& request)
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (print_) {
        PrintTrace(std::cout, request);
    }
    requests_.push_back(request);
}

size_t RequestLog::Mark()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return requests_.size();
}

std::vector<DecodedRequest> RequestLog::Since(size_t mark)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return mark >= requests_.size() ? std::vector<DecodedRequest>()
                                    : std::vector<DecodedRequest>(requests_.begin() + mark, requests_.end());
}

std::optional<DecodedRequest> RequestLog::LastOf(size_t mark, const std::string& operation)
{
    std::lock_guard<std::mutex> lock(mutex_);
    for (size_t i = requests_.size(); i > mark; --i) {
        if (requests_[i - 1].operation == operation) {
            return requests_[i - 1];
        }
    }
    return std::nullopt;
}

std::optional<std::string> RequestLog::Field(const DecodedRequest& request, const std::string& name)
{
    for (const auto* fields : {&request.fields, &request.replyFields, &request.notes}) {
        for (const auto& [field, value] : *fields) {
            if (field == name) {
                return value;
            }
        }
    }
    return std::nullopt;
}

} // namespace Zelkon
} // namespace OHOS
