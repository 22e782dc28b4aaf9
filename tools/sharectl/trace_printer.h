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
