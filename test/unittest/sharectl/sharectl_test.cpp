/*
 * sharectl as a user runs it: the default session must pass as a whole, single commands and traces must show
 * what they claim, and failures must reach the exit status.
 */
#include <sys/wait.h>

#include <cstdio>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

struct RunResult {
    int status;
    std::string output;
};

RunResult RunSharectl(const std::string& arguments)
{
    const std::string command = std::string(SHARECTL_PATH) + " " + arguments + " 2>&1";
    FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) {
        return {-1, ""};
    }
    std::string output;
    char buffer[4096];
    size_t count = 0;
    while ((count = fread(buffer, 1, sizeof(buffer), pipe)) > 0) {
        output.append(buffer, count);
    }
    const int status = pclose(pipe);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output};
}

struct Case {
    const char* name;
    const char* arguments;
    int exitStatus;
    std::vector<std::string> shown;
    std::vector<std::string> absent;
};

// gtest would otherwise print the raw bytes of the struct, padding included.
void PrintTo(const Case& testCase, std::ostream* out)
{
    *out << testCase.name;
}

const std::vector<Case> CASES = {
    {"DefaultSession",
     "",
     0,
     {"[ ok ] load the share service: Connect -> 0 after 1 load request(s)",
      "[ ok ] device found, old version: Old watch (nearby version 8) -> 0, skipped before the service",
      "the service read 100000 bytes from the descriptor",
      "[ ok ] remove a permanent device: RemovePermanentDeviceById(2) -> 1, left 1 Kitchen tablet, 3 Alex's phone",
      "[ ok ] kill the share service: killed, OnShareSaDied called",
      "[ ok ] reload on the next call: Publish -> 1 after 1 new load request(s)", "18 of 18 steps passed"},
     {"[FAIL]"}},
    {"TracedPublish",
     "--trace publish",
     0,
     {"  >> ShareService code 1 PublishDevice (", "      token = \"ohos.Zelkon.ZelkonService\"",
      "      listener = remote ohos.Zelkon.IPublishListener", "      0000  00 01 00 00", "  << result 0 (4 bytes)",
      "      result = true", "2 of 2 steps passed"},
     {}},
    {"TracedUserList",
     "--trace users",
     0,
     {"  >> ShareManager code 21 GetAllUserList", "      contact.name = \"Alex\""},
     {}},
    {"RemovingAnUnknownDeviceFails",
     "remove-device 99",
     1,
     {"[FAIL] remove a permanent device: RemovePermanentDeviceById(99) -> 0"},
     {}},
    {"SendingAMissingFileFails",
     "send-file /nonexistent/file",
     1,
     {"[FAIL] send a file: cannot open /nonexistent/file"},
     {}},
    {"DebugLogShowsTheLibrarysLines",
     "--log-level debug account",
     0,
     {"[ ok ] account: Robin", "GetAccountInfo Enter"},
     {}},
    {"ErrorLogHidesThem", "--log-level error restart", 0, {"[ ok ] kill the share service"}, {"GetAccountInfo"}},
    {"Help", "--help", 0, {"Usage: sharectl", "  send-file [PATH]", "--trace"}, {"[ ok ]"}},
    {"UnknownCommand", "bogus", 2, {"sharectl: unknown command 'bogus'"}, {"[ ok ]"}},
    {"UnknownLogLevel", "--log-level loud", 2, {"unknown log level 'loud'"}, {}},
    {"TooManyArguments", "users extra", 2, {"too many arguments for 'users'"}, {}},
};

class SharectlTest : public testing::TestWithParam<Case> {};

TEST_P(SharectlTest, ShowsItsStepsAndReportsThemInTheExitStatus)
{
    const Case& expected = GetParam();
    const RunResult run = RunSharectl(expected.arguments);

    EXPECT_EQ(run.status, expected.exitStatus) << run.output;
    for (const std::string& line : expected.shown) {
        EXPECT_NE(run.output.find(line), std::string::npos) << "missing: " << line << "\n" << run.output;
    }
    for (const std::string& text : expected.absent) {
        EXPECT_EQ(run.output.find(text), std::string::npos) << "unexpected: " << text << "\n" << run.output;
    }
}

INSTANTIATE_TEST_SUITE_P(Commands, SharectlTest, testing::ValuesIn(CASES),
                         [](const testing::TestParamInfo<Case>& info) { return info.param.name; });

} // namespace
