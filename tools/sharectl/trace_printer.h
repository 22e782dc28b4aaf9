/*
 * Prints one request and its reply as decoded fields beside the bytes of each parcel.
 */
#ifndef TRACE_PRINTER_H
#define TRACE_PRINTER_H

#include <ostream>

#include "decoded_request.h"

namespace OHOS {
namespace Zelkon {

void PrintTrace(std::ostream& out, const DecodedRequest& request);

} // namespace Zelkon
} // namespace OHOS

#endif // TRACE_PRINTER_H
