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

#include "call_outcomes.h"

namespace OHOS {
namespace Zelkon {
namespace {
constexpr const char* REFUSED_OR_FAILED = "refused, or the call failed: the log tells which";
} // namespace

std::string CallOutcome::Text() const
{
    const std::string shown = value.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
    return meaning.empty() ? shown : shown + " (" + meaning + ")";
}

CallOutcome Accepted(int32_t result)
{
    return {result, result == 1 ? "accepted" : result == 0 ? REFUSED_OR_FAILED : ""};
}

CallOutcome Answer(bool result)
{
    return {result, result ? "" : std::string("no or ") + REFUSED_OR_FAILED};
}

CallOutcome SenderOutcome(const sptr<ZelkonSender>& sender)
{
    if (sender == nullptr) {
        return {nullptr, std::string("no sender: ") + REFUSED_OR_FAILED};
    }
    const int32_t transfer = static_cast<DemoSenderProxy*>(sender.GetRefPtr())->TransferId();
    return {{{"transfer", transfer}}, "the sender of transfer " + std::to_string(transfer)};
}

CallOutcome ReceiverOutcome(const sptr<ZelkonReceiver>& receiver)
{
    if (receiver == nullptr) {
        return {nullptr, std::string("no receiver: the call failed: the log tells why")};
    }
    const int32_t handle = static_cast<DemoReceiverProxy*>(receiver.GetRefPtr())->ReceiverId();
    return {{{"receiver", handle}}, "the receiver callback " + std::to_string(handle)};
}

} // namespace Zelkon
} // namespace OHOS
