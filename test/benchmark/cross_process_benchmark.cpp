/*
 * Copyright (c) 2026 The libshare_client Authors.
 * Licensed under the Apache License, Version 2.0 (the "License");
 * you may not use this file except in compliance with the License.
 * You may obtain a copy of the License at
 *
 *     http://www.apache.org/licenses/LICENSE-2.0
 *
 * Unless required by applicable law or agreed to in writing, software
 * distributed under the License is distributed on an "AS IS" BASIS,
 * WITHOUT WARRANTIES OR CONDITIONS OF ANY KIND, either express or implied.
 * See the License for the specific language governing permissions and
 * limitations under the License.
 */

/*
 * A call across processes against the floor of any transport: a whole ShareClient call to a share service in a peer
 * process, and the bare SendRequest of its bytes, against a raw round trip of the same bytes over a socketpair
 * between the same two processes. And calls from eight threads across processes against one, to a stub that takes
 * 2 ms. Its own executable: its share client talks to the peer process, share_benchmark's to a local stub.
 */
#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <sys/socket.h>
#include <unistd.h>
#include <vector>

#include "ipc_host_transport.h"
#include "iservice_registry.h"
#include "message_option.h"
#include "message_parcel.h"
#include "peer_process.h"
#include "samgr_host_control.h"
#include "share_client.h"

namespace OHOS {
namespace {

struct Peer {
    std::unique_ptr<PeerProcess> process;
    // This process's end of the socketpair on which the peer echoes.
    int raw = -1;
    sptr<IRemoteObject> remote;
};

Peer& ThePeer()
{
    static Peer* peer = [] {
        auto* started = new Peer();
        int pair[2];
        if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pair) != 0) {
            abort();
        }
        started->process = std::make_unique<PeerProcess>(pair[1]);
        close(pair[1]);
        started->raw = pair[0];
        started->remote = IpcHostTransport::ConnectToContextObject(started->process->Path());
        std::atexit([] { ThePeer().process.reset(); });
        return started;
    }();
    return *peer;
}

// The bytes of the share client's EnableDiscoveryPolicy(1).
void WriteSmallRequest(MessageParcel& data)
{
    data.WriteInterfaceToken(u"ohos.Zelkon.ZelkonService");
    data.WriteInt32(1);
}

// The share client connected to the peer's stub that answers true, as its share service.
bool ConnectShareClientToPeer()
{
    constexpr int32_t SHARE_SERVICE_ID = 65569;
    MessageParcel data;
    MessageParcel reply;
    MessageOption option;
    if (ThePeer().remote->SendRequest(GIVE_YES, data, reply, option) != ERR_NONE) {
        return false;
    }
    sptr<IRemoteObject> yes = reply.ReadRemoteObject();
    SamgrHostControl::RegisterLoader(SHARE_SERVICE_ID, [yes] { return yes; });
    return Zelkon::ShareClient::GetInstance().Connect() == 0;
}

void BM_RawSocketRoundTrip(benchmark::State& state)
{
    MessageParcel data;
    WriteSmallRequest(data);
    const auto* request = reinterpret_cast<const uint8_t*>(data.GetData());
    const size_t size = data.GetDataSize();
    std::vector<uint8_t> answer(size);
    const Peer& peer = ThePeer();
    for (auto _ : state) {
        size_t got = 0;
        ssize_t count = write(peer.raw, request, size);
        while (count > 0 && got < size && (count = read(peer.raw, answer.data() + got, size - got)) > 0) {
            got += static_cast<size_t>(count);
        }
        if (got != size) {
            state.SkipWithError("the round trip failed");
            break;
        }
    }
}
BENCHMARK(BM_RawSocketRoundTrip);

// One request to the peer each iteration; one that fails, or whose reply is not what `answered` expects, ends the run.
template <typename ReplyCheck>
void RequestEachIteration(benchmark::State& state, uint32_t code, MessageParcel& data, ReplyCheck answered)
{
    const Peer& peer = ThePeer();
    for (auto _ : state) {
        MessageParcel reply;
        MessageOption option;
        if (peer.remote->SendRequest(code, data, reply, option) != ERR_NONE || !answered(reply)) {
            state.SkipWithError("the request failed");
            break;
        }
    }
}

void BM_CrossProcessSendRequest(benchmark::State& state)
{
    MessageParcel data;
    WriteSmallRequest(data);
    RequestEachIteration(state, ECHO, data,
                         [&data](const MessageParcel& reply) { return reply.GetDataSize() == data.GetDataSize(); });
}
BENCHMARK(BM_CrossProcessSendRequest);

void BM_CrossProcessClientCall(benchmark::State& state)
{
    static const bool connected = ConnectShareClientToPeer();
    if (!connected) {
        state.SkipWithError("the share client cannot reach the peer");
        return;
    }
    for (auto _ : state) {
        if (Zelkon::ShareClient::GetInstance().EnableDiscoveryPolicy(1) != 1) {
            state.SkipWithError("the call failed");
            break;
        }
    }
}
BENCHMARK(BM_CrossProcessClientCall);

void BM_CrossProcessConcurrentCalls(benchmark::State& state)
{
    MessageParcel data;
    data.WriteInt32(2);
    RequestEachIteration(state, SLEEP, data, [](const MessageParcel&) { return true; });
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_CrossProcessConcurrentCalls)->Threads(1)->Threads(8)->UseRealTime()->MinTime(1.0);

} // namespace
} // namespace OHOS
