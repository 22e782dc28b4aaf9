/*
 * ConnectWithRetry against a service that never loads: five attempts a second apart. Slow by nature (about 5 s).
 */
#include "share_service_harness.h"

namespace OHOS {
namespace Zelkon {
namespace {

TEST_F(ShareServiceTest, ConnectWithRetryGivesUpAfterFiveAttempts)
{
    // Bring the client to the state where every Connect asks for a load: connected once, then the service died.
    ASSERT_EQ(Client().Connect(), 0);
    ASSERT_TRUE(SamgrHostControl::KillSystemAbility(SHARE_SERVICE_SA_ID));
    SamgrHostControl::Reset();
    SamgrHostControl::RegisterLoader(SHARE_SERVICE_SA_ID, [stub = stub_] { return sptr<IRemoteObject>(stub); });
    LoadScript fail;
    fail.outcome = LoadScript::Outcome::FAIL;
    SamgrHostControl::ScriptLoads(fail, ShareClient::CONNECT_RETRIES + 1);
    EXPECT_FALSE(Client().ConnectWithRetry());
    EXPECT_EQ(Loads(), ShareClient::CONNECT_RETRIES + 1);
    EXPECT_EQ(Client().Connect(), 0) << "the next load succeeds";
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
