#!/usr/bin/env bash
# Copyright (c) 2026 The libshare_client Authors.
# Licensed under the Apache License, Version 2.0 (the "License");
# you may not use this file except in compliance with the License.
# You may obtain a copy of the License at
#
#     http://www.apache.org/licenses/LICENSE-2.0
#
# Unless required by applicable law or agreed to in writing, software
# distributed under the License is distributed on an "AS IS" BASIS,
# WITHOUT WARRANTIES OR CONDITIONS OF ANY KIND, either express or implied.
# See the License for the specific language governing permissions and
# limitations under the License.

# Instructions per run of each workload of share_benchmark, under callgrind: a loop of N runs and one of 2N, the
# difference divided by N (start-up and set-up cancel out). Unlike times, the counts repeat exactly on a busy
# machine. Usage: test/benchmark/count_instructions.sh [BUILD_DIR, default build/bench] [N, default 200]
set -euo pipefail
build=${1:-build/bench}
runs=${2:-200}
benchmark=$build/test/benchmark/share_benchmark

# Counts the loop of $2 runs of workload $1; any further arguments go to valgrind.
instructions() {
    valgrind --tool=callgrind --callgrind-out-file=/dev/null "${@:3}" "$benchmark" --loop "$1" "$2" 2>&1 |
        sed -n 's/^==[0-9]*== Collected : //p'
}

printf '%-24s %14s\n' workload instructions
for workload in record-round-trip record-memcpy user-list-read user-list-memcpy big-string big-string-fresh-copy \
    client-call bare-send-request; do
    # The big string moves 5 MiB a run: a few runs are enough.
    n=$runs
    [[ $workload == big-string* || $workload == user-list* ]] && n=$((runs / 40 > 0 ? runs / 40 : 1))
    # The user-list loop prepares one reply per run before it starts, which grows with the runs and would be counted
    # as part of each read: count only what runs inside the read itself.
    only=()
    [[ $workload == user-list-read ]] && only=('--toggle-collect=OHOS::Zelkon::UserListRead()')
    once=$(instructions "$workload" "$n" "${only[@]}")
    twice=$(instructions "$workload" $((2 * n)) "${only[@]}")
    printf '%-24s %14d\n' "$workload" $(((twice - once) / n))
done
