/*
 * A temporary file in TMPDIR (or /tmp), removed when it goes out of scope, and also when SIGINT or SIGTERM ends
 * the process first: the signal's handler removes it, then the signal takes its default course. One at a time.
 */
#ifndef TEMP_FILE_H
#define TEMP_FILE_H

#include <string>

namespace OHOS {
namespace Zelkon {

class TempFile {
public:
    // Fd() is -1 when the file could not be made; Error() says why.
    explicit TempFile(const std::string& stem);
    ~TempFile();
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

    int Fd() const { return fd_; }
    const std::string& Path() const { return path_; }
    const std::string& Error() const { return error_; }

private:
    std::string path_;
    std::string error_;
    int fd_ = -1;
};

} // namespace Zelkon
} // namespace OHOS

#endif // TEMP_FILE_H
