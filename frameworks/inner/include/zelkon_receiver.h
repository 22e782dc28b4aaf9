/*
 * The receiver callback handed out by the share manager service. The library registers no proxy for it: a caller that
 * wants it typed registers its own.
 */
#ifndef ZELKON_RECEIVER_H
#define ZELKON_RECEIVER_H

#include "iremote_broker.h"

namespace OHOS {
namespace Zelkon {

class ZelkonReceiver : public IRemoteBroker {
public:
    DECLARE_INTERFACE_DESCRIPTOR(u"ohos.zelkon.ZelkonReceiver");
};

} // namespace Zelkon
} // namespace OHOS

#endif // ZELKON_RECEIVER_H
