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
 * A file descriptor that closes itself: movable, not copyable, compared and converted as the int it holds (-1 when
 * empty). A new descriptor is given by moving a new UniqueFd in; Reset is its own.
 */
#ifndef UNIQUE_FD_H
#define UNIQUE_FD_H

#include <unistd.h>

namespace OHOS {

class DefaultDeleter {
public:
    static void Close(int fd)
    {
        if (fd >= 0) {
            close(fd);
        }
    }
};

template <typename Deleter = DefaultDeleter>
class UniqueFdAddDeletor final {
public:
    UniqueFdAddDeletor() = default;
    explicit UniqueFdAddDeletor(const int& value) : fd_(value) {}
    UniqueFdAddDeletor(UniqueFdAddDeletor&& other) : fd_(other.Release()) {}
    UniqueFdAddDeletor& operator=(UniqueFdAddDeletor&& other)
    {
        Reset(other.Release());
        return *this;
    }
    ~UniqueFdAddDeletor() { Reset(-1); }

    // The descriptor, no longer closed by this object.
    int Release()
    {
        const int fd = fd_;
        fd_ = -1;
        return fd;
    }
    // The descriptor stays this object's: do not close it.
    int Get() const { return fd_; }
    operator int() const { return Get(); } // NOLINT: the platform's UniqueFd converts implicitly.

    bool operator==(const int& rhs) const { return fd_ == rhs; }
    bool operator!=(const int& rhs) const { return fd_ != rhs; }
    bool operator>=(const int& rhs) const { return fd_ >= rhs; }
    bool operator>(const int& rhs) const { return fd_ > rhs; }
    bool operator<=(const int& rhs) const { return fd_ <= rhs; }
    bool operator<(const int& rhs) const { return fd_ < rhs; }

    friend bool operator==(const int& lhs, const UniqueFdAddDeletor& rhs) { return lhs == rhs.fd_; }
    friend bool operator!=(const int& lhs, const UniqueFdAddDeletor& rhs) { return lhs != rhs.fd_; }
    friend bool operator>=(const int& lhs, const UniqueFdAddDeletor& rhs) { return lhs >= rhs.fd_; }
    friend bool operator>(const int& lhs, const UniqueFdAddDeletor& rhs) { return lhs > rhs.fd_; }
    friend bool operator<=(const int& lhs, const UniqueFdAddDeletor& rhs) { return lhs <= rhs.fd_; }
    friend bool operator<(const int& lhs, const UniqueFdAddDeletor& rhs) { return lhs < rhs.fd_; }

private:
    UniqueFdAddDeletor(const UniqueFdAddDeletor&) = delete;
    UniqueFdAddDeletor& operator=(const UniqueFdAddDeletor&) = delete;

    void Reset(int newValue)
    {
        if (fd_ >= 0) {
            Deleter::Close(fd_);
        }
        fd_ = newValue;
    }

    int fd_ = -1;
};

using UniqueFd = UniqueFdAddDeletor<DefaultDeleter>;

} // namespace OHOS

#endif // UNIQUE_FD_H
