/*
 * What the client adds to one request: a whole ShareClient call against the bare SendRequest of the same bytes
 * through the same remote object.
 */
#include <benchmark/benchmark.h>

#include "benchmark_fixtures.h"
#include "message_option.h"
#include "message_parcel.h"
#include "share_client.h"

namespace OHOS {
namespace Zelkon {
namespace {

constexpr uint32_t ENABLE_DISCOVERY_POLICY = 11;

void BM_ClientCall(benchmark::State& state)
{
    FastShareService();
    ShareClient& client = ShareClient::GetInstance();
    for (auto _ : state) {
        if (client.EnableDiscoveryPolicy(1) != 1) {
            state.SkipWithError("the call failed");
            break;
        }
    }
}
BENCHMARK(BM_ClientCall);

void BM_BareSendRequest(benchmark::State& state)
{
    const sptr<IRemoteObject> remote = FastShareService();
    MessageParcel data;
    data.WriteInterfaceToken(u"ohos.Zelkon.ZelkonService");
    data.WriteInt32(1);
    for (auto _ : state) {
        MessageParcel reply;
        MessageOption option(MessageOption::TF_SYNC, 8);
        if (remote->SendRequest(ENABLE_DISCOVERY_POLICY, data, reply, option) != 0 || !reply.ReadBool()) {
            state.SkipWithError("the request failed");
            break;
        }
    }
}
BENCHMARK(BM_BareSendRequest);

} // namespace
} // namespace Zelkon
} // namespace OHOS
