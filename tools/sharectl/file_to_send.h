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
 * The file that send-file hands to the share service by its descriptor: a regular file at a given path (no copy
 * is made), standard input copied into a temporary file, or a temporary file of demo content. Anything else is
 * refused with the reason, before anything is sent.
 */
#ifndef FILE_TO_SEND_H
#define FILE_TO_SEND_H

#include <cstdint>
#include <memory>
#include <string>

#include "temp_file.h"
#include "unique_fd.h"

namespace OHOS {
namespace Zelkon {

class FileToSend {
public:
    // Above this, a file is refused: the emulated service reads no further.
    static constexpr int64_t MAX_SIZE = 64 * 1024 * 1024;
    static constexpr const char* STANDARD_INPUT = "-";

    // A regular file, or STANDARD_INPUT; throws UsageError saying why the file cannot be sent.
    static std::unique_ptr<FileToSend> Open(const std::string& path);
    // Null when TMPDIR cannot hold it, with the reason in `error`.
    static std::unique_ptr<FileToSend> Demo(std::string& error);
    FileToSend(const FileToSend&) = delete;
    FileToSend& operator=(const FileToSend&) = delete;

    int Fd() const { return temp_ != nullptr ? temp_->Fd() : opened_.Get(); }
    // The file's base name, or "standard input".
    const std::string& Name() const { return name_; }
    int64_t Size() const { return size_; }

private:
    FileToSend(UniqueFd opened, std::string name, int64_t size, std::unique_ptr<TempFile> temp);

    // The regular file opened at its path, or else the temporary file.
    const UniqueFd opened_;
    const std::string name_;
    const int64_t size_;
    const std::unique_ptr<TempFile> temp_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // FILE_TO_SEND_H
