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

#include "file_to_send.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <utility>
#include <vector>

#include "usage_error.h"

namespace OHOS {
namespace Zelkon {
namespace {
constexpr size_t DEMO_FILE_SIZE = 100000;
constexpr size_t COPY_BUFFER_SIZE = 64 * 1024;

const char* KindOf(mode_t mode)
{
    if (S_ISDIR(mode)) {
        return "a directory";
    }
    if (S_ISFIFO(mode)) {
        return "a FIFO";
    }
    if (S_ISCHR(mode)) {
        return "a character device";
    }
    if (S_ISBLK(mode)) {
        return "a block device";
    }
    return S_ISSOCK(mode) ? "a socket" : "not a regular file";
}

UsageError Refusal(const std::string& what)
{
    return UsageError("send-file: " + what);
}

bool WriteAll(int fd, const char* data, size_t size)
{
    while (size > 0) {
        const ssize_t written = write(fd, data, size);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return false;
        }
        data += written;
        size -= static_cast<size_t>(written);
    }
    return true;
}

// Copies standard input, refusing it when it is empty or larger than the limit.
int64_t CopyStandardInput(int to)
{
    std::vector<char> buffer(COPY_BUFFER_SIZE);
    int64_t total = 0;
    for (;;) {
        const ssize_t count = read(STDIN_FILENO, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            throw Refusal(std::string("cannot read standard input: ") + std::strerror(errno));
        }
        if (count == 0) {
            break;
        }
        total += count;
        if (total > FileToSend::MAX_SIZE) {
            throw Refusal("standard input holds more than " + std::to_string(FileToSend::MAX_SIZE) + " bytes");
        }
        if (!WriteAll(to, buffer.data(), static_cast<size_t>(count))) {
            throw Refusal(std::string("cannot copy standard input into a temporary file: ") + std::strerror(errno));
        }
    }
    if (total == 0) {
        throw Refusal("standard input is empty: there is nothing to send");
    }
    return total;
}
} // namespace

FileToSend::FileToSend(UniqueFd opened, std::string name, int64_t size, std::unique_ptr<TempFile> temp) :
    opened_(std::move(opened)), name_(std::move(name)), size_(size), temp_(std::move(temp))
{
}

std::unique_ptr<FileToSend> FileToSend::Open(const std::string& path)
{
    if (path == STANDARD_INPUT) {
        auto temp = std::make_unique<TempFile>("sharectl-stdin");
        if (temp->Fd() < 0) {
            throw Refusal(temp->Error());
        }
        const int64_t size = CopyStandardInput(temp->Fd());
        return std::unique_ptr<FileToSend>(new FileToSend(UniqueFd(), "standard input", size, std::move(temp)));
    }
    // Not blocking: opening a FIFO for reading would wait for a writer.
    UniqueFd fd(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (fd < 0) {
        throw Refusal("cannot open " + path + ": " + std::strerror(errno));
    }
    struct stat status {};
    std::string refusal;
    if (fstat(fd, &status) != 0) {
        refusal = "cannot read the status of " + path + ": " + std::strerror(errno);
    } else if (!S_ISREG(status.st_mode)) {
        refusal = path + " is " + KindOf(status.st_mode) + ": only regular files are sent";
    } else if (status.st_size > MAX_SIZE) {
        refusal = path + " holds " + std::to_string(status.st_size) + " bytes, more than the " +
                  std::to_string(MAX_SIZE) + " that are sent";
    }
    if (!refusal.empty()) {
        throw Refusal(refusal);
    }
    return std::unique_ptr<FileToSend>(
        new FileToSend(std::move(fd), path.substr(path.find_last_of('/') + 1), status.st_size, nullptr));
}

std::unique_ptr<FileToSend> FileToSend::Demo(std::string& error)
{
    auto temp = std::make_unique<TempFile>("sharectl-file");
    std::vector<char> contents(DEMO_FILE_SIZE);
    for (size_t i = 0; i < contents.size(); ++i) {
        contents[i] = static_cast<char>('a' + i % 26);
    }
    if (temp->Fd() < 0 || !WriteAll(temp->Fd(), contents.data(), contents.size())) {
        error = temp->Fd() < 0 ? temp->Error() : "cannot write " + temp->Path() + ": " + std::strerror(errno);
        return nullptr;
    }
    const std::string name = temp->Path().substr(temp->Path().find_last_of('/') + 1);
    return std::unique_ptr<FileToSend>(
        new FileToSend(UniqueFd(), name, static_cast<int64_t>(contents.size()), std::move(temp)));
}

} // namespace Zelkon
} // namespace OHOS
