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

#include "step_runner.h"

namespace OHOS {
namespace Zelkon {

bool RunSteps(Session& session, const std::vector<Step>& steps, Output& out)
{
    size_t passed = 0;
    nlohmann::ordered_json& shown = out.Document()["steps"] = nlohmann::ordered_json::array();
    for (const Step& step : steps) {
        const StepResult result = step.run(session);
        out.Line(std::string(result.ok ? "[ ok ] " : "[FAIL] ") + step.name + ": " + result.detail);
        shown.push_back({{"step", step.name}, {"ok", result.ok}, {"detail", result.detail}});
        passed += result.ok ? 1 : 0;
    }
    out.Line(std::to_string(passed) + " of " + std::to_string(steps.size()) + " steps passed");
    out.Document()["passed"] = passed;
    out.Document()["total"] = steps.size();
    return passed == steps.size();
}

} // namespace Zelkon
} // namespace OHOS
