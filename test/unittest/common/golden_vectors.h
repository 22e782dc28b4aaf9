/*
 * Parcel bytes recorded on a device for known writes: one line per case in test/data/golden.txt,
 * "NAME ok=0|1 size=BYTES maxcap=MAX hex=BYTES_AS_HEX".
 */
#ifndef GOLDEN_VECTORS_H
#define GOLDEN_VECTORS_H

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <map>
#include <sstream>
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
    bytes.reserve(hex.size() / 2);
    for (size_t i = 0; i + 1 < hex.size(); i += 2) {
        bytes.push_back(static_cast<uint8_t>(std::stoul(hex.substr(i, 2), nullptr, 16)));
    }
    return bytes;
}

// Value of "key=value" in a line's field, or "" when the field has another key.
inline std::string GoldenField(const std::string& field, const std::string& key)
{
    const std::string prefix = key + "=";
    return field.compare(0, prefix.size(), prefix) == 0 ? field.substr(prefix.size()) : std::string();
}

// All cases by name; empty when the file cannot be read.
inline std::map<std::string, GoldenVector> LoadGoldenVectors(const std::string& path)
{
    std::map<std::string, GoldenVector> vectors;
    std::ifstream file(path);
    std::string line;
    while (std::getline(file, line)) {
        std::istringstream fields(line);
        std::string name;
        std::string ok;
        std::string size;
        std::string maxCapacity;
        std::string hex;
        if (!(fields >> name >> ok >> size >> maxCapacity >> hex)) {
            continue;
        }
        GoldenVector vector;
        vector.ok = GoldenField(ok, "ok") == "1";
        vector.size = std::stoul(GoldenField(size, "size"));
        vector.maxCapacity = std::stoul(GoldenField(maxCapacity, "maxcap"));
        vector.bytes = BytesFromHex(GoldenField(hex, "hex"));
        vectors[name] = vector;
    }
    return vectors;
}

} // namespace Zelkon
} // namespace OHOS

#endif // GOLDEN_VECTORS_H
