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
 * A command line that makes no sense: sharectl says why on stderr, runs nothing and exits with status 2.
 */
#ifndef USAGE_ERROR_H
#define USAGE_ERROR_H

#include <stdexcept>

namespace OHOS {
namespace Zelkon {

class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace Zelkon
} // namespace OHOS

#endif // USAGE_ERROR_H
