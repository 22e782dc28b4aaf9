/*
 * A temporary file with given contents, removed when it goes out of scope.
 */
#ifndef TEMP_FILE_H
#define TEMP_FILE_H

#include <string>

namespace OHOS {
namespace Zelkon {

class TempFile {
public:
    // Empty Path() when the file could not be made.
    TempFile(const std::string& stem, size_t size);
    ~TempFile();
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

    const std::string& Path() const { return path_; }

private:
    std::string path_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // TEMP_FILE_H
