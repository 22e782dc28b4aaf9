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
 * A temporary file in TMPDIR (or /tmp), removed when it goes out of scope, and also when SIGINT or SIGTERM ends
 * the process first: the signal's handler removes it, then the signal takes its default course. One at a time.
 */
#ifndef TEMP_FILE_H
#define TEMP_FILE_H

#include <string>

#include "unique_fd.h"

namespace OHOS {
namespace Zelkon {

class TempFile {
public:
    // Fd() is -1 when the file could not be made; Error() says why.
    explicit TempFile(const std::string& stem);
    ~TempFile();
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

    int Fd() const { return fd_.Get(); }
    const std::string& Path() const { return path_; }
    const std::string& Error() const { return error_; }

private:
    std::string path_;
    std::string error_;
    UniqueFd fd_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // TEMP_FILE_H
