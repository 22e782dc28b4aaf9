/*
 * The caller's publish listener; the library only hands its remote object to the share service.
 */
#ifndef I_PUBLISH_LISTENER_H
#define I_PUBLISH_LISTENER_H

#include "iremote_broker.h"

namespace OHOS {
namespace Zelkon {

class IPublishListener : public IRemoteBroker {
public:
    DECLARE_INTERFACE_DESCRIPTOR(u"ohos.Zelkon.IPublishListener");
};

} // namespace Zelkon
} // namespace OHOS

#endif // I_PUBLISH_LISTENER_H
