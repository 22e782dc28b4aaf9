#include "step_runner.h"

namespace OHOS {
namespace Zelkon {

bool RunSteps(Session& session, const std::vector<Step>& steps, std::ostream& out)
{
    size_t passed = 0;
    for (const Step& step : steps) {
        const StepResult result = step.run(session);
        out << (result.ok ? "[ ok ] " : "[FAIL] ") << step.name << ": " << result.detail << std::endl;
        passed += result.ok ? 1 : 0;
    }
    out << passed << " of " << steps.size() << " steps passed" << std::endl;
    return passed == steps.size();
}

} // namespace Zelkon
} // namespace OHOS
