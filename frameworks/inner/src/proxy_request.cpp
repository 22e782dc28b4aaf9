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

#include "proxy_request.h"

#include <utility>

#include "share_common_constants.h"

namespace OHOS {
namespace Zelkon {
namespace {

constexpr size_t FIRST_REQUEST_CAPACITY = 256;

} // namespace

ProxyRequest::ProxyRequest(const RequestLabels& labels, const LogSite& site, const RequestTexts& texts,
                           const Refusal& refusal) :
    labels_(labels),
    site_(site), texts_(texts), refused_(refusal.refused)
{
    if (refused_) {
        LogError(refusal.text);
    } else {
        LogText(labels_.texts, texts_.enterLevel, site_, texts_.enter);
    }
}

bool ProxyRequest::HasRemote(sptr<IRemoteObject> remote)
{
    if (refused_) {
        return false;
    }
    remote_ = std::move(remote);
    return Check(remote_ != nullptr, "Remote() return nullptr.");
}

bool ProxyRequest::WriteToken(std::u16string descriptor)
{
    // The token alone fills the parcel's first 64 bytes; one allocation then holds a typical request whole.
    data_.SetDataCapacity(FIRST_REQUEST_CAPACITY);
    return Check(data_.WriteInterfaceToken(std::move(descriptor)), "Write descriptor failed");
}

bool ProxyRequest::Open(sptr<IRemoteObject> remote, std::u16string descriptor)
{
    return HasRemote(std::move(remote)) && WriteToken(std::move(descriptor));
}

bool ProxyRequest::Check(bool ok, const char* failureText)
{
    if (!ok) {
        LogError(failureText);
    }
    return ok;
}

bool ProxyRequest::SendCode(uint32_t code)
{
    MessageOption option(MessageOption::TF_SYNC, WAIT_TIME_SECONDS);
    int32_t result = remote_->SendRequest(code, data_, reply_, option);
    if (result != ERR_NONE) {
        SHARE_LOG_AT(labels_.failures, LOG_ERROR, site_, "%{public}sSendRequest is failed, error code: %{public}d",
                     texts_.failurePrefix, result);
        return false;
    }
    return true;
}

void ProxyRequest::LogExit() const
{
    LogText(labels_.texts, texts_.exitLevel, site_, texts_.exit);
}

void ProxyRequest::LogError(const char* text) const
{
    SHARE_LOG_AT(labels_.failures, LOG_ERROR, site_, "%{public}s%{public}s", texts_.failurePrefix, text);
}

} // namespace Zelkon
} // namespace OHOS
