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
 * The one body of the forwarding operations of both clients: enter line, the neutral result for a refused argument
 * or a missing proxy, the call outside the client's lock, exit line. Every line is logged at the operation's site
 * under the client's tag.
 */
#ifndef CLIENT_FORWARD_H
#define CLIENT_FORWARD_H

#include <type_traits>

#include "refbase.h"
#include "share_log.h"

namespace OHOS {
namespace Zelkon {

// An operation's lines on the client side: enter and exit (null: none), each at its level, and the line for a
// missing proxy where the operation has its own (null: the client's).
struct ClientTexts {
    ClientTexts(const char* enterText, const char* exitText, LogLevel level = LOG_DEBUG) :
        enter(enterText), enterLevel(level), exit(exitText), exitLevel(level)
    {
    }

    ClientTexts EnterAt(LogLevel level) const
    {
        ClientTexts texts = *this;
        texts.enterLevel = level;
        return texts;
    }
    // The send operations log their exit once they hold the proxy, before they call it.
    ClientTexts ExitBeforeCall() const
    {
        ClientTexts texts = *this;
        texts.exitBeforeCall = true;
        return texts;
    }
    ClientTexts NoProxy(const char* text) const
    {
        ClientTexts texts = *this;
        texts.noProxy = text;
        return texts;
    }

    const char* enter;
    LogLevel enterLevel;
    const char* exit;
    LogLevel exitLevel;
    bool exitBeforeCall = false;
    const char* noProxy = nullptr;
};

// connect() returns the client's proxy, or null after logging why; call(proxy) is the operation on the proxy.
template <typename Proxy, typename Connect, typename Call>
std::invoke_result_t<Call, Proxy&> ForwardCall(const LogLabel& label, const LogSite& site, const ClientTexts& texts,
                                               const Refusal& refusal, Connect&& connect, Call&& call)
{
    using Result = std::invoke_result_t<Call, Proxy&>;
    LogText(label, texts.enterLevel, site, texts.enter);
    if (refusal.refused) {
        LogText(label, LOG_ERROR, site, refusal.text);
        return Result();
    }
    sptr<Proxy> proxy = connect();
    if (proxy == nullptr) {
        return Result();
    }
    if (texts.exitBeforeCall) {
        LogText(label, texts.exitLevel, site, texts.exit);
        return call(*proxy);
    }
    if constexpr (std::is_void_v<Result>) {
        call(*proxy);
        LogText(label, texts.exitLevel, site, texts.exit);
    } else {
        Result result = call(*proxy);
        LogText(label, texts.exitLevel, site, texts.exit);
        return result;
    }
}

} // namespace Zelkon
} // namespace OHOS

#endif // CLIENT_FORWARD_H
