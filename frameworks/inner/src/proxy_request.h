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
 * The one request pattern of both service proxies: enter line, remote check, interface token, payload writes, one
 * synchronous SendRequest, exit line, reply. An operation is one chain of these steps that stops at the first that
 * fails; it states only what differs: its site, its texts, its payload, its code and how its reply is read.
 */
#ifndef PROXY_REQUEST_H
#define PROXY_REQUEST_H

#include <string>
#include <type_traits>

#include "iremote_broker.h"
#include "iremote_object.h"
#include "message_option.h"
#include "message_parcel.h"
#include "share_log.h"

namespace OHOS {
namespace Zelkon {

// An operation's enter and exit lines. A null enter text means the operation has none. A null exit text means the
// operation has none, or logs its exit itself with a value. An operation that names itself in its failure lines gives
// the prefix ("GetAllUserList ").
struct RequestTexts {
    const char* enter;
    LogLevel enterLevel;
    const char* exit;
    LogLevel exitLevel;
    const char* failurePrefix = "";
};

// Who logs: the proxy's label for failures, and the label of the enter and exit lines (the same, except where an
// operation logs its enter and exit under another tag).
struct RequestLabels {
    const LogLabel& failures;
    const LogLabel& texts;
};

class ProxyRequest {
public:
    // Logs the enter text at the operation's site. A refusal comes before everything else, the enter line included:
    // a refused request logs only the refusal text and opens no further.
    ProxyRequest(const RequestLabels& labels, const LogSite& site, const RequestTexts& texts,
                 const Refusal& refusal = {});
    ProxyRequest(const ProxyRequest&) = delete;
    ProxyRequest& operator=(const ProxyRequest&) = delete;

    // Keeps the remote object for the send; logs "Remote() return nullptr." when there is none.
    bool HasRemote(sptr<IRemoteObject> remote);
    // Writes the interface token; logs "Write descriptor failed" when it cannot.
    bool WriteToken(std::u16string descriptor);
    // HasRemote, then WriteToken: the common opening of a request.
    bool Open(sptr<IRemoteObject> remote, std::u16string descriptor);

    // A checked step: logs failureText at error level when ok is false. Returns ok.
    bool Check(bool ok, const char* failureText);

    // Writes the remote object of a listener or callback; the temporary object is released right after.
    template <typename Broker>
    bool WriteObject(const sptr<Broker>& broker, const char* failureText)
    {
        return Check(data_.WriteRemoteObject(broker->AsObject()), failureText);
    }

    // Unchecked writes of plain words: the request goes on whatever they return, as the service expects.
    template <typename... Values>
    bool PutUnchecked(Values... values)
    {
        (PutWord(values), ...);
        return true;
    }

    // Sends the code synchronously with the 8 s wait. A non-zero result logs "SendRequest is failed, error code: %d"
    // and returns false. No exit text: for an operation that has none, or logs it itself once the reply is read or
    // with a value of the reply.
    template <typename Code>
    bool SendWithoutExitLine(Code code)
    {
        static_assert(std::is_enum_v<Code>, "request codes are the interface's enumeration");
        return SendCode(static_cast<uint32_t>(code));
    }
    // SendWithoutExitLine, then the exit text: the service has answered, the reply is not read yet.
    template <typename Code>
    bool SendAndLogExit(Code code)
    {
        if (!SendWithoutExitLine(code)) {
            return false;
        }
        LogExit();
        return true;
    }

    // Logs the exit text, if the operation has one.
    void LogExit() const;
    // Logs an error text at the operation's site under the failure label.
    void LogError(const char* text) const;

    // The bool result of the reply; a short reply reads as false.
    bool ReplyBool() { return reply_.ReadBool(); }

    MessageParcel& Data() { return data_; }
    MessageParcel& Reply() { return reply_; }
    const LogSite& Site() const { return site_; }

    static constexpr int32_t WAIT_TIME_SECONDS = 8;
    // The most records that a list reply may count, in both services. The count is read as an int32 and compared
    // signed: a negative count reads as an empty list. The two readers differ in the rest (see each).
    static constexpr int32_t MAX_LIST_RECORDS = 1000;

private:
    bool SendCode(uint32_t code);
    void PutWord(int32_t value) { data_.WriteInt32(value); }
    void PutWord(bool value) { data_.WriteBool(value); }

    const RequestLabels labels_;
    const LogSite site_;
    const RequestTexts texts_;
    const bool refused_;
    sptr<IRemoteObject> remote_;
    MessageParcel data_;
    MessageParcel reply_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // PROXY_REQUEST_H
