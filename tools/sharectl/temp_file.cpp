#include "temp_file.h"

#include <cstdlib>
#include <unistd.h>

#include <vector>

namespace OHOS {
namespace Zelkon {

TempFile::TempFile(const std::string& stem, size_t size)
{
    std::string pattern = "/tmp/" + stem + "-XXXXXX";
    const int fd = mkstemp(pattern.data());
    if (fd < 0) {
        return;
    }
    std::vector<char> contents(size);
    for (size_t i = 0; i < size; ++i) {
        contents[i] = static_cast<char>('a' + i % 26);
    }
    const bool written = write(fd, contents.data(), size) == static_cast<ssize_t>(size);
    close(fd);
    if (!written) {
        unlink(pattern.c_str());
        return;
    }
    path_ = pattern;
}

TempFile::~TempFile()
{
    if (!path_.empty()) {
        unlink(path_.c_str());
    }
}

} // namespace Zelkon
} // namespace OHOS
