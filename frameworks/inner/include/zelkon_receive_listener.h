/*
 * The caller's receive listener; the library only hands its remote object to the share service.
 */
#ifndef ZELKON_RECEIVE_LISTENER_H
#define ZELKON_RECEIVE_LISTENER_H

#include "iremote_broker.h"

namespace OHOS {
namespace Zelkon {

class ZelkonReceiveListener : public IRemoteBroker {
public:
    DECLARE_INTERFACE_DESCRIPTOR(u"ohos.Zelkon.ZelkonReceiveListener");
};

} // namespace Zelkon
} // namespace OHOS

#endif // ZELKON_RECEIVE_LISTENER_H
