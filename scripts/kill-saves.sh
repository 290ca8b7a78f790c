#!/usr/bin/env bash
# kill-saves.sh [ROUNDS [PROGRAM]]: ends orbelle-cli while it saves and exports, by one signal after
# the other and at random moments. Each file has to be whole, the old or the new one, and after one
# more save nothing else may be left. 500 rounds if not said.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
rounds=${1:-500}
cli=${2:-$root/build/release/bin/orbelle-cli}

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
export HOME=$work/home XDG_STATE_HOME=$work/home/state
mkdir home out old new

# Two pictures, so that the files of one can be told from those of the other.
cp "$root/samples/envelope.volf" old.volf
cp "$root/samples/speech-bubble.volf" new.volf
formats='png ico gif bmp'
verbs() { # DOCUMENT FOLDER
    echo "open $1.volf"
    echo "save $2/file.volf"
    for format in $formats; do echo "export $2/file.$format"; done
}
in_place() { # DOCUMENT FOLDER
    echo "open $1.volf"
    echo "save $2/linked.volf"
}
for document in old new; do
    { verbs $document $document; in_place $document $document; } | "$cli" --script -
done
for kind in verbs in_place; do
    for ((i = 0; i < 200; i++)); do $kind old out; $kind new out; done >$kind.txt
done

cp old/* out
ln out/linked.volf out/other.volf

# One of two whole files, or a whole copy in the state folder stands for it.
is_whole() { # NAME
    cmp -s "out/$1" "old/$1" || cmp -s "out/$1" "new/$1"
}
has_copy() {
    local copy
    for copy in home/state/orbelle/saves/*-linked.volf; do
        cmp -s "$copy" old/linked.volf || cmp -s "$copy" new/linked.volf || return 1
    done
    [[ -e $copy ]]
}

signals=(KILL TERM INT HUP KILL)
scripts=(verbs in_place verbs)
damaged=0 copies=0 leftovers=0 unfinished=0
for ((round = 0; round < rounds; round++)); do
    signal=${signals[round % ${#signals[@]}]}
    # A shell starts its background programs with SIGINT ignored.
    env --default-signal=INT "$cli" --script "${scripts[round % ${#scripts[@]}]}.txt" &
    sleep "0.0$((10 + RANDOM % 50))"
    kill -s "$signal" $!
    status=0
    wait $! 2>/dev/null || status=$?
    [[ $status == $((128 + $(kill -l "$signal"))) ]] ||
        { echo "kill-saves: $signal ended it with status $status" >&2; exit 1; }

    for file in old/*; do
        name=${file#old/}
        is_whole "$name" && continue
        if [[ $name == linked.volf ]] && has_copy; then
            copies=$((copies + 1))
        else
            echo "kill-saves: round $round, $signal: $name is damaged" >&2
            damaged=$((damaged + 1))
        fi
    done
    temporary=$(find out -name '.*' -type f | wc -l)
    unfinished=$((unfinished + temporary))
    [[ $signal == KILL || $temporary == 0 ]] || { ls -A out; leftovers=$((leftovers + 1)); }
    "$cli" open old.volf save out/file.volf save out/linked.volf
    [[ $(ls -A out | wc -l) == 7 ]] || { ls -A out; leftovers=$((leftovers + 1)); }
    cmp -s out/linked.volf out/other.volf || damaged=$((damaged + 1))
    rm -rf home/state
done
echo "$rounds rounds: $damaged damaged files, $leftovers leftovers;" \
    "$copies files whole as a copy only, $unfinished unfinished ones found and removed"
[[ $damaged == 0 && $leftovers == 0 ]]
