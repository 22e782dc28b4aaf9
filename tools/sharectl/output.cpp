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

#include "output.h"

#include <cerrno>
#include <cstring>
#include <iostream>

namespace OHOS {
namespace Zelkon {

void Output::Check()
{
    if (!std::cout && writeError_.empty()) {
        writeError_ = errno != 0 ? std::strerror(errno) : "the stream failed";
    }
}

void Output::Line(const std::string& line)
{
    if (!json_) {
        errno = 0;
        std::cout << line << std::endl;
        Check();
    }
}

bool Output::Finish()
{
    constexpr int INDENT = 2;
    errno = 0;
    if (json_) {
        std::cout << document_.dump(INDENT, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
    }
    std::cout.flush();
    Check();
    if (writeError_.empty()) {
        return true;
    }
    std::cerr << "sharectl: cannot write the output: " << writeError_ << std::endl;
    return false;
}

} // namespace Zelkon
} // namespace OHOS
