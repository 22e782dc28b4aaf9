#ifndef HIVIEWDFX_HILOG_CPP_H
#define HIVIEWDFX_HILOG_CPP_H

#include "hilog/log_c.h"

namespace OHOS {
namespace HiviewDFX {

struct HiLogLabel {
    LogType type;
    unsigned int domain;
    const char* tag;
};

class HiLog final {
public:
    static int Debug(const HiLogLabel& label, const char* fmt, ...);
    static int Info(const HiLogLabel& label, const char* fmt, ...);
    static int Warn(const HiLogLabel& label, const char* fmt, ...);
    static int Error(const HiLogLabel& label, const char* fmt, ...);
    static int Fatal(const HiLogLabel& label, const char* fmt, ...);
};

} // namespace HiviewDFX
} // namespace OHOS

#endif // HIVIEWDFX_HILOG_CPP_H
