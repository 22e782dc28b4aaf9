/*
 * A caller's listener or callback: a local object of the interface whose remote object travels in the requests.
 */
#ifndef TEST_REMOTE_H
#define TEST_REMOTE_H

#include "iremote_stub.h"

namespace OHOS {
namespace Zelkon {

template <typename Interface>
class TestRemote : public IRemoteStub<Interface> {
};

} // namespace Zelkon
} // namespace OHOS

#endif // TEST_REMOTE_H
