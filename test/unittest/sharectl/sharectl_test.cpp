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
 * sharectl as a user runs it, one invocation per row: its arguments (through the shell), what it reads on
 * standard input, the exit status, and a line that must appear in what it prints on stdout and stderr.
 */
#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <map>
#include <mutex>
#include <ostream>
#include <regex>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "child_process.h"
#include "ipc_host_transport.h"
#include "ipc_object_stub.h"
#include "process_table.h"
#include "samgr_host_code.h"
#include "share_emulator.h"
#include "user_runtime_directory.h"

namespace {

using OHOS::Zelkon::BlockedInPipeWrite;
using OHOS::Zelkon::ChildrenOf;
using OHOS::Zelkon::CommandLineOf;
using OHOS::Zelkon::Eventually;
using OHOS::Zelkon::Gone;

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
    std::string arguments;
    const char* input;
    int exitStatus;
    const char* shown;
};

// gtest would otherwise print the raw bytes of the struct.
void PrintTo(const Case& testCase, std::ostream* out)
{
    *out << testCase.name;
}

// Nested far deeper than the stack allows a recursive reader; an argument of at most 128 KiB, as the kernel takes it.
const std::string DEEP_WORLD = std::string(100000, '[') + std::string(100000, ']');
const std::string DEEP_CALL = "call PrepareSend deviceInfo='" + std::string(60000, '[') + std::string(60000, ']') + "'";

// A FIFO that nobody writes, named in SHARECTL_TEST_FIFO: opening it to read would wait forever.
class WriterlessFifo {
public:
    WriterlessFifo()
    {
        if (mkdtemp(directory_) != nullptr && mkfifo(Path().c_str(), 0600) == 0) {
            setenv("SHARECTL_TEST_FIFO", Path().c_str(), 1);
        }
    }
    ~WriterlessFifo()
    {
        unlink(Path().c_str());
        rmdir(directory_);
    }

private:
    std::string Path() const { return std::string(directory_) + "/fifo"; }

    char directory_[32] = "/tmp/sharectl-fifo-XXXXXX";
};
const WriterlessFifo WRITERLESS_FIFO;

constexpr const char* CHANGED_WORLD =
    R"({"users": [{"deviceName": "Zed phone", "deviceId": "dev-9", "avatar": "a", "contactInfo": {"contactName": "Zed"}}]})";

const std::vector<Case> CASES = {
    {"SessionReloadsAfterTheKill", "restart", "", 0,
     "[ ok ] reload on the next call: Publish -> 1 (accepted) after 1 new load request(s)"},
    {"List", "list", "", 0, "manager   36  IsFocusPidsRegisterSwing"},
    {"ListQualifiesSharedNames", "list", "", 0, "share      8  share.SendFile.DataBean"},
    {"ListAsJson", "--json list", "", 0, R"("name": "manager.Cancel")"},
    {"Describe", "describe manager.Cancel", "", 0,
     "  request    the interface token, then deviceInfo: ShareDeviceInfo (its 19 fields"},
    {"DescribeListener", "describe UnPublish", "", 0, "    listener  IPublishListener: a local stub"},
    {"DescribeUnknown", "describe Nope", "", 2, "unknown operation 'Nope'"},
    {"SharedNameNeedsItsService", "call Cancel", "", 2, "say which, share.Cancel, manager.Cancel"},
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
    {"CallExplainsAnAccountWithoutUid", "--world - call GetAccountInfo", R"({"account": {"callingUid": -1}})", 0,
     "GetAccountInfo -> the record as the library constructs it"},
    {"CallAsJson", "--json call IsEnabled", "", 0, R"("result": true)"},
    {"CallUnknownArgument", "call RemovePermanentDeviceById ident=2", "", 2, "has no argument 'ident'"},
    {"CallUnknownField", R"(call PrepareSend deviceInfo='{"colour":1}')", "", 2, "deviceInfo.colour: unknown field"},
    {"CallWrongType", R"(call PrepareSend deviceInfo='{"deviceId":5}')", "", 2,
     "deviceInfo.deviceId: expected a string, got 5"},
    {"CallNumberOverflow", R"(call PrepareSend deviceInfo='{"deviceType":1e999}')", "", 2,
     "deviceInfo: invalid JSON: number overflow parsing '1e999'"},
    {"CallNestedDeep", DEEP_CALL.c_str(), "", 2, "deviceInfo: invalid JSON: nested deeper than 64"},
    {"CallGivenAListener", "call Publish listener=x", "", 2, "a local IPublishListener that sharectl creates"},
    {"SessionAsJson", "--json", "", 0, R"("passed": 18)"},
    {"World", "world", "", 0, R"("nickName": "Robin")"},
    {"WorldWithAChangedUser", "--world - users", CHANGED_WORLD, 0, "[ ok ] user list: 1 users: Zed phone (Zed)"},
    {"WorldInvalid", "--world - users", R"({"users": [{"deviceType": "phone"}]})", 2,
     R"(users[0].deviceType: expected an int32, got "phone")"},
    {"WorldIntegerOutOfRange", "--world - users", R"({"users": [{"deviceType": 2147483648}]})", 2,
     "users[0].deviceType: out of the range of int32, got 2147483648"},
    {"WorldNumberOverflow", "--world - users", R"({"account": {"callingUid": 1e999}})", 2,
     "--world -: invalid JSON: number overflow parsing '1e999'"},
    {"WorldNestedDeep", "--world - users", DEEP_WORLD.c_str(), 2, "--world -: invalid JSON: nested deeper than 64"},
    {"WorldListGivenForARecord", "--world - users", R"({"account": [[1], [2]]})", 2,
     "account: expected an object, got an array"},
    {"WorldFifoWithoutWriter", R"(--world "$SHARECTL_TEST_FIFO" users)", "", 2, "not a regular file"},
    {"WorldDevice", "--world /dev/zero users", "", 2, "--world /dev/zero: not a regular file"},
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
    {"FaultLoadLate", "--fault load-delay:300 call Publish", "", 0, "Load zelkon SA after 200ms"},
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
    {"ProcessesStallEndedByTheWatchdog", "--processes --fault stall-in:26 call GetPermanentDeviceList", "", 0,
     "SendRequest is failed, error code: 29189"},
};

// What sharectl does alike with the services in its own process and with each in a process of its own.
const std::vector<Case> IN_EITHER_WORLD = {
    {"Session", "", "", 0, "18 of 18 steps passed"},
    {"CallRemoves", "call RemovePermanentDeviceById id=2", "", 0, "RemovePermanentDeviceById -> 1 (accepted)"},
    // Two failed loads: the first use loads once, and a Connect that hears of the failure first asks once more.
    {"FaultLoadFails", "--fault load-fail:2 call Publish", "", 0, "Publish -> 0 (refused, or the call failed"},
    // The load callback hears the error code; the library does not log it, the platform's callback stub does.
    {"FaultLoadError", "--log-level info --fault load-error:12 call Publish", "", 0,
     "system ability 65569 failed to load: 12"},
    {"FaultDiesInRequest", "--fault die-in:26 call GetPermanentDeviceList", "", 0,
     "SendRequest is failed, error code: 29189"},
    {"FaultOversizedReply", "--fault oversized-reply call GetPermanentDeviceList", "", 0,
     "SendRequest is failed, error code: 29201"},
};

std::vector<Case> AcrossProcesses(std::vector<Case> cases)
{
    for (Case& invocation : cases) {
        invocation.arguments = "--processes " + invocation.arguments;
    }
    return cases;
}

std::string CaseName(const testing::TestParamInfo<Case>& info)
{
    return info.param.name;
}

class SharectlTest : public testing::TestWithParam<Case> {};

TEST_P(SharectlTest, PrintsWhatItDidAndSaysSoInItsExitStatus)
{
    const Case& expected = GetParam();
    const Outcome run = RunSharectl(expected.arguments, expected.input);

    EXPECT_EQ(run.status, expected.exitStatus) << run.output;
    EXPECT_NE(run.output.find(expected.shown), std::string::npos) << "missing: " << expected.shown << "\n"
                                                                  << run.output;
}

INSTANTIATE_TEST_SUITE_P(Invocations, SharectlTest, testing::ValuesIn(CASES), CaseName);
INSTANTIATE_TEST_SUITE_P(InProcess, SharectlTest, testing::ValuesIn(IN_EITHER_WORLD), CaseName);
INSTANTIATE_TEST_SUITE_P(AcrossProcesses, SharectlTest, testing::ValuesIn(AcrossProcesses(IN_EITHER_WORLD)), CaseName);

// What an operation needs before it sends anything: a descriptor for its DataBean, a device that can collaborate.
const std::map<std::string, std::string> SENDING_ARGUMENTS = {
    {"share.SendFile.DataBean", R"(dataBean='{"fd":3}' 3</dev/null)"},
    {"manager.SendFile", R"(dataBean='{"fd":3}' 3</dev/null)"},
    {"OnCollabDeviceFound", R"(device='{"nbVersion_":9}')"},
};

// The service and request code that the emulator traced, one pair per request.
std::vector<std::pair<std::string, int>> TracedRequests(const std::string& output)
{
    std::vector<std::pair<std::string, int>> requests;
    const std::regex request("^  >> (\\S+) code ([0-9]+) ");
    std::istringstream lines(output);
    std::string line;
    std::smatch match;
    while (std::getline(lines, line)) {
        if (std::regex_search(line, match, request)) {
            requests.emplace_back(match[1], std::stoi(match[2]));
        }
    }
    return requests;
}

// The codes of the table are what list, describe and call print: each must be the code that the request carries.
TEST(SharectlCatalogTest, EveryListedOperationSendsOneRequestWithItsListedCode)
{
    const std::map<std::string, std::string> tracedService = {{"share", "ShareService"}, {"manager", "ShareManager"}};
    std::istringstream list(RunSharectl("list").output);
    std::string service;
    int code = 0;
    std::string name;
    int operations = 0;
    while (list >> service >> code >> name) {
        SCOPED_TRACE(name);
        const auto arguments = SENDING_ARGUMENTS.find(name);
        const Outcome call =
            RunSharectl("--trace call " + name + " " + (arguments != SENDING_ARGUMENTS.end() ? arguments->second : ""));
        EXPECT_EQ(call.status, 0) << call.output;
        EXPECT_NE(call.output.find(name + " ->"), std::string::npos) << call.output;
        const std::vector<std::pair<std::string, int>> expected = {{tracedService.at(service), code}};
        EXPECT_EQ(TracedRequests(call.output), expected) << call.output;
        ++operations;
    }
    EXPECT_EQ(operations, 26 + 36);
}

// The line of `output` that starts with `prefix`, empty if none does.
std::string LineStarting(const std::string& output, const std::string& prefix)
{
    std::istringstream lines(output);
    std::string line;
    while (std::getline(lines, line)) {
        if (line.rfind(prefix, 0) == 0) {
            return line;
        }
    }
    return "";
}

// The pid that ends `line` as ", process N" or ", process N, ...", or -1.
pid_t ProcessNamedIn(const std::string& line)
{
    std::smatch match;
    return std::regex_search(line, match, std::regex(", process ([0-9]+)")) ? std::stoi(match[1]) : -1;
}

TEST(SharectlProcessesTest, TheReloadedShareServiceIsAFreshProcessAndNoneIsLeft)
{
    const Outcome run = RunSharectl("--processes");
    ASSERT_EQ(run.status, 0) << run.output;

    const pid_t killed = ProcessNamedIn(LineStarting(run.output, "[ ok ] kill the share service:"));
    const pid_t reloaded = ProcessNamedIn(LineStarting(run.output, "[ ok ] reload on the next call:"));
    EXPECT_GT(killed, 0) << run.output;
    EXPECT_GT(reloaded, 0) << run.output;
    EXPECT_NE(killed, reloaded);
    EXPECT_NE(killed, getpid());
    EXPECT_TRUE(Eventually([&] { return Gone(killed) && Gone(reloaded); }));
}

// `sharectl serve` keeps the services between the invocations that join it, and takes them with it when it stops.
TEST(SharectlProcessesTest, ServeKeepsItsStateForTheInvocationsThatJoinIt)
{
    const std::string socket = "/tmp/sharectl-serve-test-" + std::to_string(getpid()) + ".sock";
    OHOS::ChildProcess serve({SHARECTL_PATH, "--socket", socket, "serve"}, OHOS::ChildProcess::Options{});
    ASSERT_TRUE(serve.Started());
    // It prints no ready line: it serves once its socket exists.
    for (int polls = 0; access(socket.c_str(), F_OK) != 0 && polls < 1000; ++polls) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    ASSERT_EQ(access(socket.c_str(), F_OK), 0) << "sharectl serve made no socket";
    // It starts the share manager service only once the share service's next process is held and ready; a join
    // before that would race that process's start (seconds under an emulator) with the client's 200 ms.
    const auto managerServiceStarted = [&serve] {
        const std::vector<pid_t> services = ChildrenOf(serve.Pid());
        return std::any_of(services.begin(), services.end(),
                           [](pid_t pid) { return CommandLineOf(pid).find("ability 65570") != std::string::npos; });
    };
    ASSERT_TRUE(Eventually(managerServiceStarted, std::chrono::seconds(10)));
    const std::string join = "--socket " + socket + " --processes ";

    const Outcome removed = RunSharectl(join + "remove-device 2");
    EXPECT_EQ(removed.status, 0) << removed.output;
    const Outcome dump = RunSharectl(join + "dump");
    EXPECT_EQ(dump.status, 0) << dump.output;
    EXPECT_NE(dump.output.find(R"("deviceName": "Kitchen tablet")"), std::string::npos) << dump.output;
    EXPECT_EQ(dump.output.find(R"("deviceName": "Office laptop")"), std::string::npos) << "device 2 is back";
    const Outcome world = RunSharectl(join + "--world - users", CHANGED_WORLD);
    EXPECT_EQ(world.status, 2);
    EXPECT_NE(world.output.find("run their own world already"), std::string::npos) << world.output;

    const std::vector<pid_t> services = ChildrenOf(serve.Pid());
    EXPECT_EQ(services.size(), 3u) << "the share service, its next process held, and the share manager service";
    // The running share service is a process that was held and released: its command line is still the held one's.
    EXPECT_EQ(
        std::count_if(services.begin(), services.end(),
                      [](pid_t pid) { return CommandLineOf(pid).find("--held-by-starter") != std::string::npos; }),
        2);
    serve.Stop();
    for (pid_t service : services) {
        EXPECT_TRUE(Eventually([service] { return Gone(service); })) << "service process " << service << " is left";
    }
    EXPECT_NE(access(socket.c_str(), F_OK), 0) << "the socket file is left";
    unlink(socket.c_str());
}

// The system ability manager of another process, lying: its share manager service answers its dump with whatever
// the test sets.
class LyingManager : public OHOS::IPCObjectStub {
public:
    LyingManager() : IPCObjectStub(u"test.LyingManager"), shareManager_(new DumpAnswer()) {}
    void SetDumpAnswer(const std::string& answer) { shareManager_->Set(answer); }

    int OnRemoteRequest(uint32_t code, OHOS::MessageParcel& data, OHOS::MessageParcel& reply,
                        OHOS::MessageOption& option) override
    {
        if (code != static_cast<uint32_t>(OHOS::SamgrHostCode::CHECK)) {
            return IPCObjectStub::OnRemoteRequest(code, data, reply, option);
        }
        data.ReadInterfaceToken();
        const bool found = data.ReadInt32() == OHOS::Zelkon::EMULATED_SHARE_MANAGER_ID;
        reply.WriteBool(found);
        if (found) {
            reply.WriteRemoteObject(shareManager_);
        }
        return OHOS::ERR_NONE;
    }

private:
    class DumpAnswer : public OHOS::IPCObjectStub {
    public:
        DumpAnswer() : IPCObjectStub(u"test.DumpAnswer") {}
        void Set(const std::string& answer)
        {
            std::lock_guard<std::mutex> lock(mutex_);
            answer_ = answer;
        }
        int Dump(int fd, const std::vector<std::u16string>&) override
        {
            std::lock_guard<std::mutex> lock(mutex_);
            return write(fd, answer_.data(), answer_.size()) == static_cast<ssize_t>(answer_.size())
                       ? OHOS::ERR_NONE
                       : OHOS::ERR_INVALID_DATA;
        }

    private:
        std::mutex mutex_;
        std::string answer_;
    };

    const OHOS::sptr<DumpAnswer> shareManager_;
};

// sharectl joins a manager whose share manager service answers its dump with what is not a service's state.
TEST(SharectlProcessesTest, ADumpThatIsNotAServicesStateIsAnError)
{
    const std::string socket = OHOS::UserRuntimeDirectory::UniqueSocketPath("sharectl-test");
    const OHOS::sptr<LyingManager> manager = new LyingManager();
    ASSERT_TRUE(OHOS::IpcHostTransport::ServeContextObject(socket, manager));
    for (const std::string& answer : {std::string("not JSON"), std::string("[1, 2]"), DEEP_WORLD}) {
        SCOPED_TRACE(answer.substr(0, 10));
        manager->SetDumpAnswer(answer);

        const Outcome dump = RunSharectl("--processes --socket " + socket + " dump");

        EXPECT_EQ(dump.status, 1) << dump.output;
        EXPECT_NE(dump.output.find("the dump of system ability 65570 is not its state"), std::string::npos)
            << dump.output;
        EXPECT_NE(dump.output.find("sharectl: dump: a service's state could not be read"), std::string::npos);
    }
    OHOS::IpcHostTransport::StopServingContextObject();
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

// The traced session in processes writes more than a pipe that nobody reads holds: the signal comes while sharectl
// waits to write, its services running. The directory is also its runtime directory, where its manager's socket is.
TEST_P(SharectlSignalTest, InASessionInProcessesLeavesNoTemporaryFileNoSocketAndNoProcess)
{
    char directory[] = "/tmp/sharectl-signal-XXXXXX";
    ASSERT_NE(mkdtemp(directory), nullptr);
    int out[2];
    ASSERT_EQ(pipe2(out, O_CLOEXEC), 0);
    ASSERT_GT(fcntl(out[1], F_SETPIPE_SZ, 4096), 0);
    const pid_t child = fork();
    if (child == 0) {
        dup2(out[1], STDOUT_FILENO);
        dup2(out[1], STDERR_FILENO);
        setenv("TMPDIR", directory, 1);
        setenv("XDG_RUNTIME_DIR", directory, 1);
        execl(SHARECTL_PATH, "sharectl", "--processes", "--trace", static_cast<char*>(nullptr));
        _exit(127);
    }
    close(out[1]);
    // Its main thread sleeps in the kernel's pipe write, and stays there; a start under an emulator takes seconds.
    ASSERT_TRUE(Eventually([child] { return BlockedInPipeWrite(child); }, std::chrono::seconds(10)))
        << "sharectl does not wait to write";
    std::vector<pid_t> started;
    for (pid_t serve : ChildrenOf(child)) {
        started.push_back(serve);
        const std::vector<pid_t> services = ChildrenOf(serve);
        started.insert(started.end(), services.begin(), services.end());
    }
    EXPECT_GE(started.size(), 2u) << "the manager and the share manager service";
    const std::vector<std::string> files = FilesIn(directory);
    EXPECT_EQ(std::count_if(files.begin(), files.end(),
                            [](const std::string& name) { return name.find(".sock") != std::string::npos; }),
              1)
        << "no socket in the runtime directory";

    ASSERT_EQ(kill(child, GetParam()), 0);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    close(out[0]);

    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == GetParam()) << "status " << status;
    // The manager removes its socket as it ends.
    EXPECT_TRUE(Eventually([&directory] { return FilesIn(directory).empty(); })) << FilesIn(directory).size();
    for (pid_t process : started) {
        EXPECT_TRUE(Eventually([process] { return Gone(process); })) << "process " << process << " is left";
    }
    rmdir(directory);
}

INSTANTIATE_TEST_SUITE_P(Signals, SharectlSignalTest, testing::Values(SIGTERM, SIGINT));

} // namespace
