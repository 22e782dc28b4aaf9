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
