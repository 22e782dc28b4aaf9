#ifndef HIVIEWDFX_HILOG_H
#define HIVIEWDFX_HILOG_H

#include "hilog/log_c.h"

#ifdef __cplusplus
#include "hilog/log_cpp.h"
#endif

#endif // HIVIEWDFX_HILOG_H
