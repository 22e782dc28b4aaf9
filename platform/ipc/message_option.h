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
 * Flags and wait time of one transaction.
 */
#ifndef OHOS_IPC_MESSAGE_OPTION_H
#define OHOS_IPC_MESSAGE_OPTION_H

namespace OHOS {

class MessageOption {
public:
    enum {
        TF_SYNC = 0x00,
        TF_ASYNC = 0x01,
        TF_STATUS_CODE = 0x08,
        TF_ACCEPT_FDS = 0x10,
        TF_WAIT_TIME = 8,
        TF_ASYNC_WAKEUP_LATER = 0x100000,
        TF_IMAGE = 0x200000,
    };
    static constexpr int TF_MIN_WAIT_TIME = 8;
    static constexpr int TF_MAX_WAIT_TIME = 3000;

    MessageOption(int flags = TF_SYNC, int waitTime = TF_WAIT_TIME) : flags_(flags), waitTime_(waitTime) {}
    ~MessageOption() = default;

    // Adds flags; existing ones stay set.
    void SetFlags(int flags) { flags_ |= flags; }
    int GetFlags() const { return flags_; }

    // Seconds, only used across devices; clamped to the range the driver accepts.
    void SetWaitTime(int waitTime)
    {
        if (waitTime <= 0) {
            waitTime_ = TF_MIN_WAIT_TIME;
        } else if (waitTime > TF_MAX_WAIT_TIME) {
            waitTime_ = TF_MAX_WAIT_TIME;
        } else {
            waitTime_ = waitTime;
        }
    }
    int GetWaitTime() const { return waitTime_; }

private:
    int flags_;
    int waitTime_;
};

} // namespace OHOS

#endif // OHOS_IPC_MESSAGE_OPTION_H
