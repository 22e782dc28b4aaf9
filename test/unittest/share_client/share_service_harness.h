/*
 * The share service as the client meets it on a device: a scripted stub loaded on demand by the host system
 * ability manager. Every test starts from a client that has no proxy and will load the service at its next
 * Connect, and ends by killing the service so that the next test starts the same way.
 */
#ifndef SHARE_SERVICE_HARNESS_H
#define SHARE_SERVICE_HARNESS_H

#include <functional>
#include <memory>
#include <utility>

#include <gtest/gtest.h>

#include "ipc_threads.h"
#include "iremote_stub.h"
#include "notice_counter.h"
#include "samgr_host_control.h"
#include "scripted_stub.h"
#include "share_client.h"

namespace OHOS {
namespace Zelkon {

// A caller's listener or callback: a local object whose remote object travels in the requests.
template <typename Interface>
class TestRemote : public IRemoteStub<Interface> {
};

// Counts died notices and lets a test wait for one; an optional action runs inside OnShareSaDied.
class CountingDiedCallback : public ShareSaDiedCallback, public NoticeCounter {
public:
    explicit CountingDiedCallback(std::function<void()> action = {}) : action_(std::move(action)) {}

    void OnShareSaDied() override
    {
        if (action_) {
            action_();
        }
        Notice();
    }

private:
    std::function<void()> action_;
};

class ShareServiceTest : public testing::Test {
protected:
    void SetUp() override
    {
        SamgrHostControl::Reset();
        stub_ = new ScriptedStub(ZelkonService::GetDescriptor());
        sptr<ScriptedStub> stub = stub_;
        SamgrHostControl::RegisterLoader(SHARE_SERVICE_SA_ID, [stub] { return sptr<IRemoteObject>(stub); });
        // Every test starts from a client whose service has died: the first test of a process would otherwise
        // meet the constructor's own load.
        Client().Connect();
        SamgrHostControl::KillSystemAbility(SHARE_SERVICE_SA_ID);
        IpcThreads::Drain();
    }

    void TearDown() override
    {
        ShareClient::GetInstance().RegisterDiedCallback(nullptr);
        SamgrHostControl::KillSystemAbility(SHARE_SERVICE_SA_ID);
        // Delivers the death notice, so the client has dropped its proxy before the next test.
        SamgrHostControl::Reset();
    }

    static ShareClient& Client() { return ShareClient::GetInstance(); }

    static int Loads() { return SamgrHostControl::LoadCount(SHARE_SERVICE_SA_ID); }

    sptr<ScriptedStub> stub_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_SERVICE_HARNESS_H
