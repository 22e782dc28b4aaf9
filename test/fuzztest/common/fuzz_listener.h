/*
 * The reply fuzzers call requests that carry a listener or callback; the proxies only put its remote object on
 * the wire, so a local stub of the interface is all they need.
 */
#ifndef FUZZ_LISTENER_H
#define FUZZ_LISTENER_H

#include "iremote_stub.h"
#include "refbase.h"

namespace OHOS {
namespace Zelkon {

template <typename Interface>
class FuzzListener : public IRemoteStub<Interface> {
};

template <typename Interface>
sptr<Interface> MakeFuzzListener()
{
    return sptr<Interface>(new FuzzListener<Interface>());
}

} // namespace Zelkon
} // namespace OHOS

#endif // FUZZ_LISTENER_H
