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
