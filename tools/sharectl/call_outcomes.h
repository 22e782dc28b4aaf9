/*
 * Results of the library decoded for people and scripts: the value as JSON and, where the value alone misleads,
 * what it means. The library answers a failure with the same neutral value as a refusal; the meanings say so.
 */
#ifndef CALL_OUTCOMES_H
#define CALL_OUTCOMES_H

#include <string>
#include <vector>

#include "json_field_writer.h"
#include "library_record_fields.h"
#include "operation.h"

namespace OHOS {
namespace Zelkon {

// A bool of the wire handed back as an int32 by the share client: 1 accepted, 0 refused or failed.
CallOutcome Accepted(int32_t result);
CallOutcome Answer(bool result);
CallOutcome SenderOutcome(const sptr<ZelkonSender>& sender);
CallOutcome ReceiverOutcome(const sptr<ZelkonReceiver>& receiver);

template <typename Record>
CallOutcome RecordsOutcome(const std::vector<Record>& records)
{
    return {JsonFieldWriter::Write(records), records.empty() ? "empty: none, or the call failed: the log tells which"
                                                             : std::to_string(records.size()) + " records"};
}

template <typename Record>
CallOutcome RecordOutcome(const Record& record)
{
    return {JsonFieldWriter::Write(record), ""};
}

} // namespace Zelkon
} // namespace OHOS

#endif // CALL_OUTCOMES_H
