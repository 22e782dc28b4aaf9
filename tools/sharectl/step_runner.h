/*
 * Runs steps in order, one line per step with its result, and tells whether all of them gave what they expected.
 */
#ifndef STEP_RUNNER_H
#define STEP_RUNNER_H

#include <vector>

#include "output.h"
#include "session.h"

namespace OHOS {
namespace Zelkon {

// True when every step succeeded. Later steps still run after a failure, so that one run shows everything.
bool RunSteps(Session& session, const std::vector<Step>& steps, Output& out);

} // namespace Zelkon
} // namespace OHOS

#endif // STEP_RUNNER_H
