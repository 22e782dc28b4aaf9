/*
 * A command line that makes no sense: sharectl says why on stderr, runs nothing and exits with status 2.
 */
#ifndef USAGE_ERROR_H
#define USAGE_ERROR_H

#include <stdexcept>

namespace OHOS {
namespace Zelkon {

class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace Zelkon
} // namespace OHOS

#endif // USAGE_ERROR_H
