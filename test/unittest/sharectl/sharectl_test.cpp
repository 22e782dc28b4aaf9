/*
 * sharectl as a user runs it, one invocation per row: its arguments (through the shell), what it reads on
 * standard input, the exit status, and a line that must appear in what it prints on stdout and stderr.
 */
#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <ostream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace {

struct Outcome {
    int status;
    std::string output;
};

// The child reads `input` on stdin and writes stdout and stderr into one pipe; `command` is a shell command.
Outcome RunShell(const std::string& command, const std::string& input)
{
    int in[2];
    int out[2];
    if (pipe2(in, O_CLOEXEC) != 0 || pipe2(out, O_CLOEXEC) != 0) {
        return {-1, "no pipe"};
    }
    const pid_t child = fork();
    if (child == 0) {
        dup2(in[0], STDIN_FILENO);
        dup2(out[1], STDOUT_FILENO);
        dup2(out[1], STDERR_FILENO);
        execl("/bin/sh", "sh", "-c", command.c_str(), static_cast<char*>(nullptr));
        _exit(127);
    }
    close(in[0]);
    close(out[1]);
    (void)!write(in[1], input.data(), input.size());
    close(in[1]);
    std::string output;
    char buffer[4096];
    ssize_t count = 0;
    while ((count = read(out[0], buffer, sizeof(buffer))) > 0) {
        output.append(buffer, static_cast<size_t>(count));
    }
    close(out[0]);
    int status = 0;
    waitpid(child, &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output};
}

Outcome RunSharectl(const std::string& arguments, const std::string& input = "")
{
    return RunShell(std::string(SHARECTL_PATH) + " " + arguments, input);
}

struct Case {
    const char* name;
    const char* arguments;
    const char* input;
    int exitStatus;
    const char* shown;
};

// gtest would otherwise print the raw bytes of the struct.
void PrintTo(const Case& testCase, std::ostream* out)
{
    *out << testCase.name;
}

constexpr const char* CHANGED_WORLD =
    R"({"users": [{"deviceName": "Zed phone", "deviceId": "dev-9", "avatar": "a", "contactInfo": {"contactName": "Zed"}}]})";

const std::vector<Case> CASES = {
    {"DefaultSession", "", "", 0, "18 of 18 steps passed"},
    {"SessionReloadsAfterTheKill", "restart", "", 0,
     "[ ok ] reload on the next call: Publish -> 1 (accepted) after 1 new load request(s)"},
    {"List", "list", "", 0, "manager   36  IsFocusPidsRegisterSwing"},
    {"ListQualifiesSharedNames", "list", "", 0, "share      8  share.SendFile.DataBean"},
    {"ListAsJson", "--json list", "", 0, R"("name": "manager.Cancel")"},
    {"Describe", "describe manager.Cancel", "", 0,
     "  request    the interface token, then deviceInfo: ShareDeviceInfo, its 19 fields"},
    {"DescribeListener", "describe UnPublish", "", 0, "    listener  IPublishListener: a local stub"},
    {"DescribeUnknown", "describe Nope", "", 2, "unknown operation 'Nope'"},
    {"SharedNameNeedsItsService", "call Cancel", "", 2, "say which, share.Cancel, manager.Cancel"},
    {"CallRemoves", "call RemovePermanentDeviceById id=2", "", 0, "RemovePermanentDeviceById -> 1 (accepted)"},
    {"CallRefused", "call RemovePermanentDeviceById id=9", "", 0, "RemovePermanentDeviceById -> 0 (refused"},
    {"CallWithRecords", R"(call share.SendBytes param='{"deviceId":"dev-1"}' bytesInfo='{"bytes":"hi"}')", "", 0,
     R"(share.SendBytes -> {"transfer":1} (the sender of transfer 1))"},
    {"CallSkipsOldDevices", R"(call OnCollabDeviceFound device='{"nbVersion_":8}')", "", 0,
     "OnCollabDeviceFound -> 0 (refused"},
    {"CallManager", R"(call PrepareSend deviceInfo='{"deviceId":"dev-1001-phone"}')", "", 0, "PrepareSend -> true"},
    {"CallManagerUnknownDevice", R"(call PrepareSend deviceInfo='{"deviceId":"dev-9"}')", "", 0,
     "PrepareSend -> false (no or refused"},
    {"CallExplainsTheState", "call GetEnableState", "", 0, "GetEnableState -> 1 (the state last given"},
    {"CallOutParameter", "call GetPontalPublishInfo", "", 0, R"(  "publishInfo": "{\"deviceName\")"},
    {"CallAsJson", "--json call IsEnabled", "", 0, R"("result": true)"},
    {"CallUnknownArgument", "call RemovePermanentDeviceById ident=2", "", 2, "has no argument 'ident'"},
    {"CallUnknownField", R"(call PrepareSend deviceInfo='{"colour":1}')", "", 2, "deviceInfo.colour: unknown field"},
    {"CallWrongType", R"(call PrepareSend deviceInfo='{"deviceId":5}')", "", 2,
     "deviceInfo.deviceId: expected a string, got 5"},
    {"CallGivenAListener", "call Publish listener=x", "", 2, "a local IPublishListener that sharectl creates"},
    {"SessionAsJson", "--json", "", 0, R"("passed": 18)"},
    {"World", "world", "", 0, R"("nickName": "Robin")"},
    {"WorldWithAChangedUser", "--world /dev/stdin users", CHANGED_WORLD, 0,
     "[ ok ] user list: 1 users: Zed phone (Zed)"},
    {"WorldInvalid", "--world /dev/stdin users", R"({"users": [{"deviceType": "phone"}]})", 2,
     R"(users[0].deviceType: expected an int32, got "phone")"},
    {"RemoveOutOfRange", "remove-device 4294967297", "", 2, "'4294967297' is not an int32"},
    {"RemoveTrailingLetters", "remove-device 2abc", "", 2, "'2abc' is not an int32"},
    {"RemoveNoNumber", "remove-device abc", "", 2, "'abc' is not an int32"},
    {"SendDevice", "send-file /dev/zero", "", 2, "/dev/zero is a character device: only regular files are sent"},
    {"SendFifo", "send-file /dev/stdin", "", 2, "/dev/stdin is a FIFO"},
    {"SendDirectory", "send-file /", "", 2, "/ is a directory"},
    {"SendMissing", "send-file /nonexistent/file", "", 2, "cannot open /nonexistent/file: No such file"},
    {"SendEmptyInput", "send-file -", "", 2, "standard input is empty: there is nothing to send"},
    {"SendInput", "send-file -", "hello", 0, "standard input (5 bytes), the service read 5 bytes"},
    {"FullDevice", "list > /dev/full", "", 1, "cannot write the output: No space left on device"},
    // Two failed loads: the first use loads once, and a Connect that hears of the failure first asks once more.
    {"FaultLoadFails", "--fault load-fail:2 call Publish", "", 0, "Publish -> 0 (refused, or the call failed"},
    {"FaultLoadLate", "--fault load-delay:300 call Publish", "", 0, "Load zelkon SA after 200ms"},
    {"FaultDiesInRequest", "--fault die-in:26 call GetPermanentDeviceList", "", 0,
     "SendRequest is failed, error code: 32"},
    {"FaultDiesAfterRequests", "--trace --fault die-after:1 call Publish", "", 0,
     "emulator note: fault = the process died after this reply"},
    {"FaultHostileCount", "--fault hostile-count call GetAllUserList", "", 0, "Read device counter failed 1001"},
    {"FaultTruncatedRecord", "--fault truncated-record call GetAccountInfo", "", 0, "ReadString avatar failed."},
    {"FaultBigString", "--fault big-string call GetPreviewData", "", 0, "The read data is too large."},
    {"FaultUnknown", "--fault bogus list", "", 2, "unknown fault 'bogus'"},
    {"TraceNotes", "--trace cancel", "", 0, "      emulator note: cancelled = 1"},
    {"TraceListIndex", "--trace users", "", 0, R"(users[0].contact.name = "Alex")"},
    {"DebugLog", "--log-level debug account", "", 0, "GetAccountInfo Enter"},
    {"UnknownLogLevel", "--log-level loud", "", 2, "--log-level"},
    {"UnknownCommand", "bogus", "", 2, "bogus"},
    {"Help", "--help", "", 0, "die-in:CODE"},
};

class SharectlTest : public testing::TestWithParam<Case> {};

TEST_P(SharectlTest, PrintsWhatItDidAndSaysSoInItsExitStatus)
{
    const Case& expected = GetParam();
    const Outcome run = RunSharectl(expected.arguments, expected.input);

    EXPECT_EQ(run.status, expected.exitStatus) << run.output;
    EXPECT_NE(run.output.find(expected.shown), std::string::npos) << "missing: " << expected.shown << "\n"
                                                                  << run.output;
}

INSTANTIATE_TEST_SUITE_P(Invocations, SharectlTest, testing::ValuesIn(CASES),
                         [](const testing::TestParamInfo<Case>& info) { return info.param.name; });

TEST(SharectlCatalogTest, EveryListedOperationCanBeCalledWithItsDefaults)
{
    std::istringstream list(RunSharectl("list").output);
    std::string line;
    int operations = 0;
    while (std::getline(list, line) && line.rfind("(", 0) != 0) {
        const std::string name = line.substr(line.find_last_of(' ') + 1);
        const Outcome call = RunSharectl("call " + name);
        EXPECT_EQ(call.status, 0) << call.output;
        EXPECT_NE(call.output.find(name + " ->"), std::string::npos) << call.output;
        ++operations;
    }
    EXPECT_EQ(operations, 26 + 36);
}

std::vector<std::string> FilesIn(const std::string& directory)
{
    std::vector<std::string> names;
    DIR* dir = opendir(directory.c_str());
    for (dirent* entry = dir != nullptr ? readdir(dir) : nullptr; entry != nullptr; entry = readdir(dir)) {
        if (entry->d_name[0] != '.') {
            names.emplace_back(entry->d_name);
        }
    }
    if (dir != nullptr) {
        closedir(dir);
    }
    return names;
}

class SharectlSignalTest : public testing::TestWithParam<int> {};

// send-file - copies standard input into a temporary file; the signal comes while it waits for more input.
TEST_P(SharectlSignalTest, LeavesNoTemporaryFileAndNoProcess)
{
    char directory[] = "/tmp/sharectl-signal-XXXXXX";
    ASSERT_NE(mkdtemp(directory), nullptr);
    int in[2];
    ASSERT_EQ(pipe2(in, O_CLOEXEC), 0);
    const pid_t child = fork();
    if (child == 0) {
        dup2(in[0], STDIN_FILENO);
        setenv("TMPDIR", directory, 1);
        execl(SHARECTL_PATH, "sharectl", "send-file", "-", static_cast<char*>(nullptr));
        _exit(127);
    }
    close(in[0]);
    ASSERT_EQ(write(in[1], "partial", 7), 7);
    for (int polls = 0; FilesIn(directory).empty() && polls < 1000; ++polls) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    ASSERT_EQ(FilesIn(directory).size(), 1u) << "sharectl made no temporary file in TMPDIR";

    ASSERT_EQ(kill(child, GetParam()), 0);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    close(in[1]);

    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == GetParam()) << "status " << status;
    EXPECT_EQ(FilesIn(directory), std::vector<std::string>());
    rmdir(directory);
}

INSTANTIATE_TEST_SUITE_P(Signals, SharectlSignalTest, testing::Values(SIGTERM, SIGINT));

} // namespace
