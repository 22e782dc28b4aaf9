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
