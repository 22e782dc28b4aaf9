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

#include "operation.h"

#include "usage_error.h"

namespace OHOS {
namespace Zelkon {
namespace {
// The name without its service: "SendFile.DataBean" for share.SendFile.DataBean.
std::string Unqualified(const Operation& operation)
{
    const std::string name = operation.name;
    const std::string prefix = std::string(ServiceName(operation.service)) + ".";
    return name.rfind(prefix, 0) == 0 ? name.substr(prefix.size()) : name;
}
} // namespace

const char* ServiceName(ServiceKind service)
{
    return service == ServiceKind::SHARE ? "share" : "manager";
}

std::string ClientFunction(const Operation& operation)
{
    const std::string name = Unqualified(operation);
    return std::string(operation.service == ServiceKind::SHARE ? "ShareClient::" : "ShareManagerClient::") +
           name.substr(0, name.find('.'));
}

std::vector<const Operation*> AllOperations()
{
    std::vector<const Operation*> all;
    for (const auto* table : {&ShareServiceOperations(), &ShareManagerOperations()}) {
        for (const Operation& operation : *table) {
            all.push_back(&operation);
        }
    }
    return all;
}

const Operation& FindOperation(const std::string& name)
{
    std::string meant;
    for (const Operation* operation : AllOperations()) {
        const std::string qualified = std::string(ServiceName(operation->service)) + "." + Unqualified(*operation);
        if (name == operation->name || name == qualified) {
            return *operation;
        }
        // "Cancel" or "SendFile": a name that both services have.
        const std::string unqualified = Unqualified(*operation);
        if (operation->name != unqualified && (unqualified == name || unqualified.rfind(name + ".", 0) == 0)) {
            meant += (meant.empty() ? "" : ", ") + std::string(operation->name);
        }
    }
    if (!meant.empty()) {
        throw UsageError("both services have an operation '" + name + "': say which, " + meant);
    }
    throw UsageError("unknown operation '" + name + "' ('sharectl list' lists them all)");
}

} // namespace Zelkon
} // namespace OHOS
