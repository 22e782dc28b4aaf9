/*
 * The one request pattern of both service proxies: enter line, remote check, interface token, checked payload
 * writes, one synchronous SendRequest, exit line, reply. Each operation states only what differs: its site, its
 * texts, its payload and how its reply is read.
 */
#ifndef PROXY_REQUEST_H
#define PROXY_REQUEST_H

#include <string>

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
    // Logs the enter text at the operation's site.
    ProxyRequest(const RequestLabels& labels, const LogSite& site, const RequestTexts& texts);
    ProxyRequest(const ProxyRequest&) = delete;
    ProxyRequest& operator=(const ProxyRequest&) = delete;

    // Keeps the remote object for Send; logs "Remote() return nullptr." when there is none.
    bool HasRemote(sptr<IRemoteObject> remote);
    // Writes the interface token; logs "Write descriptor failed" when it cannot.
    bool WriteToken(std::u16string descriptor);
    // HasRemote, then WriteToken: the common opening of a request.
    bool Start(sptr<IRemoteObject> remote, std::u16string descriptor);

    // A checked step: logs failureText at error level when ok is false. Returns ok.
    bool Check(bool ok, const char* failureText);

    // Writes the remote object of a listener or callback; the temporary object is released right after.
    template <typename Broker>
    bool WriteObject(const sptr<Broker>& broker, const char* failureText)
    {
        return Check(data_.WriteRemoteObject(broker->AsObject()), failureText);
    }

    // Sends code synchronously with the 8 s wait. A non-zero result logs "SendRequest is failed, error code: %d"
    // and returns false. Sending does not log the exit text: see Send.
    bool Transact(uint32_t code);
    // Transact, then the exit text: the service has answered, the reply is not read yet.
    bool Send(uint32_t code);

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

private:
    const RequestLabels labels_;
    const LogSite site_;
    const RequestTexts texts_;
    sptr<IRemoteObject> remote_;
    MessageParcel data_;
    MessageParcel reply_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // PROXY_REQUEST_H
