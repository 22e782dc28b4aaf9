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
 * Where a command's result goes: lines for people, printed as they come, or one JSON document for scripts,
 * printed when the command is done. A result that could not be written in full is an error.
 */
#ifndef OUTPUT_H
#define OUTPUT_H

#include <string>

#include <nlohmann/json.hpp>

namespace OHOS {
namespace Zelkon {

class Output {
public:
    explicit Output(bool json) : json_(json) {}

    bool IsJson() const { return json_; }
    // Ignored for JSON.
    void Line(const std::string& line);
    // Filled by the command; printed by Finish for JSON.
    nlohmann::ordered_json& Document() { return document_; }
    // Prints the document for JSON and flushes; false, after saying why on stderr, when stdout refused a write.
    bool Finish();

private:
    // Remembers why the first write to stdout failed.
    void Check();

    const bool json_;
    std::string writeError_;
    nlohmann::ordered_json document_ = nlohmann::ordered_json::object();
};

} // namespace Zelkon
} // namespace OHOS

#endif // OUTPUT_H
