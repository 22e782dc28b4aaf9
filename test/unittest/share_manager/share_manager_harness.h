/*
 * The share manager service as the client meets it on a device: a scripted stub added to the host system ability
 * manager, so the client talks to it through a remote object. Every test starts from a client without a proxy and
 * ends by killing the service, whose death notice drops the proxy again before the next test.
 */
#ifndef SHARE_MANAGER_HARNESS_H
#define SHARE_MANAGER_HARNESS_H

#include <algorithm>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "hilog/log.h"
#include "iremote_stub.h"
#include "iservice_registry.h"
#include "notice_counter.h"
#include "samgr_host_control.h"
#include "scripted_stub.h"
#include "share_manager_client.h"

namespace OHOS {
namespace Zelkon {

// A caller's callback: a local object whose remote object travels in the requests.
template <typename Interface>
class TestRemote : public IRemoteStub<Interface> {
};

// A record whose layout is the service's: it writes one marker word, so a decoder can tell where it sits.
template <typename Record, int32_t MARKER>
class MarkedRecord : public Record {
public:
    bool Marshalling(Parcel& parcel) const override { return parcel.WriteInt32(MARKER); }
};

// One log line as the platform's callback hands it over.
struct LogLine {
    LogLevel level;
    unsigned int domain;
    std::string tag;
    std::string message;
};

// Collects every log line of the process while a test runs.
class LogCapture {
public:
    static void Start()
    {
        Clear();
        LOG_SetCallback(&LogCapture::Receive);
    }

    static void Clear()
    {
        std::lock_guard<std::mutex> lock(Mutex());
        Lines().clear();
    }

    // Lines of the tag whose message ends with text (the message carries the file, line and function first).
    static int Count(const std::string& tag, const std::string& text, LogLevel level)
    {
        std::lock_guard<std::mutex> lock(Mutex());
        return static_cast<int>(std::count_if(Lines().begin(), Lines().end(), [&](const LogLine& line) {
            return line.tag == tag && line.level == level && line.message.size() >= text.size() &&
                   line.message.compare(line.message.size() - text.size(), text.size(), text) == 0;
        }));
    }

    static bool Has(const std::string& tag, const std::string& text, LogLevel level)
    {
        return Count(tag, text, level) > 0;
    }

    static std::vector<LogLine> Snapshot()
    {
        std::lock_guard<std::mutex> lock(Mutex());
        return Lines();
    }

private:
    static void Receive(const LogType, const LogLevel level, const unsigned int domain, const char* tag,
                        const char* msg)
    {
        std::lock_guard<std::mutex> lock(Mutex());
        Lines().push_back({level, domain, tag, msg});
    }

    static std::mutex& Mutex()
    {
        static std::mutex mutex;
        return mutex;
    }

    static std::vector<LogLine>& Lines()
    {
        static std::vector<LogLine> lines;
        return lines;
    }
};

inline constexpr const char* CLIENT_TAG = "ShareManagerClient";
inline constexpr const char* PROXY_TAG = "ShareManagerProxy";

// Counts died notices and lets a test wait for them.
class CountingDiedCallback : public ShareManagerDiedCallback, public NoticeCounter {
public:
    void OnShareManagerDied() override { Notice(); }
};

class ShareManagerTest : public testing::Test {
protected:
    void SetUp() override
    {
        SamgrHostControl::Reset();
        LogCapture::Start();
        stub_ = StartService();
    }

    void TearDown() override
    {
        Client().RegisterDiedCallback(nullptr);
        SamgrHostControl::KillSystemAbility(SHARE_MANAGER_SA_ID);
        // Delivers the death notice, so the client has dropped its proxy before the next test.
        SamgrHostControl::Reset();
    }

    // Starts a new instance of the service "in another process".
    static sptr<ScriptedStub> StartService()
    {
        sptr<ScriptedStub> stub = new ScriptedStub(IWidgetService::GetDescriptor());
        sptr<ISystemAbilityManager> manager = SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
        EXPECT_EQ(manager->AddSystemAbility(SHARE_MANAGER_SA_ID, stub), 0);
        return stub;
    }

    static ShareManagerClient& Client() { return ShareManagerClient::GetInstance(); }

    static int Lookups() { return SamgrHostControl::LookupCount(SHARE_MANAGER_SA_ID); }

    sptr<ScriptedStub> stub_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_MANAGER_HARNESS_H
