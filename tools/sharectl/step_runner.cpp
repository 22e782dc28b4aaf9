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
