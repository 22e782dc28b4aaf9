#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <vector>

#include "fuzz_listener.h"
#include "reply_stub.h"
#include "share_srv_proxy.h"

namespace {
using namespace OHOS;
using namespace OHOS::Zelkon;

using Operation = std::function<int32_t(ShareSrvProxy&)>;

// Every request of the share service whose reply is one bool.
const std::vector<Operation>& Operations()
{
    static const sptr<IPublishListener> publish = MakeFuzzListener<IPublishListener>();
    static const sptr<ISubscribeListener> subscribe = MakeFuzzListener<ISubscribeListener>();
    static const sptr<ZelkonReceiveListener> receive = MakeFuzzListener<ZelkonReceiveListener>();
    static const sptr<ICommonReceiveListener> common = MakeFuzzListener<ICommonReceiveListener>();
    static const std::vector<Operation> operations = {
        [](ShareSrvProxy& p) { return p.PublishDevice(publish); },
        [](ShareSrvProxy& p) { return p.UnPublishDevice(1, publish); },
        [](ShareSrvProxy& p) { return p.SubscribeDevice(subscribe); },
        [](ShareSrvProxy& p) { return p.UnSubscribeDevice(2, subscribe); },
        [](ShareSrvProxy& p) { return p.RegisterReceiveListener(receive); },
        [](ShareSrvProxy& p) { return p.UnRegisterReceiveListener(receive); },
        [](ShareSrvProxy& p) { return p.EnableDiscoveryPolicy(1); },
        [](ShareSrvProxy& p) { return p.SetAccountPermission(1); },
        [](ShareSrvProxy& p) { return p.RegisterCommonReceiveListener(common); },
        [](ShareSrvProxy& p) { return p.UnRegisterCommonReceiveListener(); },
        [](ShareSrvProxy& p) { return p.SuspendWifiScanning("wlan0"); },
        [](ShareSrvProxy& p) { return p.ResumeWifiScanning("wlan0"); },
        [](ShareSrvProxy& p) { return p.OnCollabDeviceFound(nullptr, subscribe, 1); },
        [](ShareSrvProxy& p) { return p.ClearDiscovererFlag("device", 1); },
        [](ShareSrvProxy& p) { return p.ReportSwingEvent(1, 2, 3, "swing"); },
        [](ShareSrvProxy& p) { return p.SwingSubscribe(subscribe); },
        [](ShareSrvProxy& p) { return p.SwingUnSubscribe(subscribe); },
        [](ShareSrvProxy& p) { return p.ApplyUriPermission("device"); },
        [](ShareSrvProxy& p) { return p.RemovePermanentDeviceById(7); },
    };
    return operations;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const sptr<ReplyStub> stub(new ReplyStub(u"ohos.Zelkon.ZelkonService"));
    static const sptr<ShareSrvProxy> proxy = ProxyAnsweredBy<ShareSrvProxy>(stub);
    const SelectedReply selected = SelectReply(data, size, Operations().size());
    stub->AnswerWith(selected.data, selected.size, selected.leadingObject);
    const int32_t result = Operations()[selected.operation](*proxy);
    // A bool travels back as 0 or 1, whatever the reply held.
    if (result != 0 && result != 1) {
        abort();
    }
    return 0;
}
