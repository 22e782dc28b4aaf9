/*
 * The sender of a started transfer, returned by the share service. The library registers no proxy for it: a caller that
 * wants it typed registers one for this descriptor.
 */
#ifndef ZELKON_SENDER_H
#define ZELKON_SENDER_H

#include "iremote_broker.h"

namespace OHOS {
namespace Zelkon {

class ZelkonSender : public IRemoteBroker {
public:
    DECLARE_INTERFACE_DESCRIPTOR(u"ohos.zelkon.ZelkonSender");
};

} // namespace Zelkon
} // namespace OHOS

#endif // ZELKON_SENDER_H
