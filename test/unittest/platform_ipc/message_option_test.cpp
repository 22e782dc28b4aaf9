#include <gtest/gtest.h>

#include "message_option.h"

namespace OHOS {
namespace {

TEST(MessageOptionTest, DefaultIsSynchronousWithEightSeconds)
{
    MessageOption option;
    EXPECT_EQ(option.GetFlags(), MessageOption::TF_SYNC);
    EXPECT_EQ(option.GetWaitTime(), 8);
}

TEST(MessageOptionTest, ConstructorKeepsValuesUnchecked)
{
    MessageOption option(MessageOption::TF_ASYNC, 5000);
    EXPECT_EQ(option.GetFlags(), MessageOption::TF_ASYNC);
    EXPECT_EQ(option.GetWaitTime(), 5000);
}

TEST(MessageOptionTest, SetFlagsAddsToExistingFlags)
{
    MessageOption option(MessageOption::TF_ASYNC);
    option.SetFlags(MessageOption::TF_ACCEPT_FDS);
    EXPECT_EQ(option.GetFlags(), MessageOption::TF_ASYNC | MessageOption::TF_ACCEPT_FDS);
}

TEST(MessageOptionTest, SetWaitTimeClampsToTheDriverRange)
{
    const struct {
        int given;
        int kept;
    } cases[] = {{-5, 8}, {0, 8}, {1, 1}, {8, 8}, {2999, 2999}, {3000, 3000}, {3001, 3000}};
    for (const auto& c : cases) {
        MessageOption option;
        option.SetWaitTime(c.given);
        EXPECT_EQ(option.GetWaitTime(), c.kept) << "given " << c.given;
    }
}

} // namespace
} // namespace OHOS
