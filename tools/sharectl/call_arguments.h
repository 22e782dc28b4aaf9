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
 * The arguments of one `call`, given as NAME=VALUE and read strictly by the types of the operation's table: an
 * unknown name, a value out of its type's range, JSON with an unknown field or a wrong type is a usage error that
 * names it. An argument left out is 0, false, empty, or the record as the library constructs it.
 */
#ifndef CALL_ARGUMENTS_H
#define CALL_ARGUMENTS_H

#include <map>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "json_field_reader.h"
#include "library_record_fields.h"
#include "operation.h"

namespace OHOS {
namespace Zelkon {

class CallArguments {
public:
    // Throws UsageError.
    CallArguments(const Operation& operation, const std::vector<std::string>& texts);

    // The value of an argument, read by the type of the client's parameter; that type's default when left out.
    template <typename Value>
    Value Get(const char* name) const
    {
        Value value{};
        auto found = values_.find(name);
        if (found != values_.end()) {
            JsonFieldReader::Read(found->second, name, value);
        }
        return value;
    }

private:
    // Checked when the arguments were read.
    std::map<std::string, nlohmann::json> values_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // CALL_ARGUMENTS_H
