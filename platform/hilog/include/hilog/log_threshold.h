/*
 * Host control of the system log: the level from which lines are printed on the console. Lines below it still
 * reach the log callback (LOG_SetCallback), which is how tests read them.
 */
#ifndef HIVIEWDFX_HILOG_THRESHOLD_H
#define HIVIEWDFX_HILOG_THRESHOLD_H

#include "hilog/log_c.h"

namespace OHOS {
namespace HiviewDFX {

// WARN by default: a process that calls the library in a loop does not pay for a console line per call.
void HiLogSetThreshold(LogLevel level);
LogLevel HiLogGetThreshold();

} // namespace HiviewDFX
} // namespace OHOS

#endif // HIVIEWDFX_HILOG_THRESHOLD_H
