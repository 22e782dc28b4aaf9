#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <vector>

#include "fuzz_listener.h"
#include "reply_stub.h"
#include "share_manager_srv_proxy.h"

namespace {
using namespace OHOS;
using namespace OHOS::Zelkon;

using Operation = std::function<bool(ShareManagerSrvProxy&)>;

// Every request of the share manager whose reply is one flag (or, for GetEnableState, one integer: any value
// is a possible state, so it is only read).
const std::vector<Operation>& Operations()
{
    static const sptr<ZelkonWidgetServiceCallback> widget = MakeFuzzListener<ZelkonWidgetServiceCallback>();
    static const sptr<ISenderActionCallback> sender = MakeFuzzListener<ISenderActionCallback>();
    static const sptr<ZelkonApiCallback> api = MakeFuzzListener<ZelkonApiCallback>();
    static const ShareDeviceInfo device;
    static const DataBean dataBean;
    static const BytesInfo bytesInfo;
    static SendBean sendBean;
    static const std::vector<Operation> operations = {
        [](ShareManagerSrvProxy& p) { return p.SetShareEnable(1, 2, true); },
        [](ShareManagerSrvProxy& p) { return p.SetShareEnableWithConfirm(1, 2, true, false); },
        [](ShareManagerSrvProxy& p) { return p.IsEnabled(); },
        [](ShareManagerSrvProxy& p) { return p.GetEnableState() != 0; },
        [](ShareManagerSrvProxy& p) { return p.IsFocusPidsRegisterSwing(); },
        [](ShareManagerSrvProxy& p) { return p.RegisterWidgetCallback(widget); },
        [](ShareManagerSrvProxy& p) { return p.UnRegisterWidgetCallback(widget); },
        [](ShareManagerSrvProxy& p) { return p.StartDiscovery(); },
        [](ShareManagerSrvProxy& p) { return p.StopDiscovery(); },
        [](ShareManagerSrvProxy& p) { return p.StartConnect(); },
        [](ShareManagerSrvProxy& p) { return p.StopConnect(); },
        [](ShareManagerSrvProxy& p) { return p.PrepareSend(device); },
        [](ShareManagerSrvProxy& p) { return p.Send(device, sendBean, "com.example.share"); },
        [](ShareManagerSrvProxy& p) { return p.SendFile(device, dataBean, "com.example.share"); },
        [](ShareManagerSrvProxy& p) { return p.SendBytes(device, bytesInfo); },
        [](ShareManagerSrvProxy& p) { return p.Cancel(device); },
        [](ShareManagerSrvProxy& p) { return p.RegisterSenderActionCallback(sender); },
        [](ShareManagerSrvProxy& p) { return p.UnRegisterSenderActionCallback(sender); },
        [](ShareManagerSrvProxy& p) { return p.SetShareAccountPermission(1); },
        [](ShareManagerSrvProxy& p) { return p.RegisterVxShareApiWidgetCallback(widget); },
        [](ShareManagerSrvProxy& p) { return p.UnRegisterVxShareApiWidgetCallback(widget); },
        [](ShareManagerSrvProxy& p) { return p.RegisterVxShareApiEvent("event"); },
        [](ShareManagerSrvProxy& p) { return p.UnRegisterVxShareApiEvent("event"); },
        [](ShareManagerSrvProxy& p) { return p.NotifyInfo(device, 1); },
        [](ShareManagerSrvProxy& p) { return p.ApplyUriPermission("com.example.share"); },
        [](ShareManagerSrvProxy& p) { return p.SwingConfirm(device, 1); },
        [](ShareManagerSrvProxy& p) { return p.IsAppForeground("com.example.share"); },
        [](ShareManagerSrvProxy& p) { return p.RegisterShareApiCallback(api); },
        [](ShareManagerSrvProxy& p) { return p.UnregisterShareApiCallback(api); },
        [](ShareManagerSrvProxy& p) { return p.RegisterShareEventCallback(1, 2); },
        [](ShareManagerSrvProxy& p) { return p.UnregisterShareEventCallback(1, 2); },
    };
    return operations;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const sptr<ReplyStub> stub(new ReplyStub(u"ohos.Zelkon.IWidgetService"));
    static const sptr<ShareManagerSrvProxy> proxy = ProxyAnsweredBy<ShareManagerSrvProxy>(stub);
    const SelectedReply selected = SelectReply(data, size, Operations().size());
    stub->AnswerWith(selected.data, selected.size, selected.leadingObject);
    Operations()[selected.operation](*proxy);
    return 0;
}
