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
 * Parcel bytes recorded on a device for known writes: one line per case in test/data/golden.txt,
 * "NAME ok=0|1 size=BYTES maxcap=MAX hex=BYTES_AS_HEX".
 */
#ifndef GOLDEN_VECTORS_H
#define GOLDEN_VECTORS_H

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <map>
#include <string>
#include <vector>

namespace OHOS {
namespace Zelkon {

struct GoldenVector {
    bool ok = false;
    size_t size = 0;
    size_t maxCapacity = 0;
    std::vector<uint8_t> bytes;
};

inline std::vector<uint8_t> BytesFromHex(const std::string& hex)
{
    std::vector<uint8_t> bytes;
    for (size_t i = 0; i + 1 < hex.size(); i += 2) {
        bytes.push_back(static_cast<uint8_t>(std::stoul(hex.substr(i, 2), nullptr, 16)));
    }
    return bytes;
}

// test/data/golden.txt where the build put it (a device: where the suite's resources were pushed), unless the
// environment names another folder, as a host run of the device build does.
inline std::string GoldenVectorsPath()
{
    const char* folder = std::getenv("SHARE_TEST_DATA_DIR");
    return std::string(folder != nullptr ? folder : SHARE_TEST_DATA_DIR) + "/golden.txt";
}

// All cases by name; empty when the file cannot be read.
inline std::map<std::string, GoldenVector> LoadGoldenVectors(const std::string& path = GoldenVectorsPath())
{
    std::map<std::string, GoldenVector> vectors;
    std::ifstream file(path);
    std::string name;
    std::string ok;
    std::string size;
    std::string maxCapacity;
    std::string hex;
    // Each value follows its key and '='.
    while (file >> name >> ok >> size >> maxCapacity >> hex) {
        vectors[name] = {ok == "ok=1", std::stoul(size.substr(size.find('=') + 1)),
                         std::stoul(maxCapacity.substr(maxCapacity.find('=') + 1)),
                         BytesFromHex(hex.substr(hex.find('=') + 1))};
    }
    return vectors;
}

} // namespace Zelkon
} // namespace OHOS

#endif // GOLDEN_VECTORS_H
