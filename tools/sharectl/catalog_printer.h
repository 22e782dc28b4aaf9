/*
 * What list, describe and call print, from the operation table: for people as lines, for scripts as JSON.
 */
#ifndef CATALOG_PRINTER_H
#define CATALOG_PRINTER_H

#include "operation.h"
#include "output.h"

namespace OHOS {
namespace Zelkon {

void PrintOperationList(Output& out);
void PrintOperationDescription(const Operation& operation, Output& out);
void PrintCallOutcome(const Operation& operation, const CallOutcome& outcome, Output& out);

} // namespace Zelkon
} // namespace OHOS

#endif // CATALOG_PRINTER_H
