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
 * Where the services of a test run: in the test's own process, or each in a process of its own under a system
 * ability manager that is a child of the test. A suite that holds in both runs once in each, named by the world.
 */
#ifndef WORLD_H
#define WORLD_H

#include <string>

#include <gtest/gtest.h>

namespace OHOS {
namespace Zelkon {

enum class World { IN_PROCESS, ACROSS_PROCESSES };

inline const auto BOTH_WORLDS = testing::Values(World::IN_PROCESS, World::ACROSS_PROCESSES);

inline std::string WorldName(const testing::TestParamInfo<World>& info)
{
    return info.param == World::IN_PROCESS ? "InProcess" : "AcrossProcesses";
}

} // namespace Zelkon
} // namespace OHOS

#endif // WORLD_H
