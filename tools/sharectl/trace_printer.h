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
 * Shows one request and its reply: as decoded fields beside the bytes of each parcel for people, as fields for
 * scripts. What the emulator adds of its own is marked as its note, apart from the wire's fields.
 */
#ifndef TRACE_PRINTER_H
#define TRACE_PRINTER_H

#include <ostream>

#include <nlohmann/json.hpp>

#include "decoded_request.h"

namespace OHOS {
namespace Zelkon {

void PrintTrace(std::ostream& out, const DecodedRequest& request);
nlohmann::ordered_json TraceJson(const DecodedRequest& request);

} // namespace Zelkon
} // namespace OHOS

#endif // TRACE_PRINTER_H
