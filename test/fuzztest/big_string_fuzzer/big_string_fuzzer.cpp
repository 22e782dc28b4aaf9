#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "message_parcel.h"
#include "parcel_util.h"
#include "record_fuzz.h"
#include "share_manager_srv_proxy.h"

namespace {
using OHOS::MessageParcel;
using OHOS::sptr;
using OHOS::Zelkon::ShareManagerSrvProxy;

// The reader is a member of the proxy but uses nothing of its remote object.
ShareManagerSrvProxy& Reader()
{
    static sptr<ShareManagerSrvProxy> proxy(new ShareManagerSrvProxy(nullptr));
    return *proxy;
}

// A text that was read must come back unchanged through the writer and the reader.
void CheckRewriteStable(const std::string& text)
{
    MessageParcel parcel;
    if (!OHOS::Zelkon::ParcelUtil::WriteBigString(parcel, text)) {
        abort();
    }
    std::string reread;
    if (!Reader().ReadBigString(parcel, reread) || reread != text) {
        abort();
    }
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    MessageParcel parcel;
    OHOS::Zelkon::FillParcel(parcel, data, size);
    const std::string untouched = "kept when nothing is read";
    std::string text = untouched;
    if (!Reader().ReadBigString(parcel, text)) {
        if (text != untouched) {
            abort();
        }
        return 0;
    }
    if (text != untouched) {
        CheckRewriteStable(text);
    }
    return 0;
}
