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
 * Attacks on the host world, one row each: what the attacker does first (another local user: a child of this
 * process that drops to an unused uid; or this user's own process that died), what this user then does, and what
 * must happen: the outcome, the line logged (not a flood of lines), and nothing of the user's reaching the attacker.
 * A hostile process of this user's own is played in this process with raw frames (RawPeer, HostileServer), or by
 * attack_peer. The scene stands in for /tmp: a sticky directory that everyone may write, named by TMPDIR, without
 * XDG_RUNTIME_DIR. After each row the process's descriptors, threads and children are where they began.
 */
#include <dirent.h>
#include <fcntl.h>
#include <linux/sockios.h>
#include <poll.h>
#include <pwd.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <ostream>
#include <regex>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "binder_results.h"
#include "captured_log.h"
#include "connection_quota.h"
#include "flat_object.h"
#include "frame_socket.h"
#include "ipc_frame.h"
#include "ipc_host_transport.h"
#include "ipc_object_stub.h"
#include "ipc_threads.h"
#include "iservice_registry.h"
#include "message_parcel.h"
#include "parcel_util.h"
#include "process_table.h"
#include "raw_peer.h"
#include "samgr_host_control.h"
#include "scripted_stub.h"
#include "user_runtime_directory.h"

namespace OHOS {
namespace {
using Zelkon::BlockedInPipeWrite;
using Zelkon::CapturedLog;
using Zelkon::ChildrenOf;
using Zelkon::Eventually;
using Zelkon::Gone;
using Zelkon::ScriptedStub;
using namespace std::chrono_literals;

constexpr const char* DEFAULT_SOCKET = "share-emulator.sock";
constexpr int32_t ABILITY_ID = 4801;
// Marks the pid field of a hello, which a child fills with its own pid.
constexpr int32_t PID_MARK = 0x7a7a7a7a;
constexpr int ANSWER_WAIT_MS = 5000;

// Paths made before the attacker's child is forked: the child only makes system calls.
struct Scene {
    std::string parent;
    std::string privateDirectory;
    // The default socket in the private directory.
    std::string defaultSocket;
    // A socket in the shared parent.
    std::string sharedSocket;
    std::string attackerDirectory;
    // Abstract names begin with '@': this process's own listener, and one for the attacker.
    std::string processAddress;
    std::string attackerAddress;
    // Frames that a child sends: a session hello (its pid at helloPid), the header of a frame beyond the bound, and
    // the first half of a release's header.
    std::vector<uint8_t> hello;
    size_t helloPid = 0;
    std::vector<uint8_t> oversizedHeader;
    std::vector<uint8_t> halfRelease;
};

struct Attack {
    const char* name;
    // Acts as another uid: only where the suite runs as root.
    bool secondUid;
    // What this user serves before the attacker acts, or null; the user's step stops serving.
    bool (*before)(const Scene&);
    // In the child, before this user acts: system calls only. A listening or connected socket, or -1.
    int (*attacker)(const Scene&);
    // What this user does; true when the outcome is the one required.
    bool (*user)(const Scene&);
    // A line that must be logged (a regular expression), or null where nothing may be refused.
    const char* logged;
};

void PrintTo(const Attack& attack, std::ostream* out)
{
    *out << attack.name;
}

// A socket path, or an abstract name with '@' for its leading zero byte.
socklen_t AddressOf(const std::string& name, sockaddr_un& address)
{
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, name.c_str(), sizeof(address.sun_path) - 1);
    if (name[0] != '@') {
        return sizeof(address);
    }
    address.sun_path[0] = '\0';
    return static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + name.size());
}

int ListenAt(const std::string& name)
{
    sockaddr_un address{};
    const socklen_t length = AddressOf(name, address);
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (bind(fd, reinterpret_cast<const sockaddr*>(&address), length) != 0 || listen(fd, 1) != 0) {
        _exit(EXIT_FAILURE);
    }
    return fd;
}

int ConnectTo(const std::string& name)
{
    sockaddr_un address{};
    const socklen_t length = AddressOf(name, address);
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (connect(fd, reinterpret_cast<const sockaddr*>(&address), length) != 0) {
        close(fd);
        return -1;
    }
    return fd;
}

// A session hello that names the calling process, as the kernel knows it.
bool SendHello(int fd, const Scene& scene)
{
    int32_t pid = getpid();
    iovec pieces[] = {{const_cast<uint8_t*>(scene.hello.data()), scene.helloPid},
                      {&pid, sizeof(pid)},
                      {const_cast<uint8_t*>(scene.hello.data()) + scene.helloPid + sizeof(pid),
                       scene.hello.size() - scene.helloPid - sizeof(pid)}};
    msghdr message{};
    message.msg_iov = pieces;
    message.msg_iovlen = 3;
    return sendmsg(fd, &message, MSG_NOSIGNAL) == static_cast<ssize_t>(scene.hello.size());
}

// Waits for the other side's answer: 1 if a byte came, 0 if it closed the connection, 3 if it held it open.
int Answer(int fd)
{
    pollfd ready{fd, POLLIN, 0};
    uint8_t bytes[4096];
    if (poll(&ready, 1, ANSWER_WAIT_MS) != 1) {
        return 3;
    }
    return recv(fd, bytes, sizeof(bytes), 0) > 0 ? 1 : 0;
}

bool SendAll(int fd, const std::vector<uint8_t>& bytes)
{
    return send(fd, bytes.data(), bytes.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(bytes.size());
}

// Connects to the name and sends a hello, which a refusal may cut short: the socket, or -2 if it could not connect.
int Intrude(const std::string& name, const Scene& scene)
{
    const int fd = ConnectTo(name);
    if (fd >= 0) {
        SendHello(fd, scene);
    }
    return fd >= 0 ? fd : -2;
}

// Another process of this user opens a session at the name and gets its hello answered.
bool LegitimateClientGetsThrough(const std::string& name, const Scene& scene)
{
    const pid_t client = fork();
    if (client == 0) {
        const int fd = Intrude(name, scene);
        _exit(fd >= 0 && Answer(fd) == 1 ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    int status = -1;
    return client > 0 && waitpid(client, &status, 0) == client && WIFEXITED(status) &&
           WEXITSTATUS(status) == EXIT_SUCCESS;
}

// A stream of connections beyond what one process is served, each kept open and silent: the last one.
int Flood(const Scene& scene)
{
    constexpr size_t EXCESS = 8;
    int last = -2;
    for (size_t i = 0; i < ConnectionQuota::PER_PROCESS + EXCESS && last != -1; ++i) {
        last = ConnectTo(scene.processAddress);
    }
    return last >= 0 ? last : -2;
}

// Two sessions opened: one stays idle, the other begins a frame and never finishes it (the one returned).
int StallWithinAFrame(const Scene& scene)
{
    const int idle = Intrude(scene.processAddress, scene);
    const int stalled = Intrude(scene.processAddress, scene);
    return Answer(idle) == 1 && Answer(stalled) == 1 && SendAll(stalled, scene.halfRelease) ? stalled : -2;
}

// The stalled session is dropped once its frame's deadline passed, not long after; the idle one stays.
bool StalledSessionDropped(const Scene&)
{
    using Clock = std::chrono::steady_clock;
    constexpr auto MARGIN = std::chrono::milliseconds(500);
    const auto start = Clock::now();
    const bool opened = IpcHostTransport::SessionCount() == 2;
    while (IpcHostTransport::SessionCount() == 2 && Clock::now() < start + FrameSocket::FRAME_DEADLINE + 2 * MARGIN) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    const auto dropped = Clock::now() - start;
    std::this_thread::sleep_for(MARGIN);
    return opened && IpcHostTransport::SessionCount() == 1 && dropped > FrameSocket::FRAME_DEADLINE - MARGIN;
}

// This process's own abstract listener, as every user can read it in /proc/net/unix.
std::string OwnListenerName()
{
    std::ifstream table("/proc/net/unix");
    const std::string prefix = "@ohos.ipc." + std::to_string(getpid()) + ".";
    std::string word;
    while (table >> word) {
        if (word.compare(0, prefix.size(), prefix) == 0) {
            return word;
        }
    }
    return std::string();
}

uid_t OwnerOf(const std::string& path)
{
    struct stat status {};
    return lstat(path.c_str(), &status) == 0 ? status.st_uid : static_cast<uid_t>(-1);
}

mode_t ModeOf(const std::string& path)
{
    struct stat status {};
    return lstat(path.c_str(), &status) == 0 ? (status.st_mode & 07777) : 0;
}

std::vector<std::string> FilesIn(const std::string& directory)
{
    std::vector<std::string> names;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(directory, error)) {
        names.push_back(entry.path().filename().string());
    }
    return names;
}

size_t CountIn(const char* directory)
{
    return FilesIn(directory).size();
}

// The uid that nobody has, for the attacker.
uid_t UnusedUid()
{
    uid_t uid = 43210;
    while (getpwuid(uid) != nullptr) {
        ++uid;
    }
    return uid;
}

sptr<IRemoteObject> Stub()
{
    return new IPCObjectStub(u"test.attack.Own");
}

// The context object served at a socket that others may open: the peer's uid still keeps them out.
bool ServeOpenToAll(const Scene& scene)
{
    return IpcHostTransport::ServeContextObject(scene.sharedSocket, Stub()) &&
           chmod(scene.sharedSocket.c_str(), 0777) == 0;
}

bool ServedClientGetsThrough(const Scene& scene)
{
    const bool through = LegitimateClientGetsThrough(scene.sharedSocket, scene);
    IpcHostTransport::StopServingContextObject();
    return through;
}

// sharectl --processes, killed with SIGKILL in the middle of its session: its traced output fills a pipe that
// nobody reads, so it waits in write(2) with its services running.
bool SharectlKilledLeavesNothing(const Scene& scene)
{
    int out[2];
    if (pipe2(out, O_CLOEXEC) != 0 || fcntl(out[1], F_SETPIPE_SZ, 4096) < 0) {
        return false;
    }
    const pid_t sharectl = fork();
    if (sharectl == 0) {
        dup2(out[1], STDOUT_FILENO);
        dup2(out[1], STDERR_FILENO);
        execl(SHARECTL_PATH, "sharectl", "--processes", "--trace", static_cast<char*>(nullptr));
        _exit(127);
    }
    close(out[1]);
    const bool blocked = Eventually([sharectl] { return BlockedInPipeWrite(sharectl); }, std::chrono::seconds(10));
    const std::vector<std::string> served = FilesIn(scene.privateDirectory);
    std::vector<pid_t> started = ChildrenOf(sharectl);
    for (pid_t serve : ChildrenOf(sharectl)) {
        const std::vector<pid_t> services = ChildrenOf(serve);
        started.insert(started.end(), services.begin(), services.end());
    }
    kill(sharectl, SIGKILL);
    waitpid(sharectl, nullptr, 0);
    close(out[0]);
    return blocked && served.size() == 1 && started.size() >= 2 &&
           Eventually([&] { return FilesIn(scene.privateDirectory).empty(); }) && Eventually([&] {
               for (pid_t process : started) {
                   if (!Gone(process)) {
                       return false;
                   }
               }
               return true;
           });
}

// A raw data block as a hostile sender makes it: its memfd, the text's size and the seals it carries. 1 when it is
// read, 0 when it is refused, -1 if it could not be made.
int ReadsHostileBlock(uint32_t size, off_t length, int seals)
{
    const int fd = memfd_create("hostile", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    const std::string text(size - 1, 'x');
    MessageParcel parcel;
    const size_t written = std::min(text.size(), static_cast<size_t>(length));
    const bool made = ftruncate(fd, length) == 0 && pwrite(fd, text.c_str(), written, 0) >= 0 &&
                      fcntl(fd, F_ADD_SEALS, seals) == 0 && parcel.WriteUint32(size) &&
                      parcel.WriteInt32(static_cast<int32_t>(size)) && parcel.WriteFileDescriptor(fd);
    close(fd);
    std::string out;
    return made ? static_cast<int>(Zelkon::ParcelUtil::ReadBigString(parcel, out, UINT32_MAX, 1)) : -1;
}

// The block a sender wrote cannot be shrunk nor rewritten by anyone who holds it, and reads as it was written.
bool SentBlockStaysAsSent()
{
    const std::string text(40000, 'y');
    MessageParcel parcel;
    uint32_t size = 0;
    int32_t rawSize = 0;
    if (!Zelkon::ParcelUtil::WriteBigString(parcel, text) || !parcel.ReadUint32(size) || !parcel.ReadInt32(rawSize)) {
        return false;
    }
    const int fd = parcel.ReadFileDescriptor();
    const bool unchangeable = ftruncate(fd, 16) != 0 && pwrite(fd, "z", 1, size - 1) < 0;
    close(fd);
    std::string out;
    parcel.RewindRead(0);
    return unchangeable && Zelkon::ParcelUtil::ReadBigString(parcel, out, UINT32_MAX, 1) && out == text;
}

// This process serves the host system ability manager for the row's peers, then forgets everything.
class ServedManager {
public:
    ServedManager() : socket_(UserRuntimeDirectory::UniqueSocketPath("samgr"))
    {
        serving_ = !socket_.empty() && SamgrHostControl::ServeAcrossProcesses(socket_);
        SamgrHostControl::RegisterLoader(ABILITY_ID, [] { return Stub(); });
    }
    ~ServedManager()
    {
        IpcHostTransport::StopServingContextObject();
        SamgrHostControl::Reset();
    }
    // An attack_peer that the manager did not start.
    pid_t StartStranger(const std::vector<std::string>& arguments)
    {
        std::vector<std::string> strings = {ATTACK_PEER};
        strings.insert(strings.end(), arguments.begin(), arguments.end());
        std::vector<char*> argv;
        for (std::string& argument : strings) {
            argv.push_back(argument.data());
        }
        argv.push_back(nullptr);
        std::string socketVariable = std::string(SamgrHostControl::SOCKET_ENVIRONMENT) + "=" + socket_;
        std::vector<char*> envp;
        for (char** variable = environ; *variable != nullptr; ++variable) {
            envp.push_back(*variable);
        }
        envp.push_back(socketVariable.data());
        envp.push_back(nullptr);
        const pid_t pid = fork();
        if (pid == 0) {
            execve(argv[0], argv.data(), envp.data());
            _exit(127);
        }
        return pid;
    }
    // The stranger's exit status: 0 when the manager refused it.
    int RunStranger(const std::vector<std::string>& arguments)
    {
        int status = -1;
        waitpid(StartStranger(arguments), &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    bool Serving() const { return serving_; }
    const std::string& Socket() const { return socket_; }

private:
    std::string socket_;
    bool serving_ = false;
};

sptr<IRemoteObject> LoadAbility()
{
    return SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager()->LoadSystemAbility(ABILITY_ID, 5);
}

// Whether the other side closed the connection; status is that of the last reply it sent before, if any.
bool Ends(int socket, int& status)
{
    IpcFrame frame;
    FrameSocket::Result result = FrameSocket::Result::OK;
    while ((result = FrameSocket::Receive(socket, FrameSocket::Clock::now() + 5s, frame)) == FrameSocket::Result::OK) {
        status = frame.status;
    }
    return result == FrameSocket::Result::CLOSED;
}

// Every session of the test's raw peers ended here, and its threads and descriptors with it.
bool RawPeersGone()
{
    return IpcHostTransport::WaitForPeerGone(getpid(), 5s);
}

// Peer A is given an object of the user's; peer B names the handle of it in a call or an acquire. B is refused with
// the platform's error and its session is closed; A still calls the object.
bool ForgedHandleIsRefused(IpcFrame::Kind kind)
{
    const std::string path = UserRuntimeDirectory::SocketPath(DEFAULT_SOCKET);
    sptr<ScriptedStub> context = new ScriptedStub(u"test.attack.Context");
    sptr<IRemoteObject> given = Stub();
    context->SetHandler([given](uint32_t, MessageParcel&, MessageParcel& reply) {
        return reply.WriteRemoteObject(given) ? ERR_NONE : ERR_INVALID_DATA;
    });
    if (!IpcHostTransport::ServeContextObject(path, context)) {
        return false;
    }
    RawPeer holder = OpenRawPeer(path, "attack.holder", 1, true);
    RawPeer forger = OpenRawPeer(path, "attack.forger", 2, true);
    IpcFrame call;
    call.kind = IpcFrame::Kind::TRANSACTION;
    call.code = 1;
    call.transaction = 1;
    IpcFrame reply;
    const bool givenToHolder =
        FrameSocket::Send(holder.channel.Get(), call.Encode(nullptr, 0, 0), {}) &&
        FrameSocket::Receive(holder.channel.Get(), FrameSocket::Clock::now() + 5s, reply) == FrameSocket::Result::OK &&
        reply.objects.size() == 1;
    IpcFrame forged;
    forged.kind = kind;
    forged.handle = givenToHolder ? reply.objects[0].value : 0;
    forged.transaction = 1;
    int status = ERR_NONE;
    int sessionStatus = ERR_NONE;
    const bool refused =
        givenToHolder && FrameSocket::Send(forger.channel.Get(), forged.Encode(nullptr, 0, 0), {}) &&
        Ends(forger.channel.Get(), status) &&
        status == (kind == IpcFrame::Kind::ACQUIRE ? static_cast<int>(ERR_UNKNOWN_OBJECT) : BR_FAILED_REPLY) &&
        Ends(forger.session.Get(), sessionStatus);
    call.handle = forged.handle;
    const bool holderServed =
        FrameSocket::Send(holder.channel.Get(), call.Encode(nullptr, 0, 0), {}) &&
        FrameSocket::Receive(holder.channel.Get(), FrameSocket::Clock::now() + 5s, reply) == FrameSocket::Result::OK &&
        reply.status == IPC_STUB_UNKNOW_TRANS_ERR;
    holder = RawPeer();
    forger = RawPeer();
    IpcHostTransport::StopServingContextObject();
    return refused && holderServed && RawPeersGone();
}

// A process of this user's own that serves a context object at a path and answers each call as the row scripts it,
// with raw frames on a thread of its own; it ends when destroyed.
class HostileServer {
public:
    using Answer = std::function<void(int channel, const IpcFrame& call)>;

    HostileServer(const std::string& path, Answer answer) :
        address_("attack.hostile." + std::to_string(getpid())),
        sessions_(FrameSocket::Listen(path, FrameSocket::Namespace::FILESYSTEM)),
        channels_(FrameSocket::Listen(address_, FrameSocket::Namespace::ABSTRACT)), answer_(std::move(answer)),
        thread_([this] { Serve(); })
    {
    }
    ~HostileServer()
    {
        shutdown(channelFd_.load(), SHUT_RDWR);
        thread_.join();
    }

    // Waits until the caller read everything sent to it, so that the next frame arrives on its own.
    static void WaitUntilRead(int socket)
    {
        Eventually([socket] {
            int unread = 0;
            return ioctl(socket, SIOCOUTQ, &unread) == 0 && unread == 0;
        });
    }
    static void Reply(int channel, const IpcFrame& call, const std::vector<uint8_t>& data, IpcFrame reply = {})
    {
        reply.kind = IpcFrame::Kind::REPLY;
        reply.transaction = call.transaction;
        FrameSocket::Send(channel, reply.Encode(data.data(), data.size(), 0), {});
    }

private:
    static UniqueFd Accept(int listener)
    {
        pollfd ready{listener, POLLIN, 0};
        return UniqueFd(poll(&ready, 1, 5000) == 1 ? accept4(listener, nullptr, nullptr, SOCK_CLOEXEC) : -1);
    }
    void Serve()
    {
        UniqueFd session = Accept(sessions_.Get());
        IpcFrame hello;
        if (FrameSocket::Receive(session.Get(), FrameSocket::Clock::now() + 5s, hello) != FrameSocket::Result::OK ||
            !FrameSocket::Send(session.Get(),
                               IpcFrame::EncodeHello(IpcFrame::Kind::SESSION_HELLO, hello.handle, getpid(), address_),
                               {})) {
            return;
        }
        UniqueFd channel = Accept(channels_.Get());
        channelFd_.store(channel.Get());
        IpcFrame frame;
        FrameSocket::Receive(channel.Get(), FrameSocket::Clock::now() + 5s, frame);
        while (FrameSocket::Receive(channel.Get(), std::nullopt, frame) == FrameSocket::Result::OK) {
            if (frame.kind == IpcFrame::Kind::ACQUIRE) {
                const std::u16string descriptor = u"attack.Hostile";
                const auto* bytes = reinterpret_cast<const uint8_t*>(descriptor.data());
                Reply(channel.Get(), frame, {bytes, bytes + descriptor.size() * sizeof(char16_t)});
            } else {
                answer_(channel.Get(), frame);
            }
        }
    }

    const std::string address_;
    UniqueFd sessions_;
    UniqueFd channels_;
    std::atomic<int> channelFd_{-1};
    const Answer answer_;
    std::thread thread_;
};

std::vector<uint8_t> Int32Data(int32_t value)
{
    const auto* bytes = reinterpret_cast<const uint8_t*>(&value);
    return {bytes, bytes + sizeof(value)};
}

int32_t CallFor(const sptr<IRemoteObject>& object)
{
    MessageParcel data;
    MessageParcel reply;
    MessageOption option;
    return object != nullptr && object->SendRequest(1, data, reply, option) == ERR_NONE ? reply.ReadInt32() : -1;
}

// The first call is answered twice; the stray second answer is dropped, and the next call gets its own.
bool StrayReplyIsDropped(const Scene& scene)
{
    int32_t calls = 0;
    sptr<IRemoteObject> object;
    {
        HostileServer server(scene.sharedSocket, [&calls](int channel, const IpcFrame& call) {
            ++calls;
            HostileServer::WaitUntilRead(channel);
            HostileServer::Reply(channel, call, Int32Data(calls));
            if (calls == 1) {
                HostileServer::WaitUntilRead(channel);
                HostileServer::Reply(channel, call, Int32Data(-calls));
            }
        });
        object = IpcHostTransport::ConnectToContextObject(scene.sharedSocket);
        if (CallFor(object) != 1 || CallFor(object) != 2) {
            return false;
        }
    }
    object = nullptr;
    return RawPeersGone();
}

// The reply carries an object of a third process that never says hello: the object arrives as one whose process
// ended, within the one second that a frame's imports may take.
bool SilentThirdProcessObjectArrivesDead(const Scene& scene)
{
    const std::string silent = "attack.silent." + std::to_string(getpid());
    UniqueFd silentListener = FrameSocket::Listen(silent, FrameSocket::Namespace::ABSTRACT);
    sptr<IRemoteObject> third;
    auto took = FrameSocket::Clock::duration::max();
    {
        HostileServer server(scene.sharedSocket, [&silent](int channel, const IpcFrame& call) {
            IpcFrame reply;
            reply.objects.push_back({0, IpcFrame::ObjectKind::FOREIGN, 7, u"attack.Third", silent});
            HostileServer::Reply(channel, call, std::vector<uint8_t>(FlatObject::SIZE, 0), std::move(reply));
        });
        sptr<IRemoteObject> object = IpcHostTransport::ConnectToContextObject(scene.sharedSocket);
        MessageParcel data;
        MessageParcel reply;
        MessageOption option;
        const auto start = FrameSocket::Clock::now();
        if (object == nullptr || object->SendRequest(1, data, reply, option) != ERR_NONE) {
            return false;
        }
        took = FrameSocket::Clock::now() - start;
        third = reply.ReadRemoteObject();
    }
    MessageParcel data;
    MessageParcel reply;
    MessageOption option;
    return IpcHostTransport::HasProcessEnded(third) && third->SendRequest(1, data, reply, option) == BR_DEAD_REPLY &&
           took < 2s && RawPeersGone();
}

const std::vector<Attack> ATTACKS = {
    {"SecondUidSquatsThePrivateDirectory", true, nullptr,
     [](const Scene& scene) { return mkdir(scene.privateDirectory.c_str(), 0777) == 0 ? -1 : -2; },
     [](const Scene& scene) {
         return UserRuntimeDirectory::Path().empty() && OwnerOf(scene.privateDirectory) != getuid() &&
                ModeOf(scene.privateDirectory) == 0777;
     },
     R"(ohos-host-\d+ belongs to uid \d+, not to this user \(uid \d+\): refused)"},
    {"SecondUidServesTheDefaultSocketInTheSquattedDirectory", true, nullptr,
     [](const Scene& scene) {
         mkdir(scene.privateDirectory.c_str(), 0777);
         return ListenAt(scene.defaultSocket);
     },
     [](const Scene& scene) {
         return UserRuntimeDirectory::SocketPath(DEFAULT_SOCKET).empty() &&
                IpcHostTransport::ConnectToContextObject(scene.defaultSocket) == nullptr;
     },
     R"(ohos-host-\d+ belongs to uid \d+, not to this user \(uid \d+\) or root: refused)"},
    {"SecondUidServesInASharedDirectory", true, nullptr,
     [](const Scene& scene) { return ListenAt(scene.sharedSocket); },
     [](const Scene& scene) {
         return IpcHostTransport::ConnectToContextObject(scene.sharedSocket) == nullptr &&
                !IpcHostTransport::ServeContextObject(scene.sharedSocket, Stub()) &&
                OwnerOf(scene.sharedSocket) != getuid();
     },
     R"(the socket .*shared\.sock belongs to uid \d+, not to this user \(uid \d+\) or root: refused)"},
    {"SecondUidLinksThePrivateDirectoryToItsOwn", true, nullptr,
     [](const Scene& scene) {
         mkdir(scene.attackerDirectory.c_str(), 0777);
         return symlink(scene.attackerDirectory.c_str(), scene.privateDirectory.c_str()) == 0 ? -1 : -2;
     },
     [](const Scene& scene) {
         return UserRuntimeDirectory::UniqueSocketPath("sharectl").empty() && FilesIn(scene.attackerDirectory).empty();
     },
     R"(ohos-host-\d+ is not a directory: refused)"},
    {"SecondUidOffersItsRuntimeDirectory", true, nullptr,
     [](const Scene& scene) { return mkdir(scene.attackerDirectory.c_str(), 0700) == 0 ? -1 : -2; },
     [](const Scene& scene) {
         setenv(UserRuntimeDirectory::RUNTIME_ENVIRONMENT, scene.attackerDirectory.c_str(), 1);
         const std::string path = UserRuntimeDirectory::Path();
         unsetenv(UserRuntimeDirectory::RUNTIME_ENVIRONMENT);
         return path == scene.privateDirectory && ModeOf(path) == 0700 && OwnerOf(path) == getuid();
     },
     R"(XDG_RUNTIME_DIR is not this user's private directory: using .*ohos-host-\d+)"},
    {"PreCreatedDirectoryOpenToOthers", false, nullptr,
     [](const Scene& scene) { return mkdir(scene.privateDirectory.c_str(), 0755) == 0 ? -1 : -2; },
     [](const Scene& scene) { return UserRuntimeDirectory::Path().empty() && ModeOf(scene.privateDirectory) == 0755; },
     R"(others can enter .*ohos-host-\d+ \(mode 0755\): refused)"},
    {"OwnSocketOpenToOthers", false, nullptr, [](const Scene& scene) { return ListenAt(scene.sharedSocket); },
     [](const Scene& scene) { return IpcHostTransport::ConnectToContextObject(scene.sharedSocket) == nullptr; },
     R"(others can connect to the socket .*shared\.sock \(mode 0777\): refused)"},
    {"OwnStaleSocketIsReplaced", false, nullptr,
     [](const Scene& scene) {
         mkdir(scene.privateDirectory.c_str(), 0700);
         close(ListenAt(scene.defaultSocket));
         return -1;
     },
     [](const Scene& scene) {
         const bool served = UserRuntimeDirectory::SocketPath(DEFAULT_SOCKET) == scene.defaultSocket &&
                             IpcHostTransport::ServeContextObject(scene.defaultSocket, Stub());
         const bool privateSocket = ModeOf(scene.defaultSocket) == 0700;
         IpcHostTransport::StopServingContextObject();
         return served && privateSocket && access(scene.defaultSocket.c_str(), F_OK) != 0;
     },
     nullptr},
    {"SharectlKilledLeavesNoSocket", false, nullptr, [](const Scene&) { return -1; }, SharectlKilledLeavesNothing,
     nullptr},
    {"SecondUidReachesTheProcessListener", true, nullptr,
     [](const Scene& scene) { return Intrude(scene.processAddress, scene); },
     [](const Scene& scene) { return LegitimateClientGetsThrough(scene.processAddress, scene); },
     R"(refused a client of uid \d+, pid \d+: neither this user \(uid \d+\) nor root)"},
    {"SecondUidReachesTheManagerSocket", true, ServeOpenToAll,
     [](const Scene& scene) { return Intrude(scene.sharedSocket, scene); }, ServedClientGetsThrough,
     R"(refused a client of uid \d+, pid \d+: neither this user \(uid \d+\) nor root)"},
    {"SecondUidServesAnAbstractName", true, nullptr, [](const Scene& scene) { return ListenAt(scene.attackerAddress); },
     [](const Scene& scene) {
         return FrameSocket::Connect(scene.attackerAddress.substr(1), FrameSocket::Namespace::ABSTRACT) < 0;
     },
     R"(refused a server of uid \d+, pid \d+: neither this user \(uid \d+\) nor root)"},
    {"OversizedFrameHeader", false, nullptr,
     [](const Scene& scene) {
         const int fd = ConnectTo(scene.processAddress);
         return fd >= 0 && SendAll(fd, scene.oversizedHeader) ? fd : -2;
     },
     [](const Scene& scene) { return LegitimateClientGetsThrough(scene.processAddress, scene); },
     R"(refused a frame: data beyond the bound)"},
    {"FrameStalledMidway", false, nullptr, StallWithinAFrame, StalledSessionDropped,
     R"(dropped the connection of pid \d+: it stalled within a frame for \d+ s)"},
    {"ConnectionFlood", false, nullptr, Flood,
     [](const Scene& scene) { return LegitimateClientGetsThrough(scene.processAddress, scene); },
     R"(refused a connection of uid \d+, pid \d+: its process already holds \d+, the most this process serves)"},
    {"HostileRawDataBlocksAreRefused", false, nullptr, [](const Scene&) { return -1; },
     [](const Scene&) {
         constexpr int ALL = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE;
         return ReadsHostileBlock(40000, 40000, ALL) == 1 && ReadsHostileBlock(40000, 40000, 0) == 0 &&
                ReadsHostileBlock(40000, 40000, F_SEAL_SHRINK) == 0 &&
                ReadsHostileBlock(40000, 40000, F_SEAL_WRITE) == 0 && ReadsHostileBlock(40000, 16, ALL) == 0 &&
                SentBlockStaysAsSent();
     },
     R"(refused a shared memory block that can change \(seals \d+\))"},
    {"StrangerUsesHostControls", false, nullptr, [](const Scene&) { return -1; },
     [](const Scene&) {
         ServedManager manager;
         const sptr<IRemoteObject> ability = LoadAbility();
         const std::string id = std::to_string(ABILITY_ID);
         return manager.Serving() && ability != nullptr && manager.RunStranger({"kill", id}) == 0 &&
                manager.RunStranger({"add", id}) == 0 && manager.RunStranger({"script-loads", "5"}) == 0 &&
                LoadAbility() == ability;
     },
     R"(refused a kill from pid \d+, which this manager did not start)"},
    {"HugeScriptedLoadCount", false, nullptr, [](const Scene&) { return -1; },
     [](const Scene&) {
         SamgrHostControl::RegisterLoader(ABILITY_ID, [] { return Stub(); });
         SamgrHostControl::ScriptLoads({LoadScript::Outcome::REFUSE}, 20000000);
         const bool loaded = LoadAbility() != nullptr;
         SamgrHostControl::Reset();
         return loaded;
     },
     R"(refused 20000000 scripted loads)"},
    {"LoadCallbacksThatNeverAnswer", false, nullptr, [](const Scene&) { return -1; },
     [](const Scene&) {
         ServedManager manager;
         // The stranger's outcomes go out once it has stopped; this user's comes after them.
         SamgrHostControl::ScriptLoads({LoadScript::Outcome::FAIL, std::chrono::milliseconds(300)}, 16);
         SamgrHostControl::ScriptLoads({LoadScript::Outcome::SUCCEED, std::chrono::milliseconds(600)});
         const pid_t stranger = manager.StartStranger({"stall-loads", std::to_string(ABILITY_ID), "16"});
         int status = 0;
         const bool stopped = waitpid(stranger, &status, WUNTRACED) == stranger && WIFSTOPPED(status);
         const bool loaded = LoadAbility() != nullptr;
         kill(stranger, SIGKILL);
         waitpid(stranger, nullptr, 0);
         return manager.Serving() && stopped && loaded;
     },
     R"(dropped a load outcome for pid \d+: 8 wait for it already)"},
    {"ServiceEndsAfterARefusedLoad", false, nullptr, [](const Scene&) { return -1; },
     [](const Scene&) {
         ServedManager manager;
         SamgrHostControl::RegisterProcess(ABILITY_ID, [] {
             return std::vector<std::string>{ATTACK_PEER, "ability", std::to_string(ABILITY_ID)};
         });
         sptr<IRemoteObject> ability = LoadAbility();
         const pid_t service = IpcHostTransport::PeerPid(ability);
         SamgrHostControl::ScriptLoads({LoadScript::Outcome::REFUSE});
         const bool refused = LoadAbility() == nullptr;
         kill(service, SIGKILL);
         ability = nullptr;
         // Seen ended by a lookup, before or after its death notice.
         const bool forgotten = Eventually([] {
             return SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager()->CheckSystemAbility(
                        ABILITY_ID) == nullptr;
         });
         return manager.Serving() && service > 0 && refused && forgotten && Eventually([service] {
                    const std::vector<pid_t> children = ChildrenOf(getpid());
                    return std::find(children.begin(), children.end(), service) == children.end();
                });
     },
     R"(load of 4801 refused with)"},
    {"ForgedHandleInACall", false, nullptr, [](const Scene&) { return -1; },
     [](const Scene&) { return ForgedHandleIsRefused(IpcFrame::Kind::TRANSACTION); },
     R"(pid \d+ used handle \d+, which was never given to it: the session is closed)"},
    {"ForgedHandleInAnAcquire", false, nullptr, [](const Scene&) { return -1; },
     [](const Scene&) { return ForgedHandleIsRefused(IpcFrame::Kind::ACQUIRE); },
     R"(pid \d+ used handle \d+, which was never given to it: the session is closed)"},
    {"StrayReplyIsDropped", false, nullptr, [](const Scene&) { return -1; }, StrayReplyIsDropped,
     R"(dropped a stray reply to transaction \d+ while waiting for \d+)"},
    {"SilentThirdProcessObjectArrivesDead", false, nullptr, [](const Scene&) { return -1; },
     SilentThirdProcessObjectArrivesDead, R"(cannot open a session with attack\.silent\.\d+: no hello)"},
};

class AttackTable : public testing::TestWithParam<Attack> {
protected:
    static void SetUpTestSuite()
    {
        // The IPC threads start with the first work posted, and stay.
        IpcThreads::Post([] {});
        IpcThreads::Drain();
        // The transport's own listener starts with this process's first serve and stays for its life.
        const std::string warmUp = UserRuntimeDirectory::UniqueSocketPath("attack-table");
        ASSERT_TRUE(IpcHostTransport::ServeContextObject(warmUp, Stub()));
        IpcHostTransport::StopServingContextObject();
        processAddress_ = OwnListenerName();
        // The thread that served it ends just after serving stopped.
        size_t threads = CountIn("/proc/self/task");
        EXPECT_TRUE(Eventually([&threads] {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            const size_t before = threads;
            threads = CountIn("/proc/self/task");
            return threads == before;
        }));
    }

    void SetUp() override
    {
        char parent[] = "/tmp/attack-table-XXXXXX";
        ASSERT_NE(mkdtemp(parent), nullptr);
        ASSERT_EQ(chmod(parent, 01777), 0);
        const std::string root = parent;
        const std::string privateDirectory = root + "/ohos-host-" + std::to_string(getuid());
        scene_ = Scene();
        scene_.parent = root;
        scene_.privateDirectory = privateDirectory;
        scene_.defaultSocket = privateDirectory + "/" + DEFAULT_SOCKET;
        scene_.sharedSocket = root + "/shared.sock";
        scene_.attackerDirectory = root + "/attacker";
        MakeFrames();
        for (const char* name : {"TMPDIR", UserRuntimeDirectory::RUNTIME_ENVIRONMENT}) {
            const char* value = std::getenv(name);
            savedEnvironment_.emplace_back(name, value != nullptr ? std::optional<std::string>(value) : std::nullopt);
        }
        setenv("TMPDIR", parent, 1);
        unsetenv(UserRuntimeDirectory::RUNTIME_ENVIRONMENT);
        descriptors_ = CountIn("/proc/self/fd");
        threads_ = CountIn("/proc/self/task");
        children_ = ChildrenOf(getpid()).size();
    }

    void TearDown() override
    {
        for (const auto& [name, value] : savedEnvironment_) {
            value.has_value() ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
        }
        std::filesystem::remove_all(scene_.parent);
        // Connections that a row's attacker held are closed by their serving threads as they see them end.
        EXPECT_TRUE(Eventually([this] { return CountIn("/proc/self/fd") == descriptors_; })) << "descriptors are left";
        EXPECT_TRUE(Eventually([this] { return CountIn("/proc/self/task") == threads_; })) << "threads are left";
        EXPECT_TRUE(Eventually([this] { return ChildrenOf(getpid()).size() == children_; })) << "children are left";
    }

    void MakeFrames()
    {
        scene_.processAddress = processAddress_;
        ASSERT_FALSE(scene_.processAddress.empty());
        scene_.attackerAddress = scene_.processAddress + ".attacker";
        scene_.hello = IpcFrame::EncodeHello(IpcFrame::Kind::SESSION_HELLO, 1, PID_MARK, "test.attack.client");
        const auto mark =
            std::search(scene_.hello.begin(), scene_.hello.end(), reinterpret_cast<const uint8_t*>(&PID_MARK),
                        reinterpret_cast<const uint8_t*>(&PID_MARK) + sizeof(PID_MARK));
        ASSERT_NE(mark, scene_.hello.end());
        scene_.helloPid = static_cast<size_t>(mark - scene_.hello.begin());
        IpcFrame frame;
        const std::vector<uint8_t> beyond(IpcFrame::MAX_DATA_SIZE + 1);
        scene_.oversizedHeader = frame.Encode(beyond.data(), beyond.size(), 0);
        scene_.oversizedHeader.resize(IpcFrame::HEADER_SIZE);
        frame.kind = IpcFrame::Kind::RELEASE;
        scene_.halfRelease = frame.Encode(nullptr, 0, 0);
        scene_.halfRelease.resize(IpcFrame::HEADER_SIZE / 2);
    }

    // The attacker's child acts, then waits until this user is done; its exit status says whether anything of the
    // user's reached it (1: a byte on its own connection, or on one made to its listener), whether its connection
    // was held open (3), or it could not act (2). False if it could not act.
    bool LetTheAttackerAct(const Attack& row, uid_t uid)
    {
        int ready[2];
        int done[2];
        if (pipe2(ready, O_CLOEXEC) != 0) {
            return false;
        }
        if (pipe2(done, O_CLOEXEC) != 0) {
            close(ready[0]);
            close(ready[1]);
            return false;
        }
        attacker_ = fork();
        if (attacker_ == 0) {
            close(ready[0]);
            close(done[1]);
            umask(0);
            if (row.secondUid && (syscall(SYS_setgroups, 0, nullptr) != 0 || syscall(SYS_setgid, uid) != 0 ||
                                  syscall(SYS_setuid, uid) != 0)) {
                _exit(2);
            }
            const int socket = row.attacker(scene_);
            char byte = 0;
            if (socket == -2 || write(ready[1], &byte, 1) != 1) {
                _exit(2);
            }
            while (read(done[0], &byte, 1) > 0) {
            }
            int listening = 0;
            socklen_t length = sizeof(listening);
            const bool listener =
                socket >= 0 && getsockopt(socket, SOL_SOCKET, SO_ACCEPTCONN, &listening, &length) == 0 && listening;
            const int connection = listener ? accept4(socket, nullptr, nullptr, SOCK_CLOEXEC) : socket;
            _exit(connection >= 0 ? Answer(connection) : 0);
        }
        close(ready[1]);
        close(done[0]);
        char byte = 0;
        const bool acted = read(ready[0], &byte, 1) == 1;
        close(ready[0]);
        doneFd_ = done[1];
        return acted;
    }

    // 0 when nothing reached the attacker.
    int AttackerStatus()
    {
        if (attacker_ <= 0) {
            return -1;
        }
        close(doneFd_);
        int status = -1;
        waitpid(attacker_, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    Scene scene_;

private:
    static inline std::string processAddress_;
    pid_t attacker_ = -1;
    int doneFd_ = -1;
    std::vector<std::pair<std::string, std::optional<std::string>>> savedEnvironment_;
    size_t descriptors_ = 0;
    size_t threads_ = 0;
    size_t children_ = 0;
};

TEST_P(AttackTable, IsRefusedAndLoggedAndNothingIsLost)
{
    const Attack& row = GetParam();
    if (row.secondUid && getuid() != 0) {
        GTEST_SKIP() << "acting as a second uid needs root, and this suite does not run as root";
    }
    CapturedLog log;
    ASSERT_TRUE(row.before == nullptr || row.before(scene_));
    const bool acted = LetTheAttackerAct(row, UnusedUid());
    EXPECT_TRUE(acted && row.user(scene_)) << (acted ? "the outcome is not the one required" : "no attack");

    const auto matching = [&log](const std::regex& pattern) {
        const std::vector<Zelkon::CapturedLine> lines = log.Lines();
        return std::count_if(lines.begin(), lines.end(), [&pattern](const Zelkon::CapturedLine& line) {
            return std::regex_search(line.text, pattern);
        });
    };
    if (row.logged != nullptr) {
        // A refusal on another thread is logged a moment later. One attempt is one line, and a row makes at most
        // eight; a flood of attempts (the connection flood's 136) is one line per burst.
        const std::regex pattern(row.logged);
        EXPECT_TRUE(Eventually([&] { return matching(pattern) > 0; })) << "not logged: " << row.logged;
        EXPECT_LE(matching(pattern), 8) << "logged as a flood: " << row.logged;
    } else {
        EXPECT_EQ(matching(std::regex("refused")), 0) << "a refusal was logged";
    }
    EXPECT_EQ(AttackerStatus(), 0) << "the user's process reached the attacker, or held its connection";
}

INSTANTIATE_TEST_SUITE_P(Attacks, AttackTable, testing::ValuesIn(ATTACKS),
                         [](const testing::TestParamInfo<Attack>& info) { return info.param.name; });

} // namespace
} // namespace OHOS
