// Fuzzed replies make the library log on every input: keep the console quiet so the fuzzer's own output stays
// readable and the runs fast.
#include "hilog/log_threshold.h"

namespace {
const bool g_quiet = [] {
    OHOS::HiviewDFX::HiLogSetThreshold(LOG_FATAL);
    return true;
}();
} // namespace
