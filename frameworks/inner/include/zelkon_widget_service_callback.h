/*
 * The caller's widget callback; the library only hands its remote object to the share manager service.
 */
#ifndef ZELKON_WIDGET_SERVICE_CALLBACK_H
#define ZELKON_WIDGET_SERVICE_CALLBACK_H

#include "iremote_broker.h"

namespace OHOS {
namespace Zelkon {

class ZelkonWidgetServiceCallback : public IRemoteBroker {
public:
    DECLARE_INTERFACE_DESCRIPTOR(u"ohos.Zelkon.ZelkonWidgetServiceCallback");
};

} // namespace Zelkon
} // namespace OHOS

#endif // ZELKON_WIDGET_SERVICE_CALLBACK_H
